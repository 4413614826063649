#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Checks the manual's PDFs that a build made: title, language, size, fonts, pictures, outline,
# contents and links; that the same text gives the same PDF; that faults in a text are found.
#   scripts/check-pdfs.sh FOLDER PYTHON   with the Python that makes them
set -euo pipefail

if (($# != 2)) || [[ ! -d $1 ]]; then
    echo "usage: scripts/check-pdfs.sh FOLDER PYTHON" >&2
    exit 2
fi
folder=$(cd "$1" && pwd)
python=$2
cd "$(dirname "${BASH_SOURCE[0]}")/../docs/manual"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
status=0
complain() {
    echo "$1" >&2
    status=1
}
alike() { # alike WHAT EXPECTED FOUND
    diff -U 0 --label expected --label found <(echo "$2") <(echo "$3") ||
        complain "$1: not as it should be."
}

# The headings below the title, a line each.
headings() { awk '/^```/ { inside = !inside } !inside && sub(/^##+ /, "")' "$1"; }

# "PAGE TEXT" for each entry of the outline, and for each link on one page, of what pdftohtml says.
outline() { sed -nE 's|^<item page="([0-9]+)">(.*)</item>$|\1 \2|p' "$1"; }
links() {
    sed -n "/<page number=\"$2\"/,/<\/page>/p" "$1" |
        sed -nE 's|.*<a href="[^"]*#([0-9]+)">(.*)</a>.*|\1 \2|p' | sed 's/<[^>]*>//g'
}

check_pdf() { # check_pdf LANGUAGE
    local text=manual_$1.md pdf=$folder/ZUNOAnalyzerMUL_$1.pdf read=$work/$1.xml info pages
    if ! info=$(pdfinfo "$pdf") || ! pdftohtml -q -xml -i -stdout "$pdf" >"$read"; then
        complain "$pdf cannot be read."
        return
    fi
    alike "$pdf: title" "$(sed -n 's/^# //p' "$text")" "$(sed -nE 's/^Title: +//p' <<<"$info")"
    alike "$pdf: language" "/Lang ($1)" "$(grep -ao '/Lang ([^)]*)' "$pdf")"
    alike "$pdf: pictures" "$(grep -c '^!\[' "$text")" \
        "$(pdfimages -list "$pdf" | awk '$3 == "image"' | wc -l)"
    grep -qE '^Page size: .*\(A4\)' <<<"$info" || complain "$pdf: not for A4."
    pages=$(sed -nE 's/^Pages: +//p' <<<"$info")
    ((pages >= 14 && pages <= 24)) || complain "$pdf: $pages pages."
    pdffonts "$pdf" | awk 'NR > 2 { ++fonts; if ($(NF - 4) != "yes" || $(NF - 2) != "yes") bad = 1 }
        END { exit bad || !fonts }' || complain "$pdf: it does not bring its letters."

    # The contents on the first page list all headings but their own, say their pages, and lead there.
    alike "$pdf: outline" "$(headings "$text")" "$(outline "$read" | cut -d ' ' -f 2-)"
    outline "$read" | sed 1d >"$work/listed"
    alike "$pdf: contents" "$(<"$work/listed")" "$(links "$read" 1 | grep -vxE '([0-9]+) \1')"
    alike "$pdf: page numbers" "$(cut -d ' ' -f 1 "$work/listed")" \
        "$(links "$read" 1 | sed -nE 's/^([0-9]+) \1$/\1/p')"
    local page found=0
    for ((page = 2; page <= pages; ++page)); do
        found=$((found + $(links "$read" "$page" | wc -l)))
    done
    # One that goes over two lines is two of them.
    ((found >= $(grep -o '](#' "$text" | wc -l))) || complain "$pdf: only $found links in the text."
}

# Neither the place of the sources nor the environment may show.
check_sameness() {
    mkdir "$work/elsewhere"
    cp -r makepdf.py manual.css manual_en.md images "$work/elsewhere"
    if ! (cd "$work/elsewhere" &&
        LC_ALL=C PYTHONHASHSEED=1 "$python" ./makepdf.py manual_en.md en.pdf &&
        cmp en.pdf "$folder/ZUNOAnalyzerMUL_en.pdf"); then
        complain "The same text does not give the same PDF."
    fi
}

check_faults() {
    printf '# A\n\n[b](#nowhere)\n\n![c](nothing.png)\n' >"$work/bad_en.md"
    if "$python" makepdf.py "$work/bad_en.md" "$work/bad.pdf" 2>"$work/said" || [[ -e $work/bad.pdf ]]; then
        complain "There is a PDF of a manual with faults."
    fi
    grep -q '#nowhere' "$work/said" || complain "A link that leads nowhere is not found."
    grep -q 'nothing\.png' "$work/said" || complain "A picture that is not there is not found."
}

for manual in manual_*.md; do
    language=${manual#manual_}
    check_pdf "${language%.md}"
done
check_sameness
check_faults
((status == 0)) || exit 1
echo "The manual's PDFs are as they should be."
