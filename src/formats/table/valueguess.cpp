// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/table/valueguess.h>

#include <algorithm>
#include <cmath>

#include <formats/text/cells.h>

namespace zuno {

namespace {

using Rows = std::vector<std::vector<QByteArray>>;

// Four decimals of a degree are ten metres.
constexpr qsizetype PlaceDecimals = 4;
// Degrees that nobody rides within some rows.
constexpr double FarAway = 0.5;

std::vector<double> columnOf(const Rows &rows, std::size_t column)
{
    std::vector<double> values;
    for (const auto &row : rows) {
        const double value = column < row.size() ? toNumber(row[column]) : NoValue;
        if (!std::isnan(value))
            values.push_back(value);
    }
    return values;
}

bool isUsed(const ColumnMapping &mapping, int column)
{
    return std::any_of(mapping.uses.begin(), mapping.uses.end(),
                       [column](const ColumnUse &use) { return use.column == column; });
}

bool grows(const std::vector<double> &values)
{
    return values.size() > 1 && values.front() < values.back()
           && std::is_sorted(values.begin(), values.end());
}

bool looksLikePlace(const Rows &rows, std::size_t column)
{
    const std::vector<double> values = columnOf(rows, column);
    if (values.size() < rows.size() || values.empty() || column >= rows.front().size())
        return false;
    const QByteArray &cell = rows.front()[column];
    const qsizetype point = std::max(cell.lastIndexOf('.'), cell.lastIndexOf(','));
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return point >= 0 && cell.trimmed().size() - point > PlaceDecimals && std::abs(*most) <= 180
           && *most - *least < FarAway && std::abs(*least) > 0.001;
}

void guessPlace(ColumnMapping &mapping, const Rows &rows)
{
    for (std::size_t i = 0; i + 1 < rows.front().size(); ++i) {
        const auto column = static_cast<int>(i);
        if (isUsed(mapping, column) || isUsed(mapping, column + 1) || !looksLikePlace(rows, i)
            || !looksLikePlace(rows, i + 1))
            continue;
        const bool isSwapped = std::abs(columnOf(rows, i).front()) > 90;
        mapping.use(Quantity::Latitude).column = isSwapped ? column + 1 : column;
        mapping.use(Quantity::Longitude).column = isSwapped ? column : column + 1;
        return;
    }
}

ClockForm clockOf(const QByteArray &cell)
{
    if (cell.contains(':'))
        return ClockForm::ClockText;
    const double value = toNumber(cell);
    if (value > 1e11)
        return ClockForm::UnixMilliseconds;
    return value > 1e8 ? ClockForm::UnixSeconds : ClockForm::Seconds;
}

void guessTime(ColumnMapping &mapping, const Rows &rows)
{
    for (std::size_t i = 0; i < rows.front().size(); ++i) {
        const bool isClock = rows.front()[i].count(':') >= 2;
        if (isUsed(mapping, static_cast<int>(i)) || (!isClock && !grows(columnOf(rows, i))))
            continue;
        mapping.use(Quantity::Time).column = static_cast<int>(i);
        mapping.clock = clockOf(rows.front()[i]);
        return;
    }
}

} // namespace

void guessByValues(ColumnMapping &mapping, const Rows &rows)
{
    if (rows.empty())
        return;
    if (!mapping.has(Quantity::Latitude) && !mapping.has(Quantity::Longitude))
        guessPlace(mapping, rows);
    if (!mapping.has(Quantity::Time) && mapping.clock != ClockForm::Parts)
        guessTime(mapping, rows);
}

} // namespace zuno
