#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Draws the icons of Resources/, darkstyle/ and packaging/ anew from their SVG sources, in the formats that the
# program ships. The results are committed, so that neither a build nor the program needs a
# renderer; run this after a change to a source, and commit both.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if (($#)); then
    echo "usage: scripts/render-icons.sh" >&2
    exit 2
fi
# The tool, and the Debian package that has it.
declare -A needed=([rsvg-convert]=librsvg2-bin [icotool]=icoutils)
missing=()
for tool in "${!needed[@]}"; do
    command -v "$tool" >/dev/null || missing+=("${needed[$tool]}")
done
if ((${#missing[@]})); then
    echo "This needs what Debian calls: ${missing[*]}" >&2
    exit 1
fi

scratch=$(mktemp -d "${TMPDIR:-/tmp}/render-icons.XXXXXX")
trap 'rm -rf "$scratch"' EXIT

# At the size the source states, at its double and at its triple: the names by which Qt finds the
# picture that fits the screen.
png() { # png SOURCE TARGET
    rsvg-convert --zoom 1 "$1" -o "$2.png"
    rsvg-convert --zoom 2 "$1" -o "$2@2x.png"
    rsvg-convert --zoom 3 "$1" -o "$2@3x.png"
}

# An .ico of pictures drawn at each of the sizes; 256 is stored compressed, as readers expect it.
ico() { # ico TARGET SOURCE:SIZE...
    local target=$1 entry pictures=()
    shift
    for entry in "$@"; do
        local picture="$scratch/${entry##*:}.png"
        rsvg-convert --width "${entry##*:}" --height "${entry##*:}" "${entry%:*}" -o "$picture"
        if [[ ${entry##*:} == 256 ]]; then
            pictures+=("--raw=$picture")
        else
            pictures+=("$picture")
        fi
    done
    icotool --create --output="$target" "${pictures[@]}"
}

# The same drawing for light grounds: signs that are pale on dark ones are dark there. What stands
# on a ground of its own (a tick in its box, a symbol of a message) stays as it is.
light() { # light SOURCE
    sed -e 's/#d5dfe8/#33414d/g; s/#e8eff5/#33414d/g; s/#8ea2b3/#4c5a66/g; s/#b8c6d2/#4c5a66/g' \
        -e 's/#1f8ad8/#0b62c4/g; s/#7f7f7f/#8a949d/g; s/#ffb454/#b54300/g' \
        -e 's/#63d98f/#1b7a43/g; s/#ff7a6b/#c4161c/g' "$1" >"$scratch/light.svg"
}

for source in darkstyle/svg/*.svg; do
    name=${source##*/}
    png "$source" "darkstyle/${name%.svg}"
    light "$source"
    png "$scratch/light.svg" "darkstyle/light/${name%.svg}"
done

for source in Resources/svg/*.svg; do
    name=${source##*/}
    case $name in
    logo*.svg | newfolder.svg | norvale.svg) ;;
    *) png "$source" "Resources/${name%.svg}" ;;
    esac
done
png Resources/svg/norvale.svg Resources/Logo_blanc_Norvale_2020
# Those of menus, tree and windows; the page has its own.
for name in check compare compute cross database databaseGreen export import invalidate rename sun; do
    light "Resources/svg/$name.svg"
    png "$scratch/light.svg" "Resources/light/$name"
done
light Resources/svg/newfolder.svg
for size in 16: 32:@2x 48:@3x; do
    pixels=${size%%:*}
    rsvg-convert -w "$pixels" -h "$pixels" Resources/svg/newfolder.svg -o "Resources/newfolder${size#*:}.png"
    rsvg-convert -w "$pixels" -h "$pixels" "$scratch/light.svg" -o "Resources/light/newfolder${size#*:}.png"
done
sed 's/#ffffff/#0e1720/g' Resources/svg/norvale.svg >"$scratch/light.svg"
png "$scratch/light.svg" Resources/light/Logo_blanc_Norvale_2020

folder=Resources/svg/newfolder.svg
ico Resources/newfolder.ico $folder:{16,20,24,32,40,48,64,72}

# The racing line is lost in a few pixels; the small sizes have a plainer drawing.
small=Resources/svg/logo-small.svg
large=Resources/svg/logo.svg
ico Resources/Logos/logo.ico $small:{16,20,24,32,40} $large:{48,64,128,256}
rsvg-convert --width 256 --height 256 $large -o Resources/logo.png

# For the desktop's menu and file manager.
for size in 16 22 24 32; do
    rsvg-convert --width $size --height $size $small -o packaging/icons/$size.png
done
for size in 48 64 128 256; do
    rsvg-convert --width $size --height $size $large -o packaging/icons/$size.png
done
