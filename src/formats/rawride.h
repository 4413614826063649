// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <vector>

#include <QDateTime>
#include <QString>

#include <formats/text/cells.h>
#include <session/recording/sessionorigin.h>

namespace zuno {

/// One row of another logger's file, in the units of this program. What the row does not say is
/// NoValue.
struct RawRow
{
    /// Seconds on the file's own clock.
    double time = NoValue;
    /// Degrees, north and east positive.
    double latitude = NoValue;
    double longitude = NoValue;
    /// Metres a second.
    double speed = NoValue;
    /// Degrees clockwise from north.
    double course = NoValue;
    /// Accelerations in G, along and across, with the file's own signs.
    double along = NoValue;
    double across = NoValue;
    /// Accelerations in G along axes of the logger of which nobody knows where they point.
    std::array<double, 3> axes {NoValue, NoValue, NoValue};
    /// Degrees.
    double lean = NoValue;
    /// Suspension readings, front and rear, in the file's own unit.
    double front = NoValue;
    double rear = NoValue;
    /// Whether the position was measured for this row, as far as the file tells.
    bool isFresh = true;
};

/// What became of the lines that could not be read.
struct Damage
{
    qint64 lines = 0;
    /// The first of them: its number, from 1, and where it begins.
    qint64 firstLine = 0;
    qint64 firstByte = 0;

    void add(qint64 line, qint64 byte);
};

/// What a file says besides its rows.
struct RideFacts
{
    /// What wrote the file, "RaceChrono 10.2.4"; empty when it does not say.
    QString logger;
    QString driver;
    QString vehicle;
    QString circuit;
    QString event;
    QString notes;
    /// The date and time at which the rows' clock shows 0, in UTC whatever zone it is in; invalid
    /// when the file does not tell.
    QDateTime clockZero;
    /// The rows' clock counts from midnight, of whatever day.
    bool isTimeOfDay = false;
    std::vector<RideGate> gates;
    /// Times of the rows' clock at which laps begin or end.
    std::vector<double> lapMarks;
    /// Positions a second, where the file says so itself; 0 otherwise.
    double positionRate = 0.0;
    /// The unit of the speed is not known; the positions tell it.
    bool isSpeedUnitUnknown = false;
    Damage damage;
};

/// Takes the rows that a reader finds, in the file's order.
class RowSink
{
public:
    RowSink() = default;
    RowSink(const RowSink &) = delete;
    RowSink &operator=(const RowSink &) = delete;
    virtual ~RowSink() = default;

    virtual void take(const RawRow &row) = 0;
    /// Whether the reader shall stop where it is.
    [[nodiscard]] virtual bool isCancelled() const { return false; }
};

} // namespace zuno
