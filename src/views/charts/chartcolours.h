// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QColor>

namespace zuno {

/// Seconds that are lost on 100 metres; beyond, a place has the full colour of gain or loss, in the
/// gap chart as on the map.
inline constexpr double FullRate = 0.2;
/// What is less is noise and has no colour.
inline constexpr double NoiseRate = 0.02;

/// Seconds that the first lap loses on 100 metres at each of its places (metres, never falling),
/// from the gaps there: the slope over 15 metres to either side. Not a number without gaps.
[[nodiscard]] std::vector<double> lossRates(const std::vector<double> &metres,
                                            const std::vector<double> &gaps);

/// @p part of @p to (0 to 1) in @p from.
[[nodiscard]] QColor blended(const QColor &from, const QColor &to, double part);

/// The colour of a place by its loss rate: towards gain or loss, @p neutral in the noise.
[[nodiscard]] QColor rateColour(double rate, const QColor &neutral);

} // namespace zuno
