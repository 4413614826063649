// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartlayout.h>

#include <algorithm>

#include <theme/shownunits.h>
#include <views/charts/chartstate.h>

namespace zuno {

namespace {

constexpr int Gap = 4;
constexpr int RightMargin = 14;
constexpr double SmallPart = 0.9;

// Between two numbers, in heights of a line.
constexpr double Spacing = 5.0;

// What one metre or second is in the rider's unit.
double shownUnit(const ChartState &state)
{
    return state.axis() == AxisKind::Distance ? units().distance(1.0) : 1.0;
}

} // namespace

ChartLayout::ChartLayout(const QFontMetrics &metrics)
    : left(metrics.horizontalAdvance(QStringLiteral("-0.000")) + (2 * Gap))
    , right(RightMargin)
    , line(metrics.height())
{
}

PixelScale ChartLayout::scale(const ChartState &state, int width) const
{
    return {state.visible(), static_cast<double>(left),
            static_cast<double>(std::max(1, width - left - right))};
}

double ChartLayout::step(const ChartState &state, int width) const
{
    const double pixels = scale(state, width).length;
    return roundStep(state.visible().span() * shownUnit(state),
                     static_cast<int>(pixels / (line * Spacing)));
}

std::vector<double> ChartLayout::ticks(const ChartState &state, int width) const
{
    const double unit = shownUnit(state);
    const AxisRange visible = state.visible();
    std::vector<double> places
        = ticksIn({visible.from * unit, visible.to * unit}, step(state, width));
    for (double &place : places)
        place /= unit;
    return places;
}

QFont smallPrint(const QFont &font)
{
    QFont small = font;
    if (small.pointSizeF() > 0)
        small.setPointSizeF(small.pointSizeF() * SmallPart);
    else
        small.setPixelSize(static_cast<int>(small.pixelSize() * SmallPart));
    return small;
}

} // namespace zuno
