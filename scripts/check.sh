#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Every check that runs nothing of the program: layout, static analysis, colours, the map page's
# scripts, the translations, the manual. All of them run; the script fails when one of them does.
# --quick leaves out clang-tidy and clazy, which take half an hour where nothing has passed them yet.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

analysis=()
[[ ${1:-} != --quick ]] || analysis=(cppcheck shellcheck)

failed=()
for what in format static colours page translations manual; do
    started=$SECONDS
    echo "=== $what"
    arguments=()
    [[ $what != static ]] || arguments=("${analysis[@]}")
    "scripts/check-$what.sh" "${arguments[@]}" || failed+=("$what")
    echo "    took $((SECONDS - started)) s"
done
if ((${#failed[@]})); then
    echo "Checks: FAILED: ${failed[*]}"
    exit 1
fi
echo "Checks: passed"
