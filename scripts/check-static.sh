#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Static analysis of the C++ sources: clang-tidy, clazy, cppcheck; and shellcheck on the scripts. All
# of them run; the script fails when one of them does.
#   scripts/check-static.sh [clang-tidy|clazy|cppcheck|shellcheck]...
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8
scripts/install-dependencies.sh --gui --checks

list=$(scripts/sources.sh 'src/*.cpp' 'tests/*.cpp' 'benchmarks/*.cpp' 'docs/*.cpp')
mapfile -t sources <<<"$list"
list=$(scripts/sources.sh '*.sh' .ci/run)
mapfile -t shells <<<"$list"

# clang-tidy and clazy read how each file is compiled, and what moc and uic have written for it.
build() {
    if ! { cmake --preset ci && cmake --build --preset ci; } >/dev/null; then
        echo "The ci preset does not build; see: ./test.sh --preset ci"
        return 1
    fi
}

# What a file has passed as it is now is not checked again: see check-changed.py.
clang-tidy() {
    build && printf '%s\n' "${sources[@]}" |
        scripts/check-changed.py clang-tidy build/ci .clang-tidy -- \
            clang-tidy -p build/ci --quiet --extra-arg=-Wno-unknown-warning-option
}

# Left out: what only Qt 5 has another way for, a signal that has to have the name it has, a
# setting that is written through a temporary, and what clazy itself fails at.
clazy() {
    local checks=level1,no-qstring-ref,no-overloaded-signal,no-writing-to-temporary,no-connect-non-signal
    build && printf '%s\n' "${sources[@]}" | grep -v '^tests/' |
        scripts/check-changed.py clazy build/ci -- clazy-standalone -p build/ci -checks="$checks" &&
        printf '%s\n' "${sources[@]}" | grep '^tests/' |
        scripts/check-changed.py clazy build/ci -- \
            clazy-standalone -p build/ci -checks="$checks,no-non-pod-global-static"
}

cppcheck() {
    printf '%s\n' "${sources[@]}" | command cppcheck --quiet -j "$(nproc)" --file-list=- --std=c++20 \
        --language=c++ --library=qt --enable=warning,performance,portability --inline-suppr \
        --error-exitcode=1 -I src
}

shellcheck() { command shellcheck "${shells[@]}"; }

wanted=("$@")
((${#wanted[@]})) || wanted=(clang-tidy clazy cppcheck shellcheck)
failed=()
for check in "${wanted[@]}"; do
    case $check in
    clang-tidy | clazy | cppcheck | shellcheck) ;;
    *)
        echo "usage: scripts/check-static.sh [clang-tidy|clazy|cppcheck|shellcheck]..." >&2
        exit 2
        ;;
    esac
    started=$SECONDS
    echo "== $check"
    "$check" || failed+=("$check")
    echo "   took $((SECONDS - started)) s"
done
if ((${#failed[@]})); then
    echo "Static analysis: FAILED: ${failed[*]}"
    exit 1
fi
echo "Static analysis: passed (${#sources[@]} source files, ${#shells[@]} scripts)"
