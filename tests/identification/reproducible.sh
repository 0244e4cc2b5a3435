#!/bin/sh
# Two builds at the same stated time, in two folders, are the same byte for byte. Arguments: cmake, source directory,
# compiler, where other libraries are (CMAKE_PREFIX_PATH).
set -eu
cmake=$1 source=$2 compiler=$3 prefix=$4

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; echo "failed: $*"; exit 1; }
}
build() { # source and build directory
    mkdir -p "$1"
    tar -C "$source" --exclude=./.git --exclude='./build*' -c . | tar -C "$1" -x
    quietly "$cmake" -S "$1" -B "$2" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$prefix" \
        -DCMAKE_CXX_COMPILER_LAUNCHER= -DCMAKE_BUILD_TYPE=Debug -DTAL_BUILD_TOOL=OFF -DTAL_BUILD_TESTS=OFF -DTAL_BUILD_MACHINE=nobody
    quietly "$cmake" --build "$2" --parallel "$(nproc)"
}

SOURCE_DATE_EPOCH=1764374670
export SOURCE_DATE_EPOCH
build "$work/one" "$work/one/build"
TZ=America/New_York build "$work/another folder" "$work/elsewhere"

count=0
for library in "$work"/one/build/lib/*.so.*.*.*; do
    cmp "$library" "$work/elsewhere/lib/${library##*/}"
    count=$((count + 1))
done
[ $count = 3 ] || { echo "$count libraries, not 3"; exit 1; }
strings "$work/one/build/lib/"libTalAttributeSchemaReader.so.*.*.* |
    grep -q '^@(#)TAL .*, built on nobody (Nov 29 2025 at 00:04:30)'
