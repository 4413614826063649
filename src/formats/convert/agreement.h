// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <deque>

#include <QtGlobal>

namespace zuno {

/// How far a recorded channel agrees with the one that speed and turn suggest: the straight line
/// through all pairs (least squares).
struct Agreement
{
    /// Pearson's, -1 to 1; 0 when either channel is constant or there are fewer than 50 pairs.
    double correlation = 0.0;
    /// recorded = offset + slope * suggested
    double slope = 0.0;
    double offset = 0.0;
};

/// Compares where both have a value and @p counts is not 0.
[[nodiscard]] Agreement agreement(const std::deque<float> &recorded,
                                  const std::deque<float> &suggested,
                                  const std::deque<bool> &counts);

} // namespace zuno
