#!/bin/bash
# The rooms of the house: includes lead downwards only, and no two units include each other.
#   arrows_test.sh FOLDER    the folder of the sources
set -eu
cd "$1"

# What a room may include from besides itself.
declare -A may=(
    [core]=""
    [music]="core"
    [sound]="core"
    [controls]="core"
    [pictures]="core music controls"
    [workbench]="core music sound controls pictures"
    [settings]="core music sound controls"
    [info]="core music sound controls"
    [diagrams]="core music sound controls pictures workbench"
    [voicings]="core music sound controls pictures workbench"
    [program]="core music sound controls pictures workbench settings info diagrams voicings"
)

faults=0
fault() {
    echo "$1"
    faults=$((faults + 1))
}

for folder in */CMakeLists.txt; do
    room=${folder%/*}
    if [[ ! "$room" =~ ^(tests|bench|packaging)$ && -z "${may[$room]+known}" ]]; then
        fault "a room without a line in this test: $room"
    fi
done

# Every include of a file of the project as "including included", files without their endings.
includes() {
    grep -rEH --include='*.cpp' --include='*.h' '^#include "' $(existing) |
        sed -E 's|^([^:]+)\.(cpp\|h):#include "([^"]+)\.h".*|\1 \3|'
}

existing() {
    for room in "${!may[@]}"; do
        if [ -d "$room" ]; then echo "$room"; fi
    done
}

declare -A seen=()
while read -r from to; do
    [ "$from" = "$to" ] && continue
    fromRoom=${from%%/*}
    toRoom=${to%%/*}
    if [ "$fromRoom" != "$toRoom" ] && [[ " ${may[$fromRoom]} " != *" $toRoom "* ]]; then
        fault "upwards: $from includes $to"
    fi
    if [[ "$fromRoom" =~ ^(diagrams|voicings)$ && "$to" = workbench/frmmain ]]; then
        fault "a window that sees the state, never frmMain: $from includes $to"
    fi
    if [ -n "${seen["$to $from"]:-}" ]; then
        fault "a circle: $from and $to"
    fi
    seen["$from $to"]=1
done < <(includes)
if [ ${#seen[@]} -lt 100 ]; then
    fault "only ${#seen[@]} includes were found"
fi

exit $((faults > 0))
