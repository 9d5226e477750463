#!/usr/bin/env bash
# Meets the program over the accessibility bus, in a private session and on a display of its
# own: bus_test.sh PROGRAM-FOLDER. Ends with 77 where the tools are missing.
set -euo pipefail
test=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/bus_test.py
skip() {
    echo "Skipped: $1"
    exit 77
}

# The distribution's python has the accessibility client; another in the path may not.
python=
for candidate in /usr/bin/python3 python3; do
    "$candidate" -c 'import pyatspi' 2>/dev/null && python=$candidate && break
done
[ -n "$python" ] || skip "python has no pyatspi"
for tool in Xvfb dbus-run-session; do
    command -v "$tool" >/dev/null || skip "no $tool"
done

display=$(mktemp)
Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$display" >/dev/null 2>&1 &
server=$!
trap 'kill "$server"; wait "$server" || true; rm -f -- "$display"' EXIT
until [ -s "$display" ]; do
    kill -0 "$server" || skip "Xvfb does not start"
    read -r -t 0.05 < <(:) || true
done
unset AT_SPI_BUS_ADDRESS
DISPLAY=:$(cat "$display") dbus-run-session -- "$python" "$test" "$1"
