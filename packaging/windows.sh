#!/bin/sh
# packaging/windows.sh BUILD OUT: a zip for Windows of a cross build: libraries with import libraries, headers,
# programs, and the declarations for languages which need no more than a file.
set -eu
cd "$(dirname "$0")/.."
build=$(cd "$1" && pwd)
out=$(cd "$2" && pwd)
version=$(packaging/version)
name=quorvel-$version-windows-x64

rm -rf "$out/$name" "$out/$name.zip"
cmake --install "$build" --prefix "$out/$name" >/dev/null
cp LICENSE CHANGELOG.md README.md "$out/$name"
for sources in vba/quorvel.bas csharp/Quorvel fortran/src pascal/src; do
    mkdir -p "$out/$name/bindings/${sources%/*}"
    cp -r "bindings/$sources" "$out/$name/bindings/${sources%/*}"
done
(cd "$out" && cmake -E tar cf "$name.zip" --format=zip "$name" && rm -r "$name")
