# shellcheck shell=bash
# A display and, where PulseAudio is found, a sound server with a silent device, both of the
# benchmarks' own. Sourced; what is started ends with the script.

desktop=$(mktemp -d)
started=()
end_desktop() {
    [ ${#started[@]} -eq 0 ] || kill "${started[@]}" 2>/dev/null || true
    wait
    rm -rf "$desktop"
}
trap end_desktop EXIT

# within_ten_seconds TEST...: waits for the test to come true.
within_ten_seconds() {
    local tries
    for ((tries = 0; tries < 100; ++tries)); do
        "$@" && return
        sleep 0.1
    done
    echo "Waited in vain: $*" >&2
    return 1
}

start_desktop() {
    local number
    export XDG_RUNTIME_DIR=$desktop HOME=$desktop
    exec {number}<>"$desktop/display"
    Xvfb -displayfd "$number" -screen 0 1366x768x24 -nolisten tcp &>/dev/null &
    started+=($!)
    within_ten_seconds test -s "$desktop/display"
    DISPLAY=:$(<"$desktop/display")
    export DISPLAY
    if command -v pulseaudio >/dev/null; then
        pulseaudio -n --daemonize=no --exit-idle-time=-1 -L module-null-sink \
            -L "module-native-protocol-unix socket=$desktop/sound" &>/dev/null &
        started+=($!)
        within_ten_seconds test -S "$desktop/sound"
        export PULSE_SERVER=unix:$desktop/sound
    else
        printf 'pcm.!default { type null }\nctl.!default { type null }\n' >"$desktop/device"
        export PULSE_SERVER=none PIPEWIRE_REMOTE=none ALSA_CONFIG_PATH=$desktop/device
    fi
}
