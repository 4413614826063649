#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Counts what the program reads and writes of a large library: at the start, and when a recording is
# displayed for the first time and once more. Fails when a start reads more of a recording than its
# two ends, or anything but what was displayed is written.
#   scripts/reads.sh [BUILD [SESSIONS]]   BUILD: the folder of a build; build/dev and 1000 without
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

bin=$(realpath "${1:-build/dev}")/bin
sessions=${2:-1000}
# A piece of this many bytes at either end holds the descriptive data.
piece=4096
if [[ ! -x $bin/zunoanalyzer ]]; then
    echo "There is no $bin/zunoanalyzer; build first: ./test.sh" >&2
    exit 2
fi
for tool in strace fincore; do
    if ! command -v "$tool" >/dev/null; then
        echo "There is no $tool; scripts/install-dependencies.sh --faults" >&2
        exit 2
    fi
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export XDG_DATA_HOME=$work QT_QPA_PLATFORM=offscreen QTWEBENGINE_DISABLE_SANDBOX=1
"$bin/zuno" demo "$work/Norvale" --sessions "$sessions" --samples 12000 >/dev/null
mkdir -p "$work/Norvale/ZUNO Analyzer"
printf '[General]\nv1400=true\n' >"$work/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"
mapfile -t files < <(find "$work/Norvale/RemoteDevice" -name '*.ra1' | sort)
failed=no

# The program's system calls that name a recording, in a file. It ends some seconds after it was
# started; by itself it would not.
trace() { # trace [FILE]
    touch "$work/before"
    rm -rf "$work/calls"
    mkdir "$work/calls"
    # A file for each thread, or they would interrupt each other's lines.
    timeout 60 strace -ff -y -qq -o "$work/calls/of" \
        -e trace=%file,read,pread64,readv,write,pwrite64,lseek,fstat,mmap,sendfile \
        timeout $((5 + sessions / 200)) "$bin/zunoanalyzer" "$@" >/dev/null 2>&1 || true
    cat "$work/calls"/of.* | grep -F '.ra1' | grep -v execve >"$work/recordings" || true
}
count() { # count PATTERN
    grep -cE "$1" "$work/recordings" || true
}
read_bytes() {
    awk '/(read|pread64|readv)\(/ { bytes += $NF } END { print bytes + 0 }' "$work/recordings"
}
fail() {
    echo "FAILED: $1" >&2
    failed=yes
}
written() { find "$work/Norvale" -newer "$work/before" -type f -printf '  written: %P, %s bytes\n'; }

sync
for file in "${files[@]}"; do dd if="$file" iflag=nocache count=0 status=none; done
trace
bytes=$(read_bytes)
disk=$(fincore --bytes --noheadings --output RES "${files[@]}" | awk '{ sum += $1 } END { print sum }')
echo "start with $sessions recordings of $(stat -c %s "${files[0]}") bytes:"
echo "  read: $bytes bytes, $((bytes / sessions)) of each; from the cold disk $((disk / sessions)) of each"
echo "  of each recording: $(count 'openat\(') / $sessions opened," \
    "$(count 'read\(|pread64\(') / $sessions reads, $(count 'stat') / $sessions asked for"
written
((bytes <= 2 * piece * sessions)) || fail "a start reads more than the descriptive data need"
((disk <= 2 * (piece + 4096) * sessions)) || fail "a start fetches more from the disk than it reads"
! written | grep -q '\.ra1' || fail "a start writes recordings"

for turn in first second; do
    bytes_before=$bytes
    trace "${files[0]}"
    bytes=$(read_bytes)
    shown=$(grep -F "${files[0]}" "$work/recordings" | awk '/(read|pread64)\(/ { bytes += $NF } END { print bytes + 0 }')
    echo "$turn display of a recording: $shown bytes read of it, $((bytes - shown)) of the others"
    written
    ((bytes - shown <= bytes_before)) || fail "displaying a recording reads others"
    ! written | grep '\.ra1' | grep -qvF "$(basename "${files[0]}")" || fail "others are written"
done
[[ $failed == no ]]
