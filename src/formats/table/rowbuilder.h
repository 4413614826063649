// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDate>

#include <formats/rawride.h>
#include <formats/table/columnmapping.h>
#include <formats/text/datetimes.h>

namespace zuno {

/// Makes rows of the cells of a table.
class RowBuilder
{
public:
    /// @p facts get the zero of the clock as soon as a row tells it, and laps' changes. @p order
    /// is for dates that say neither day nor month.
    RowBuilder(const ColumnMapping &mapping, RideFacts &facts,
               DateOrder order = DateOrder::DayFirst);

    /// Whether the cells are a row; a cell that holds no number where there is something makes
    /// them none. The row's time is NoValue when its cell is empty.
    [[nodiscard]] bool build(const Cells &cells, RawRow &row);

private:
    [[nodiscard]] double value(const Cells &cells, Quantity quantity);
    [[nodiscard]] double time(const Cells &cells);
    [[nodiscard]] double clockText(QByteArrayView cell, const Cells &cells);
    [[nodiscard]] double countedDays(double timeOfDay, QByteArrayView dateCell);
    [[nodiscard]] double signFrom(const Cells &cells, Quantity quantity, char negative) const;
    void noteBegin(const Cells &cells, double seconds);
    void noteLap(double lap, double time);
    void noteDate(QDate date);

    ColumnMapping m_mapping;
    RideFacts &m_facts;
    DateOrder m_order;
    DayClock m_days;
    QByteArray m_lastDateCell;
    QDate m_firstDate;
    double m_dateOffset = 0.0;
    double m_lap = NoValue;
    double m_begin = NoValue;
    int m_lastColumn = -1;
    bool m_isBad = false;
};

} // namespace zuno
