#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Does to the programs what a laptop in the paddock does: no room on the disk, a folder that cannot
# be written to, two programs on one library, files that move meanwhile, and death at any moment.
# Afterwards every recording must be as it was or as it should become, to the byte.
#   scripts/faults.sh [--quick] [BUILD]   BUILD: the folder of a build, build/dev if none is given
# --quick leaves out what takes longer than some seconds. Works in a folder of its own below TMPDIR.
# shellcheck disable=SC2317 # most functions are called by their names
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1

quick=no
if [[ ${1:-} == --quick ]]; then
    quick=yes
    shift
fi
build=$(realpath "${1:-build/dev}")/bin
if [[ ! -x $build/zuno ]]; then
    echo "There is no $build/zuno; build first: ./test.sh" >&2
    exit 2
fi
work=$(mktemp -d)
full=$work/full
trap 'mountpoint -q "$full" && umount "$full"; chmod -R u+w "$work"; rm -rf "$work"' EXIT
# Root may write everywhere; a rider is not root, and may be without a right to the build's folder.
cp "$build/zuno" "$work/zuno"
chmod 755 "$work"
zuno=$work/zuno
helper=$build/zuno_faults
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work/runtime
mkdir -m 700 "$work/runtime"
as_rider=()
((EUID != 0)) || as_rider=(setpriv --reuid=65534 --regid=65534 --clear-groups)

"$zuno" demo "$work/demo" --sessions 1 --samples 3000 >/dev/null || exit 1
ride=$work/demo/ride.ra1
find "$work/demo" -name '*.ra1' -exec mv {} "$ride" \;
file=$work/library/Ride.ra1
before=$work/before.ra1
failures=0
skipped=0

note() { # note RESULT TEXT
    printf '%-8s%s\n' "$1" "$2"
    case $1 in
    FAILED) failures=$((failures + 1)) ;;
    skipped) skipped=$((skipped + 1)) ;;
    esac
}
expect() { # expect TEXT COMMAND...
    local text=$1
    shift
    if "$@"; then note ok "$text"; else note FAILED "$text"; fi
}
fresh() {
    rm -rf "$work/library"
    mkdir -p "$work/library"
    cp "$ride" "$file"
    cp "$ride" "$before"
}
# One sentence, on one line, and status 1: the tool has noticed and lives.
tells() { # tells COMMAND...
    "$@" 2>"$work/told"
    (($? == 1 && $(wc -l <"$work/told") == 1))
}
is_untouched() { cmp -s "$file" "$before" && [[ $(ls -A "$work/library") == Ride.ra1 ]]; }
fails_safely() { tells "$@" && is_untouched; }

limited() { # a limit for the size of files takes the disk's end's part
    (
        trap '' XFSZ
        ulimit -f 16
        exec "$zuno" set "$file" notes=full
    )
}

no_room() {
    fresh
    expect "no room: the file stays, the tool says so" fails_safely limited
    mkdir -p "$full"
    if ! mount -t tmpfs -o size=160k tmpfs "$full" 2>/dev/null; then
        note skipped "a full disk (only root can mount one)"
        return
    fi
    cp "$ride" "$full/Ride.ra1"
    cat /dev/zero >"$full/rest" 2>/dev/null
    expect "full disk: the tool says so" tells "$zuno" set "$full/Ride.ra1" notes=full
    expect "full disk: the file stays" cmp -s "$full/Ride.ra1" "$ride"
    if [[ -x $helper ]]; then
        # Room for the file that locks the settings, and none for the settings themselves.
        local ini="$full/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"
        rm "$full/rest"
        mkdir -p "${ini%/*}"
        printf '[General]\nlastFileSelected=kept\n' >"$ini"
        cat /dev/zero >"$full/rest" 2>/dev/null
        truncate -s -4096 "$full/rest"
        "$helper" settings "$full" 2 2>/dev/null
        expect "full disk: the settings stay" grep -q kept "$ini"
    fi
    umount "$full"
}

no_right() {
    fresh
    [[ ${#as_rider[@]} -eq 0 ]] || chown -R 65534:65534 "$work/library"
    chmod a-w "$work/library"
    expect "read-only folder: the file stays, the tool says so" \
        fails_safely "${as_rider[@]}" "$zuno" set "$file" notes=no
    chmod u+w "$work/library"
    chmod a-w "$file"
    expect "read-only file: the file stays, the tool says so" \
        fails_safely "${as_rider[@]}" "$zuno" set "$file" notes=no
}

# Both write the same file at the same time, each another field of it.
two_programs() {
    local lost=0 first round
    for ((round = 0; round < 40; round++)); do
        fresh
        "$zuno" set "$file" driver=first &
        first=$!
        "$zuno" set "$file" notes=second
        wait "$first"
        "$zuno" set "$before" driver=first notes=second
        is_untouched || lost=$((lost + 1))
    done
    expect "two programs at once: 40 times, $lost with a loss" test "$lost" -eq 0
}

# The file is away every other moment.
moving() {
    fresh
    "$zuno" set "$before" notes=moved
    local stop=$work/stop mover
    rm -f "$stop"
    (until [[ -e $stop ]]; do
        mv -f "$file" "$file.away"
        [[ -e $file ]] || mv -f "$file.away" "$file"
    done) 2>/dev/null &
    mover=$!
    for ((i = 0; i < 40; i++)); do
        "$zuno" set "$file" notes=moved 2>/dev/null
        (($? <= 1)) || note FAILED "moved file: the tool ends as it should"
    done
    touch "$stop"
    wait "$mover"
    [[ -e $file ]] || mv "$file.away" "$file"
    rm -f "$file.away"
    if ! cmp -s "$file" "$before"; then cp "$ride" "$before"; fi
    expect "moved file: as it was or rewritten" is_untouched
}

# Runs a command that dies at its n-th call of each system call that could matter, until it lives.
writing_calls=(write fdatasync linkat rename renameat2 unlink ftruncate fchmod sendfile)
die_everywhere() { # die_everywhere TEXT CHECK COMMAND...
    die_at openat close "${writing_calls[@]}" -- "$@"
}
die_at() { # die_at CALL... -- TEXT CHECK COMMAND...
    local calls=() deaths=0 bad=0
    while [[ $1 != -- ]]; do
        calls+=("$1")
        shift
    done
    local text=$2 check=$3 call n
    shift 3
    for call in "${calls[@]}"; do
        for ((n = 1; n <= 500; n++)); do
            "prepare_$check"
            strace -f -qq -o /dev/null -e "trace=$call" \
                -e "inject=$call:signal=KILL:when=$n" "$@" >/dev/null 2>&1
            local status=$?
            "$check" || bad=$((bad + 1))
            ((status == 137)) || break
            deaths=$((deaths + 1))
        done
    done 2>/dev/null
    expect "$text: $deaths deaths, $bad of them harmful" test "$bad" -eq 0 -a "$deaths" -gt 20
}

prepare_is_whole() {
    rm -f "$work"/library/*
    cp "$ride" "$file"
}
is_whole() { cmp -s "$file" "$ride" || cmp -s "$file" "$work/after.ra1"; }

prepare_is_imported() {
    rm -rf "$work/root"
    mkdir -p "$work/root/Norvale/RemoteDevice"
}
is_imported() {
    local imported="$work/root/Norvale/RemoteDevice/Imported Sessions/ride.ra1"
    [[ ! -e $imported ]] || cmp -s "$imported" "$ride"
}

prepare_are_settings() {
    rm -rf "$work/settings"
    cp -r "$work/settings-before" "$work/settings"
}
are_settings() {
    local ini="Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"
    cmp -s "$work/settings/$ini" "$work/settings-before/$ini" ||
        cmp -s "$work/settings/$ini" "$work/settings-after/$ini"
}

# An export's target is whole or not there; the recording is what it was.
prepare_is_exported() {
    rm -rf "$work/exports"
    mkdir "$work/exports"
}
is_exported() {
    cmp -s "$ride" "$before" && {
        [[ ! -e $work/exports/target ]] || cmp -s "$work/exports/target" "$work/exported"
    }
}

deaths() {
    if ! command -v strace >/dev/null; then
        note skipped "death at every system call (there is no strace)"
        return
    fi
    fresh
    "$zuno" set "$ride" notes=killed -o "$work/after.ra1"
    die_everywhere "killed while rewriting" is_whole "$zuno" set "$file" notes=killed
    if [[ ! -x $helper ]]; then
        note skipped "death while importing and storing settings (built without the window)"
        return
    fi
    die_everywhere "killed while importing" is_imported \
        "$helper" import "$work/root" "$ride"
    cp "$ride" "$before"
    local what
    for what in copy session lap; do
        prepare_is_exported
        "$helper" export "$work/exports/target" "$what" "$ride" 2>/dev/null
        mv "$work/exports/target" "$work/exported"
        # Opening and closing is mostly the window's, before anything is exported.
        die_at "${writing_calls[@]}" -- "killed while exporting ($what)" is_exported \
            "$helper" export "$work/exports/target" "$what" "$ride"
    done
    "$helper" settings "$work/settings-before" 1
    cp -r "$work/settings-before" "$work/settings-after"
    "$helper" settings "$work/settings-after" 2
    die_everywhere "killed while storing settings" are_settings "$helper" settings "$work/settings" 2
}

# Somebody creates, rewrites, renames and removes recordings in the folder that the window shows.
storm() {
    if [[ ! -x $helper ]]; then
        note skipped "a storm in the folder (built without the window)"
        return
    fi
    local seconds=10 told
    [[ $quick == no ]] || seconds=2
    "$zuno" demo "$work/storm/Norvale" --sessions 100 --samples 1000 >/dev/null
    told=$(QTWEBENGINE_DISABLE_SANDBOX=1 "$helper" storm "$work/storm" "$seconds" 2>/dev/null)
    expect "storm in the folder: $told" test "$?" -eq 0
}

# Keys go into the file before they are two seconds old, whenever the program dies.
typing() {
    if [[ ! -x $helper ]]; then
        note skipped "death while somebody types (built without the window)"
        return
    fi
    local kills=1000 told
    [[ $quick == no ]] || kills=32
    told=$("$helper" typing "$ride" "$work/typing" "$kills" 2>/dev/null)
    expect "killed while somebody types: $told" test "$?" -eq 0
}

# The program itself: its first start gives every recording its information. It dies once it has
# rewritten so many of them; of more than there are, when it has had the time for all.
start_and_kill() { # start_and_kill FILES
    rm -rf "${work:?}/home"
    mkdir "$work/home"
    "$zuno" demo "$work/home/Norvale" >/dev/null
    touch "$work/started"
    XDG_DATA_HOME=$work/home QT_QPA_PLATFORM=offscreen QTWEBENGINE_DISABLE_SANDBOX=1 \
        "$build/zunoanalyzer" >/dev/null 2>&1 &
    local program=$! turn
    for ((turn = 0; turn < 1000; turn++)); do
        (($(find "$work/home" -name '*.ra1' -newer "$work/started" | wc -l) < $1)) || break
        sleep 0.01
    done
    kill -KILL "$program"
    wait "$program" 2>/dev/null
}
count_differing() { # count_differing FOLDER
    diff -rq "$1" "$work/home/Norvale/RemoteDevice" | grep -cv 'Only in .*\.ra1\.'
}
all_whole() {
    local name
    while read -r name; do
        local now=$work/home/Norvale/RemoteDevice/$name
        cmp -s "$now" "$work/first/$name" || cmp -s "$now" "$work/done/$name" || return 1
    done < <(cd "$work/first" && find . -name '*.ra1')
}
dying_starts() {
    if [[ ! -x $build/zunoanalyzer ]]; then
        note skipped "death of the window (it was not built)"
        return
    fi
    start_and_kill 0
    cp -r "$work/home/Norvale/RemoteDevice" "$work/first"
    start_and_kill 1000
    cp -r "$work/home/Norvale/RemoteDevice" "$work/done"
    local all bad=0 midway=0 files changed
    all=$(count_differing "$work/first")
    for ((files = 0; files <= all; files++)); do
        start_and_kill "$files"
        changed=$(count_differing "$work/first")
        ((changed == 0 || changed == all)) || midway=$((midway + 1))
        all_whole || bad=$((bad + 1))
    done
    expect "killed while it rewrites $all recordings: $midway times midway, $bad times harmful" \
        test "$bad" -eq 0 -a "$midway" -gt 0
}

no_room
no_right
two_programs
moving
storm
typing
if [[ $quick == no ]]; then
    deaths
    dying_starts
fi
echo "$failures failed, $skipped skipped"
exit "$((failures > 0))"
