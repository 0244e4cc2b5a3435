#!/bin/sh
# Fuzzes the library under AddressSanitizer and UndefinedBehaviorSanitizer: every target for MINUTES, one unless given;
# fractions count. Further arguments go to libFuzzer, for example -seed=1. What is found stands in build-fuzz/found, what
# is worth keeping of the inputs in build-fuzz/corpus; fuzz/corpus has the best of earlier runs.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $fuzz_packages

minutes=${1:-1}
[ $# = 0 ] || shift
seconds=$(awk -v minutes="$minutes" 'BEGIN { seconds = int(minutes * 60); print seconds < 1 ? 1 : seconds }')
build=build-fuzz
targets="read save check fix write text"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --parallel "$(nproc)"

# Every name and every value that the format knows.
sed -n 's/.*\(name\|value\)="\([^"]*\)".*/"\2"/p' schema/attribute-schema.xsd | sort -u | cat fuzz/xml.dict - >$build/dictionary

export ASAN_OPTIONS=detect_stack_use_after_return=0 UBSAN_OPTIONS=print_stacktrace=1
mkdir -p $build/found $build/seeds
# No seed may hold a target up; those of the exploding entities do, and tests have them.
find tests examples -name '*.xml' -size -8k ! -name 'expansion*' ! -name 'entity-expansion*' |
    while read -r document; do
        cp "$document" "$build/seeds/$(echo "$document" | tr / _)"
    done

# Leaks are looked for at the end of a target: after every input it takes most of the time.
fuzz() {
    target=$1
    shift
    mkdir -p "$build/corpus/$target"
    $build/bin/fuzz_"$target" -max_total_time="$seconds" -detect_leaks=0 -max_len=4096 -timeout=30 -rss_limit_mb=4096 \
        -dict=$build/dictionary -artifact_prefix="$build/found/$target-" -print_final_stats=1 "$@" \
        "$build/corpus/$target" "fuzz/corpus/$target" $build/seeds >"$build/$target.log" 2>&1 ||
        touch "$build/found/$target.failed"
}

rm -f $build/found/*.failed
running=0
for target in $targets; do
    fuzz "$target" "$@" &
    running=$((running + 1))
    [ $((running % $(nproc))) != 0 ] || wait
done
wait
for target in $targets; do
    echo "== $target, $seconds s"
    grep -E 'number_of_executed_units|ERROR|SUMMARY|not so:' "$build/$target.log" || true
done
! ls $build/found/*.failed 2>/dev/null || { echo "Found something; see $build/found and $build/*.log" >&2; exit 1; }
