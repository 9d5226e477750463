#!/usr/bin/env bash
# Wake-ups per minute of the program at rest, before a first note and after one: the voluntary
# context switches of all its threads, each time over ten seconds. Needs a release build, xdotool
# and a display without another program's windows.
set -euo pipefail
seconds=10
"$(dirname "${BASH_SOURCE[0]}")/../build/release/tonvik/tonvik" &>/dev/null &
pid=$!
trap 'kill "$pid" && wait "$pid" || true' EXIT

switches() { awk '/^voluntary/ {sum += $2} END {print sum}' /proc/"$pid"/task/*/status; }
wake_ups() {
    local before after
    before=$(switches)
    sleep "$seconds"
    after=$(switches)
    echo "$1 $(((after - before) * 60 / seconds))"
}

window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Тонвик$' | tail -1)
xdotool windowfocus --sync "$window"
sleep 3
wake_ups WakeUpsBeforeANote
xdotool key F6
sleep 20 # Until the strings have been played and the device was let go of.
wake_ups WakeUpsAfterANote
