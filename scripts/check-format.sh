#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Checks the layout of the C++ sources with clang-format. --fix puts it right instead.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

how=(--dry-run -Werror)
case ${1:-} in
'') ;;
--fix) how=(-i) ;;
*)
    echo "usage: scripts/check-format.sh [--fix]" >&2
    exit 2
    ;;
esac
scripts/install-dependencies.sh --format
files=$(scripts/sources.sh '*.cpp' '*.h')
xargs clang-format "${how[@]}" <<<"$files"
