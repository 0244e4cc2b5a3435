#!/bin/sh
# What only a tool for Windows has to stand: paths of that system, names of devices, and a kill under Wine.
# Arguments: how to run a program, the tool, an example.
set -eu
run=$1 tool=$2 example=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
talschema() { "$run" "$tool" "$@"; }
says() { # a text, the arguments: the tool fails with it
    text=$1
    shift
    if talschema "$@" >out 2>err; then exit 1; fi
    grep -qF "$text" err || { cat err; echo "no \"$text\" of $*"; exit 1; }
}

# A path may begin with "/", have a drive or not, and lead through backslashes.
cp "$example" in.xml
talschema rewrite -q in.xml expected.xml
mkdir 風車
backslashed=$(echo "$work" | tr / '\\')
for path in "$work/in.xml" "Z:$work/in.xml" "$backslashed\\in.xml" "Z:$backslashed\\in.xml" "\\\\?\\Z:$backslashed\\in.xml"; do
    talschema rewrite -q "$path" "風車\\out.xml" || { echo "cannot read $path"; exit 1; }
    cmp 風車/out.xml expected.xml
    rm 風車/out.xml
done
printf '<Model><Storag/></Model>' >mistake.xml
for path in "$work/mistake.xml" "Z:$backslashed\\mistake.xml"; do
    talschema check --format sarif "$path" >sarif || [ $? = 1 ]
    grep -qF "\"uri\":\"file:///Z:$work/mistake.xml\"" sarif || { cat sarif; exit 1; }
done

for device in nul NUL con CON aux.xml nul.xml; do
    says "$device: error: not a regular file" rewrite in.xml "$device"
    says "$device: error: not a regular file" show "$device"
done
says 'gone\out.xml: error: No such file or directory' rewrite in.xml 'gone\out.xml'

# Whenever it is killed, the old file is there, or the new one as a whole.
{
    echo '<Model><AttributeDefinition><Attributes>'
    i=0
    while [ $i -lt 20000 ]; do
        echo "<Attribute ID=\"A_$i\"/>"
        i=$((i + 1))
    done
    echo '</Attributes></AttributeDefinition></Model>'
} >large.xml
echo old >old.xml
talschema rewrite -q large.xml new.xml
early=0
for delay in 0.05 0.1 0.15 0.2 0.25 0.3 0.4 0.5 0.6 0.7 0.8 1; do
    cp old.xml out.xml
    "$run" "$tool" rewrite -q large.xml out.xml &
    sleep $delay
    kill -9 $! 2>/dev/null || true
    wait $! || true
    if cmp -s out.xml old.xml; then early=$((early + 1)); else cmp out.xml new.xml; fi
done
[ $early -gt 0 ]
