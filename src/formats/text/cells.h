// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <limits>
#include <vector>

#include <QByteArrayView>
#include <QString>

namespace zuno {

/// What stands where a file has no value.
inline constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();

using Cells = std::vector<QByteArrayView>;

/// Cuts @p line at each @p separator outside quotes. A cell in quotes is given without them; quotes
/// that are doubled inside stay doubled. Blanks as separators may stand in a row.
void splitCells(QByteArrayView line, char separator, Cells &cells);

/// What stands before the first @p end, all of @p text without one.
[[nodiscard]] QByteArrayView upTo(QByteArrayView text, char end);

/// The cell as text, blanks around it and doubled quotes taken away.
[[nodiscard]] QString cellText(QByteArrayView cell);

/// The number of a cell, with a decimal point or comma, a sign, an exponent, and blanks around it;
/// a unit may follow behind a blank. NoValue for anything else, and for what no logger can mean
/// (more than 1e15).
[[nodiscard]] double toNumber(QByteArrayView cell);

/// The character that cuts these lines into the same number of cells, at least two: comma,
/// semicolon, tab, bar. A comma when none does.
[[nodiscard]] char guessSeparator(const std::vector<QByteArray> &lines);

} // namespace zuno
