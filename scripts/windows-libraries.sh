#!/bin/sh
# Builds what the Windows build links with, into build-windows/libraries: the XML library and the one that knows how wide
# characters are as DLLs, from Debian's source packages, and GoogleTest; headers that need no building and the compiler's
# run-time DLLs are copied beside them. Arguments are settings of the XML library's build, such as
# -Dxmlch-type=wchar_t. What was built with the same ones is kept. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
. scripts/private-apt.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $windows_packages

root=$PWD
libraries=$root/build-windows/libraries
settings=$*
[ "$settings" != "$(cat "$libraries/settings" 2>/dev/null || echo none)" ] || exit 0
work=$root/build-windows/libraries-work
rm -rf "$libraries" "$work"
mkdir -p "$libraries/bin" "$work"

# Arguments: name, source directory, target, build directory to install from, further settings.
build() {
    name=$1 source=$2 target=$3 installed=$4
    shift 4
    echo "Building $name ..."
    {
        cmake -G Ninja -S "$source" -B "$work/$name" -DCMAKE_TOOLCHAIN_FILE="$root/cmake/MingwToolchain.cmake" \
            -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$libraries" "$@" &&
            cmake --build "$work/$name" --target "$target" && cmake --install "$work/$name/$installed"
    } >"$work/$name.log" 2>&1 || {
        tail -n 50 "$work/$name.log"
        exit 1
    }
}

private_apt_update "$work/apt" deb-src "$(dpkg --print-architecture)"
(cd "$work" && private_apt source xerces-c utf8proc) >"$work/source.log" 2>&1 || { cat "$work/source.log"; exit 1; }
build xerces "$work"/xerces-c-*/ xerces-c src -DBUILD_SHARED_LIBS=ON -Dnetwork=OFF -Dtranscoder=windows \
    -Dmessage-loader=inmemory -Dmutex-manager=windows "$@"
build utf8proc "$work"/utf8proc-*/ all . -DBUILD_SHARED_LIBS=ON
build googletest /usr/src/googletest all . -DBUILD_GMOCK=OFF

# Not through -isystem /usr/include, which would let the machine's own C library in.
(cd /usr && cp -r --parents include/CLI include/nlohmann include/toml++ share/cmake/CLI11 share/cmake/nlohmann_json "$libraries")
for dll in libgcc_s_seh-1 libstdc++-6 libwinpthread-1; do
    cp "$(x86_64-w64-mingw32-g++-posix -print-file-name=$dll.dll)" "$libraries/bin"
done
rm -rf "$work"
echo "$settings" >"$libraries/settings"
