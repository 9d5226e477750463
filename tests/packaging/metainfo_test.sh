# The description for software catalogues is valid without a warning, speaks the program's six
# languages and names its version.
source "$(dirname "${BASH_SOURCE[0]}")/check.sh"
needs_command appstreamcli
metainfo=$source_dir/packaging/tonvik.metainfo.xml

verdict=$(appstreamcli validate --no-net --no-color --pedantic "$metainfo" 2>&1) ||
    same "The verdict" "success" "$verdict"
same "Objections" "" "$(grep '^[EWP]:' <<<"$verdict" || true)"
same "The component's id in lower case" 1 "$(grep -c '<id>[a-z.]*</id>' "$metainfo")"
for language in be bg ru sr uk; do
    same "Texts in $language: summary, developers, two paragraphs" \
        "developer_name p p summary" \
        "$(sed -n "s/.*<\([a-z_]*\) xml:lang=\"$language\">.*/\1/p" "$metainfo" |
            grep -v '^name$' | sort | xargs)"
done
version=$(sed -n 's/^project(tonvik VERSION \([0-9.]*\).*/\1/p' "$source_dir/CMakeLists.txt")
same "The latest release" "$version" \
    "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$metainfo" | head -1)"
