// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <QtGlobal>

#include <insight/sessioninsight.h>

namespace zuno {

/// How much the laps of a session differ in one unit.
struct UnitSpread
{
    std::size_t unit = 0;
    /// Seconds from the first to the third quartile of the times, and per cent of their median.
    double seconds = 0.0;
    double percent = 0.0;
};

/// Whether laps get quicker or slower: Spearman's rank correlation of their numbers and times, and
/// the probability that chance alone makes so much of it.
struct Trend
{
    double correlation = 0.0;
    double probability = 1.0;

    [[nodiscard]] bool isFaster() const { return correlation < 0.0; }
};

/// A lap that was ridden in one go, from a place to the same place of the next lap.
struct RollingBest
{
    /// Seconds.
    double time = 0.0;
    /// The number of the lap that it begins in, and the metres after the line.
    qint32 lap = 0;
    double place = 0.0;
};

/// The sum of the times of several laps' units.
struct UnitIdeal
{
    /// Milliseconds.
    qint32 time = 0;
    /// For each unit the number of the lap that it comes from.
    std::vector<qint32> laps;
};

/// How even a session is, over its laps that are used.
struct Consistency
{
    /// All units, the least even first; empty with less than 5 laps.
    std::vector<UnitSpread> spreads;
    /// Only where it is significant (5 %), with 8 laps and more.
    std::optional<Trend> trend;
    std::optional<RollingBest> rollingBest;
    /// The best of each unit. Shorter pieces than units only add up noise.
    std::optional<UnitIdeal> ideal;
    /// The second best of each unit: what was ridden twice. Only with 7 laps and more, as it may
    /// lie above the best lap with less.
    std::optional<UnitIdeal> twice;
};

[[nodiscard]] Consistency consistencyOf(const SessionInsight &insight);

/// The trend of values in their order, significant or not; ties share their rank. None with less
/// than three values, or when all are the same.
[[nodiscard]] std::optional<Trend> trendOf(std::span<const double> values);

} // namespace zuno
