#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the core's benchmarks as for release and runs them: what reading another logger's file costs,
# a table of ratios, then the timings.
# Fails when an aim is missed.
#   scripts/benchmarks.sh [options of Google Benchmark]   (--benchmark_filter=NONE: the table only)
#   scripts/benchmarks.sh --map                           (the map page instead)
#   scripts/benchmarks.sh --charts                        (the charts instead)
#   scripts/benchmarks.sh --library [SESSIONS]            (the program with a large library instead)
#   scripts/benchmarks.sh --reads [SESSIONS]              (what it reads and writes of one instead)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8

case ${1:-} in
--map | --charts | --library)
    scripts/install-dependencies.sh --gui
    program=bench_${1#--}
    {
        cmake --preset release
        cmake --build --preset release --target "$program"
    } >&2
    ((EUID != 0)) || export QTWEBENGINE_DISABLE_SANDBOX=1
    QT_QPA_PLATFORM=offscreen exec "build/release/bin/$program" "${@:2}"
    ;;
esac

if [[ ${1:-} == --reads ]]; then
    scripts/install-dependencies.sh --gui --faults
    {
        cmake --preset release
        cmake --build --preset release --target zuno zunoanalyzer
    } >&2
    exec scripts/reads.sh build/release "${@:2}"
fi

scripts/install-dependencies.sh --core
# In a folder of its own: without the window, and whatever build/release is set to stays.
build=build/benchmarks
{
    cmake --preset release -B "$build" -DGUI=OFF
    cmake --build "$build" --target bench_core bench_formats
} >&2
"$build/bin/bench_formats"
exec "$build/bin/bench_core" "$@"
