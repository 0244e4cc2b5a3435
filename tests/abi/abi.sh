#!/bin/sh
# The libraries' binary interface is what abi/ says: exported symbols, sizes, layouts and vtables. TAL_ACCEPT=1 writes
# what it is now into abi/ and then fails where there was something to write.
# Arguments: cmake, build directory, source directory.
set -eu
cmake=$1 build=$2 source=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$cmake" --install "$build" --prefix "$work/copy" --component tal_development >/dev/null
foreign=$source/abi/foreign-types.ini
[ -s "$foreign" ] # libabigail would go on without

changed=
for library in CAESchemaSCM TalAttributeSchemaReader TalAttributeSchemaHost; do
    description=$source/abi/lib$library.abi
    new=$work/lib$library.abi
    abidw --suppressions "$foreign" --exported-interfaces-only --drop-private-types --headers-dir "$work/copy/include" \
        --type-id-style hash --no-corpus-path --no-show-locs --no-comp-dir-path --out-file "$new" \
        "$build/lib/lib$library.so"
    # With the folder of headers it would leave out changes: a description without places has no public types for it.
    if [ -e "$description" ] && abidiff --no-default-suppression --suppressions "$foreign" --leaf-changes-only \
        --harmless "$description" "$build/lib/lib$library.so"; then
        continue
    fi
    changed=yes
    if [ -n "${TAL_ACCEPT-}" ]; then
        sed "s|path='[^']*/\(TalAttributeSchema[^/]*/[^']*'\)|path='\1|" "$new" >"$description"
        echo "written: abi/lib$library.abi"
    fi
done
[ -z "$changed" ] || { echo "The interface is not what abi/ says; see CONTRIBUTING.md."; exit 1; }
