#!/usr/bin/env bash
# Takes pictures of every window at each scale and screen size, in Russian and in English, in light
# and in dark colours, for the left hand, with large letters and with a dark desktop:
# screens.sh [OUTPUT-FOLDER], build/screens by default.
# Needs a release build; no display. Fails where a window has no room on its screen.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/../.."
output=$(realpath -m -- "${1:-build/screens}")
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
# program NAME KEY=VALUE...: a program folder with these settings.
program() {
    local name=$1
    shift
    cp -r build/release/tonvik "$work/$name"
    printf '[Settings]\r\n' > "$work/$name/tonvik.ini"
    printf '%s\r\n' "$@" >> "$work/$name/tonvik.ini"
}
program ru Scheme=1
program en Scheme=1 Language=english.lng
program ru-dark Scheme=2
program en-dark Scheme=2 Language=english.lng
program ru-left Scheme=1 LeftHanded=1
program desktop Scheme=0
export XDG_STATE_HOME=$work/state # Every window as at its first opening.
failed=0

# take NAME PROGRAM WIDTH HEIGHT SCALE [VARIABLE=VALUE...]: the size in true pixels.
take() {
    local name=$1 program=$2 width=$3 height=$4 scale=$5
    shift 5
    cat > "$work/screen.json" <<JSON
{ "screens": [ { "name": "screen", "x": 0, "y": 0, "width": $width, "height": $height,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] }
JSON
    echo "$name"
    rm -rf -- "$XDG_STATE_HOME"
    env QT_QPA_PLATFORM="offscreen:configfile=$work/screen.json" QT_SCALE_FACTOR="$scale" "$@" \
        build/release/tests/screens/screens "$work/$program" "$output/$name" || failed=1
}

for program in ru en ru-dark en-dark; do
    take "$program-1024x600" $program 1024 600 1
    take "$program-1024x768" $program 1024 768 1
    for scale in 1 2; do
        take "$program-1920x1080-$scale" $program 1920 1080 "$scale"
    done
done
for scale in 1.25 1.5; do
    take "ru-1920x1080-$scale" ru 1920 1080 "$scale"
done
for scale in 1 2 3; do
    take "en-3840x2160-$scale" en 3840 2160 "$scale"
done
take ru-left-1024x768 ru-left 1024 768 1
take ru-large-letters ru 1920 1080 1 QT_FONT_DPI=144
take dark-desktop desktop 1920 1080 1 QT_STYLE_OVERRIDE= GTK_THEME=Adwaita:dark
exit "$failed"
