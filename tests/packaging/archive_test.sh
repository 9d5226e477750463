# The archive is the program folder with its licence and a true list of what it needs.
source "$(dirname "${BASH_SOURCE[0]}")/check.sh"
needs_command readelf

(cd "$temporary" && cpack --config "$build_dir/CPackConfig.cmake" -B "$temporary" >/dev/null)
mkdir "$temporary/unpacked"
tar -xzf "$temporary"/tonvik-*.tar.gz -C "$temporary/unpacked"
same "The archive's only folder" "tonvik" "$(ls -A "$temporary/unpacked")"
folder=$temporary/unpacked/tonvik
same "The files" "$({ program_files; echo ./LICENSE; echo ./NEEDS.txt; } | sort)" \
    "$(files_of "$folder")"
[ -x "$folder/tonvik" ]

# The libraries that the program names, and the first of the list's columns.
needed=$(readelf -d "$folder/tonvik" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | sort)
listed=$(sed -n '/^Shared libraries/,/^Qt/ s/^    \(lib[^ ]*\) .*/\1/p' "$folder/NEEDS.txt" | sort)
same "Libraries" "$needed" "$listed"
same "Libraries not found" "" "$(ldd "$folder/tonvik" "$folder/libtonvikprint.so" |
    grep 'not found' || true)"
# What only the library that prints names, and the list's paragraph on printing.
same "Libraries to print with" \
    "$(readelf -d "$folder/libtonvikprint.so" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | sort |
        comm -23 - <(printf '%s\n' "$listed"))" \
    "$(sed -n '/^Only to print/,/^Only for what/ s/^    \(lib[^ ]*\) .*/\1/p' \
        "$folder/NEEDS.txt" | sort)"
glibc=$(readelf -V "$folder/tonvik" | grep -o 'GLIBC_[0-9.]*' | sort -Vu | tail -1)
same "The C library's version" "$(sed -n 's/.*glibc \([0-9.]*\) or.*/GLIBC_\1/p' \
    "$folder/NEEDS.txt")" "$glibc"
