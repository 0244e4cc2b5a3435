# Sourced by the other scripts: installs the Debian packages that are missing. Arguments: further packages.

test_packages="abigail-tools libgtest-dev graphviz jq libxml2-utils"
bench_packages="libbenchmark-dev libxml2-dev libpugixml-dev xsdcxx"
fuzz_packages="clang libxml2-dev libgtest-dev ninja-build"
recipes_packages="vim pre-commit"
docs_packages="doxygen mandoc"
windows_packages="g++-mingw-w64-x86-64-posix wine wine64 googletest dpkg-dev ninja-build"

install_packages() {
    missing=
    for package in g++ make cmake git pkg-config libxerces-c-dev libcli11-dev nlohmann-json3-dev libtomlplusplus-dev libutf8proc-dev "$@"; do
        case $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null) in
        ii*) ;;
        *) missing="$missing $package" ;;
        esac
    done
    [ -n "$missing" ] || return 0
    echo "Installing:$missing"
    as_root=
    [ "$(id -u)" = 0 ] || as_root=sudo
    $as_root apt-get update -q >/dev/null
    # The names are words on purpose.
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive $as_root apt-get install -q -y --no-install-recommends $missing >/dev/null
}
