#!/bin/sh
# Makes fuzz/corpus anew after a run of scripts/fuzz.sh: of its small inputs, as few as reach as much as all of them.
set -eu
cd "$(dirname "$0")/.."
for target in read save check fix write text; do
    rm -rf build-fuzz/merged
    mkdir build-fuzz/merged
    build-fuzz/bin/fuzz_$target -set_cover_merge=1 -use_counters=0 -max_len=512 -detect_leaks=0 build-fuzz/merged "fuzz/corpus/$target" \
        build-fuzz/corpus/$target >build-fuzz/merge.log 2>&1 || { tail build-fuzz/merge.log; exit 1; }
    rm -rf "fuzz/corpus/$target"
    mv build-fuzz/merged "fuzz/corpus/$target"
    echo "$target: $(ls "fuzz/corpus/$target" | wc -l) inputs"
done
