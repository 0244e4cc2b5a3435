#!/bin/sh
# Builds everything for 64-bit Windows and runs the tests under Wine, those of the tool included. What is built once is
# kept in build-windows. Arguments are settings of the XML library's build; see scripts/windows-libraries.sh.
# TALSCHEMA_TESTS in the environment is a pattern for the tests of the tool, which take longest. Installs what is missing
# first.
set -eu
cd "$(dirname "$0")/.."
scripts/windows-libraries.sh "$@"

# The first program would start Wine's services, they would hold its output, and whoever reads it would wait for ever.
export WINEPREFIX="$PWD/build-windows/wine"
mkdir -p "$WINEPREFIX"
wineserver -p || [ $? = 2 ] # it runs
trap 'wineserver -k || true' EXIT
trap 'exit 1' HUP INT TERM
scripts/wine.sh wineboot --init >build-windows/wineboot.log 2>&1
mkdir -p build-windows/bin
cp build-windows/libraries/bin/*.dll build-windows/bin

echo "== windows"
jobs=$(nproc)
cmake --preset windows -G Ninja -DTAL_BUILD_TESTS=ON >/dev/null
cmake --build --preset windows --parallel "$jobs"
ctest --preset windows --parallel "$jobs"

echo "== talschema.exe"
# The tool's tests are programs of this machine; only the tool runs under Wine.
cmake --preset default -DTAL_BUILD_TESTS=ON >/dev/null
cmake --build --preset default --parallel "$jobs" --target talschema_tests
printf '#!/bin/sh\nexec "%s/scripts/wine.sh" "%s/build-windows/bin/talschema.exe" "$@"\n' "$PWD" "$PWD" \
    >build-windows/talschema
chmod +x build-windows/talschema
# A program takes long to start there, so fewer documents are mutated.
TALSCHEMA_MUTATIONS=20 TALSCHEMA=$PWD/build-windows/talschema ctest --preset default --parallel "$jobs" \
    -R "${TALSCHEMA_TESTS:-^(Check|CheckProperty|Diff|Graph|Manual|Talschema)\\.}"
