#!/bin/bash
# No file has grown out of its size: sources 300 lines, tests 400, those of the main window 900
# together.
#   sizes_test.sh FOLDER    the folder of the sources
set -eu
cd "$1"

tooLong() { # lines, folder...
    local most=$1
    shift
    find "$@" \( -name '*.cpp' -o -name '*.h' \) -exec wc -l {} + |
        awk -v most="$most" '$2 != "total" && $1 > most { print $2 ": " $1 " lines" }'
}

rooms=()
for room in */CMakeLists.txt; do
    case "$room" in tests/* | build/*) ;; *) rooms+=("${room%/*}") ;; esac
done
found=$(tooLong 300 "${rooms[@]}" && tooLong 400 tests)
together=$(cat workbench/frmmain* | wc -l)
if [ "$together" -ge 900 ]; then
    found+="workbench/frmmain*: $together lines"
fi
if [ -n "$found" ]; then
    echo "$found"
    exit 1
fi
