// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace zuno {

/// What the charts are drawn against.
enum class AxisKind {
    /// Metres ridden since the start of the lap.
    Distance,
    /// Seconds since the start of the lap.
    Time,
};

/// A stretch of an axis, in the axis' unit.
struct AxisRange
{
    double from = 0.0;
    double to = 0.0;

    [[nodiscard]] double span() const { return to - from; }
    [[nodiscard]] bool contains(double value) const { return value >= from && value <= to; }
    /// The nearest value within.
    [[nodiscard]] double clamped(double value) const;
    /// Both stretches and what lies between them.
    [[nodiscard]] AxisRange united(const AxisRange &other) const;
    /// This stretch with @p part of its length more at both ends.
    [[nodiscard]] AxisRange widened(double part) const;
    /// This stretch moved into @p whole; @p whole itself when it is the longer one.
    [[nodiscard]] AxisRange movedInto(const AxisRange &whole) const;
    /// This stretch made @p factor times as long, the value @p around staying where it is seen;
    /// at least @p shortest long and within @p whole.
    [[nodiscard]] AxisRange zoomed(double factor, double around, const AxisRange &whole,
                                   double shortest) const;

    friend bool operator==(const AxisRange &, const AxisRange &) = default;
};

/// Where a stretch of an axis lies on the screen.
struct PixelScale
{
    AxisRange range;
    /// The pixel of the stretch's start and the pixels to its end; negative for an axis that goes
    /// up.
    double start = 0.0;
    double length = 0.0;

    /// The start for a stretch without length.
    [[nodiscard]] double pixelOf(double value) const;
    /// Also outside of the stretch; its start for a scale without pixels.
    [[nodiscard]] double valueAt(double pixel) const;
};

/// The smallest of 1, 2 and 5 times a power of ten that divides @p span into at most @p intervals
/// (at least 1) pieces; 1 for a span that is not above 0.
[[nodiscard]] double roundStep(double span, int intervals);

/// The multiples of @p step within @p range, from 0 without a remainder of rounding.
[[nodiscard]] std::vector<double> ticksIn(const AxisRange &range, double step);

/// How many decimals the multiples of a round step need.
[[nodiscard]] int decimalsOfStep(double step);

/// The index of the place next to @p value, of equally near ones the first; @p places never fall.
/// 0 without places.
[[nodiscard]] std::size_t nearestSample(std::span<const double> places, double value);

/// Where @p value lies between the places, as a fractional index; within the indexes there are,
/// and 0 without places. Of equal places the first is meant.
[[nodiscard]] double positionAmong(std::span<const double> places, double value);

/// The value at a fractional index, by straight lines; not a number when one of the two values it
/// lies between is none, or outside of the indexes.
[[nodiscard]] double valueAtPosition(std::span<const double> values, double position);

} // namespace zuno
