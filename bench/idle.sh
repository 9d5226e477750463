#!/usr/bin/env bash
# Wake-ups per minute of the program at rest, before a first note and after one, on a display
# of its own: the voluntary context switches of all its threads. Needs Xvfb and xdotool; beside
# a PulseAudio of its own with a silent device the note is played, elsewhere it is silent.
# SECONDS_OF_REST (10) is how long each rest is watched.
set -euo pipefail
rest=${SECONDS_OF_REST:-10}
program=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../build/release/tonvik/tonvik")
folder=$(mktemp -d)
children=()
tidy() {
    kill "${children[@]}" 2>/dev/null || true
    wait
        rm -rf "$folder"
}
trap tidy EXIT
export XDG_RUNTIME_DIR=$folder HOME=$folder

# within_ten_seconds TEST...: waits for the test to come true.
within_ten_seconds() {
    local tries
    for ((tries = 0; tries < 100; ++tries)); do
        "$@" && return
        sleep 0.1
    done
    echo "waited in vain: $*" >&2
    return 1
}

exec {number}<>"$folder/display"
Xvfb -displayfd "$number" -screen 0 1600x1000x24 -nolisten tcp &>"$folder/xvfb.log" &
children+=($!)
within_ten_seconds test -s "$folder/display"
DISPLAY=:$(<"$folder/display")
export DISPLAY

if command -v pulseaudio >/dev/null; then
    pulseaudio -n --daemonize=no --exit-idle-time=-1 --disallow-exit \
        -L module-null-sink -L "module-native-protocol-unix socket=$folder/pulse.socket" \
        &>"$folder/pulse.log" &
    children+=($!)
    within_ten_seconds test -S "$folder/pulse.socket"
    export PULSE_SERVER=unix:$folder/pulse.socket
fi

"$program" &>"$folder/said" &
pid=$!
children+=("$pid")

switches() { awk '/^voluntary/ {sum += $2} END {print sum}' /proc/"$pid"/task/*/status; }
wake_ups() {
    local before after
    before=$(switches)
    sleep "$rest"
    after=$(switches)
    echo "$1 $(((after - before) * 60 / rest))"
}

window=$(timeout 20 xdotool search --sync --onlyvisible --pid "$pid" | tail -1)
xdotool windowfocus --sync "$window"
sleep 3
wake_ups before_a_note
xdotool key F6
sleep 20
wake_ups after_a_note
