// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/chartroom.h>

namespace zuno {

namespace {

// What each is least readable at, without its head.
constexpr int LeastTall = 64;
constexpr int LeastLow = 46;

constexpr std::array<int, ChannelCount> Weights {136, 80, 76, 80, 80};
constexpr std::array<std::size_t, ChannelCount - 1> FoldOrder {2, 1, 3, 4};

} // namespace

int chartWeight(std::size_t channel)
{
    return channel < ChannelCount ? Weights[channel] : Weights[0];
}

std::array<bool, ChannelCount> foldedCharts(const ChartRoom &room)
{
    std::array<bool, ChannelCount> folded {};
    int needed = room.hasGap ? room.headHeight + LeastTall : 0;
    for (std::size_t i = 0; i < ChannelCount; ++i) {
        folded[i] = room.choices[i].value_or(false);
        if (room.isShown[i])
            needed += room.headHeight + (folded[i] ? 0 : i == 0 ? LeastTall : LeastLow);
    }
    for (const std::size_t i : FoldOrder) {
        if (needed <= room.height)
            break;
        if (!room.isShown[i] || room.choices[i])
            continue;
        folded[i] = true;
        needed -= LeastLow;
    }
    return folded;
}

} // namespace zuno
