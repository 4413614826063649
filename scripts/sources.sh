#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Lists the files that match the patterns, one a line: tracked ones, and new ones that nobody
# ignores. Fails when there are none. For the scripts that check them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

found=no
while read -r file; do
    # One that was deleted is tracked until the next commit.
    [[ -f $file ]] || continue
    printf '%s\n' "$file"
    found=yes
done < <(git ls-files --cached --others --exclude-standard --deduplicate -- "$@")
if [[ $found == no ]]; then
    echo "Found nothing to check: this wants a git checkout." >&2
    exit 1
fi
