// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/figures.h>

#include <algorithm>
#include <cmath>

namespace zuno {

namespace {

constexpr double KmhPerMs = 3.6;

// Seconds without a position in a segment that leave no figures.
constexpr double MostGap = 1.0;

// Seconds after a corner's end within which somebody may still be slowest.
constexpr double LowestAfter = 1.5;

// G: less is no braking; where braking begins and ends; where accelerating begins.
constexpr double LeastBraking = 0.30;
constexpr double BrakingEdge = 0.20;
constexpr double GasEdge = 0.10;

// Seconds before the way to a corner at which braking for it cannot have begun.
constexpr double BrakingBefore = 3.0;

// Seconds around a corner in which the lean is its own, and samples that one value is the mean of.
constexpr double LeanAround = 0.5;
constexpr std::size_t LeanSamples = 5;

using Samples = std::vector<LapSample>;

// The first sample not before a time.
std::size_t firstFrom(const Samples &samples, double time)
{
    return static_cast<std::size_t>(
        std::lower_bound(samples.begin(), samples.end(), time,
                         [](const LapSample &sample, double value) { return sample.time < value; })
        - samples.begin());
}

// One lap in one corner; the moments of the corner are worked out once.
class CornerRide
{
public:
    CornerRide(const LapOnOutline &lap, const Corner &corner, const TrackPart &segment)
        : m_lap(lap)
        , m_corner(corner)
        , m_samples(lap.samples())
        , m_begin(lap.timeAt(segment.from))
        , m_start(lap.timeAt(std::max(corner.start, segment.from)))
        , m_end(lap.timeAt(std::min(corner.end, segment.to)))
        , m_leave(lap.timeAt(segment.to))
        , m_first(firstFrom(m_samples, m_begin))
    {
        std::size_t last = firstFrom(m_samples, std::min(m_end + LowestAfter, m_leave));
        last = std::max(std::min(last, m_samples.size()), m_first);
        m_lowest = m_first;
        for (std::size_t i = m_first; i < last; ++i) {
            if (m_samples[i].speed < m_samples[m_lowest].speed)
                m_lowest = i;
        }
    }

    [[nodiscard]] bool isKnown() const
    {
        return m_lowest < m_samples.size() && m_lap.longestGap(m_begin, m_leave) <= MostGap;
    }

    [[nodiscard]] CornerFigures speeds() const
    {
        CornerFigures figures;
        figures.time = m_end - m_start;
        figures.arrivalSpeed = m_lap.speedAt(m_begin) * KmhPerMs;
        figures.entrySpeed = m_lap.speedAt(m_start) * KmhPerMs;
        figures.exitSpeed = m_lap.speedAt(m_end) * KmhPerMs;
        const std::size_t first = m_lowest > 0 ? m_lowest - 1 : 0;
        const std::size_t last = std::min(m_lowest + 1, m_samples.size() - 1);
        double sum = 0.0;
        for (std::size_t i = first; i <= last; ++i)
            sum += m_samples[i].speed;
        figures.lowestSpeed = sum / static_cast<double>(last - first + 1) * KmhPerMs;
        return figures;
    }

    void addBraking(CornerFigures &figures) const
    {
        if (m_lowest <= m_first)
            return;
        std::size_t hardest = m_first;
        for (std::size_t i = m_first; i <= m_lowest; ++i) {
            if (m_samples[i].slope < m_samples[hardest].slope)
                hardest = i;
        }
        const double deceleration = -m_samples[hardest].slope;
        if (deceleration > 0.0)
            figures.maximumDeceleration = deceleration;
        if (deceleration < LeastBraking)
            return;
        const std::optional<double> began = edge(hardest, -1, -BrakingEdge);
        if (!began || *began < m_begin - BrakingBefore)
            return;
        figures.brakingPoint = m_corner.start - m_lap.placeAt(*began);
        if (const std::optional<double> ended = edge(hardest, 1, -BrakingEdge))
            figures.brakingTime = *ended - *began;
    }

    void addGas(CornerFigures &figures) const
    {
        for (std::size_t i = m_lowest; i < m_samples.size() && m_samples[i].time < m_leave; ++i) {
            if (m_samples[i].slope < GasEdge)
                continue;
            const double time = i > m_lowest ? passing(i - 1, i, GasEdge) : m_samples[i].time;
            figures.gasPoint = m_lap.placeAt(time);
            return;
        }
    }

    void addLean(CornerFigures &figures) const
    {
        const double side = m_corner.isRight ? 1.0 : -1.0;
        const std::size_t last = firstFrom(m_samples, m_end + LeanAround);
        for (std::size_t i = firstFrom(m_samples, m_start - LeanAround); i + LeanSamples <= last;
             ++i) {
            double sum = 0.0;
            for (std::size_t j = i; j < i + LeanSamples; ++j)
                sum += side * m_samples[j].lean;
            const double mean = sum / static_cast<double>(LeanSamples);
            if (std::isfinite(mean) && (!figures.lean || mean > *figures.lean))
                figures.lean = mean;
        }
    }

private:
    // When the slope passed @p level between two neighbouring samples.
    [[nodiscard]] double passing(std::size_t i, std::size_t j, double level) const
    {
        const LapSample &from = m_samples[i];
        const LapSample &to = m_samples[j];
        return std::lerp(from.time, to.time, (level - from.slope) / (to.slope - from.slope));
    }

    // From sample @p i on backwards or forwards to where the slope rises over @p level; none when
    // it never does.
    [[nodiscard]] std::optional<double> edge(std::size_t i, int step, double level) const
    {
        const auto count = static_cast<std::ptrdiff_t>(m_samples.size());
        auto j = static_cast<std::ptrdiff_t>(i);
        while (j >= 0 && j < count && m_samples[static_cast<std::size_t>(j)].slope < level)
            j += step;
        if (j < 0 || j >= count)
            return {};
        return passing(static_cast<std::size_t>(j - step), static_cast<std::size_t>(j), level);
    }

    const LapOnOutline &m_lap;
    const Corner &m_corner;
    const Samples &m_samples;
    // When the way to the corner began, the corner, its end, and the segment's end.
    double m_begin;
    double m_start;
    double m_end;
    double m_leave;
    std::size_t m_first;
    std::size_t m_lowest = 0;
};

} // namespace

std::optional<CornerFigures> figuresOf(const LapOnOutline &lap, const Corner &corner,
                                       const TrackPart &segment, const FigureValidity &validity)
{
    const CornerRide ride(lap, corner, segment);
    if (!ride.isKnown())
        return {};
    CornerFigures figures = ride.speeds();
    ride.addBraking(figures);
    ride.addGas(figures);
    if (validity.lean)
        ride.addLean(figures);
    if (!validity.maximumDeceleration)
        figures.maximumDeceleration.reset();
    if (!validity.brakingPoint) {
        figures.brakingPoint.reset();
        figures.brakingTime.reset();
    }
    return figures;
}

} // namespace zuno
