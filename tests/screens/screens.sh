#!/usr/bin/env bash
# Takes pictures of every window at each scale and screen size, in Russian and in English, with
# large letters and with a dark desktop: screens.sh [OUTPUT-FOLDER], build/screens by default.
# Needs a release build; no display. Fails where a window has no room on its screen.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/../.."
output=$(realpath -m -- "${1:-build/screens}")
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
cp -r build/release/tonvik "$work/ru"
cp -r build/release/tonvik "$work/en"
printf '[Settings]\r\nLanguage=english.lng\r\n' > "$work/en/tonvik.ini"
failed=0

# take NAME LANGUAGE WIDTH HEIGHT SCALE [VARIABLE=VALUE...]: the size in true pixels.
take() {
    local name=$1 language=$2 width=$3 height=$4 scale=$5
    shift 5
    cat > "$work/screen.json" <<JSON
{ "screens": [ { "name": "screen", "x": 0, "y": 0, "width": $width, "height": $height,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] }
JSON
    echo "$name"
    env QT_QPA_PLATFORM="offscreen:configfile=$work/screen.json" QT_SCALE_FACTOR="$scale" "$@" \
        build/release/tests/screens/screens "$work/$language" "$output/$name" || failed=1
}

for language in ru en; do
    take "$language-1024x600" $language 1024 600 1
    for scale in 1 1.25 1.5 2; do
        take "$language-1920x1080-$scale" $language 1920 1080 "$scale"
    done
    for scale in 1 2 3; do
        take "$language-3840x2160-$scale" $language 3840 2160 "$scale"
    done
done
take ru-large-letters ru 1920 1080 1 QT_FONT_DPI=144
take ru-dark-desktop ru 1920 1080 1 QT_STYLE_OVERRIDE= GTK_THEME=Adwaita:dark
exit "$failed"
