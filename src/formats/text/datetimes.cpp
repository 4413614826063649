// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/text/datetimes.h>

#include <cmath>

#include <QLocale>
#include <QRegularExpression>

#include <formats/text/cells.h>

namespace zuno {

namespace {

constexpr double Day = 86400;

int wholeYear(int year)
{
    if (year >= 100)
        return year;
    return year < 80 ? 2000 + year : 1900 + year;
}

QDate fromParts(int first, int second, int year, DateOrder order)
{
    const bool dayFirst = second > 12 ? false : first > 12 || order == DateOrder::DayFirst;
    return dayFirst ? QDate(wholeYear(year), second, first) : QDate(wholeYear(year), first, second);
}

// "December 15, 2024" and "15 December 2024".
QDate namedDate(const QString &text)
{
    static const QRegularExpression monthFirst(
        QStringLiteral("([A-Za-z]{3})[a-z]*\\.? +(\\d{1,2}),? +(\\d{4})"));
    static const QRegularExpression dayFirst(
        QStringLiteral("(\\d{1,2})\\.?[ -]([A-Za-z]{3})[a-z]*\\.?,?[ -](\\d{4})"));
    const auto month = [](const QString &name) {
        for (int i = 1; i <= 12; ++i) {
            if (QLocale::c().monthName(i, QLocale::ShortFormat).compare(name, Qt::CaseInsensitive)
                == 0)
                return i;
        }
        return 0;
    };
    if (const auto match = monthFirst.match(text); match.hasMatch())
        return {match.captured(3).toInt(), month(match.captured(1)), match.captured(2).toInt()};
    if (const auto match = dayFirst.match(text); match.hasMatch())
        return {match.captured(3).toInt(), month(match.captured(2)), match.captured(1).toInt()};
    return {};
}

} // namespace

QDate findDate(const QString &text, DateOrder order)
{
    static const QRegularExpression yearFirst(
        QStringLiteral("(?<!\\d)((?:19|20)\\d\\d)([-/.]?)(\\d{1,2})\\2(\\d{1,2})(?!\\d)"));
    static const QRegularExpression yearLast(
        QStringLiteral("(?<!\\d)(\\d{1,2})([-/.])(\\d{1,2})\\2(\\d{4}|\\d\\d)(?!\\d)"));
    if (const auto match = yearFirst.match(text); match.hasMatch()) {
        const QDate date(match.captured(1).toInt(), match.captured(3).toInt(),
                         match.captured(4).toInt());
        if (date.isValid())
            return date;
    }
    if (const auto match = yearLast.match(text); match.hasMatch()) {
        return fromParts(match.captured(1).toInt(), match.captured(3).toInt(),
                         match.captured(4).toInt(), order);
    }
    return namedDate(text);
}

double findTimeOfDay(const QString &text)
{
    static const QRegularExpression clock(QStringLiteral(
        "(?<!\\d)(\\d{1,2}):(\\d\\d)(?::(\\d\\d(?:[.,]\\d+)?))?(?: *([AaPp])\\.?[Mm])?"));
    const auto match = clock.match(text);
    if (!match.hasMatch())
        return NoValue;
    int hour = match.captured(1).toInt();
    if (!match.captured(4).isEmpty())
        hour = hour % 12 + (match.captured(4).compare(u"p", Qt::CaseInsensitive) == 0 ? 12 : 0);
    const double seconds = match.captured(3).replace(u',', u'.').toDouble();
    const int minute = match.captured(2).toInt();
    if (hour > 24 || minute > 59 || !(seconds < 61))
        return NoValue;
    return 3600.0 * hour + 60.0 * minute + seconds;
}

double timeOfDayFromNumber(double hhmmss)
{
    if (!(hhmmss >= 0 && hhmmss < 240000))
        return NoValue;
    const double hour = std::floor(hhmmss / 10000);
    const double minute = std::floor(hhmmss / 100) - 100 * hour;
    const double second = hhmmss - 10000 * hour - 100 * minute;
    if (minute > 59 || second >= 61)
        return NoValue;
    return 3600 * hour + 60 * minute + second;
}

double DayClock::count(double timeOfDay)
{
    if (m_isStarted && timeOfDay + m_days < m_last - Day / 2)
        m_days += Day;
    else if (m_isStarted && timeOfDay + m_days > m_last + Day / 2 && m_days > 0)
        m_days -= Day; // a row from before midnight that comes late
    m_isStarted = true;
    m_last = timeOfDay + m_days;
    return m_last;
}

} // namespace zuno
