# Installs what is missing of the given groups of packaging/packages. Sourced by ./run and
# ./test; needs root or sudo, and elsewhere names what is missing and stops.

install_missing() {
    local groups=" $* " group package
    local missing=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is no Debian system; it must provide what packaging/packages lists." >&2
        return 0
    fi
    while read -r group package; do
        case "$groups" in *" $group "*) ;; *) continue ;; esac
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done < <(grep -v '^#' packaging/packages)
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null || ! sudo -v; then
            echo "Please install these packages first: ${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures (once) and builds a preset.
build_preset() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1"
    cmake --build --preset "$1"
}
