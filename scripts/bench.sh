#!/bin/sh
# Builds the benchmark, prints its tables and writes the same figures to build-bench/benchmark.json. Arguments go to
# the benchmark, for example --sizes=small,medium. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $bench_packages

cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAL_BUILD_BENCHMARKS=ON -DTAL_BUILD_TESTS=OFF \
    -DTAL_BUILD_TOOL=OFF >/dev/null
cmake --build build-bench --parallel "$(nproc)"
build-bench/bin/schema_benchmark --json=build-bench/benchmark.json "$@"
