// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <optional>

#include <views/charts/channel.h>

namespace zuno {

/// What charts want of the height of their pane, and what the rider said about folding each of
/// them: nothing, fold it (true) or leave it open (false).
struct ChartRoom
{
    /// Pixels for all charts and heads.
    int height = 0;
    int headHeight = 0;
    bool hasGap = false;
    std::array<bool, ChannelCount> isShown {};
    std::array<std::optional<bool>, ChannelCount> choices {};
};

/// What the heights of charts are to each other, in the order of channels(); the gap's is that of
/// the speed.
[[nodiscard]] int chartWeight(std::size_t channel);

/// Which charts are folded to their heads. As long as there is too little room for all the
/// acceleration goes first, then the lean angle, then the suspension; the speed never.
[[nodiscard]] std::array<bool, ChannelCount> foldedCharts(const ChartRoom &room);

} // namespace zuno
