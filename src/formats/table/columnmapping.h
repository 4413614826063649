// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace zuno {

/// What a column of a table can say. The numbers are stored with a mapping that is remembered.
enum class Quantity {
    Time,
    Date,
    Hour,
    Minute,
    Second,
    Latitude,
    Longitude,
    NorthSouth,
    EastWest,
    Speed,
    Course,
    Along,
    Across,
    AxisX,
    AxisY,
    AxisZ,
    Lean,
    Front,
    Rear,
    IsFresh,
    Lap,
    PositionRate,
};
inline constexpr std::size_t QuantityCount = 22;

/// How a table's time column counts.
enum class ClockForm {
    Seconds, ///< from some beginning
    Milliseconds,
    UnixSeconds,
    UnixMilliseconds,
    ClockNumber, ///< hhmmss.sss as a number
    ClockText, ///< 12:34:56.789, with or without a date before it
    Parts, ///< columns for hour, minute and second
};

/// Where a quantity stands, and what its numbers are multiplied by to get the units of a RawRow.
struct ColumnUse
{
    int column = -1;
    double factor = 1.0;

    friend bool operator==(const ColumnUse &, const ColumnUse &) = default;
};

/// Which column of a table says what: plain data that a dialog can show, change and store.
struct ColumnMapping
{
    std::array<ColumnUse, QuantityCount> uses;
    ClockForm clock = ClockForm::Seconds;
    /// The speed's unit is not known; it is told by the positions later.
    bool isSpeedUnitUnknown = false;

    [[nodiscard]] const ColumnUse &use(Quantity quantity) const;
    [[nodiscard]] ColumnUse &use(Quantity quantity);
    [[nodiscard]] bool has(Quantity quantity) const { return use(quantity).column >= 0; }
    /// Whether there is enough for a ride: time and place.
    [[nodiscard]] bool isUsable() const;
    /// The last column that is used, -1 without any.
    [[nodiscard]] int lastColumn() const;

    friend bool operator==(const ColumnMapping &, const ColumnMapping &) = default;
};

/// The heading of a table; units and sources may be missing.
struct TableHeading
{
    QStringList names;
    QStringList units;
    QStringList sources;
};

/// Guesses what the columns say from their names, units and sources and from the first rows
/// (@p samples, cells as they stand in the file). What cannot be told is left out.
[[nodiscard]] ColumnMapping guessColumns(const TableHeading &heading,
                                         const std::vector<std::vector<QByteArray>> &samples);

/// What a speed in @p unit is multiplied by to be in metres a second; 0 for a unit nobody knows.
[[nodiscard]] double speedFactor(const QString &unit);

/// A text that is the same for files with the same heading, to remember a mapping by.
[[nodiscard]] QString headingKey(const TableHeading &heading);

} // namespace zuno
