#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the fuzz targets and lets each run for a while, one on each processor, on damaged files that
# it makes up itself: first of generated seeds, then also of what earlier runs found worth keeping.
#   scripts/fuzz.sh [session|rewrite|map|update|page|formats|all] [SECONDS]
# Ends with an error when a case was found; it lies in build/fuzz/found and belongs into a test.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

all=(session rewrite map update page formats)
targets=("${all[@]}")
if [[ ${1:-all} != all ]]; then
    if [[ " ${all[*]} " != *" $1 "* ]]; then
        echo "usage: scripts/fuzz.sh [session|rewrite|map|update|page|formats|all] [SECONDS]" >&2
        exit 2
    fi
    targets=("$1")
fi
seconds=${2:-120}

scripts/install-dependencies.sh --fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_seeds "${targets[@]/#/fuzz_}"

build=$PWD/build/fuzz
"$build/bin/fuzz_seeds" "$build/seeds"

export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
export build seconds
mkdir -p "$build/found"
run() { # run TARGET: leaves build/fuzz/TARGET.failed when it found something
    local target=$1
    mkdir -p "$build/corpus/$target"
    rm -f "$build/$target.failed"
    "$build/bin/fuzz_$target" -max_total_time="$seconds" -max_len=20000 -timeout=20 \
        -rss_limit_mb=2048 -print_final_stats=1 -verbosity=1 \
        -artifact_prefix="$build/found/$target-" \
        "$build/corpus/$target" "$build/seeds/$target" >"$build/$target.log" 2>&1 ||
        touch "$build/$target.failed"
    echo "== $target, $seconds s"
    grep -E '^(stat::number_of_executed_units|stat::average_exec|does not hold|SUMMARY|.*runtime error)' \
        "$build/$target.log" || true
}
export -f run
printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I{} bash -c 'run {}'

failed=()
for target in "${targets[@]}"; do
    [[ ! -e $build/$target.failed ]] || failed+=("$target")
done
if ((${#failed[@]})); then
    echo "Found by: ${failed[*]}; see build/fuzz/found and build/fuzz/TARGET.log" >&2
    exit 1
fi
