# Sourced by the other scripts: apt with lists and packages of its own, so that neither the machine's sources nor what
# is installed changes. It asks where the machine asks.

# Arguments: a folder for the lists, "deb" or "deb-src", an architecture.
private_apt_update() {
    private_apt_folder=$1
    private_apt_architecture=$3
    mkdir -p "$1/sources" "$1/lists/partial" "$1/cache/archives/partial"
    : >"$1/status"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
        [ ! -f "$file" ] || sed -e "s/^deb /$2 /" -e "s/^Types:.*/Types: $2/" "$file" >"$1/sources/${file##*/}"
    done
    private_apt update >/dev/null || echo "Some lists of packages could not be had." >&2
}

private_apt() {
    apt-get -q -o APT::Architecture="$private_apt_architecture" -o APT::Architectures="$private_apt_architecture" \
        -o APT::Sandbox::User=root -o Dir::Etc::SourceList=/dev/null \
        -o Dir::Etc::SourceParts="$private_apt_folder/sources" -o Dir::State::Lists="$private_apt_folder/lists" \
        -o Dir::State::status="$private_apt_folder/status" -o Dir::Cache="$private_apt_folder/cache" "$@"
}
