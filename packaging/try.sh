#!/usr/bin/env bash
# packaging/try.sh NAME OUT SUITE: installs package NAME of ./dev package, which lies in folder OUT, as its users would,
# in a Debian system of that suite with nothing in it, and uses it: packaging/trials/NAME runs there, in a folder with
# the packages. Needs debootstrap and root. Debian's mirrors, settings of apt, and certificates are those of this
# machine.
set -euo pipefail
cd "$(dirname "$0")/.."

name=$1 out=$2 suite=$3
empty=$PWD/build/userland/$suite
system=$PWD/build/userland/$name-$suite

# What is mounted and started there is of these processes alone, and goes with them.
if [[ ! ${QUORVEL_APART-} ]]; then
    QUORVEL_APART=1 unshare --mount --pid --fork "$0" "$@"
    rm -rf --one-file-system "$system"
    echo "package $name: installed and used in an empty system, $suite"
    exit
fi

# mirrors: Debian's of this machine, as apt's sources of that suite
mirrors() {
    local own
    own=$(. /etc/os-release && echo "$VERSION_CODENAME")
    apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
        sed "s/ $own/ $suite/"
}

settle() {
    local mirror
    mirror=$(mirrors | awk -v suite="$suite" '$3 == suite { print $2; exit }')
    rm -rf --one-file-system "$empty"
    mkdir -p "$empty"
    debootstrap --variant=minbase --include=ca-certificates "$suite" "$empty" "$mirror" >/dev/null
    mirrors >"$empty/etc/apt/sources.list"
    cp -r /etc/apt/apt.conf.d "$empty/etc/apt/"
    cp -r /usr/local/share/ca-certificates "$empty/usr/local/share/"
    chroot "$empty" update-ca-certificates >/dev/null 2>&1
    touch "$empty/settled"
}

[[ -e $empty/settled ]] || settle
rm -rf --one-file-system "$system"
cp -a "$empty" "$system"
cp /etc/resolv.conf "$system/etc/"
mkdir "$system/trial"
cp "$out"/*.* "packaging/trials/$name" bindings/calc/tests/office.py "$system/trial/"
sed -n '/^```c$/,/^```$/p' README.md | grep -v '^```' >"$system/trial/host.c"
mount -t proc proc "$system/proc"
mount --bind -o ro /sys "$system/sys"
mount -t tmpfs tmpfs "$system/dev"
cp -a /dev/{null,zero,full,random,urandom,tty} "$system/dev/"
ln -s /proc/self/fd "$system/dev/fd"
mkdir "$system/dev/shm"
env -i HOME=/root PATH="$PATH" LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive PIP_CERT=/etc/ssl/certs/ca-certificates.crt \
    chroot "$system" bash -euc "
    cd /trial
    need() { apt-get install -qq -y --no-install-recommends \"\$@\" >/dev/null 2>&1; }
    apt-get update -qq
    . ./$name"
