# The entry in the desktop's menu is valid, speaks the program's six languages and starts the
# program where it was installed.
source "$(dirname "${BASH_SOURCE[0]}")/check.sh"
needs_command desktop-file-validate

install_into "$temporary/plain"
entry=$temporary/plain/share/applications/tonvik.desktop
same "Objections" "" "$(desktop-file-validate "$entry" 2>&1 || true)"
same "Exec" "Exec=\"$temporary/plain/tonvik/tonvik\"" "$(grep ^Exec= "$entry")"
same "TryExec" "TryExec=$temporary/plain/tonvik/tonvik" "$(grep ^TryExec= "$entry")"
for language in be bg ru sr uk; do
    same "Keys in $language" "Comment GenericName Keywords" \
        "$(sed -n "s/^\([A-Za-z]*\)\[$language\]=.*/\1/p" "$entry" | grep -v '^Name$' | sort | xargs)"
done
same "The Russian name" "Name[ru]=Тонвик" "$(grep '^Name\[' "$entry")"

odd="$temporary/a \$b 100%"
install_into "$odd" --component desktop
entry=$odd/share/applications/tonvik.desktop
same "Objections" "" "$(desktop-file-validate "$entry" 2>&1 || true)"
same "Exec" "Exec=\"$temporary/a \\\\\$b 100%%/tonvik/tonvik\"" "$(grep ^Exec= "$entry")"
same "TryExec" "TryExec=$odd/tonvik/tonvik" "$(grep ^TryExec= "$entry")"

# The window asks for the entry by its file's name.
grep -q 'setDesktopFileName(QStringLiteral("tonvik"))' "$source_dir/program/main.cpp"
