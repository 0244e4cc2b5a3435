#!/bin/sh
# Tries the Debian packages in a fresh minimal Debian: installs them, builds the example host with them, runs the tool,
# removes them, and nothing is left. Looks at them with lintian first, which must find no error. Needs the packages of
# scripts/package.sh, and root for the fresh system. Installs what is missing.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_packages lintian debootstrap

# Of no use here: these packages are not uploaded to Debian, and cpack writes scripts where a trigger would do.
lintian --fail-on error --allow-root --suppress-tags initial-upload-closes-no-bugs,maintscript-calls-ldconfig \
    build-packages/*.deb

system=$(mktemp -d)
trap 'rm -rf --one-file-system "$system"' EXIT
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
debootstrap --variant=minbase "$release" "$system" >"$system.log" 2>&1 || { cat "$system.log"; exit 1; }
rm "$system.log"
mkdir "$system/try"
cp -R build-packages/*.deb examples "$system/try"
cat >"$system/try/run" <<'END'
set -eu
export DEBIAN_FRONTEND=noninteractive LC_ALL=C
packages() { dpkg-query -W -f '${Package} ${db:Status-Abbrev}\n'; }
files() { find / -xdev -path /proc -prune -o -path /sys -prune -o -path /try -prune -o -path /var -prune -o -print | sort; }
install() { apt-get install -q -y --no-install-recommends "$@" >/try/log 2>&1 || { cat /try/log; exit 1; }; }

install g++ cmake make pkg-config
packages >/try/packages-before
files >/try/files-before

install /try/talschema_*.deb /try/libtalattributeschemareader24_*.deb
talschema --version
talschema check /try/examples/wind-turbine.xml >/dev/null
talschema rewrite /try/examples/bracket.xml /try/rewritten.xml
zcat /usr/share/man/man1/talschema.1.gz | grep -q '^\.TH'
talschema xsd | cmp - /usr/share/TalAttributeSchemaReader/attribute-schema.xsd # without /proc no program knows its path
[ -s /usr/share/TalAttributeSchemaReader/catalog.xml ]
[ ! -e /usr/include/TalAttributeSchemaReader ]

install /try/libtalattributeschemareader-dev_*.deb
cmake -S /try/examples/host -B /try/host >/try/log && cmake --build /try/host >>/try/log || { cat /try/log; exit 1; }
/try/host/schema-host /try/examples/bracket.xml /try/out.xml
grep -q 'ID="HubHeight"' /try/out.xml
for library in TalAttributeSchemaReader TalAttributeSchemaHost; do
    pkg-config --print-errors --exists $library
done

apt-get purge -q -y --autoremove talschema libtalattributeschemareader24 libtalattributeschemareader-dev >/try/log 2>&1
packages | diff /try/packages-before -
files | diff /try/files-before -
END
env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin chroot "$system" sh /try/run
echo "installed, built with, run, removed; nothing left behind"
