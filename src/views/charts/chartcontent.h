// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QColor>
#include <QString>

#include <views/charts/channel.h>
#include <views/charts/chartaxis.h>

namespace zuno {

class ChartState;

/// One lap in one chart. Values that are missing are not a number; the line breaks there.
struct Curve
{
    QColor colour;
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
    QColor colour;
    /// All values, so that the chart stays the same whatever stretch is in sight.
    AxisRange range;
    /// The first lap last, since it is drawn on top.
    std::vector<Curve> curves;
};

/// The colours of the laps, everywhere: as on the map.
[[nodiscard]] QColor firstLapColour();
[[nodiscard]] QColor secondLapColour();

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

} // namespace zuno
