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
    quietly "${as_root[@]}" apt-get update -qq
    quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq --no-install-recommends "${missing[@]}"
}

# quietly COMMAND...: shows what the command says only where it fails, and ends the script then.
quietly() {
    local said
    said=$("$@" 2>&1) || { printf '%s\n' "$said" >&2; exit 1; }
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
    local quiet=()
    quietly cmake --preset "$1"
    [ -t 1 ] || quiet=(-- --quiet)
    cmake --build --preset "$1" --target "${2:-all}" "${quiet[@]}"
}
