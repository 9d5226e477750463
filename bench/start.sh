#!/usr/bin/env bash
# The program against a bare window and one with a line of text, from the start to the first
# complete paint: the shortest times of 40 starts of each, in turn, and the memory that they then
# hold. The kilobytes more with the window of voicings open. Then the program with
# three data files of a million records each: time, and its further memory over the files' size.
# Needs a display (or QT_QPA_PLATFORM=offscreen) and a release build.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../build/release/bench"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# measure NAME COMMAND...
measure() {
    local name=$1
    shift
    START=$EPOCHREALTIME "$@" 2>/dev/null >>"$folder/$name"
}
shortest() { sort -n "$folder/$1" | awk 'NR == 1 {print $1}'; }
memory() { sort -n -k2 "$folder/$1" | awk '{v[NR] = $2} END {print v[int((NR + 1) / 2)]}'; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN {printf "%.2f\n", a / b}'; }

for _ in {1..40}; do
    measure program ./start_program
    measure bare ./start_bare
    measure line ./start_line
done
for _ in {1..10}; do measure voicings ./start_program . voicings; done
echo "StartProgram $(shortest program)"
echo "StartBare $(shortest bare)"
echo "StartRatio $(ratio "$(shortest program)" "$(shortest bare)")"
echo "StartLineRatio $(ratio "$(shortest program)" "$(shortest line)")"
echo "VoicingsMemory $(($(memory voicings) - $(memory program)))"
echo "MemoryRatio $(ratio "$(memory program)" "$(memory bare)")"

awk -v folder="$folder" 'BEGIN {
    for (i = 0; i < 1000000; ++i) {
        printf "Chord%d\r\nalt, other\r\nsfx\r\n43\r\n", i > folder "/chords.dat"
        printf "Scale%d\r\n1,3,5,6,8,10,12\r\n", i > folder "/scales.dat"
        printf "Tuning%d\r\nE,B,G,D,A,E\r\n", i > folder "/tunings.dat"
    }
}'
for _ in {1..5}; do measure million ./start_program "$folder"; done
size=$(cat "$folder"/*.dat | wc -c)
echo "StartMillion $(shortest million)"
echo "MemoryMillion $(ratio $((($(memory million) - $(memory program)) * 1024)) "$size")"
