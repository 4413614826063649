// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartcontent.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <views/charts/chartstate.h>

namespace zuno {

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();

/// The values of a channel, sample by sample.
struct Values
{
    std::vector<double> values;
    std::vector<double> lows;
    std::vector<double> highs;
};

double valueOf(const Channel &channel, const LapTrack &track, std::size_t sample)
{
    return track.hasFix(sample) ? channel.value(track.points()[sample]) : None;
}

Values valuesOf(const Channel &channel, const LapTrack &track)
{
    Values read;
    const bool hasRange = channel.readRange != nullptr;
    read.values.reserve(track.size());
    if (hasRange) {
        read.lows.reserve(track.size());
        read.highs.reserve(track.size());
    }
    for (std::size_t i = 0; i < track.size(); ++i) {
        read.values.push_back(valueOf(channel, track, i));
        if (hasRange) {
            const ValueRange range = channel.valueRange(track.points()[i]);
            read.lows.push_back(track.hasFix(i) ? range.low : None);
            read.highs.push_back(track.hasFix(i) ? range.high : None);
        }
    }
    return read;
}

std::vector<double> picked(const std::vector<double> &values, const std::vector<double> &positions)
{
    std::vector<double> result;
    if (values.empty())
        return result;
    result.reserve(positions.size());
    for (const double position : positions)
        result.push_back(valueAtPosition(values, position));
    return result;
}

Curve curveOf(const Channel &channel, const LapTrack &track, AxisKind axis, const QColor &colour)
{
    Values read = valuesOf(channel, track);
    return {colour, track.places(axis), std::move(read.values), std::move(read.lows),
            std::move(read.highs)};
}

Curve secondCurve(const Channel &channel, const ChartState &state)
{
    if (state.axis() == AxisKind::Time)
        return curveOf(channel, *state.second(), AxisKind::Time, secondLapColour());
    const std::vector<double> &positions = state.comparison()->positions(AxisKind::Distance);
    const Values read = valuesOf(channel, *state.second());
    return {secondLapColour(), state.first()->places(AxisKind::Distance),
            picked(read.values, positions), picked(read.lows, positions),
            picked(read.highs, positions)};
}

AxisRange rangeOf(const AxisRange &least, const std::vector<Curve> &curves)
{
    AxisRange range = least;
    for (const Curve &curve : curves) {
        for (const auto *values : {&curve.values, &curve.lows, &curve.highs}) {
            for (const double value : *values) {
                if (!std::isnan(value))
                    range = range.united({value, value});
            }
        }
    }
    return range;
}

} // namespace

double Curve::valueAt(double place) const
{
    if (places.empty() || place < places.front() || place > places.back())
        return None;
    return valueAtPosition(values, positionAmong(places, place));
}

QColor firstLapColour()
{
    return {0x00, 0xff, 0x00};
}

QColor secondLapColour()
{
    return {0xff, 0x00, 0x00};
}

ChartContent contentOf(const Channel &channel, const ChartState &state)
{
    ChartContent content {channel.titleText(), channel.colour, channel.shown, {}};
    if (state.second() != nullptr)
        content.curves.push_back(secondCurve(channel, state));
    if (state.first() != nullptr)
        content.curves.push_back(curveOf(channel, *state.first(), state.axis(), firstLapColour()));
    content.range = rangeOf(channel.shown, content.curves);
    return content;
}

ChartContent gapContent(const ChartState &state)
{
    const Channel &channel = gapChannel();
    ChartContent content {channel.titleText(), channel.colour, channel.shown, {}};
    if (state.comparison() != nullptr) {
        content.curves.push_back(
            {channel.colour, state.first()->places(state.axis()), state.comparison()->gaps()});
    }
    content.range = rangeOf(channel.shown, content.curves);
    return content;
}

CursorValues valuesAtCursor(const Channel &channel, const ChartState &state)
{
    CursorValues values {None, None};
    if (state.first() != nullptr)
        values.first = valueOf(channel, *state.first(), state.cursor());
    const double position = state.secondPosition();
    if (std::isnan(position))
        return values;
    const LapTrack &second = *state.second();
    const auto before = static_cast<std::size_t>(position);
    const std::size_t after = std::min(before + 1, second.size() - 1);
    const std::array around {valueOf(channel, second, before), valueOf(channel, second, after)};
    values.second = valueAtPosition(around, position - std::floor(position));
    return values;
}

} // namespace zuno
