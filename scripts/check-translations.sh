#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Checks that the translations in languages/ have every text of the sources and no other, that none
# is unfinished, and that each keeps what the program needs of its text: the places for values
# (%1), the blanks at both ends, and the key after an "&".
# --update puts the texts of the sources into them first; new ones are unfinished then.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

case ${1:-} in
'' | --update) ;;
*)
    echo "usage: scripts/check-translations.sh [--update]" >&2
    exit 2
    ;;
esac
scripts/install-dependencies.sh --translations

# Debian keeps Qt's tools out of the way.
qt_tools=$(qtpaths6 --query QT_HOST_BINS 2>/dev/null) || qt_tools=/usr/lib/qt6/bin
PATH=$qt_tools:$PATH
extract() { # extract FILE...: brings translations up to the texts of the sources
    local said
    said=$(lupdate -silent -locations none -no-obsolete -extensions cpp,h,ui src -ts "$@" 2>&1)
    # It goes on where it does not know whose a text is; the program would not find such a text.
    [[ -z $said ]] || { echo "$said" >&2; return 1; }
}

translations=(languages/zunoanalyzer_*.ts)
[[ ${1:-} != --update ]] || extract "${translations[@]}"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "${translations[@]}" "$work"
extract "$work"/*.ts

# Tells every translation that is missing, or lacks something that its text has.
examine() {
    awk -v file="$1" '
        function between(tag,    rest) {
            if (!match($0, "<" tag "[^>]*>")) return ""
            rest = substr($0, RSTART + RLENGTH)
            return substr(rest, 1, index(rest, "</" tag ">") - 1)
        }
        function blanks(text) {
            match(text, /^[ \n]*/)
            text = substr(text, 1, RLENGTH) "|" text
            match(text, /[ \n]*$/)
            return substr(text, 1, index(text, "|")) substr(text, RSTART)
        }
        function places(text,    list, i) {
            gsub(/&amp;&amp;/, "", text)
            for (i = 1; i <= 9; ++i) list = list gsub("%L?" i, "", text) " "
            return list gsub(/%n|%v|%m/, "", text) " " gsub(/&amp;[^ ]/, "", text)
        }
        function tell(what) { printf "%s: %s: %s\n", file, what, source; failed = 1 }
        BEGIN { RS = "</message>" }
        /<source>/ {
            source = between("source")
            translation = between("translation")
            if ($0 ~ /<translation type="unfinished"/) tell("unfinished")
            else if (translation == "") tell("empty")
            else if (blanks(source) != blanks(translation)) tell("other blanks at its ends")
            else if (places(source) != places(translation)) tell("other places for values or keys")
        }
        END { exit failed }' "$1"
}

status=0
for file in "${translations[@]}"; do
    current=$work/${file##*/}
    (cd "$work" && examine "${file##*/}") || status=1
    if ! cmp -s "$file" "$current"; then
        echo "$file has other texts than the sources; see scripts/check-translations.sh --update" >&2
        status=1
    fi
done
((status == 0)) || exit 1
echo "The translations are complete (${#translations[@]} languages)."
