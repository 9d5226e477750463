#!/usr/bin/env bash
# Meets the program over the accessibility bus, in a private session and on a display of its
# own: bus_test.sh PROGRAM-FOLDER. The tools that it needs are in packaging/packages.
set -euo pipefail
test=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/bus_test.py
fail() {
    echo "$1" >&2
    exit 1
}

# The distribution's python has the accessibility client; another in the path may not.
python=
for candidate in /usr/bin/python3 python3; do
    "$candidate" -c 'import pyatspi' 2>/dev/null && python=$candidate && break
done
[ -n "$python" ] || fail "python has no pyatspi"
for tool in Xvfb dbus-run-session; do
    command -v "$tool" >/dev/null || fail "no $tool"
done

display=$(mktemp)
Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$display" >/dev/null 2>&1 &
server=$!
trap 'kill "$server"; wait "$server" || true; rm -f -- "$display"' EXIT
until [ -s "$display" ]; do
    kill -0 "$server" || fail "Xvfb does not start"
    read -r -t 0.05 < <(:) || true
done
unset AT_SPI_BUS_ADDRESS
DISPLAY=:$(cat "$display") dbus-run-session -- "$python" "$test" "$1"
