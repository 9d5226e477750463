# An installation is the program folder as it was built, with its place in the menu; removing
# it leaves what is the user's, and nothing else.
source "$(dirname "${BASH_SOURCE[0]}")/check.sh"

# check_installation PREFIX SHARE
check_installation() {
    local file
    same "The program folder" "$(program_files)" "$(files_of "$1/tonvik")"
    program_files | while read -r file; do
        cmp -- "$build_dir/tonvik/$file" "$1/tonvik/$file"
    done
    [ -x "$1/tonvik/tonvik" ]
    same "The menu entry, icons and description" \
"./applications/tonvik.desktop
$(printf './icons/hicolor/%s/apps/tonvik.png\n' 128x128 16x16 24x24 256x256 32x32 48x48 64x64)
./icons/hicolor/scalable/apps/tonvik.svg
./metainfo/org.tonvik.tonvik.metainfo.xml" "$(files_of "$2")"
}

# The whole program folder: 36 keys and their sounds among it.
same "The keys' sounds" 36 "$(program_files | grep -c '^\./sounds/keys/')"

prefix="$temporary/a folder"
mkdir "$prefix"
echo "the user's" > "$prefix/other"
install_into "$prefix"
check_installation "$prefix" "$prefix/share"

# Installed anew over an earlier version, which had a file more.
touch "$prefix/tonvik/old.lng"
echo "$prefix/tonvik/old.lng" >> "$prefix/tonvik.installed"
install_into "$prefix"

touch "$prefix/tonvik/tonvik.ini" "$prefix/tonvik/chords.dat"
"$source_dir/packaging/uninstall" --prefix "$prefix"
same "What is left for the user" "./other
./tonvik/chords.dat
./tonvik/tonvik.ini" "$(files_of "$prefix")"
same "Folders left" ". ./tonvik" "$(cd "$prefix" && echo $(find . -type d))"

# What bears the name of a file of ours and is a folder is the user's, and no obstacle.
install_into "$prefix"
rm "$prefix/tonvik/help.dat"
mkdir "$prefix/tonvik/help.dat"
"$source_dir/packaging/uninstall" --prefix "$prefix/"
same "A folder in a file's place" "./other ./tonvik/chords.dat ./tonvik/tonvik.ini" \
    "$(echo $(files_of "$prefix"))"
rmdir "$prefix/tonvik/help.dat"

# Once more, now with the settings; nothing is left but what was there before.
rm "$prefix/tonvik/chords.dat"
install_into "$prefix"
(cd "$temporary" && "$source_dir/packaging/uninstall" --prefix "a folder" --settings)
same "With the settings removed" "./other" "$(cd "$prefix" && find . -mindepth 1)"

# Folders with signs in their names that mean something elsewhere; without a home; moved.
for name in 'x[1' 'a"b $c' "it's  mine" 'аккорды'; do
    (cd "$temporary" && install_into "$name")
    mv "$temporary/$name" "$temporary/moved"
    (unset HOME && cd / && "$source_dir/packaging/uninstall" --prefix "$temporary/moved")
    same "Left of $name" "" "$(cd "$temporary/moved" && find . -mindepth 1)"
    rm -r "$temporary/moved"
done
if install_into "$temporary/a;b" 2>/dev/null; then
    same "A semicolon in the name" "a refusal" "an installation"
fi
same "A semicolon in the name" "" "$(find "$temporary" -name 'a*b')"

# Packed for another root: the list speaks of that one.
DESTDIR="$temporary/root" install_into /opt/some
same "Paths of this root" "" "$(grep "$temporary" "$temporary/root/opt/some/tonvik.installed" || true)"

# A home of its own: the entry goes into the home's menu.
export HOME="$temporary/home"
mkdir -p "$HOME/.local/share/icons"
unset XDG_DATA_HOME
install_into "$HOME/.local/opt"
check_installation "$HOME/.local/opt" "$HOME/.local/share"
install_into "$HOME/.local/opt" # The folders are there by now, and still ours.
"$source_dir/packaging/uninstall"
same "The home" "./.local ./.local/share ./.local/share/icons" \
    "$(cd "$HOME" && echo $(find . -mindepth 1))"
if "$source_dir/packaging/uninstall" 2>/dev/null; then
    same "Nothing to remove" "a failure" "success"
fi
if (unset HOME && "$source_dir/packaging/uninstall" 2>/dev/null); then
    same "No home" "a failure" "success"
fi
