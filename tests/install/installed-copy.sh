#!/bin/sh
# Installs a copy and uses it as hosts do: the example host through the CMake package with every compiler at hand, the
# sample of README.md, and both libraries through pkg-config.
# Arguments: cmake, build directory, source directory, compiler, its flags, 1 for a sanitized build, where other
# libraries are (CMAKE_PREFIX_PATH).
set -eu
cmake=$1 build=$2 source=$3 compiler=$4 flags=$5 sanitize=$6 prefix=$7

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "$1"
    exit 1
}
quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log"; fail "failed: $*"; }
}

compilers=$compiler
if [ "$sanitize" = 1 ]; then
    flags="$flags -fsanitize=address,undefined" # of one compiler for the library and the host
else
    for other in g++ clang++ clang++-19; do
        path=$(command -v $other) || continue
        [ "$(readlink -f "$path")" = "$(readlink -f "$compiler")" ] || compilers="$compilers $path"
    done
fi

quietly "$cmake" --install "$build" --prefix "$work/copy"
libraries=$(find "$work/copy" -name pkgconfig)
export PKG_CONFIG_PATH="$libraries:${PKG_CONFIG_PATH-}"

# What an installed header includes is installed, and nobody who includes them is warned. The host library's own do not
# know the XML library.
find "$work/copy/include" -name '*.h' | sed 's/.*/#include "&"/' >"$work/every-header.cpp"
if grep -r xercesc "$work/copy/include/TalAttributeSchemaHost"; then
    fail "the host library's headers know the XML library"
fi

# The host library exports what its headers declare, and nothing else.
cat "$work"/copy/include/TalAttributeSchemaHost/*/*.h | tr '\n' ' ' | grep -o 'TALHOST_API [^(]*(' |
    sed 's/.*[ *&]\(.*\)($/tal::\1/' | sort -u >"$work/declared"
nm -DC --defined-only "${libraries%/pkgconfig}/libTalAttributeSchemaHost.so" |
    sed '/ [^ ]*\(asan\|ubsan\)/d; s/^[0-9a-f]* [A-Za-z] //; s/[[(].*//; s/^\(tal::[A-Z][A-Za-z]*\)::.*/\1/' |
    sort -u >"$work/exported" # of a class, the class
[ -s "$work/declared" ] || fail "found no declaration"
diff "$work/declared" "$work/exported" || fail "declared (<) and exported (>) differ"

# Hosts that add an attribute to the document that they are given. Each works in a folder of its own, and whatever goes
# wrong, nothing in it changes.
documents="$work/documents"
quietly "$work/copy/bin/talschema" rewrite "$source/examples/bracket.xml" "$work/rewritten.xml"
adds_an_attribute() { # the host's command
    mkdir -p "$documents"
    cp "$work/rewritten.xml" "$documents/schema.xml"
    quietly "$@"
    "$work/copy/bin/talschema" diff "$work/rewritten.xml" "$documents/schema.xml" >"$work/difference" || true
    case $(sed -n '1p; 2s/ (.*//p; 3,$p' "$work/difference") in
    'Attributes: 1 added
  + "HubHeight"') ;;
    *) cat "$work/difference"; fail "$1 does not just add an attribute" ;;
    esac
    rm "$documents/schema.xml"
}
refuses() { # what is said; the host's command
    said=$1
    shift
    rm -rf "$work/before"
    cp -R "$documents" "$work/before"
    status=0
    output=$("$@" 2>&1) || status=$?
    case $status:$output in
    2:*"$said"*) ;;
    *) fail "$* ends with $status, should say \"$said\", and says: $output" ;;
    esac
    diff -r "$work/before" "$documents" || fail "$1 changes files"
}
on_a_full_disk() { (
    trap '' XFSZ
    ulimit -f 1
    exec "$@"
); }
is_a_careful_host() { # its command
    adds_an_attribute "$@"
    refuses 'No such file or directory' "$@"
    sed '$d' "$source/examples/wind-turbine.xml" >"$documents/schema.xml"
    refuses "schema.xml:243:" "$@"
    cp "$source/examples/wind-turbine.xml" "$documents/schema.xml"
    refuses 'File too large' on_a_full_disk "$@"
    rm -r "$documents"
}

for each in $compilers; do
    # The flags are words on purpose.
    # shellcheck disable=SC2046,SC2086
    quietly "$each" -std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror $flags -fsyntax-only \
        "$work/every-header.cpp" $(pkg-config --cflags TalAttributeSchemaReader)
    for standard in 17 20 23; do
        host="$work/host-${each##*/}-$standard"
        quietly "$cmake" -S "$source/examples/host" -B "$host" -DCMAKE_PREFIX_PATH="$work/copy;$prefix" \
            -DCMAKE_CXX_COMPILER="$each" -DCMAKE_CXX_STANDARD=$standard -DCMAKE_CXX_FLAGS="$flags"
        quietly "$cmake" --build "$host"
        is_a_careful_host "$host/schema-host" "$documents/schema.xml" "$documents/schema.xml"
        echo "schema-host: $each, C++$standard"
    done
done

# Where the example host cannot save, it says why.
mkdir -p "$documents/folder"
refuses 'Is a directory' "$host/schema-host" "$source/examples/bracket.xml" "$documents/folder"
refuses 'No such file or directory' "$host/schema-host" "$source/examples/bracket.xml" "$documents/none/out.xml"
rm -r "$documents"

# The sample of README.md, as it stands there.
block() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$source/$2" | grep -v '^```'; }
mkdir "$work/sample"
{ block cpp README.md; echo 'int main(int, char** argv) { return AddHubHeight(argv[1]) ? 0 : 2; }'; } >"$work/sample/host.cpp"
{
    printf 'cmake_minimum_required(VERSION 3.18)\nproject(Sample LANGUAGES CXX)\nadd_executable(host host.cpp)\n'
    block cmake README.md
} >"$work/sample/CMakeLists.txt"
quietly "$cmake" -S "$work/sample" -B "$work/sample/build" -DCMAKE_PREFIX_PATH="$work/copy;$prefix" \
    -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags"
quietly "$cmake" --build "$work/sample/build"
is_a_careful_host "$work/sample/build/host" "$documents/schema.xml"

# The samples of the guide, all in one program.
{
    printf '#include <filesystem>\n#include <memory>\n#include <ostream>\n#include <stdexcept>\n#include <string>\n#include <utility>\n'
    echo '#include "TalAttributeSchemaHost/TalAttributeSchemaHost.h"'
    block cpp docs/guide.md
} >"$work/guide.cpp"
# shellcheck disable=SC2046,SC2086
quietly "$compiler" -std=c++17 -Wall -Wextra -Werror $flags -c "$work/guide.cpp" -o "$work/guide.o" \
    $(pkg-config --cflags TalAttributeSchemaHost)
[ "$(nm -C "$work/guide.o" | grep -c ' T [A-Z][A-Za-z]*(')" -ge 7 ] || fail "the samples of the guide were not found"

# Both libraries through pkg-config.
# shellcheck disable=SC2046,SC2086
quietly "$compiler" -std=c++17 $flags "$source/examples/host/main.cpp" -o "$work/pkg-config-host" \
    $(pkg-config --cflags --libs TalAttributeSchemaHost) -Wl,-rpath,"${libraries%/pkgconfig}"
is_a_careful_host "$work/pkg-config-host" "$documents/schema.xml" "$documents/schema.xml"
cat >"$work/reader.cpp" <<'END'
#include "TalAttributeSchemaReader/TalAttributeSchemaReader.h"
int main()
{
    CDASchema schema;
    return WriteStorageTalAttributeSchema("written.xml", &schema, nullptr) == 1 ? 0 : 1;
}
END
# shellcheck disable=SC2046,SC2086
quietly "$compiler" -std=c++17 $flags "$work/reader.cpp" -o "$work/reader" \
    $(pkg-config --cflags --libs TalAttributeSchemaReader) -Wl,-rpath,"${libraries%/pkgconfig}"
(cd "$work" && ./reader && grep -q '<Entities/></Model>$' written.xml) || fail "the exported functions do not write"

"$work/copy/bin/talschema" --version
[ -s "$work/copy/share/man/man1/talschema.1" ]
[ -s "$work/copy/share/bash-completion/completions/talschema" ]
"$work/copy/bin/talschema" xsd | cmp - "$("$work/copy/bin/talschema" xsd --path)"
find "$work/copy" -path '*/TalAttributeSchemaReader/catalog.xml' | grep -q .
