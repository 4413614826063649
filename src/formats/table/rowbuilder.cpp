// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/table/rowbuilder.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zuno {

namespace {

constexpr double Day = 86400;
// Seconds; whatever is told at all is told as often.
constexpr double SparseRows = 2.5;

QDateTime utc(QDate date, double seconds = 0)
{
    const QDateTime midnight(date, QTime(0, 0), Qt::UTC);
    return midnight.addMSecs(static_cast<qint64>(std::llround(seconds * 1000)));
}

QByteArrayView cellAt(const Cells &cells, int column)
{
    return column >= 0 && static_cast<std::size_t>(column) < cells.size()
               ? cells[static_cast<std::size_t>(column)].trimmed()
               : QByteArrayView();
}

// What loggers write where they have no value.
bool saysNothing(QByteArrayView cell)
{
    static constexpr std::array Words {"-", "--", "nan", "null", "n/a", "na", "none"};
    return std::any_of(Words.begin(), Words.end(), [cell](const char *word) {
        return cell.compare(QByteArrayView(word), Qt::CaseInsensitive) == 0;
    });
}

// 060425 and 250406 are dates, too; the year stands first.
QDate dateOf(QByteArrayView cell, DateOrder order)
{
    const QString text = cellText(cell);
    bool isNumber = false;
    (void)text.toUInt(&isNumber);
    if (text.size() != 6 || !isNumber)
        return findDate(text, order);
    return {2000 + text.left(2).toInt(), text.mid(2, 2).toInt(), text.mid(4).toInt()};
}

} // namespace

RowBuilder::RowBuilder(const ColumnMapping &mapping, RideFacts &facts, DateOrder order)
    : m_mapping(mapping)
    , m_facts(facts)
    , m_order(order)
    , m_lastColumn(mapping.lastColumn())
{
    facts.isTimeOfDay = mapping.clock == ClockForm::ClockNumber
                        || mapping.clock == ClockForm::ClockText
                        || mapping.clock == ClockForm::Parts;
    if (mapping.clock == ClockForm::UnixSeconds || mapping.clock == ClockForm::UnixMilliseconds)
        facts.clockZero = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
}

double RowBuilder::value(const Cells &cells, Quantity quantity)
{
    const ColumnUse &use = m_mapping.use(quantity);
    const QByteArrayView cell = cellAt(cells, use.column);
    if (cell.isEmpty())
        return NoValue;
    const double number = toNumber(cell);
    if (std::isnan(number) && !saysNothing(cell))
        m_isBad = true;
    return number * use.factor;
}

double RowBuilder::signFrom(const Cells &cells, Quantity quantity, char negative) const
{
    const QByteArrayView cell = cellAt(cells, m_mapping.use(quantity).column);
    const bool isNegative = !cell.isEmpty() && (cell.front() & ~0x20) == negative;
    return isNegative ? -1.0 : 1.0;
}

void RowBuilder::noteDate(QDate date)
{
    if (!date.isValid())
        return;
    if (!m_firstDate.isValid()) {
        m_firstDate = date;
        m_facts.clockZero = utc(date);
    }
    m_dateOffset = Day * static_cast<double>(m_firstDate.daysTo(date));
}

// With a date in every row there is no need to count days.
double RowBuilder::countedDays(double timeOfDay, QByteArrayView dateCell)
{
    if (dateCell.isEmpty())
        return m_days.count(timeOfDay);
    if (dateCell != m_lastDateCell) {
        m_lastDateCell = dateCell.toByteArray();
        noteDate(dateOf(dateCell, m_order));
    }
    return m_firstDate.isValid() ? m_dateOffset + timeOfDay : m_days.count(timeOfDay);
}

double RowBuilder::clockText(QByteArrayView cell, const Cells &cells)
{
    const QByteArrayView dateCell = cellAt(cells, m_mapping.use(Quantity::Date).column);
    const qsizetype colon = cell.indexOf(':');
    const double timeOfDay = findTimeOfDay(QString::fromUtf8(cell));
    const bool hasDate = dateCell.isEmpty() && colon > 4;
    // The two digits before the first colon are the hour.
    return countedDays(timeOfDay, hasDate ? cell.first(colon - 2) : dateCell);
}

double RowBuilder::time(const Cells &cells)
{
    if (m_mapping.clock == ClockForm::Parts) {
        const double timeOfDay = 3600 * value(cells, Quantity::Hour)
                                 + 60 * value(cells, Quantity::Minute)
                                 + value(cells, Quantity::Second);
        return countedDays(timeOfDay, cellAt(cells, m_mapping.use(Quantity::Date).column));
    }
    const QByteArrayView cell = cellAt(cells, m_mapping.use(Quantity::Time).column);
    if (cell.isEmpty())
        return NoValue;
    if (m_mapping.clock == ClockForm::ClockText)
        return clockText(cell, cells);
    const double number = value(cells, Quantity::Time);
    if (!m_facts.clockZero.isValid())
        noteBegin(cells, number * (m_mapping.clock == ClockForm::Milliseconds ? 0.001 : 1.0));
    switch (m_mapping.clock) {
    case ClockForm::Milliseconds:
    case ClockForm::UnixMilliseconds:
        return number / 1000;
    case ClockForm::ClockNumber:
        return countedDays(timeOfDayFromNumber(number),
                           cellAt(cells, m_mapping.use(Quantity::Date).column));
    default:
        return number;
    }
}

// A clock that counts from some beginning, beside the date and the time of day.
void RowBuilder::noteBegin(const Cells &cells, double seconds)
{
    const bool counts
        = m_mapping.clock == ClockForm::Seconds || m_mapping.clock == ClockForm::Milliseconds;
    const QByteArrayView cell = cellAt(cells, m_mapping.use(Quantity::Date).column);
    const QDate date = counts && !cell.isEmpty() ? dateOf(cell, m_order) : QDate();
    if (!date.isValid() || std::isnan(seconds))
        return;
    const double hour = value(cells, Quantity::Hour);
    const double timeOfDay = std::isnan(hour) ? 0.0
                                              : 3600 * hour + 60 * value(cells, Quantity::Minute)
                                                    + value(cells, Quantity::Second);
    m_facts.clockZero = utc(date, (std::isnan(timeOfDay) ? 0.0 : timeOfDay) - seconds);
}

// Before the first lap the number is missing; but a number that is not told in every row is missing
// in the first ones, too.
void RowBuilder::noteLap(double lap, double time)
{
    if (std::isnan(m_begin))
        m_begin = time;
    if (std::isnan(lap) || std::isnan(time))
        return;
    const bool isFirst = std::isnan(m_lap);
    if (isFirst ? time - m_begin > SparseRows : lap != m_lap)
        m_facts.lapMarks.push_back(time);
    m_lap = lap;
}

bool RowBuilder::build(const Cells &cells, RawRow &row)
{
    if (std::ssize(cells) <= m_lastColumn)
        return false;
    m_isBad = false;
    row = {};
    row.time = time(cells);
    row.latitude = value(cells, Quantity::Latitude) * signFrom(cells, Quantity::NorthSouth, 'S');
    row.longitude = value(cells, Quantity::Longitude) * signFrom(cells, Quantity::EastWest, 'W');
    row.speed = value(cells, Quantity::Speed);
    row.course = value(cells, Quantity::Course);
    row.along = value(cells, Quantity::Along);
    row.across = value(cells, Quantity::Across);
    row.axes = {value(cells, Quantity::AxisX), value(cells, Quantity::AxisY),
                value(cells, Quantity::AxisZ)};
    row.lean = value(cells, Quantity::Lean);
    row.front = value(cells, Quantity::Front);
    row.rear = value(cells, Quantity::Rear);
    row.isFresh = value(cells, Quantity::IsFresh) != 0.0;
    if (const double rate = value(cells, Quantity::PositionRate); rate > 0)
        m_facts.positionRate = rate;
    const double lap = value(cells, Quantity::Lap);
    if (!m_isBad)
        noteLap(lap, row.time);
    return !m_isBad;
}

} // namespace zuno
