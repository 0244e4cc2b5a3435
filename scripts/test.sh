#!/bin/sh
# Builds everything but the benchmark and runs all tests, then those that are not slow again under AddressSanitizer (leaks
# included) and UndefinedBehaviorSanitizer. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $test_packages

jobs=$(nproc)
for preset in default sanitize; do
    echo "== $preset"
    chosen=
    [ $preset = default ] || chosen="--label-exclude slow"
    cmake --preset $preset -DTAL_BUILD_TESTS=ON -DTAL_BUILD_BENCHMARKS=OFF >/dev/null
    cmake --build --preset $preset --parallel "$jobs"
    # shellcheck disable=SC2086 # words on purpose
    UBSAN_OPTIONS=print_stacktrace=1 ctest --preset $preset --parallel "$jobs" $chosen
done
