// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QDateTime>
#include <QString>

namespace zuno {

/// Which of day and month stands first where a date says neither.
enum class DateOrder { DayFirst, MonthFirst };

/// The first date in @p text: 2026-04-11, 2026/04/11, 20260411, 11/04/2026, 11.04.2026, 04-11-26,
/// "Sunday, December 15, 2024". A number above 12 decides about day and month, otherwise @p order.
/// Invalid without one.
[[nodiscard]] QDate findDate(const QString &text, DateOrder order = DateOrder::DayFirst);

/// The first time of day in @p text, "14:43:32.5", "1:34 PM"; in seconds, NoValue without one.
[[nodiscard]] double findTimeOfDay(const QString &text);

/// Seconds since midnight of a number that is read hhmmss.sss; NoValue when it is no time of day.
[[nodiscard]] double timeOfDayFromNumber(double hhmmss);

/// Counts a time of day on over midnight.
class DayClock
{
public:
    /// @p timeOfDay in seconds since the midnight before the first one.
    [[nodiscard]] double count(double timeOfDay);

private:
    double m_last = 0.0;
    double m_days = 0.0;
    bool m_isStarted = false;
};

} // namespace zuno
