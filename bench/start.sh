#!/usr/bin/env bash
# Start to first paint and memory, the program against a bare window, in turn: medians of 20
# pairs. Needs a display (or QT_QPA_PLATFORM=offscreen) and a release build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../build/release/bench"
median() { sort -n | awk '{v[NR]=$1} END {print v[int((NR+1)/2)]}'; }
for round in $(seq 21); do
    for program in start_program start_bare; do
        begin=$(date +%s%N)
        memory=$(./$program 2>/dev/null | awk '{print $2}')
        end=$(date +%s%N)
        [ "$round" -eq 1 ] || echo "$(((end - begin) / 1000)) $memory" >>"/tmp/$program.$$"
    done
done
for program in start_program start_bare; do
    echo "$program: $(cut -d' ' -f1 "/tmp/$program.$$" | median) us, $(cut -d' ' -f2 "/tmp/$program.$$" | median) kB"
    rm -f "/tmp/$program.$$"
done
