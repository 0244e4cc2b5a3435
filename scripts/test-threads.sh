#!/bin/sh
# Runs loads, checks and saves in eight threads under ThreadSanitizer. The XML library of the system is not
# instrumented: a race between two of its own instructions is not seen, one in our code or in what both call is.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $test_packages clang

cmake --preset tsan -DTAL_BUILD_TESTS=ON -DTAL_BUILD_TOOL=OFF >/dev/null
cmake --build --preset tsan --parallel "$(nproc)" --target host_tests
TSAN_OPTIONS=halt_on_error=1 build-tsan/bin/host_tests --gtest_filter='Threads.*'
