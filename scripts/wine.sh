#!/bin/sh
# Runs a Windows program in the build's own Wine, which keeps everything in build-windows/wine. Needs nothing of its
# environment: names of files and arguments are in UTF-8. A program that crashes does not end as if all were well.
export WINEPREFIX="$(cd "$(dirname "$0")/.." && pwd)/build-windows/wine" WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES='winedbg.exe=d;mscoree=d;mshtml=d' PATH="${PATH:-/usr/bin:/bin}"
exec wine "$@"
