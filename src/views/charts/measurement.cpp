// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/measurement.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <views/charts/channel.h>
#include <views/charts/chartstate.h>

namespace zuno {

namespace {

// A moment of a lap.
struct Moment
{
    double seconds;
    double speed;
};

// At a fractional index; between two samples by a straight line, as everywhere in the charts.
Moment momentAt(const LapTrack &lap, double position)
{
    const auto speedAt = [&lap](double index) {
        const auto sample = static_cast<std::size_t>(index);
        return lap.hasFix(sample) ? channels().front().value(lap.points()[sample])
                                  : std::numeric_limits<double>::quiet_NaN();
    };
    const double before = std::floor(position);
    const double part = position - before;
    const double speed
        = part > 0 ? std::lerp(speedAt(before), speedAt(before + 1), part) : speedAt(before);
    return {valueAtPosition(lap.places(AxisKind::Time), position), speed};
}

// From one fractional index to another.
MeasuredLap measured(const LapTrack &lap, double from, double to)
{
    std::vector<Moment> moments {momentAt(lap, from)};
    for (double index = std::floor(from) + 1; index < to; ++index)
        moments.push_back(momentAt(lap, index));
    moments.push_back(momentAt(lap, to));
    MeasuredLap result;
    result.seconds = moments.back().seconds - moments.front().seconds;
    result.lowest = result.highest = result.mean = std::numeric_limits<double>::quiet_NaN();
    double sum = 0.0;
    double time = 0.0;
    for (std::size_t i = 0; i < moments.size(); ++i) {
        const double speed = moments[i].speed;
        if (std::isnan(speed))
            continue;
        result.lowest = std::fmin(result.lowest, speed);
        result.highest = std::fmax(result.highest, speed);
        if (i == 0 || std::isnan(moments[i - 1].speed))
            continue;
        const double step = moments[i].seconds - moments[i - 1].seconds;
        sum += step * (speed + moments[i - 1].speed) / 2;
        time += step;
    }
    if (time > 0)
        result.mean = sum / time;
    return result;
}

} // namespace

std::optional<Measurement> measurementOf(const ChartState &state)
{
    const auto range = state.measured();
    if (!range || !(range->span() > 0))
        return std::nullopt;
    const LapTrack &first = *state.first();
    const auto positionOf
        = [&](double place) { return positionAmong(first.places(state.axis()), place); };
    const double from = positionOf(range->from);
    const double to = positionOf(range->to);
    const auto metresAt = [&](double position) {
        return valueAtPosition(first.places(AxisKind::Distance), position);
    };
    Measurement result {{metresAt(from), metresAt(to)}, measured(first, from, to), std::nullopt};
    if (state.comparison() == nullptr)
        return result;
    // The same places of the track on both axes: times between two moments tell nothing.
    const std::vector<double> &positions = state.comparison()->positions(AxisKind::Distance);
    const double otherFrom = valueAtPosition(positions, from);
    const double otherTo = valueAtPosition(positions, to);
    if (otherTo > otherFrom)
        result.second = measured(*state.second(), otherFrom, otherTo);
    return result;
}

} // namespace zuno
