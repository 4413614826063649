// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QString>

#include <views/charts/channel.h>
#include <views/charts/chartaxis.h>

namespace zuno {

class ChartState;

/// One lap in one chart. Values that are missing are not a number; the line breaks there.
struct Curve
{
    /// Which of the laps it is, for its colour and its dash: 0 the first, 1 the second, then the
    /// others.
    std::size_t lap = 0;
    std::vector<double> places;
    std::vector<double> values;
    /// The lowest and highest values around the line; empty for a channel without.
    std::vector<double> lows = {};
    std::vector<double> highs = {};

    /// At a place of the axis, by straight lines; not a number outside and in a gap.
    [[nodiscard]] double valueAt(double place) const;
};

/// What one chart shows.
struct ChartContent
{
    QString title;
    /// The values that it shows when there are none, and how far its axis reaches at least.
    AxisRange least;
    /// The first lap last, since it is drawn on top.
    std::vector<Curve> curves;
    /// Of the gap chart: what the first lap loses at each place of its curve, seconds on 100
    /// metres. Empty for a channel.
    std::vector<double> rates = {};
    bool isGap = false;
    /// Whether it shows where somebody brakes and goes on the gas.
    bool hasActs = false;
    /// What a value of 1 is in the unit that the rider reads.
    double unit = 1.0;
};

/// The values from the lower to the upper edge of a chart whose curves go from one to the other of
/// @p seen in what is visible (none without a curve): somewhat more than that, and not less than
/// the content's least.
[[nodiscard]] AxisRange fittedRange(const ChartContent &content,
                                    const std::optional<AxisRange> &seen);

/// A channel of the laps of @p state, against its axis. Against distance the values of the second
/// lap stand where the first passed the same place of the track.
[[nodiscard]] ChartContent contentOf(const Channel &channel, const ChartState &state);
/// The seconds that the first lap is behind the second, against the first lap's axis.
[[nodiscard]] ChartContent gapContent(const ChartState &state);

/// The values of both laps under the cursor; not a number where there is none.
struct CursorValues
{
    double first;
    double second;
};
[[nodiscard]] CursorValues valuesAtCursor(const Channel &channel, const ChartState &state);
/// That of one of the other laps.
[[nodiscard]] double otherValueAtCursor(const Channel &channel, const ChartState &state,
                                        std::size_t other);

} // namespace zuno
