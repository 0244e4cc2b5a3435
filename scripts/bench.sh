#!/bin/sh
# Builds the benchmark, prints its tables and writes the same figures to build-bench/benchmark.json. With --document as
# the first argument, the tables also replace those in docs/performance.md and README.md. Other arguments go to the
# benchmark, for example --sizes=small,medium. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $bench_packages

document=
if [ "${1-}" = --document ]; then
    document=yes
    shift
fi

# Puts the second file between the marks in the first one.
put_figures() {
    awk -v figures="$2" '
        /<!-- figures: end -->/ { inside = 0 }
        !inside { print }
        /<!-- figures: begin/ { inside = 1; while ((getline line < figures) > 0) print line }' "$1" >"$1.new"
    mv "$1.new" "$1"
}

cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAL_BUILD_BENCHMARKS=ON -DTAL_BUILD_TESTS=OFF \
    -DTAL_BUILD_TOOL=OFF >/dev/null
cmake --build build-bench --parallel "$(nproc)"
build-bench/bin/schema_benchmark --json=build-bench/benchmark.json "$@" >build-bench/tables.md
cat build-bench/tables.md
if [ -n "$document" ]; then
    echo >>build-bench/tables.md
    put_figures docs/performance.md build-bench/tables.md
    # Time and memory of a read and time of a write, of the library, its host library and the XML library alone.
    awk '/^\| (read|write), ms|^\| peak memory of a read, MiB/ { print ""; wanted = 1 }
        /^$/ { wanted = 0 }
        wanted && /^\| (read|write|peak|library|host|with|session|floor)|^\|---/
        END { print "" }' build-bench/tables.md >build-bench/summary.md
    put_figures README.md build-bench/summary.md
fi
