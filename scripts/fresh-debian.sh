#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Tries the committed state on a bare Debian 12: ./run.sh and ./test.sh in a chroot with nothing but
# the base system, set up with this machine's own apt sources. Needs root and debootstrap.
#   scripts/fresh-debian.sh [--user] [run|test|ci|package]...   (without a name: run and test)
# --user does it as a plain user with sudo instead of as root. "package" installs, tries and removes
# the package that scripts/package.sh has built here before, without anything to build with.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

usage="usage: scripts/fresh-debian.sh [--user] [run|test|ci|package]..."
user=root
commands=()
for argument in "$@"; do
    case $argument in
    --user) user=rider ;;
    run) commands+=(./run.sh) ;;
    test) commands+=(./test.sh) ;;
    ci) commands+=(.ci/run) ;;
    package) commands+=(scripts/try-package.sh) ;;
    *)
        echo "$usage" >&2
        exit 2
        ;;
    esac
done
((${#commands[@]})) || commands=(./run.sh ./test.sh)
if ((EUID != 0)) || ! command -v debootstrap >/dev/null; then
    echo "This needs root and debootstrap." >&2
    exit 1
fi

# A bare system is made once and unpacked afterwards; delete the file to have a newer one.
base=${XDG_CACHE_HOME:-$HOME/.cache}/zuno-fresh-debian/bookworm.tar
root=$(mktemp -d "${TMPDIR:-/tmp}/fresh-debian.XXXXXX")
leave() {
    for mounted in dev/shm proc; do
        ! mountpoint -q "$root/$mounted" || umount "$root/$mounted" || umount -l "$root/$mounted"
    done
    rm -rf --one-file-system "$root"
}
trap leave EXIT

if [[ ! -f $base ]]; then
    # shellcheck disable=SC2016 # apt replaces it, not the shell
    mirror=$(apt-get indextargets --format '$(REPO_URI)' \
        'Created-By: Packages' 'Codename: bookworm' 'Component: main' | sed -n 1p)
    echo "== Making a bare Debian 12 (${base})"
    mkdir -p "$root/new" "${base%/*}"
    debootstrap --variant=minbase bookworm "$root/new" ${mirror:+"$mirror"} >"$base.log"
    tar -C "$root/new" --numeric-owner -cf "$base.new" .
    mv "$base.new" "$base"
    rm -rf --one-file-system "$root/new"
fi
tar -C "$root" --numeric-owner -xf "$base"
chmod 755 "$root"
rm -rf "$root/etc/apt"
cp -a /etc/apt "$root/etc/apt"
cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
mount -t proc proc "$root/proc"
mkdir -p "$root/dev/shm"
mount -t tmpfs -o mode=1777 tmpfs "$root/dev/shm"

# Nothing of this environment goes in, except the way out to the network.
inside() {
    local name network=()
    for name in http_proxy https_proxy no_proxy; do
        [[ ! -v $name ]] || network+=("$name=${!name}")
    done
    chroot "$@" env -i "${network[@]}" PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        HOME="$(if [[ $user == root ]]; then echo /root; else echo "/home/$user"; fi)" \
        bash -c "${script:?}"
}

tree="/srv/ZUNO Analyzer"
git clone -q --no-hardlinks . "$root$tree"
if [[ " ${commands[*]} " == *" scripts/try-package.sh "* ]]; then
    install -D -t "$root$tree/build/release" build/release/zunoanalyzer_*.deb
fi
if [[ $user != root ]]; then
    script="apt-get -qq update && apt-get -qq install -y --no-install-recommends sudo &&
        useradd -m $user && echo '$user ALL=(ALL) NOPASSWD: ALL' >/etc/sudoers.d/$user &&
        chown -R $user: '$tree'" inside "$root" >/dev/null 2>&1
fi

failed=()
for command in "${commands[@]}"; do
    started=$SECONDS
    echo "== Bare Debian 12, as $user: $command"
    status=0
    script="cd '$tree' && $command" inside --userspec="$user" "$root" || status=$?
    ((status == 0)) || failed+=("$command")
    echo "== $command: exit status $status after $((SECONDS - started)) s"
done
mkdir -p build
! cp "$root$tree"/build/*/zunoanalyzer.png build/fresh-debian.png 2>/dev/null ||
    echo "The picture: $PWD/build/fresh-debian.png"
if ((${#failed[@]})); then
    echo "On a bare Debian 12: FAILED: ${failed[*]}"
    exit 1
fi
echo "On a bare Debian 12: worked: ${commands[*]}"
