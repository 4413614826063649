// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/columnunits.h>

#include <array>
#include <cmath>
#include <numbers>

#include <QCoreApplication>

namespace zuno {

namespace {

constexpr double Gravity = 9.80665;
constexpr double Minute = 1.0 / 60;
constexpr double Radian = 180 / std::numbers::pi;

QString text(const char *source)
{
    return QCoreApplication::translate("Columns", source);
}

QList<ColumnUnit> clockForms()
{
    return {{QStringLiteral("s"), 1.0, ClockForm::Seconds},
            {QStringLiteral("ms"), 1.0, ClockForm::Milliseconds},
            {text(QT_TRANSLATE_NOOP("Columns", "s since 1970")), 1.0, ClockForm::UnixSeconds},
            {text(QT_TRANSLATE_NOOP("Columns", "ms since 1970")), 1.0, ClockForm::UnixMilliseconds},
            {QStringLiteral("123456.789"), 1.0, ClockForm::ClockNumber},
            {QStringLiteral("12:34:56.789"), 1.0, ClockForm::ClockText}};
}

QList<ColumnUnit> speedUnits()
{
    QList<ColumnUnit> units;
    for (const char *name : {"km/h", "m/s", "mph"})
        units.append({QString::fromLatin1(name), speedFactor(QString::fromLatin1(name))});
    units.append({text(QT_TRANSLATE_NOOP("Columns", "knots")), speedFactor(QStringLiteral("kn"))});
    units.append({text(QT_TRANSLATE_NOOP("Columns", "not known")), 1.0, ClockForm::Seconds, true});
    return units;
}

QList<ColumnUnit> angles(bool isLongitude)
{
    QList<ColumnUnit> units {{QStringLiteral("°"), 1.0},
                             {text(QT_TRANSLATE_NOOP("Columns", "minutes")), Minute}};
    if (isLongitude) {
        units.append({text(QT_TRANSLATE_NOOP("Columns", "°, west positive")), -1.0});
        units.append({text(QT_TRANSLATE_NOOP("Columns", "minutes, west positive")), -Minute});
    }
    units.append({QStringLiteral("1e-7 °"), 1e-7});
    return units;
}

bool isAcceleration(Quantity quantity)
{
    return quantity >= Quantity::Along && quantity <= Quantity::AxisZ;
}

} // namespace

QString nameOfQuantity(Quantity quantity)
{
    static constexpr std::array<const char *, QuantityCount> Names {
        QT_TRANSLATE_NOOP("Columns", "Time"),
        QT_TRANSLATE_NOOP("Columns", "Date"),
        QT_TRANSLATE_NOOP("Columns", "Hour"),
        QT_TRANSLATE_NOOP("Columns", "Minute"),
        QT_TRANSLATE_NOOP("Columns", "Second"),
        QT_TRANSLATE_NOOP("Columns", "Latitude"),
        QT_TRANSLATE_NOOP("Columns", "Longitude"),
        QT_TRANSLATE_NOOP("Columns", "North or south"),
        QT_TRANSLATE_NOOP("Columns", "East or west"),
        QT_TRANSLATE_NOOP("Columns", "Speed"),
        QT_TRANSLATE_NOOP("Columns", "Course"),
        QT_TRANSLATE_NOOP("Columns", "Longitudinal acceleration"),
        QT_TRANSLATE_NOOP("Columns", "Lateral acceleration"),
        QT_TRANSLATE_NOOP("Columns", "Acceleration, first axis"),
        QT_TRANSLATE_NOOP("Columns", "Acceleration, second axis"),
        QT_TRANSLATE_NOOP("Columns", "Acceleration, third axis"),
        QT_TRANSLATE_NOOP("Columns", "Lean angle"),
        QT_TRANSLATE_NOOP("Columns", "Front suspension"),
        QT_TRANSLATE_NOOP("Columns", "Rear suspension"),
        QT_TRANSLATE_NOOP("Columns", "New position (1 or 0)"),
        QT_TRANSLATE_NOOP("Columns", "Lap number"),
        QT_TRANSLATE_NOOP("Columns", "Positions a second"),
    };
    return text(Names[static_cast<std::size_t>(quantity)]);
}

QList<ColumnUnit> unitsOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Time:
        return clockForms();
    case Quantity::Speed:
        return speedUnits();
    case Quantity::Latitude:
    case Quantity::Longitude:
        return angles(quantity == Quantity::Longitude);
    case Quantity::Course:
    case Quantity::Lean:
        return {{QStringLiteral("°"), 1.0}, {QStringLiteral("rad"), Radian}};
    case Quantity::Front:
    case Quantity::Rear:
        return {{QStringLiteral("mm"), 1.0}};
    default:
        break;
    }
    if (isAcceleration(quantity))
        return {{QStringLiteral("G"), 1.0},
                {QStringLiteral("m/s²"), 1 / Gravity},
                {QStringLiteral("mG"), 0.001}};
    return {{}};
}

int unitIndex(Quantity quantity, const ColumnMapping &mapping)
{
    const QList<ColumnUnit> units = unitsOf(quantity);
    const double factor = mapping.use(quantity).factor;
    for (int i = 0; i < units.size(); ++i) {
        const ColumnUnit &unit = units[i];
        const bool isSame = quantity == Quantity::Time
                                ? unit.clock == mapping.clock
                                : std::abs(unit.factor - factor) < 1e-9 * std::abs(factor);
        const bool isUnknown = quantity == Quantity::Speed && mapping.isSpeedUnitUnknown;
        if (isUnknown ? unit.isUnknown : isSame && !unit.isUnknown)
            return i;
    }
    return 0;
}

void useColumn(ColumnMapping &mapping, Quantity quantity, int column, const ColumnUnit &unit)
{
    mapping.use(quantity) = {column, unit.factor};
    if (quantity == Quantity::Time)
        mapping.clock = unit.clock;
    if (quantity == Quantity::Speed)
        mapping.isSpeedUnitUnknown = unit.isUnknown;
}

} // namespace zuno
