#!/bin/sh
# Makes the Debian packages in build-packages: libtalattributeschemareader24, libtalattributeschemareader-dev and
# talschema. Installs what is missing first.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_packages dpkg-dev file

# No package carries the name of the machine or the time at which somebody happened to make it.
: "${SOURCE_DATE_EPOCH:=$(git log -1 --format=%ct)}"
: "${TAL_BUILD_MACHINE:=debian}"
export SOURCE_DATE_EPOCH DEB_BUILD_MAINT_OPTIONS=hardening=+all
eval "$(dpkg-buildflags --export=sh)"

rm -rf build-packages
cmake -S . -B build-packages -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_FLAGS="$CXXFLAGS $CPPFLAGS" -DTAL_BUILD_MACHINE="$TAL_BUILD_MACHINE" -DTAL_BUILD_TESTS=OFF \
    -DTAL_DEBIAN_PACKAGES=ON -DCMAKE_SKIP_INSTALL_RPATH=ON >/dev/null
cmake --build build-packages --parallel "$(nproc)"
(cd build-packages && cpack)
ls build-packages/*.deb
