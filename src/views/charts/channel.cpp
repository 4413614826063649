// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/channel.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <QCoreApplication>
#include <QLocale>

#include <theme/shownunits.h>

namespace zuno {

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();

double readSpeed(const PointAcquisition &point)
{
    return point.dataSpeed;
}

double readAngle(const PointAcquisition &point)
{
    return point.dataAngle;
}

double readAcceleration(const PointAcquisition &point)
{
    return point.dataAccelXPHComputed;
}

using Side = const SuspensionChannel &(PointAcquisition::*)() const;

template<Side side>
double readMean(const PointAcquisition &point)
{
    const SuspensionChannel &channel = (point.*side)();
    return channel.readings.empty() ? None : static_cast<double>(channel.mean);
}

template<Side side>
ValueRange readReadings(const PointAcquisition &point)
{
    const SuspensionChannel &channel = (point.*side)();
    if (channel.readings.empty())
        return {None, None};
    return {static_cast<double>(channel.min), static_cast<double>(channel.max)};
}

QString translated(const char *text)
{
    return QCoreApplication::translate("Channel", text);
}

} // namespace

double Channel::value(const PointAcquisition &point) const
{
    const double value = read(point);
    return possible.contains(value) ? value : None;
}

ValueRange Channel::valueRange(const PointAcquisition &point) const
{
    const ValueRange range = readRange != nullptr ? readRange(point) : ValueRange {None, None};
    const bool isPossible = possible.contains(range.low) && possible.contains(range.high);
    return isPossible ? range : ValueRange {None, None};
}

bool Channel::isIn(std::span<const PointAcquisition> points) const
{
    return std::any_of(points.begin(), points.end(), [this](const PointAcquisition &point) {
        const double found = value(point);
        return found < 0 || found > 0;
    });
}

QString Channel::nameText() const
{
    return translated(name);
}

QString Channel::missingText() const
{
    return translated(missing);
}

QString Channel::unitText() const
{
    return isSpeed ? units().speedName() : translated(unit);
}

QString Channel::titleText() const
{
    return QStringLiteral("%1 (%2)").arg(translated(name), unitText());
}

double Channel::shownValue(double value) const
{
    return isSpeed ? units().speed(value) : value;
}

QString Channel::numberText(double value) const
{
    if (!std::isfinite(value))
        return QStringLiteral("\u2013");
    // A value that is written as zero has no sign.
    const double power = std::pow(10.0, decimals);
    const double rounded = std::round(shownValue(value) * power) / power + 0.0;
    return QLocale().toString(rounded, 'f', decimals);
}

QString Channel::valueText(double value, bool isDifference) const
{
    if (!std::isfinite(value))
        return numberText(value);
    const double least = 0.5 / std::pow(10.0, decimals);
    const bool needsPlus = isDifference && shownValue(value) >= least;
    return (needsPlus ? QStringLiteral("+") : QString()) + numberText(value) + u' ' + unitText();
}

const std::array<Channel, ChannelCount> &channels()
{
    static const std::array<Channel, ChannelCount> table {
        Channel {QT_TRANSLATE_NOOP("Channel", "Speed"),
                 QT_TRANSLATE_NOOP("Channel", "km/h"),
                 QT_TRANSLATE_NOOP("Channel", "This recording holds no speed."),
                 1,
                 {80, 120},
                 {0, 399},
                 readSpeed,
                 nullptr,
                 true},
        Channel {QT_TRANSLATE_NOOP("Channel", "Lean angle, left below 0"),
                 QT_TRANSLATE_NOOP("Channel", "\u00b0"),
                 QT_TRANSLATE_NOOP("Channel", "This recording holds no lean angle."),
                 1,
                 {-20, 20},
                 {-90, 90},
                 readAngle},
        Channel {QT_TRANSLATE_NOOP("Channel", "Acceleration, braking below 0"),
                 QT_TRANSLATE_NOOP("Channel", "G"),
                 QT_TRANSLATE_NOOP("Channel", "This recording holds no acceleration."),
                 2,
                 {-0.5, 0.5},
                 {-2, 2},
                 readAcceleration},
        Channel {QT_TRANSLATE_NOOP("Channel", "Front suspension, mean and range"),
                 QT_TRANSLATE_NOOP("Channel", "mm"),
                 QT_TRANSLATE_NOOP("Channel", "This recording holds no front suspension."),
                 1,
                 {0, 10},
                 {-1000, 1000},
                 readMean<&PointAcquisition::suspension1>,
                 readReadings<&PointAcquisition::suspension1>},
        Channel {QT_TRANSLATE_NOOP("Channel", "Rear suspension, mean and range"),
                 QT_TRANSLATE_NOOP("Channel", "mm"),
                 QT_TRANSLATE_NOOP("Channel", "This recording holds no rear suspension."),
                 1,
                 {0, 10},
                 {-1000, 1000},
                 readMean<&PointAcquisition::suspension2>,
                 readReadings<&PointAcquisition::suspension2>},
    };
    return table;
}

const Channel &gapChannel()
{
    static const Channel gap {QT_TRANSLATE_NOOP("Channel", "Time gap, behind above 0"),
                              QT_TRANSLATE_NOOP("Channel", "s"),
                              nullptr,
                              3,
                              {-0.1, 0.1},
                              {-86400, 86400},
                              nullptr};
    return gap;
}

} // namespace zuno
