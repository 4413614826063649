// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>

#include <formats/table/columnmapping.h>

namespace zuno {

/// A unit in which a column of a quantity may be; for times, the form of the clock.
struct ColumnUnit
{
    QString name;
    double factor = 1.0;
    ClockForm clock = ClockForm::Seconds;
    /// The speed's unit is to be told by the positions.
    bool isUnknown = false;
};

/// What a rider calls the quantity.
[[nodiscard]] QString nameOfQuantity(Quantity quantity);
/// The units that it may be in, the usual one first; never empty.
[[nodiscard]] QList<ColumnUnit> unitsOf(Quantity quantity);
/// The unit of unitsOf() that a mapping has its column in.
[[nodiscard]] int unitIndex(Quantity quantity, const ColumnMapping &mapping);
/// Puts a column and its unit into a mapping.
void useColumn(ColumnMapping &mapping, Quantity quantity, int column, const ColumnUnit &unit);

} // namespace zuno
