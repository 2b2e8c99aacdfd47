#!/bin/sh
# packaging/debian.sh OUT: the Debian source and binary packages of the last commit, checked by lintian.
# The version is the project's, the date that of the commit, so that the source package is the same each time.
set -eu
cd "$(dirname "$0")/.."
mkdir -p "$1"
out=$(cd "$1" && pwd)
version=$(packaging/version)
source=$out/quorvel-$version
rm -rf "$source"
mkdir "$source"
git archive HEAD | tar -x -C "$source"
mv "$source/packaging/debian" "$source/debian"
cat >"$source/debian/changelog" <<END
quorvel ($version) unstable; urgency=medium

  * See CHANGELOG.md.

 -- $(sed -n 's/^Maintainer: //p' "$source/debian/control")  $(git log -1 --format=%cD)
END
cd "$source"
dpkg-buildpackage --unsigned-source --unsigned-changes
cd "$out"
rm -r "$source"
lintian --fail-on error,warning quorvel_*.changes
