#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Takes the pictures of the program at work anew, from the demo library. They are committed; run this
# when a window has changed, look at them, and commit them.
#   scripts/screenshots.sh                        that of the README (docs/images/), on a virtual display
#   scripts/screenshots.sh --manual [LANGUAGE...] those of the manual (docs/manual/images/)
#   scripts/screenshots.sh --windows FOLDER       every window in every language, into that folder;
#                                                 fails when a text is cut off
# Before these, "--preset NAME" chooses what is built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8

preset=dev
if (($# >= 2)) && [[ $1 == --preset ]]; then
    preset=$2
    shift 2
fi
mode=${1:-}
if [[ $mode != '' && $mode != --manual && ! ($mode == --windows && $# == 2) ]]; then
    echo "usage: scripts/screenshots.sh [--preset NAME] [--manual [LANGUAGE...] | --windows FOLDER]" >&2
    exit 2
fi
build=build/$preset
scripts/install-dependencies.sh --gui
cmake --preset "$preset" >/dev/null
# The program comes with the manual, which wants pictures that may be taken here for the first time.
targets=(zuno zuno-pictures languages)
[[ $mode ]] || targets+=(zunoanalyzer)
cmake --build --preset "$preset" --target "${targets[@]}"

# Few colours, and nothing that would differ from one day to the next.
pack() { # pack FROM TO
    convert "$1" -dither None -colors 128 -strip -define png:exclude-chunks=date,time \
        -define png:compression-level=9 "PNG8:$2"
}

# Without a display, and with few words of the web engine's.
photograph() {
    ((EUID != 0)) || export QTWEBENGINE_DISABLE_SANDBOX=1
    if ! "$build/bin/zuno-pictures" "$@" 2>"$work/log"; then
        tail -n 5 "$work/log" >&2
        return 1
    fi
}

work=$(mktemp -d)
. scripts/virtual-display.sh
trap 'end_started; rm -rf "$work"' EXIT

languages=(en fr de it es)
case $mode in
--manual)
    (($# == 1)) || languages=("${@:2}")
    for language in "${languages[@]}"; do
        target=docs/manual/images/$language
        rm -rf "$work/pictures"
        photograph --manual --language "$language" "$work/pictures"
        mkdir -p "$target"
        for picture in "$work"/pictures/*.png; do
            pack "$picture" "$target/${picture##*/}"
        done
        echo "$target: $(cat "$target"/*.png | wc -c) bytes"
    done
    exit 0
    ;;
--windows)
    status=0
    for language in "${languages[@]}"; do
        photograph --windows --language "$language" "$2/$language" || status=1
    done
    exit "$status"
    ;;
esac

export XDG_DATA_HOME=$work/home XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
export XDG_RUNTIME_DIR=$work LANGUAGE=en ZUNO_MAP_KEY=
mkdir "$work/home"
"$build/bin/zuno" demo "$work/home/Norvale" >/dev/null
# As after a first start, which opens all of them; the one that came in last has not been opened since.
mkdir "$work/home/Norvale/ZUNO Analyzer"
printf '[General]\nv1400=true\n' >"$work/home/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"
find "$work/home" -name '*15h50*.ra1' -exec "$build/bin/zuno" set {} newSession=1 \;

# Done is what has many colours and stays the same for two seconds.
quiet() {
    local before=${pixels:-} colours
    sleep 2
    import -window root "$work/now.png"
    read -r pixels colours < <(identify -format '%# %k\n' "$work/now.png")
    ((colours > 64)) && [[ $pixels == "$before" ]]
}

# picture NAME FILE: docs/images/NAME.png, the window that displays a session of the demo library.
picture() {
    local target=docs/images/$1.png file
    file=$(find "$work/home" -name "$2")
    pixels=
    start "$build/bin/zunoanalyzer" "$file"
    sleep 4
    if ! try quiet || ! kill -0 "$pid"; then
        echo "$1: the window did not come up." >&2
        cat "$work/log" >&2
        return 1
    fi
    end "$pid"
    pack "$work/now.png" "$target"
    echo "$target: $(stat -c %s "$target") bytes"
    if (($(stat -c %s "$target") > 200000)); then
        echo "That is too much for a page; the limit is 200000." >&2
        return 1
    fi
}

mkdir -p docs/images
start_display 1440x900
picture laps '2026-07-12 09h27 Karoosberg.ra1'
