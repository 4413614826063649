#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the Debian package, build/release/zunoanalyzer_*.deb, and checks it without installing it.
# It is built with what build/release is set to (cmake --preset release -DMAP_KEY=...).
# scripts/try-package.sh installs, tries and removes it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8

if (($#)); then
    echo "usage: scripts/package.sh" >&2
    exit 2
fi
scripts/install-dependencies.sh --gui --package

build=build/release
echo "== Building"
cmake --preset release
cmake --build --preset release --target product
rm -f "$build"/zunoanalyzer_*.deb
cpack --config "$build/CPackConfig.cmake" -B "$build"
deb=$(echo "$build"/zunoanalyzer_*.deb)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
dpkg-deb -x "$deb" "$work/root"
share=$work/root/usr/share
programs=$work/root/usr/lib/zunoanalyzer

same() { # same WHAT EXPECTED FOUND
    [[ $2 == "$3" ]] || { echo "$1: \"$3\" instead of \"$2\"" && return 1; }
}

policy() { lintian --allow-root --fail-on error,warning "$deb"; }

entries() {
    desktop-file-validate "$share"/applications/*.desktop &&
        appstreamcli validate --no-net "$share"/metainfo/*.xml
}

versions() {
    local version
    version=$(dpkg-deb -f "$deb" Version)
    same "zuno --version" "zuno $version" "$("$work/root/usr/bin/zuno" --version)" &&
        same "packaging/changelog" "$version" "$(dpkg-parsechangelog -l packaging/changelog -S Version)" &&
        same "CHANGELOG.md" "$version" "$(sed -n 's/^## //p' CHANGELOG.md | sed -n 1p)" &&
        same "AppStream" "$version" \
            "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$share"/metainfo/*.xml | sed -n 1p)" &&
        grep -q "ZUNO Analyzer $version\"" packaging/zuno.1 &&
        grep -q "ZUNO Analyzer $version\"" packaging/zunoanalyzer.1
}

# What the program looks for beside itself: all that was built is there.
beside() {
    local file
    [[ -s $programs/installed-by-package ]] || { echo "The package would be updated past apt." && return 1; }
    same "the link" "../lib/zunoanalyzer/zunoanalyzer" "$(readlink "$work/root/usr/bin/zunoanalyzer")" || return 1
    for file in "$build"/bin/languages/*.{qm,pdf} "$build"/bin/translations/*.qm; do
        [[ ! -e $file ]] || cmp "$file" "$programs/${file#"$build/bin/"}" || return 1
    done
}

# A recording is known by its suffix, and without one by its first bytes.
recordings() {
    local session
    "$work/root/usr/bin/zuno" demo "$work/demo" >/dev/null
    session=$(find "$work/demo" -name '*.ra1' | sort | sed -n 1p)
    cp "$session" "$work/nameless"
    : >"$work/empty.ra1"
    XDG_DATA_DIRS=$share update-mime-database "$share/mime"
    for session in "$session" "$work/nameless" "$work/empty.ra1"; do
        same "The type of $session" application/x-zuno-session \
            "$(XDG_DATA_DIRS=$share:/usr/share mimetype --brief "$session")" || return 1
    done
}

# The programs hold out against damaged files as Debian's own do.
# The tool is built with FORTIFY as well, but calls nothing whose buffer has a size that the compiler
# knows: there is no protected function to be found in it.
hardened() {
    hardening-check --nocfprotection "$programs/zunoanalyzer" &&
        hardening-check --nocfprotection --nofortify "$work/root/usr/bin/zuno"
}

failed=()
check() { # check NAME FUNCTION
    echo "== $1"
    "$2" || failed+=("$1")
}
check lintian policy
check hardening hardened
check "desktop entry and AppStream data" entries
check versions versions
check "languages and help" beside
check "type of recordings" recordings

if ((${#failed[@]})); then
    echo "$deb: FAILED: ${failed[*]}"
    exit 1
fi
echo "$deb: passed"
