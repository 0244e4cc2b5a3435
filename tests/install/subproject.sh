#!/bin/sh
# Builds a host that takes the library's sources into its project. "static": as a folder, in C++20, static libraries
# that are then installed and used through the CMake package and pkg-config. "fetch": through FetchContent, in C++23,
# shared libraries, nothing installed. Both with a warning that our sources do not obey.
# Arguments: static or fetch, cmake, source directory, compiler, where other libraries are (CMAKE_PREFIX_PATH).
set -eu
way=$1 cmake=$2 source=$3 compiler=$4 prefix=$5

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; echo "failed: $*"; exit 1; }
}
configure() { # source and build directory, further arguments
    from=$1 to=$2
    shift 2
    quietly "$cmake" -S "$from" -B "$to" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$prefix" "$@"
}
adds_an_attribute() { # the host's command
    cp "$source/examples/bracket.xml" "$work/in.xml"
    quietly "$@" "$work/in.xml" "$work/out.xml"
    grep -q '<Attribute .*ID="HubHeight"' "$work/out.xml"
}

case $way in
static) set -- -DCMAKE_CXX_STANDARD=20 -DBUILD_SHARED_LIBS=OFF -DTAL_INSTALL=ON ;;
fetch) set -- -DCMAKE_CXX_STANDARD=23 ;;
esac
configure "$source/tests/install/subproject" "$work/build" "$@" -DSUBPROJECT_WAY="$way" \
    -DSUBPROJECT_SOURCE="$source" -DCMAKE_CXX_FLAGS="-O0 -Weffc++" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
quietly "$cmake" --build "$work/build" --parallel "$(nproc)"
adds_an_attribute "$work/build/subproject-host"

# The host is compiled with its own flags, and only with those.
grep '"command".*host/main.cpp' "$work/build/compile_commands.json" >"$work/command"
if grep -e '-Wconversion\|-Werror\|-fvisibility\|-std=[a-z+]*17' "$work/command"; then
    echo "the host is compiled with flags of the library"
    exit 1
fi

quietly "$cmake" --install "$work/build" --prefix "$work/copy"
if [ "$way" = fetch ]; then
    [ ! -e "$work/copy" ] || { find "$work/copy"; echo "installed without being asked"; exit 1; }
    exit
fi

prefix="$work/copy;$prefix"
configure "$source/examples/host" "$work/host"
quietly "$cmake" --build "$work/host"
adds_an_attribute "$work/host/schema-host"

PKG_CONFIG_PATH=$(find "$work/copy" -name pkgconfig):${PKG_CONFIG_PATH-}
export PKG_CONFIG_PATH
# Our libraries are static, the XML library is not. The flags are words on purpose.
# shellcheck disable=SC2046
quietly "$compiler" -std=c++17 "$source/examples/host/main.cpp" -o "$work/pkg-config-host" \
    $(pkg-config --cflags --libs TalAttributeSchemaHost)
pkg-config --static --libs TalAttributeSchemaHost | grep -q -e '-ldl'
adds_an_attribute "$work/pkg-config-host"

if ldd "$work/host/schema-host" "$work/pkg-config-host" | grep 'libTal\|libCAE'; then
    echo "not linked statically"
    exit 1
fi

# A copy insists on the minor version of the XML library that it was built with, and says so.
version="$work/other/include/xercesc/util/XercesVersion.hpp"
mkdir -p "${version%/*}"
printf '#define XERCES_VERSION_%s\n' 'MAJOR 3' 'MINOR 99' 'REVISION 0' >"$version"
if "$cmake" -S "$source/examples/host" -B "$work/other-host" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_PREFIX_PATH="$prefix" -DXercesC_INCLUDE_DIR="$work/other/include" >"$work/log" 2>&1; then
    echo "takes another version of the XML library"
    exit 1
fi
tr -s ' \n' ' ' <"$work/log" | grep -q 'built with Xerces-C .* works with no other minor version; found: version "3.99.0"' ||
    { cat "$work/log"; exit 1; }
