#!/bin/sh
# Builds the libraries and writes the description of their binary interface into abi/. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $test_packages

cmake --preset default -DTAL_BUILD_TESTS=ON >/dev/null
cmake --build --preset default --parallel "$(nproc)" --target TalAttributeSchemaHost
TAL_ACCEPT=1 ctest --preset default --tests-regex '^abi$' >/dev/null || true # it fails when it has written something
ctest --preset default --tests-regex '^abi$'
git --no-pager diff --stat abi
