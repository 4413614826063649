// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/check/gatecrossing.h>

#include <algorithm>

#include <session/recording/trace.h>

namespace zuno {

namespace {

// Metres over which a heading is taken: positions are stored in steps of half a metre.
constexpr double HeadingReach = 5.0;

// How many samples away a rider may have been for his heading.
constexpr std::size_t HeadingSamples = 100;

// Looks for samples before and after one.
class Surroundings
{
public:
    Surroundings(std::span<const PointAcquisition> samples, const Plane &plane, std::size_t middle)
        : m_samples(samples)
        , m_plane(plane)
        , m_middle(middle)
    {
    }

    [[nodiscard]] PlaneVector place(std::size_t sample) const
    {
        return m_plane.place(positionOf(m_samples[sample]));
    }

    // The last sample before the middle that is at least so far from a place.
    [[nodiscard]] std::optional<std::size_t> before(PlaneVector from, double reach) const
    {
        for (std::size_t k = 1; k <= std::min(m_middle, HeadingSamples); ++k) {
            if (isAway(m_middle - k, from, reach))
                return m_middle - k;
        }
        return {};
    }
    // The first sample from the middle on that is.
    [[nodiscard]] std::optional<std::size_t> after(PlaneVector from, double reach) const
    {
        const std::size_t end = std::min(m_samples.size(), m_middle + HeadingSamples);
        for (std::size_t i = m_middle; i < end; ++i) {
            if (isAway(i, from, reach))
                return i;
        }
        return {};
    }

private:
    [[nodiscard]] bool isAway(std::size_t i, PlaneVector from, double reach) const
    {
        return positionOf(m_samples[i]).isValid() && (place(i) - from).length() >= reach;
    }

    std::span<const PointAcquisition> m_samples;
    const Plane &m_plane;
    std::size_t m_middle;
};

} // namespace

std::optional<GateCrossing> crossingAt(std::span<const PointAcquisition> samples,
                                       const Plane &plane, quint32 time)
{
    const auto after = std::partition_point(
        samples.begin(), samples.end(),
        [time](const PointAcquisition &sample) { return sample.dataTimeStamp <= time; });
    const Surroundings around(samples, plane, static_cast<std::size_t>(after - samples.begin()));
    const auto here = around.before({}, 0.0);
    if (!here)
        return {};
    GateCrossing crossing;
    crossing.place = around.place(*here);
    const auto from = around.before(crossing.place, HeadingReach);
    const auto to = around.after(crossing.place, HeadingReach);
    if (!from || !to)
        return {};
    const PlaneVector way = around.place(*to) - around.place(*from);
    const double seconds = (static_cast<double>(samples[*to].dataTimeStamp)
                            - static_cast<double>(samples[*from].dataTimeStamp))
                           / 1000.0;
    if (!(way.length() > 0.0) || !(seconds > 0.0))
        return {};
    crossing.heading = way * (1.0 / way.length());
    crossing.speed = way.length() / seconds;
    return crossing;
}

} // namespace zuno
