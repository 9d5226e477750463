#!/usr/bin/env bash
# run.sh [SECONDS]: builds the fuzz targets and runs each for so long (10), as many at a time as
# there are processors. New inputs are kept in build/fuzz/corpus and go on from there the next
# time; an input that breaks a promise is left in build/fuzz/findings.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/../.."
seconds=${1-10}
source packaging/setup.sh
install_missing build run test
build_preset fuzz fuzz

output=$PWD/build/fuzz
mkdir -p "$output/findings" "$output/logs"
TMPDIR=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR-/tmp}")")
trap 'rm -rf -- "$TMPDIR"' EXIT

# fuzz TARGET: one target with what is known of it; what it says goes into its log.
fuzz() {
    local seeds=tests/fuzz/corpus/$1 log=$output/logs/$1
    mkdir -p "$output/corpus/$1"
    "$output/tests/fuzz/$1" -max_total_time="$seconds" -timeout=10 -print_final_stats=1 \
        -artifact_prefix="$output/findings/$1-" "$output/corpus/$1" "$seeds" 2> "$log" ||
        echo "failed: $?" >> "$log"
}
export -f fuzz
export seconds output TMPDIR QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8

targets=$(basename -a -s .cpp tests/fuzz/*_fuzz.cpp)
xargs -P "$(nproc)" -I '{}' bash -c 'fuzz "{}"' <<< "$targets"

found=0
printf '%-18s %12s %9s %8s  %s\n' target executions "a second" inputs result
for target in $targets; do
    log=$output/logs/$target
    stat() { sed -n "s/^stat::$1: *//p" "$log"; }
    result=passed
    [ "$(stat number_of_executed_units || true)" -gt 0 ] 2>/dev/null || result=failed
    ! grep -q '^failed' "$log" || result=failed
    [ "$result" = passed ] || found=1
    printf '%-18s %12s %9s %8s  %s\n' "$target" "$(stat number_of_executed_units)" \
        "$(stat average_exec_per_sec)" "$(find "$output/corpus/$target" -type f | wc -l)" "$result"
done
for target in $targets; do
    ! grep -q '^failed' "$output/logs/$target" || tail -n 60 "$output/logs/$target" >&2
done
exit "$found"
