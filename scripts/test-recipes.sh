#!/bin/sh
# Tries the recipes of docs/pre-commit.md that need programs of their own: Vim and pre-commit. Installs what is missing
# first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $test_packages $recipes_packages

cmake --preset default -DTAL_BUILD_TESTS=ON >/dev/null
cmake --build --preset default --parallel "$(nproc)" --target talschema_tests
TALSCHEMA_RECIPES=1 ctest --preset default -L '^recipes$' --no-tests=error # without a program of theirs they fail
