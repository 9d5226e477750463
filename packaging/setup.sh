# What ./run and ./test have in common: installing and building. Sourced by them, in the
# project's folder.

# Installs what is missing of the given groups of packaging/packages. Where that cannot be
# done, names what is missing and ends the script.
install_missing() {
    local groups=" $* " group package
    local missing=() as_root=()
    while read -r group package; do
        [[ $groups == *" $group "* ]] || continue
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done < packaging/packages
    [ ${#missing[@]} -eq 0 ] && return

    if ! command -v apt-get >/dev/null; then
        stop_without "There is no apt-get here to install them; these are Debian's names." \
            "${missing[@]}"
    fi
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null || ! sudo -v; then
            stop_without "Only root can install them:
    apt-get install --no-install-recommends ${missing[*]}" "${missing[@]}"
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq --no-install-recommends -o Dpkg::Use-Pty=0 "${missing[@]}" >/dev/null
}

# stop_without REASON PACKAGE...
stop_without() {
    local reason=$1
    shift
    printf 'Missing: %s\n%s\n' "$*" "$reason" >&2
    exit 1
}

# build_preset PRESET [TARGET]: configures and builds, anew only what has changed. Says how far
# it is on a terminal, and elsewhere only what is wrong.
build_preset() {
    local log=build/$1.log quiet=()
    mkdir -p build
    cmake --preset "$1" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
    [ -t 1 ] || quiet=(-- --quiet)
    cmake --build --preset "$1" --target "${2:-all}" "${quiet[@]}"
}
