#!/bin/sh
# Runs clang-tidy over the sources of the libraries and the tool, or over those that changed since the commit that is
# given. A finding fails it. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_packages clang clang-tidy

cmake --preset clang -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >/dev/null
cmake --build --preset clang --parallel "$(nproc)" # some sources are made by the build
if [ $# -gt 0 ]; then
    git diff --name-only --diff-filter=d "$1" -- TalAttributeSchemaReader TalAttributeSchemaHost tools
else
    git ls-files TalAttributeSchemaReader TalAttributeSchemaHost tools
fi | grep '\.cpp$' | grep -v Windows |
    xargs -r -P "$(nproc)" -n 4 clang-tidy -p build-clang --quiet 2>/dev/null # there it counts what is not ours
echo "clang-tidy: no finding"
