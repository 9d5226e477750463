# What is missing is installed, and nothing else; without rights or without apt-get it is
# named. The system's commands are played by scripts of the test.
source "$(dirname "${BASH_SOURCE[0]}")/check.sh"

log=$temporary/log
commands=$temporary/commands
mkdir -p "$temporary/packaging" "$commands"
cp "$source_dir/packaging/setup.sh" "$temporary/packaging"
printf '%s\n' '# A comment.' 'build here' 'build gone' '' 'run half' 'test unasked' \
    > "$temporary/packaging/packages"

play() { # NAME BODY
    printf '#!%s\n%s\n' "$BASH" "$2" > "$commands/$1"
    chmod +x "$commands/$1"
}
play dpkg-query 'case $3 in here) echo -n installed ;; half) echo -n config-files ;; *) exit 1 ;; esac'
play apt-get "echo \"\$*\" >> '$log'"
play id 'echo 0'
ln -s "$(command -v env)" "$commands/env"

# Installs as the program's scripts do; prints what they say, then their exit status.
install_as_played() {
    : > "$log"
    (cd "$temporary" && PATH=$commands "$BASH" -c \
        'set -euo pipefail; source packaging/setup.sh; install_missing "$@"; echo reached' - "$@" 2>&1) ||
        echo "failed"
}

same "As root" "Installing gone half
reached" "$(install_as_played build run)"
same "As root" "update -qq
install -qq --no-install-recommends gone half" "$(cat "$log")"

play id 'echo 1000'
same "Without sudo" "Missing: gone half
Only root can install them:
    apt-get install --no-install-recommends gone half
failed" "$(install_as_played build run)"
same "Without sudo" "" "$(cat "$log")"

play sudo '[ "$1" = -v ] || { echo -n "sudo " >> '"'$log'"'; "$@"; }'
same "Through sudo" "Installing gone
reached" "$(install_as_played build)"
same "Through sudo" "sudo update -qq
sudo install -qq --no-install-recommends gone" "$(cat "$log")"

play apt-get 'echo "No such package."; exit 100'
same "A failing installation" "Installing gone
No such package.
failed" "$(install_as_played build)"

rm "$commands/apt-get"
same "Without apt-get" "Missing: gone
There is no apt-get here to install them; these are Debian's names.
failed" "$(install_as_played build)"

play dpkg-query 'echo -n installed'
same "Nothing missing" "reached" "$(install_as_played build run test)"
