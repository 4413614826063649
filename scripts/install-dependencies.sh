#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs the Debian packages that building and starting needs, and that are not there yet.
#   --core    what the core, the command line tool and their tests need
#   --gui     that, and what the desktop program needs (this is the default)
#   --checks  additionally the tools of scripts/check-static.sh
#   --package additionally the tools of scripts/package.sh
#   --faults  additionally what scripts/faults.sh and scripts/reads.sh need
#   --fuzz    only what scripts/fuzz.sh needs
#   --format  only what scripts/check-format.sh needs
#   --page    only what scripts/check-page.sh needs
#   --try     only what scripts/try-package.sh needs
#   --translations  only what scripts/check-translations.sh needs
set -euo pipefail

core=(g++ cmake ninja-build ccache qt6-base-dev qt6-positioning-dev libzip-dev
    libbenchmark-dev gpsbabel)
translations=(qt6-base-dev-tools qt6-l10n-tools)
# What makes the manual, and what its test reads it with.
manual=(weasyprint python3-markdown poppler-utils)
# The virtual display, the tools that find and photograph a window on it, and letters to draw.
gui=(qt6-webchannel-dev qt6-webengine-dev qt6-webengine-dev-tools libjs-leaflet
    qt6-tools-dev "${translations[@]}" qt6-translations-l10n
    libssl-dev openssl
    libgl-dev libgl1-mesa-dri libxkbcommon-dev xvfb x11-utils imagemagick fonts-dejavu-core
    "${manual[@]}")
fuzz=(clang libclang-rt-dev cmake ninja-build ccache qt6-base-dev qt6-positioning-dev libzip-dev)
# The compiler brings the sanitizers' libraries itself.
format=(git clang-format)
checks=(git clang-tidy clazy cppcheck shellcheck)
faults=(strace util-linux-extra)
package=(dpkg-dev devscripts file lintian desktop-file-utils appstream shared-mime-info libfile-mimeinfo-perl)
try=(xvfb x11-utils imagemagick fonts-dejavu-core xdg-utils desktop-file-utils shared-mime-info
    libfile-mimeinfo-perl)

packages=()
sort_of=gui
for argument in "$@"; do
    case $argument in
    --core) sort_of=core ;;
    --gui) sort_of=gui ;;
    --checks) packages+=("${checks[@]}") ;;
    --package) packages+=("${package[@]}") ;;
    --faults) packages+=("${faults[@]}") ;;
    --fuzz) sort_of=fuzz ;;
    --format) sort_of=format ;;
    --page) sort_of=page ;;
    --try) sort_of=try ;;
    --translations) sort_of=translations ;;
    *)
        echo "usage: ${0##*/} [--gui|--core|--format|--fuzz|--page|--try|--translations]" \
            "[--checks] [--faults] [--package]" >&2
        exit 2
        ;;
    esac
done
case $sort_of in
core) packages+=("${core[@]}") ;;
gui) packages+=("${core[@]}" "${gui[@]}") ;;
try) packages+=("${try[@]}") ;;
format) packages+=("${format[@]}") ;;
fuzz) packages+=("${fuzz[@]}") ;;
translations) packages+=("${translations[@]}") ;;
page)
    # They often come from elsewhere than from Debian, and then Debian's would be in their way.
    command -v node >/dev/null || packages+=(nodejs)
    command -v npm >/dev/null || packages+=(npm)
    ;;
esac

missing=()
if command -v dpkg-query >/dev/null; then
    for package in "${packages[@]}"; do
        # shellcheck disable=SC2016 # dpkg-query replaces it, not the shell
        state=$(dpkg-query --show --showformat='${db:Status-Status} ' "$package" 2>/dev/null || true)
        [[ " $state" == *" installed "* ]] || missing+=("$package")
    done
else
    missing=("${packages[@]}")
fi
if ((${#missing[@]} == 0)); then
    exit 0
fi

if ! command -v apt-get >/dev/null; then
    echo "There is no apt-get here to install what Debian 12 calls: ${missing[*]}" >&2
    echo "Install these with the tools of your system, and call cmake --preset dev yourself." >&2
    exit 1
fi
as_root=()
if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
        echo "Packages are missing, and there is no sudo. Run this as root:" >&2
        echo "  apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing: ${missing[*]}"
apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 "$@"; }
apt update
# Quiet as long as it works; the whole of it when it does not.
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! apt install -y --no-install-recommends "${missing[@]}" >"$log" 2>&1; then
    cat "$log" >&2
    echo "The packages could not be installed." >&2
    exit 1
fi
