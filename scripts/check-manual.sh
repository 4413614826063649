#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Checks that the manual says the same in every language: every manual in docs/manual/ has the
# headings, lists, tables, examples and pictures of the English one, in its order; is made into a
# PDF; and has its own pictures, which are all in use.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../docs/manual"

if (($#)); then
    echo "usage: scripts/check-manual.sh" >&2
    exit 2
fi

# What a manual is made of, a line each, without its words.
skeleton() {
    awk '
        /^```/ { print "example"; inside = !inside; next }
        inside { next }
        /^#+ / { print $1 " heading"; next }
        /^!\[/ { sub(/^.*\//, ""); sub(/\).*$/, ""); print "picture " $0; next }
        /^\|/ { print "row of " gsub(/\|/, "") - 1; next }
        /^[-*] / { print "item"; next }
        /^[0-9]+\. / { print "numbered item" }' "$1"
}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
skeleton manual_en.md >"$work/en"
sed -n 's/^picture //p' "$work/en" | sort >"$work/shown"

status=0
complain() {
    echo "$1" >&2
    status=1
}
manuals=(manual_*.md)
for manual in "${manuals[@]}"; do
    language=${manual#manual_}
    language=${language%.md}
    skeleton "$manual" >"$work/now"
    diff -U 3 --label manual_en.md --label "$manual" "$work/en" "$work/now" ||
        complain "docs/manual/$manual has other parts than the English one."
    grep -qE "^set\(MANUALS .*\b$language\b" CMakeLists.txt ||
        complain "docs/manual/CMakeLists.txt does not make a PDF of $manual."
    ! grep -oE 'images/[a-z]+/' "$manual" | grep -vqx "images/$language/" ||
        complain "docs/manual/$manual shows pictures of another language."
    diff -U 0 --label "shown in $manual" --label "images/$language" "$work/shown" \
        <(cd "images/$language" && printf '%s\n' ./*.png | sed 's|^\./||' | sort) ||
        complain "Not all pictures are there, or some are not used; see scripts/screenshots.sh --manual."
done
((status == 0)) || exit 1
echo "The manual says the same in ${#manuals[@]} languages: ${manuals[*]}"
