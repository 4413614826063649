// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartaxis.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zuno {

namespace {

// Steps are exact only up to the rounding of their powers of ten.
constexpr double Tolerance = 1e-9;

} // namespace

double AxisRange::clamped(double value) const
{
    return std::max(from, std::min(value, to));
}

AxisRange AxisRange::united(const AxisRange &other) const
{
    return {std::min(from, other.from), std::max(to, other.to)};
}

AxisRange AxisRange::widened(double part) const
{
    return {from - (span() * part), to + (span() * part)};
}

AxisRange AxisRange::movedInto(const AxisRange &whole) const
{
    if (span() >= whole.span())
        return whole;
    const double start = std::max(whole.from, std::min(from, whole.to - span()));
    return {start, start + span()};
}

AxisRange AxisRange::zoomed(double factor, double around, const AxisRange &whole,
                            double shortest) const
{
    const double length = std::max(span() * factor, shortest);
    const double part = span() > 0 ? (clamped(around) - from) / span() : 0.0;
    const double start = clamped(around) - (part * length);
    return AxisRange {start, start + length}.movedInto(whole);
}

double PixelScale::pixelOf(double value) const
{
    return range.span() > 0 ? start + ((value - range.from) / range.span() * length) : start;
}

double PixelScale::valueAt(double pixel) const
{
    return length != 0 ? range.from + ((pixel - start) / length * range.span()) : range.from;
}

double roundStep(double span, int intervals)
{
    if (!(span > 0) || !std::isfinite(span))
        return 1.0;
    const double least = span / std::max(intervals, 1);
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least * (1 - Tolerance))
            return factor * power;
    }
    return 10 * power;
}

std::vector<double> ticksIn(const AxisRange &range, double step)
{
    std::vector<double> ticks;
    const double first = std::ceil((range.from / step) - Tolerance);
    const double last = std::floor((range.to / step) + Tolerance);
    for (double count = first; count <= last; ++count)
        ticks.push_back((count + 0.0) * step);
    return ticks;
}

int decimalsOfStep(double step)
{
    return step > 0 ? std::max(0, -static_cast<int>(std::floor(std::log10(step) + Tolerance))) : 0;
}

std::size_t nearestSample(std::span<const double> places, double value)
{
    const auto after = std::lower_bound(places.begin(), places.end(), value);
    const auto index = static_cast<std::size_t>(after - places.begin());
    if (index == 0)
        return 0;
    const auto first = static_cast<std::size_t>(
        std::lower_bound(places.begin(), after, places[index - 1]) - places.begin());
    if (index == places.size())
        return first;
    return value - places[first] <= places[index] - value ? first : index;
}

double positionAmong(std::span<const double> places, double value)
{
    const auto after = std::lower_bound(places.begin(), places.end(), value);
    const auto index = static_cast<std::size_t>(after - places.begin());
    if (index == 0)
        return 0.0;
    if (index == places.size())
        return static_cast<double>(index - 1);
    const double step = places[index] - places[index - 1];
    return static_cast<double>(index - 1) + ((value - places[index - 1]) / step);
}

double valueAtPosition(std::span<const double> values, double position)
{
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    if (!(position >= 0) || position > static_cast<double>(values.size()) - 1)
        return None;
    const auto index = static_cast<std::size_t>(position);
    const double part = position - static_cast<double>(index);
    // The next value is not asked for where it does not count; it may be none. std::lerp would give
    // a number where only the first of the two is none.
    return part > 0 ? values[index] + (part * (values[index + 1] - values[index])) : values[index];
}

} // namespace zuno
