#!/bin/sh
# Installs a copy for Windows, builds the example host against it, puts the DLLs beside the program and runs it under
# Wine. Arguments: cmake, build directory, source directory, its toolchain file, how to run a program, where the
# libraries for Windows are.
set -eu
cmake=$1 build=$2 source=$3 toolchain=$4 run=$5 libraries=$6

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; echo "failed: $*"; exit 1; }
}

quietly "$cmake" --install "$build" --prefix "$work/copy"
for file in bin/TalAttributeSchemaReader.dll bin/TalAttributeSchemaHost.dll bin/CAESchemaSCM.dll bin/talschema.exe \
    lib/libTalAttributeSchemaReader.dll.a lib/libTalAttributeSchemaHost.dll.a lib/libCAESchemaSCM.dll.a; do
    [ -s "$work/copy/$file" ] || { echo "no $file"; exit 1; }
done
quietly "$cmake" -G Ninja -S "$source/examples/host" -B "$work/host" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    "-DCMAKE_PREFIX_PATH=$work/copy;$libraries"
quietly "$cmake" --build "$work/host"
cp "$work"/copy/bin/*.dll "$libraries"/bin/*.dll "$work/host"

document="$work/two words.xml"
cp "$source/examples/bracket.xml" "$document"
quietly "$run" "$work/host/schema-host.exe" "$document" "$document"
grep -q '<Attribute DataType="Double" .*ID="HubHeight" Label="Hub height"' "$document"
before=$(grep -c '<Attribute .*ID="' "$source/examples/bracket.xml")
[ "$(grep -c '<Attribute .* ID="' "$document")" -eq $((before + 1)) ]

# A broken document is refused and left alone, and so is a device.
sed -i '$d' "$document"
cp "$document" "$work/broken.xml"
if "$run" "$work/host/schema-host.exe" "$document" "$document" 2>"$work/said"; then exit 1; fi
grep -q "error" "$work/said"
cmp "$document" "$work/broken.xml"
if "$run" "$work/host/schema-host.exe" "$source/examples/bracket.xml" nul 2>"$work/said"; then exit 1; fi
grep -q "not a regular file" "$work/said"
