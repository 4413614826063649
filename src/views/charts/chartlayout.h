// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QFont>
#include <QFontMetrics>
#include <QString>

#include <views/charts/chartaxis.h>

class QWidget;

namespace zuno {

class ChartState;

/// Charts, their heads, the strip of corners and the axis below stand under each other: all take
/// their measures from here.
struct ChartLayout
{
    /// Pixels between a widget's left edge and its plot, and between the plot and the right edge.
    int left = 0;
    int right = 0;
    /// Of a line of small print.
    int line = 0;

    /// By the font of small print.
    explicit ChartLayout(const QFontMetrics &metrics);

    [[nodiscard]] PixelScale scale(const ChartState &state, int width) const;
    /// Between two numbers of the axis, in the rider's unit.
    [[nodiscard]] double step(const ChartState &state, int width) const;
    /// The places of the numbers.
    [[nodiscard]] std::vector<double> ticks(const ChartState &state, int width) const;
};

/// Somewhat smaller than the font of the program.
[[nodiscard]] QFont smallPrint(const QFont &font);

} // namespace zuno
