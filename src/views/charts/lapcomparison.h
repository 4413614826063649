// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

#include <views/charts/chartaxis.h>

namespace zuno {

class LapGap;
class LapTrack;

/// Which samples of two laps belong together, and the time between the laps.
class LapComparison
{
public:
    /// @p gap is the one of the same two laps.
    LapComparison(const LapTrack &first, const LapTrack &second, const LapGap &gap);

    /// For each sample of the first lap where the second lap is then, as a fractional index: for
    /// distance at the same place on the track, for time at the same time since its start. Not a
    /// number where it is nowhere.
    [[nodiscard]] const std::vector<double> &positions(AxisKind axis) const;
    /// For each sample of the first lap, the seconds that the first lap takes longer up to that
    /// place than the second; not a number where the second lap has not been there.
    [[nodiscard]] const std::vector<double> &gaps() const { return m_gaps; }

private:
    std::vector<double> m_byPlace;
    std::vector<double> m_byTime;
    std::vector<double> m_gaps;
};

} // namespace zuno
