# The description for software catalogues is valid.
source "$(dirname "${BASH_SOURCE[0]}")/check.sh"
needs_command appstreamcli
appstreamcli validate --no-net "$source_dir/packaging/tonvik.metainfo.xml"
