# What the packaging tests share. Sourced with the arguments SOURCE BUILD; gives these and an
# empty folder, temporary, that goes away with the test.
set -euo pipefail
source_dir=$1
build_dir=$2
temporary=$(mktemp -d)
trap 'rm -rf -- "$temporary"' EXIT

# same WHAT EXPECTED SEEN
same() {
    [ "$2" = "$3" ] && return
    printf '%s\nexpected:\n%s\nseen:\n%s\n' "$1" "$2" "$3" >&2
    exit 1
}

# The files under a folder, by their paths in it.
files_of() { (cd -- "$1" && find . -type f | sort); }

# The files of the built program folder that belong to the program.
program_files() {
    (cd -- "$build_dir/tonvik" &&
        find . -type f \( -path ./tonvik -o -path ./libtonvikprint.so -o -path ./help.dat -o -path './*.lng' \
            -o -path './sounds/*.mid' \) | sort)
}

# What the test asks for is in packaging/packages, so it is here.
needs_command() {
    command -v "$1" >/dev/null || { echo "No $1 here: see packaging/packages." >&2; exit 1; }
}

# install_into PREFIX [OPTION...]
install_into() { cmake --install "$build_dir" --prefix "$@" >/dev/null; }
