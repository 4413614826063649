// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/table/columnmapping.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include <QRegularExpression>

#include <formats/text/cells.h>
#include <formats/text/datetimes.h>

namespace zuno {

namespace {

/// A name, in small letters with single blanks, that a column of a quantity may bear.
struct NameRule
{
    Quantity quantity;
    const char *name;
    int score;
};

constexpr std::array Rules {
    NameRule {Quantity::Time, "utc time", 96},
    NameRule {Quantity::Time, "utc", 96},
    NameRule {Quantity::Time, "unix time", 96},
    NameRule {Quantity::Time, "datetime", 94},
    NameRule {Quantity::Time, "date time", 94},
    NameRule {Quantity::Time, "date and time", 94},
    NameRule {Quantity::Time, "gps time", 92},
    NameRule {Quantity::Time, "timestamp", 90},
    NameRule {Quantity::Time, "time stamp", 90},
    NameRule {Quantity::Time, "time", 80},
    NameRule {Quantity::Time, "timesec", 78},
    NameRule {Quantity::Time, "time sec", 78},
    NameRule {Quantity::Time, "elapsed time", 60},
    NameRule {Quantity::Time, "elapsed", 55},
    NameRule {Quantity::Time, "interval", 50},
    NameRule {Quantity::Date, "date", 90},
    NameRule {Quantity::Date, "utc date", 95},
    NameRule {Quantity::Date, "gps date", 95},
    NameRule {Quantity::Hour, "hour", 90},
    NameRule {Quantity::Minute, "minute", 90},
    NameRule {Quantity::Minute, "min", 60},
    NameRule {Quantity::Second, "second", 90},
    NameRule {Quantity::Second, "sec", 60},
    NameRule {Quantity::Latitude, "gps latitude", 100},
    NameRule {Quantity::Latitude, "latitude", 100},
    NameRule {Quantity::Latitude, "gps lat", 95},
    NameRule {Quantity::Latitude, "lat", 95},
    NameRule {Quantity::Latitude, "coordy", 60},
    NameRule {Quantity::Longitude, "gps longitude", 100},
    NameRule {Quantity::Longitude, "longitude", 100},
    NameRule {Quantity::Longitude, "gps long", 95},
    NameRule {Quantity::Longitude, "gps lon", 95},
    NameRule {Quantity::Longitude, "gps lng", 95},
    NameRule {Quantity::Longitude, "long", 95},
    NameRule {Quantity::Longitude, "lon", 95},
    NameRule {Quantity::Longitude, "lng", 95},
    NameRule {Quantity::Longitude, "coordx", 60},
    NameRule {Quantity::NorthSouth, "n s", 90},
    NameRule {Quantity::NorthSouth, "ns", 80},
    NameRule {Quantity::EastWest, "e w", 90},
    NameRule {Quantity::EastWest, "ew", 80},
    NameRule {Quantity::Speed, "gps speed", 100},
    NameRule {Quantity::Speed, "gps velocity", 98},
    NameRule {Quantity::Speed, "ground speed", 95},
    NameRule {Quantity::Speed, "groundspeed", 95},
    NameRule {Quantity::Speed, "speed", 90},
    NameRule {Quantity::Speed, "velocity", 88},
    NameRule {Quantity::Speed, "vitesse", 70},
    NameRule {Quantity::Speed, "velocity calc", 60},
    NameRule {Quantity::Speed, "vehicle speed", 40},
    NameRule {Quantity::Course, "gps heading", 100},
    NameRule {Quantity::Course, "gps bearing", 100},
    NameRule {Quantity::Course, "gps course", 100},
    NameRule {Quantity::Course, "heading", 90},
    NameRule {Quantity::Course, "bearing", 90},
    NameRule {Quantity::Course, "course", 90},
    NameRule {Quantity::Course, "gps north", 70},
    NameRule {Quantity::Along, "longacc calc", 100},
    NameRule {Quantity::Along, "longitudinal acc", 95},
    NameRule {Quantity::Along, "longitudinal acceleration", 95},
    NameRule {Quantity::Along, "gps lonacc", 92},
    NameRule {Quantity::Along, "gps longacc", 92},
    NameRule {Quantity::Along, "longacc", 90},
    NameRule {Quantity::Along, "lonacc", 90},
    NameRule {Quantity::Along, "long acc", 90},
    NameRule {Quantity::Along, "lon acc", 90},
    NameRule {Quantity::Along, "inlineacc", 80},
    NameRule {Quantity::Along, "accel", 30},
    NameRule {Quantity::Across, "latacc calc", 100},
    NameRule {Quantity::Across, "lateral acc", 95},
    NameRule {Quantity::Across, "lateral acceleration", 95},
    NameRule {Quantity::Across, "gps latacc", 92},
    NameRule {Quantity::Across, "latacc", 90},
    NameRule {Quantity::Across, "lat acc", 90},
    NameRule {Quantity::Across, "lateralacc", 80},
    NameRule {Quantity::Across, "accel lat", 30},
    NameRule {Quantity::AxisX, "accel x", 90},
    NameRule {Quantity::AxisX, "accelx", 90},
    NameRule {Quantity::AxisX, "acc x", 90},
    NameRule {Quantity::AxisX, "x acc", 85},
    NameRule {Quantity::AxisX, "x acc acc", 85},
    NameRule {Quantity::AxisX, "accelerometer x", 90},
    NameRule {Quantity::AxisY, "accel y", 90},
    NameRule {Quantity::AxisY, "accely", 90},
    NameRule {Quantity::AxisY, "acc y", 90},
    NameRule {Quantity::AxisY, "y acc", 85},
    NameRule {Quantity::AxisY, "y acc acc", 85},
    NameRule {Quantity::AxisY, "accelerometer y", 90},
    NameRule {Quantity::AxisZ, "accel z", 90},
    NameRule {Quantity::AxisZ, "accelz", 90},
    NameRule {Quantity::AxisZ, "acc z", 90},
    NameRule {Quantity::AxisZ, "z acc", 85},
    NameRule {Quantity::AxisZ, "z acc acc", 85},
    NameRule {Quantity::AxisZ, "accelerometer z", 90},
    NameRule {Quantity::Lean, "lean angle calc", 100},
    NameRule {Quantity::Lean, "lean angle", 95},
    NameRule {Quantity::Lean, "lean", 90},
    NameRule {Quantity::Lean, "bank angle", 70},
    NameRule {Quantity::Front, "front suspension", 90},
    NameRule {Quantity::Front, "suspension front", 90},
    NameRule {Quantity::Front, "front susp", 90},
    NameRule {Quantity::Front, "susp front", 90},
    NameRule {Quantity::Front, "fork", 70},
    NameRule {Quantity::Rear, "rear suspension", 90},
    NameRule {Quantity::Rear, "suspension rear", 90},
    NameRule {Quantity::Rear, "rear susp", 90},
    NameRule {Quantity::Rear, "susp rear", 90},
    NameRule {Quantity::Rear, "shock", 70},
    NameRule {Quantity::IsFresh, "gps update", 90},
    NameRule {Quantity::Lap, "lap number", 90},
    NameRule {Quantity::Lap, "lap", 85},
    NameRule {Quantity::Lap, "lapcount", 80},
    NameRule {Quantity::Lap, "lap count", 80},
    NameRule {Quantity::PositionRate, "device update rate", 80},
};

/// A column's name taken apart: "Speed (Km/h)", "speed *gps", "speed_mph".
struct ColumnName
{
    QString plain;
    QString unit;
    QString source;
};

QString takeUnitWord(QString &plain)
{
    for (const auto *word : {"mph", "kmh", "km h", "kph", "ms", "deg", "knots", "unix"}) {
        const QString suffix = u' ' + QString::fromLatin1(word);
        if (plain.endsWith(suffix)) {
            plain.chop(suffix.size());
            return QString::fromLatin1(word);
        }
    }
    return {};
}

ColumnName takeApart(const TableHeading &heading, qsizetype i)
{
    static const QRegularExpression brackets(QStringLiteral("[(\\[]([^)\\]]*)[)\\]]"));
    static const QRegularExpression others(QStringLiteral("[^a-z0-9]+"));
    ColumnName column {heading.names[i].toLower(), heading.units.value(i).trimmed().toLower(),
                       heading.sources.value(i).toLower()};
    if (const qsizetype star = column.plain.indexOf(u'*'); star > 0) {
        column.source = column.plain.mid(star + 1).trimmed();
        column.plain.truncate(star);
    }
    if (const auto match = brackets.match(column.plain); match.hasMatch()) {
        if (column.unit.isEmpty())
            column.unit = match.captured(1).trimmed();
        column.plain.remove(brackets);
    }
    column.plain = column.plain.replace(others, QStringLiteral(" ")).trimmed();
    const QString word = takeUnitWord(column.plain);
    if (column.unit.isEmpty())
        column.unit = word;
    return column;
}

// A receiver knows position and speed best; what the car's own bus says of them comes last.
int sourceScore(const QString &source)
{
    if (source.contains(u"gps"))
        return 15;
    if (source.isEmpty() || source.contains(u"calc"))
        return 8;
    return source.contains(u"obd") || source.contains(u"can") ? -60 : -10;
}

const QByteArray *firstFilled(const std::vector<std::vector<QByteArray>> &samples, int column)
{
    for (const auto &row : samples) {
        const auto i = static_cast<std::size_t>(column);
        if (i < row.size() && !row[i].trimmed().isEmpty())
            return &row[i];
    }
    return nullptr;
}

// A unit that stands in the cells, as in "10.120 km/h".
QString unitInCell(const QByteArray *cell)
{
    static const QRegularExpression behindNumber(QStringLiteral("^ *[-+0-9.,eE]+ +([^ ]+) *$"));
    const auto match = behindNumber.match(cell != nullptr ? QString::fromUtf8(*cell) : QString());
    return match.hasMatch() ? match.captured(1).toLower() : QString();
}

ClockForm clockByText(const QByteArray &cell, const QString &unit)
{
    if (cell.contains(':'))
        return ClockForm::ClockText;
    const double value = toNumber(cell);
    if (value > 1e11)
        return ClockForm::UnixMilliseconds;
    if (value > 1e8 || unit.contains(u"unix"))
        return ClockForm::UnixSeconds;
    if (unit == u"ms" || unit.contains(u"milli"))
        return ClockForm::Milliseconds;
    return ClockForm::Seconds;
}

// Six digits before the point that are a time of day in every row, and go on as one does.
bool isClockNumber(const std::vector<std::vector<QByteArray>> &samples, int column)
{
    double last = 0;
    int rows = 0;
    for (const auto &row : samples) {
        const auto i = static_cast<std::size_t>(column);
        const double value = i < row.size() ? toNumber(row[i]) : NoValue;
        if (std::isnan(value))
            continue;
        const double time = timeOfDayFromNumber(value);
        if (std::isnan(time) || value < 10000 || (rows > 0 && std::abs(time - last) > 60))
            return false;
        last = time;
        ++rows;
    }
    return rows > 1;
}

void chooseClock(ColumnMapping &mapping, const std::vector<std::vector<QByteArray>> &samples,
                 const QString &unit)
{
    const int column = mapping.use(Quantity::Time).column;
    const QByteArray *cell = column >= 0 ? firstFilled(samples, column) : nullptr;
    if (cell != nullptr)
        mapping.clock = clockByText(*cell, unit);
    if (cell != nullptr && mapping.clock == ClockForm::Seconds && isClockNumber(samples, column))
        mapping.clock = ClockForm::ClockNumber;
    const bool hasParts = mapping.has(Quantity::Hour) && mapping.has(Quantity::Minute)
                          && mapping.has(Quantity::Second);
    if (column < 0 && hasParts)
        mapping.clock = ClockForm::Parts;
}

void chooseSpeed(ColumnMapping &mapping, const std::vector<std::vector<QByteArray>> &samples,
                 const QString &unit)
{
    ColumnUse &speed = mapping.use(Quantity::Speed);
    if (speed.column < 0)
        return;
    double factor = speedFactor(unit);
    if (factor == 0)
        factor = speedFactor(unitInCell(firstFilled(samples, speed.column)));
    mapping.isSpeedUnitUnknown = factor == 0;
    speed.factor = factor == 0 ? 1.0 : factor;
}

double accelerationFactor(const QString &unit)
{
    return unit.startsWith(u"m/s") ? 1 / 9.80665 : 1.0;
}

} // namespace

double speedFactor(const QString &unit)
{
    static const std::array<std::pair<const char *, double>, 17> factors {{
        {"m/s", 1.0},
        {"mps", 1.0},
        {"meters/sec", 1.0},
        {"mm/s", 0.001},
        {"cm/s", 0.01},
        {"km/h", 1 / 3.6},
        {"kmh", 1 / 3.6},
        {"km h", 1 / 3.6},
        {"kph", 1 / 3.6},
        {"kmph", 1 / 3.6},
        {"mph", 0.44704},
        {"mi/h", 0.44704},
        {"mile/h", 0.44704},
        {"kn", 1852 / 3600.0},
        {"kt", 1852 / 3600.0},
        {"kts", 1852 / 3600.0},
        {"knots", 1852 / 3600.0},
    }};
    for (const auto &[name, factor] : factors) {
        if (unit.compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return factor;
    }
    return 0;
}

ColumnMapping guessColumns(const TableHeading &heading,
                           const std::vector<std::vector<QByteArray>> &samples)
{
    ColumnMapping mapping;
    std::array<int, QuantityCount> best {};
    std::array<QString, QuantityCount> units;
    for (qsizetype i = 0; i < heading.names.size(); ++i) {
        const ColumnName column = takeApart(heading, i);
        for (const NameRule &rule : Rules) {
            if (column.plain != QLatin1String(rule.name))
                continue;
            const auto quantity = static_cast<std::size_t>(rule.quantity);
            const int score = rule.score + sourceScore(column.source);
            if (score <= best[quantity])
                continue;
            best[quantity] = score;
            mapping.uses[quantity].column = static_cast<int>(i);
            units[quantity] = column.unit;
        }
    }
    const auto unitOf
        = [&units](Quantity quantity) { return units[static_cast<std::size_t>(quantity)]; };
    chooseClock(mapping, samples, unitOf(Quantity::Time));
    chooseSpeed(mapping, samples, unitOf(Quantity::Speed));
    for (const Quantity quantity :
         {Quantity::Along, Quantity::Across, Quantity::AxisX, Quantity::AxisY, Quantity::AxisZ})
        mapping.use(quantity).factor = accelerationFactor(unitOf(quantity));
    return mapping;
}

} // namespace zuno
