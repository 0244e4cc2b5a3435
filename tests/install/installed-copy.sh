#!/bin/sh
# Installs a copy, builds the example host against it, once through the CMake package and once through pkg-config,
# and runs both. Arguments: cmake, build directory, examples, compiler, its flags, 1 for a sanitized build.
set -eu
cmake=$1 build=$2 examples=$3 compiler=$4 flags=$5 sanitize=$6

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
if [ "$sanitize" = 1 ]; then
    flags="$flags -fsanitize=address,undefined"
fi

"$cmake" --install "$build" --prefix "$work/copy" >"$work/log" || { cat "$work/log"; exit 1; }
"$cmake" -S "$examples/host" -B "$work/host" -DCMAKE_PREFIX_PATH="$work/copy" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_CXX_FLAGS="$flags" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
"$cmake" --build "$work/host" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }

"$work/host/schema-host" "$examples/bracket.xml" "$work/out.xml"
grep -q '<Attribute DataType="Double" .*ID="HubHeight" Label="Hub height"' "$work/out.xml"
grep -q '<StorageType Value="Local"/>' "$work/out.xml"
before=$(grep -c '<Attribute .*ID="' "$examples/bracket.xml")
after=$(grep -c '<Attribute .* ID="' "$work/out.xml")
[ "$after" -eq $((before + 1)) ] || { echo "attributes: $before before, $after after"; exit 1; }

libraries=$(find "$work/copy" -name pkgconfig)
# The flags are words on purpose.
# shellcheck disable=SC2046,SC2086
"$compiler" -std=c++17 $flags "$examples/host/main.cpp" -o "$work/pkg-config-host" \
    $(PKG_CONFIG_PATH="$libraries" pkg-config --cflags --libs TalAttributeSchemaReader) \
    -Wl,-rpath,"${libraries%/pkgconfig}"
"$work/pkg-config-host" "$examples/bracket.xml" "$work/again.xml"
cmp "$work/out.xml" "$work/again.xml"

"$work/copy/bin/talschema" --version
[ -s "$work/copy/share/man/man1/talschema.1" ]
[ -s "$work/copy/share/bash-completion/completions/talschema" ]
find "$work/copy" -path '*/TalAttributeSchemaReader/attribute-schema.xsd' | grep -q .
