#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Installs what is missing, builds, and starts the program with a demo library of its own, away from
# your settings. Without a display it starts it on a virtual one and saves a picture.
#   ./run.sh [--preset dev|ci|release] [-- arguments for the program]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8

preset=dev
while (($#)); do
    case $1 in
    --preset)
        preset=${2:?--preset needs a name}
        shift 2
        ;;
    --)
        shift
        break
        ;;
    *)
        echo "usage: ./run.sh [--preset NAME] [-- arguments for the program]" >&2
        exit 2
        ;;
    esac
done
build=$PWD/build/$preset
home=$build/demo-home

scripts/install-dependencies.sh --gui
echo "== Building (preset $preset)"
cmake --preset "$preset"
cmake --build --preset "$preset" --target zunoanalyzer zuno

# Written beside its place and renamed, so that a half-written library is never taken for a whole one.
if [[ ! -d $home/Norvale/Map ]]; then
    echo "== Writing the demo library"
    rm -rf "$home"
    mkdir -p "$home"
    "$build/bin/zuno" demo "$home/Norvale.new"
    mv "$home/Norvale.new" "$home/Norvale"
fi
export XDG_DATA_HOME=$home XDG_CONFIG_HOME=$home/.config XDG_CACHE_HOME=$home/.cache
# The web engine's sandbox does not work for root.
((EUID != 0)) || export QTWEBENGINE_DISABLE_SANDBOX=1

if [[ ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
    echo "== Starting ZUNO Analyzer"
    cd "$OLDPWD"
    exec "$build/bin/zunoanalyzer" "$@"
fi

session=$(find "$home/Norvale" -name '*.ra1' | sort | sed -n 1p)
echo "== No display here. The laps of $session:"
"$build/bin/zuno" laps --maps "$home/Norvale/Map" "$session"

echo "== Starting ZUNO Analyzer on a virtual display"
work=$(mktemp -d)
pids=()
# shellcheck disable=SC2317 # the trap calls it
finish() {
    kill -KILL "${pids[@]:1}" 2>/dev/null || true
    kill "${pids[0]:-}" 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap finish EXIT
die() {
    echo "$*" >&2
    cat "$work/log" >&2
    exit 1
}
try() { # try COMMAND: until it succeeds, for a minute, as long as what was started last is alive
    local deadline=$((SECONDS + 60))
    until "$@"; do
        ((SECONDS < deadline)) && kill -0 "${pids[-1]}" 2>/dev/null || return 1
        sleep 0.25
    done
}

[[ -d /tmp/.X11-unix ]] || mkdir -m 1777 /tmp/.X11-unix
Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp 3>"$work/display" >"$work/log" 2>&1 &
pids+=($!)
try test -s "$work/display" || die "The virtual display did not start:"
DISPLAY=:$(<"$work/display")
export DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$work}
unset XAUTHORITY

(cd "$OLDPWD" && exec "$build/bin/zunoanalyzer" "$@") >"$work/log" 2>&1 &
pids+=($!)

# Drawn is what is as large as a main window, has many colours and looks the same twice.
drawn() {
    local tree before=${pixels:-} colours
    tree=$(xwininfo -root -tree) && import -window root "$work/now.png" || return 1
    read -r pixels colours < <(identify -format '%# %k\n' "$work/now.png")
    [[ $tree =~ \(\"zunoanalyzer\"[^$'\n']*' '[0-9]{3,}[0-9]?x[0-9]{3,}[+-] ]] &&
        ((colours > 16)) && [[ $pixels == "$before" ]]
} 2>>"$work/log"
if ! try drawn; then
    kill -0 "${pids[-1]}" 2>/dev/null || die "The program died before it had drawn its window. It said:"
    die "The program had drawn no window after a minute. It said:"
fi
mv "$work/now.png" "$build/zunoanalyzer.png"

# Ended by SIGTERM is fine (143), also when the program handles it itself (0); a crash is not.
program=${pids[-1]}
kill "$program" || die "The program ended by itself. It said:"
for ((tries = 0; tries < 80; ++tries)); do
    kill -0 "$program" 2>/dev/null || break
    sleep 0.25
done
! kill -KILL "$program" 2>/dev/null || die "The program would not end. It said:"
status=0
wait "$program" || status=$?
((status == 0 || status == 143)) || die "The program ended with status $status. It said:"
echo "The window works. A picture of it: $build/zunoanalyzer.png"
