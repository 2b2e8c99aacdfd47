#!/bin/sh
# packaging/windows.sh BUILD OUT: a zip for Windows of a cross build: libraries with import libraries, headers,
# programs, and the declarations for languages which need no more than a file. What comes out of the zip is then
# tried as a user would, under Wine: a C program is built with it and run, and the program checks the library.
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

trial=$out/trial
rm -rf "$trial"
mkdir "$trial"
python3 -m zipfile -e "$out/$name.zip" "$trial"
cd "$trial"
sed -n '/^```c$/,/^```$/p' "$OLDPWD/README.md" | grep -v '^```' >host.c
x86_64-w64-mingw32-gcc-posix host.c -I"$name/include" -L"$name/lib" -lquorvel -o "$name/bin/host.exe"
/usr/lib/wine/wine64 "$name/bin/host.exe"
/usr/lib/wine/wine64 "$name/bin/quorvel.exe" check
cd "$out"
rm -r "$trial"
