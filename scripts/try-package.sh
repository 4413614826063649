#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs the Debian package on this machine, opens a recording by its type on a virtual display,
# removes the package, and compares what files there are with what there was before.
#   scripts/try-package.sh [PACKAGE.deb]   (without one: that of scripts/package.sh)
# scripts/fresh-debian.sh package does this on a bare Debian, where nothing hides a dependency that
# was forgotten.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8

deb=$(realpath "${1:-$(echo build/release/zunoanalyzer_*.deb)}")
if dpkg-query --show zunoanalyzer >/dev/null 2>&1; then
    echo "The package is installed here already; remove it first." >&2
    exit 1
fi
scripts/install-dependencies.sh --try

as_root=()
((EUID == 0)) || as_root=(sudo)
work=$(mktemp -d)
. scripts/virtual-display.sh
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o Dpkg::Use-Pty=0 \
        --no-install-recommends "$@" >"$work/apt.log" 2>&1 || { cat "$work/apt.log" >&2 && return 1; }
}
# shellcheck disable=SC2317 # the trap calls it
finish() {
    end_started
    ! dpkg-query --show zunoanalyzer >/dev/null 2>&1 || apt purge zunoanalyzer
    rm -rf "$work"
}
trap finish EXIT
die() {
    echo "FAILED: $*" >&2
    [[ ! -s $work/log ]] || cat "$work/log" >&2
    exit 1
}
same() { # same WHAT EXPECTED FOUND
    [[ $2 == "$3" ]] || die "$1: \"$3\" instead of \"$2\""
    echo "$1: $3"
}
# Where packages put their files.
files() { "${as_root[@]}" find /etc /opt /usr /var/lib -xdev \
    \( -path /var/lib/dpkg -o -path /var/lib/apt \) -prune -o -print | sort; }

echo "== What it depends on"
apt update
apt satisfy "$(dpkg-deb -f "$deb" Depends)"
files >"$work/before"

echo "== Installing"
apt install "$deb"
files >"$work/installed"
! cmp -s "$work/before" "$work/installed" || die "nothing was installed"

echo "== Using it"
export XDG_DATA_HOME=$work/home XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
export XDG_RUNTIME_DIR=$work
mkdir "$work/home"
zuno demo "$work/home/Norvale"
# As after a first start, which opens all of them.
mkdir "$work/home/Norvale/ZUNO Analyzer"
printf '[General]\nv1400=true\n' >"$work/home/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"
session="$work/home/Norvale/RemoteDevice/$(cd "$work/home/Norvale/RemoteDevice" &&
    find . -name '2026-07-12 09h27 Karoosberg.ra1')"
cp "$session" "$work/nameless"
type=application/x-zuno-session
same "Type by suffix" $type "$(xdg-mime query filetype "$session")"
same "Type by first bytes" $type "$(xdg-mime query filetype "$work/nameless")"
same "Opened with" com.example.ZunoAnalyzer.desktop "$(xdg-mime query default $type)"

start_display 1600x1000
# The program writes into a recording that it has been displayed.
opened() { zuno decode --no-points "$session" | sed -n 's/^Opened before  *//p'; }
same "Opened before" no "$(opened)"
start xdg-open "$session"
displayed() { [[ $(opened) == yes ]]; }
try displayed || die "the recording was not displayed"
same "Opened before" yes "$(opened)"
sleep 5
import -window root "${deb%/*}/zunoanalyzer.png"
kill -0 "$pid" || die "the program ended"
end "$pid"

echo "== Removing"
apt purge zunoanalyzer
files >"$work/after"
# Run by root, the web engine makes a folder of its own; nobody else may.
((EUID != 0)) || sed -i '\,^/usr/lib/qt6/libexec/locales$,d' "$work/before" "$work/after"
diff "$work/before" "$work/after" >"$work/log" || die "this is left, or missing:"
echo "The package works and leaves nothing behind. A picture of it: ${deb%/*}/zunoanalyzer.png"
