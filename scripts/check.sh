#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The static checks: layout (clang-format), clang-tidy, cppcheck, shellcheck, and those of the map
# page's scripts and of the translations. All of them run; the script fails when one of them does.
# --fix lets clang-format put the layout right first.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
[[ ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LC_ALL=C.UTF-8

fix=no
case ${1:-} in
'') ;;
--fix) fix=yes ;;
*)
    echo "usage: scripts/check.sh [--fix]" >&2
    exit 2
    ;;
esac

scripts/install-dependencies.sh --gui --checks

# Tracked files, and new ones that nobody ignores.
list() {
    local file
    git ls-files --cached --others --exclude-standard --deduplicate -- "$@" |
        while read -r file; do
            [[ ! -f $file ]] || printf '%s\n' "$file"
        done
}
mapfile -t sources < <(list 'src/*.cpp' 'tests/*.cpp' 'benchmarks/*.cpp')
mapfile -t headers < <(list 'src/*.h' 'tests/*.h' 'benchmarks/*.h')
mapfile -t shells < <(list '*.sh' .ci/run)
if ((${#sources[@]} == 0 || ${#shells[@]} == 0)); then
    echo "Found nothing to check: this wants a git checkout." >&2
    exit 1
fi

layout() {
    if [[ $fix == yes ]]; then
        clang-format -i "${sources[@]}" "${headers[@]}"
    fi
    clang-format --dry-run -Werror "${sources[@]}" "${headers[@]}"
}

# It reads how each file is compiled, and what moc and uic have written for it.
tidy() {
    if ! { cmake --preset ci && cmake --build --preset ci; } >/dev/null; then
        echo "The ci preset does not build; see: ./test.sh --preset ci"
        return 1
    fi
    printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$(nproc)" \
        clang-tidy -p build/ci --quiet --extra-arg=-Wno-unknown-warning-option 2>&1 |
        { grep -v -E '^[0-9]+ warnings? (and [0-9]+ errors? )?(generated|treated as errors?)' || true; }
}

cpp() {
    printf '%s\n' "${sources[@]}" | cppcheck --quiet -j "$(nproc)" --file-list=- --std=c++20 \
        --language=c++ --library=qt --enable=warning,performance,portability --inline-suppr \
        --error-exitcode=1 -I src
}

shell() { shellcheck "${shells[@]}"; }

failed=()
check() { # check NAME FUNCTION
    local started=$SECONDS
    echo "== $1"
    "$2" || failed+=("$1")
    echo "   took $((SECONDS - started)) s"
}
check clang-format layout
check clang-tidy tidy
check cppcheck cpp
check shellcheck shell
check page scripts/check-page.sh
check translations scripts/check-translations.sh

if ((${#failed[@]})); then
    echo "Static checks: FAILED: ${failed[*]}"
    exit 1
fi
echo "Static checks: passed (${#sources[@]} source files, ${#headers[@]} headers, ${#shells[@]} scripts)"
