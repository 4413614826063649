#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Looks for colours that are spelled anywhere but in the table of src/theme/theme.cpp: such a colour
# stays as it is when the theme changes, and nobody computes its contrast.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The table itself, what is not shown in the window (a file for another program), and what the page
# draws on satellite pictures, where no theme changes the ground: the editor's marks, and the two
# laps as long as the program has sent no scene, with their legend.
allowed='^(src/theme/theme\.cpp|src/formats/|src/core/|src/session/export|Resources/edit\.js|Resources/script\.js:[89]):?'
# The legend of the same two laps.
legend='^Resources/map\.css:[0-9]+: +background: (linear-gradient\(to right, #ff0000, #646400, #00ff00\)|#00ff00|#ff0000|#a8a82a);$'
# "#rrggbb", rgb(...), QColor(1, 2, 3), QColor("..."), Qt::darkGreen; transparent and black for
# masks are no colours of a theme.
literal='#[0-9a-fA-F]{6}\b|#[0-9a-fA-F]{3}\b|\brgba?\([0-9]'
literal+='|QColor\((0x|[0-9]|"|QStringLiteral|QLatin1)|QColor\(Qt::|constexpr QColor [A-Za-z]+\(|qRgba?\([0-9]'
literal+='|Qt::(white|red|green|blue|cyan|magenta|yellow|gray|(dark|light)(Red|Green|Blue|Cyan|Magenta|Yellow|Gray))\b'

found=$(grep -rnE "$literal" src Resources darkstyle/darkstyle.qss \
    --include='*.cpp' --include='*.h' --include='*.ui' --include='*.js' --include='*.css' \
    --include='*.html' --include='*.qss' | grep -vE "$allowed|$legend" || true)
if [[ -n $found ]]; then
    echo "$found"
    echo "Colours belong into the table of src/theme/theme.cpp."
    exit 1
fi
echo "No colour is spelled outside the theme's table."
