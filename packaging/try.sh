#!/usr/bin/env bash
# packaging/try.sh NAME OUT: installs package NAME of ./dev package, which lies in folder OUT, as its users would, in a
# Debian system with nothing in it, and uses it: packaging/trials/NAME runs there, in a folder with the packages. Needs
# debootstrap and root. Sources and settings of apt, and certificates, are those of this machine.
set -euo pipefail
cd "$(dirname "$0")/.."
name=$1 out=$2
system=$PWD/build/userland/$name
empty=$PWD/build/userland/empty

settle() {
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' | head -1)
    rm -rf "$empty"
    mkdir -p "$empty"
    debootstrap --variant=minbase --include=ca-certificates bookworm "$empty" "$mirror" >/dev/null
    cp -r /etc/apt/sources.list* /etc/apt/apt.conf.d "$empty/etc/apt/"
    cp -r /usr/local/share/ca-certificates "$empty/usr/local/share/"
    chroot "$empty" update-ca-certificates >/dev/null 2>&1
    touch "$empty/settled"
}

release() {
    for folder in dev/pts dev sys proc; do
        ! mountpoint -q "$system/$folder" || umount "$system/$folder"
    done
}

[[ -e $empty/settled ]] || settle
release
rm -rf "$system"
cp -a "$empty" "$system"
cp /etc/resolv.conf "$system/etc/"
mkdir "$system/trial"
cp "$out"/*.* "packaging/trials/$name" packaging/trials/host.c bindings/calc/tests/office.py "$system/trial/"
trap release EXIT
mount -t proc proc "$system/proc"
for folder in sys dev dev/pts; do
    mount --bind "/$folder" "$system/$folder"
done
env -i HOME=/root PATH="$PATH" LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive PIP_CERT=/etc/ssl/certs/ca-certificates.crt \
    chroot "$system" bash -euc "
    cd /trial
    need() { apt-get install -qq -y --no-install-recommends \"\$@\" >/dev/null 2>&1; }
    apt-get update -qq
    . ./$name"
release
rm -rf "$system"
echo "package $name: installed and used in an empty system"
