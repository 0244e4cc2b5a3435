#!/bin/sh
# The library exports the six functions under their plain names, the seventeen builder classes, and nothing else.
# Arguments: the library, nm, objdump; the last two are those of the compiler that built it.
set -eu
library=$1 nm=$2 objdump=$3

case $library in
*.dll) "$objdump" -p "$library" | sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] *//p' ;;
*) "$nm" -D --defined-only "$library" | sed -e 's/^[0-9a-f]* [A-Za-z] //' -e '/asan\|ubsan/d' ;;
esac | sort >exported-names.txt
# A class brings its tables along.
c++filt <exported-names.txt | sed -e 's/^vtable for //' -e 's/^typeinfo \(name \)\?for //' >exported-names.demangled

grep -v '^CTal' exported-names.demangled | diff - /dev/fd/3 3<<'END'
ReadStorageTalAttributeSchema
TalAttributeSchemaReaderInitialize
TalAttributeSchemaReaderTerminate
TalAttributeSchemaReader_get_module_info
WriteStorageTalAttributeSchema
__localFnToKeepTalAttributeSchemaReaderDllLoaded
END
builders=$(sed -n 's/^\(CTal[A-Za-z]*\).*/\1/p' exported-names.demangled | sort -u)
[ "$(echo "$builders" | wc -l)" -eq 17 ]
if echo "$builders" | grep -E 'ModelBuilder|StorageBuilder'; then exit 1; fi
for builder in $builders; do
    for member in "$builder(GuString, " "$builder($builder const&)" "operator=($builder const&)" "~$builder()" \
        "Construct()" "Persist()"; do
        grep -qF "$builder::$member" exported-names.demangled || { echo "no $builder::$member"; exit 1; }
    done
done
