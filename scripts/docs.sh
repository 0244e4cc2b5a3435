#!/bin/sh
# Makes the documentation site in build/docs/html, from the installed headers and docs/. A member without a description
# or a link that leads nowhere fails it. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# The names are words on purpose.
# shellcheck disable=SC2086
install_packages $docs_packages
cmake --preset default >/dev/null
cmake --build --preset default --parallel "$(nproc)" --target docs
echo "build/docs/html/index.html"
