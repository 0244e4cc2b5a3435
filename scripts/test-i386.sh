#!/bin/sh
# Builds the library for 32-bit x86 and runs its tests. Debian's libraries for that architecture are unpacked into
# build-i386/libraries once and never installed. Installs what else is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/private-apt.sh
install_packages g++-i686-linux-gnu ninja-build

libraries=$PWD/build-i386/libraries
if [ ! -e "$libraries/complete" ]; then
    echo "Unpacking libraries ..."
    rm -rf "$libraries"
    mkdir -p "$libraries"
    private_apt_update "$libraries/apt" deb i386
    private_apt install -y --no-install-recommends --download-only libxerces-c-dev libgtest-dev \
        >"$libraries/apt/log" 2>&1 || { cat "$libraries/apt/log"; exit 1; }
    for package in "$libraries"/apt/cache/archives/*.deb; do
        case ${package##*/} in
        libxerces-c-dev_* | libgtest-dev_*) ;;
        *-dev_*) continue ;; # the compiler has the C library's headers
        esac
        dpkg-deb -x "$package" "$libraries"
    done
    rm -rf "$libraries/apt"
    touch "$libraries/complete"
fi

echo "== i386"
jobs=$(nproc)
cmake --preset i386 -G Ninja -DTAL_BUILD_TESTS=ON >/dev/null
cmake --build --preset i386 --parallel "$jobs"
# The C library converts text with modules, which it would look for among those of this machine.
GCONV_PATH=$libraries/usr/lib/i386-linux-gnu/gconv ctest --preset i386 --parallel "$jobs"
