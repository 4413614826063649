// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/lapcomparison.h>

#include <limits>

#include <session/laps/lapgap.h>
#include <views/charts/laptrack.h>

namespace zuno {

LapComparison::LapComparison(const LapTrack &first, const LapTrack &second, const LapGap &gap)
{
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    const std::vector<double> &firstTimes = first.places(AxisKind::Time);
    const std::vector<double> &secondTimes = second.places(AxisKind::Time);
    for (std::size_t i = 0; i < first.size(); ++i) {
        const bool isRiding = firstTimes[i] <= secondTimes.back();
        m_byTime.push_back(isRiding ? positionAmong(secondTimes, firstTimes[i]) : None);
        m_byPlace.push_back(gap.secondPoint(i));
        m_gaps.push_back(gap.gap(i) / 1000.0);
    }
}

const std::vector<double> &LapComparison::positions(AxisKind axis) const
{
    return axis == AxisKind::Distance ? m_byPlace : m_byTime;
}

} // namespace zuno
