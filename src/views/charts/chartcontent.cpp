// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartcontent.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <views/charts/chartcolours.h>
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

Curve curveOf(const Channel &channel, const LapTrack &track, AxisKind axis, std::size_t lap)
{
    Values read = valuesOf(channel, track);
    return {lap, track.places(axis), std::move(read.values), std::move(read.lows),
            std::move(read.highs)};
}

// Against distance at the places of the first lap.
Curve comparedCurve(const Channel &channel, const ChartState &state, const LapTrack &track,
                    const LapComparison &comparison, std::size_t lap)
{
    if (state.axis() == AxisKind::Time)
        return curveOf(channel, track, AxisKind::Time, lap);
    const std::vector<double> &positions = comparison.positions(AxisKind::Distance);
    const Values read = valuesOf(channel, track);
    return {lap, state.first()->places(AxisKind::Distance), picked(read.values, positions),
            picked(read.lows, positions), picked(read.highs, positions)};
}

double valueAt(const Channel &channel, const LapTrack &track, double position)
{
    if (std::isnan(position))
        return None;
    const auto before = static_cast<std::size_t>(position);
    const std::size_t after = std::min(before + 1, track.size() - 1);
    const std::array around {valueOf(channel, track, before), valueOf(channel, track, after)};
    return valueAtPosition(around, position - std::floor(position));
}

} // namespace

double Curve::valueAt(double place) const
{
    if (places.empty() || place < places.front() || place > places.back())
        return None;
    return valueAtPosition(values, positionAmong(places, place));
}

AxisRange fittedRange(const ChartContent &content, const std::optional<AxisRange> &seen)
{
    // So that no line runs along the edge.
    constexpr double Margin = 0.07;
    if (!seen)
        return content.least.widened(Margin);
    // Who is ahead shows only beside the line of those who are level.
    AxisRange range = content.isGap ? seen->united({0.0, 0.0}) : *seen;
    const double lacking = content.least.span() - range.span();
    if (lacking > 0)
        range = {range.from - (lacking / 2), range.to + (lacking / 2)};
    return range.widened(Margin);
}

ChartContent contentOf(const Channel &channel, const ChartState &state)
{
    ChartContent content {channel.titleText(), channel.shown, {}};
    content.hasActs = channel.isSpeed;
    content.unit = channel.shownValue(1.0);
    for (std::size_t i = state.others().size(); i-- > 0;) {
        const OtherLap &other = state.others()[i];
        content.curves.push_back(
            comparedCurve(channel, state, other.track, other.comparison, i + 2));
    }
    if (state.second() != nullptr)
        content.curves.push_back(
            comparedCurve(channel, state, *state.second(), *state.comparison(), 1));
    if (state.first() != nullptr)
        content.curves.push_back(curveOf(channel, *state.first(), state.axis(), 0));
    return content;
}

ChartContent gapContent(const ChartState &state)
{
    const Channel &channel = gapChannel();
    ChartContent content {channel.titleText(), channel.shown, {}};
    content.isGap = true;
    if (state.comparison() != nullptr) {
        const std::vector<double> &gaps = state.comparison()->gaps();
        content.curves.push_back({0, state.first()->places(state.axis()), gaps});
        content.rates = lossRates(state.first()->places(AxisKind::Distance), gaps);
    }
    return content;
}

CursorValues valuesAtCursor(const Channel &channel, const ChartState &state)
{
    CursorValues values {None, None};
    if (state.first() != nullptr)
        values.first = valueOf(channel, *state.first(), state.cursor());
    if (state.second() != nullptr)
        values.second = valueAt(channel, *state.second(), state.secondPosition());
    return values;
}

double otherValueAtCursor(const Channel &channel, const ChartState &state, std::size_t other)
{
    const OtherLap &lap = state.others()[other];
    return valueAt(channel, lap.track, lap.comparison.positions(state.axis())[state.cursor()]);
}

} // namespace zuno
