// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/laponoutline.h>

#include <algorithm>
#include <cmath>

#include <insight/lapoffset.h>

namespace zuno {

namespace {

// Where the next place is looked for, metres: so much back, and forwards at least so much, or a bit
// more than what was driven.
constexpr double BackReach = 3.0;
constexpr double LeastReach = 15.0;
constexpr double DrivenReach = 1.4;

// Metres; farther away from the outline a sample has no place.
constexpr double MostAway = 60.0;

// Metres; who is farther away is not on the track.
constexpr double TrackReach = 25.0;

// Metres of one step of the integral, and m/s: who stands still would take for ever.
constexpr double SpeedStep = 2.0;
constexpr double LeastSpeed = 0.5;

} // namespace

LapOnOutline::LapOnOutline(const CircuitRing &ring, std::span<const PointAcquisition> samples,
                           const LapSpan &span)
    : m_samples(lapSamples(samples, span))
    , m_duration(span.duration())
    , m_length(ring.length())
{
    m_offset = lapOffset(place(ring, {}));
    if (m_offset)
        place(ring, *m_offset);
    measureRoughness();
    integrateSpeeds();
}

// Gives the samples their places, their positions less @p shift, and returns where they are.
std::vector<CircuitRing::Spot> LapOnOutline::place(const CircuitRing &ring, PlaneVector shift)
{
    std::vector<CircuitRing::Spot> spots;
    spots.reserve(m_samples.size());
    m_nodes.clear();
    m_nodes.reserve(m_samples.size());
    double last = 0.0;
    double lastTime = 0.0;
    for (const LapSample &sample : m_samples) {
        if (!sample.hasFix || sample.time <= 0.0 || sample.time >= m_duration)
            continue;
        const double driven = sample.speed * (sample.time - lastTime);
        const double reach = std::max(LeastReach, (DrivenReach * driven) + LeastReach);
        const PlaneVector where = ring.place(sample.latitude, sample.longitude) - shift;
        const CircuitRing::Spot spot
            = ring.nearest(where, std::max(last - BackReach, 0.0), last + reach);
        if (spot.distance > MostAway)
            continue;
        last = std::max(last, spot.along);
        lastTime = sample.time;
        m_nodes.push_back({sample.time, last, spot.distance});
        spots.push_back(spot);
    }
    return spots;
}

void LapOnOutline::measureRoughness()
{
    double sum = 0.0;
    double count = 0.0;
    for (const Node &node : m_nodes) {
        if (node.aside > TrackReach)
            continue;
        sum += node.aside * node.aside;
        count += 1.0;
    }
    m_roughness = count > 0.0 ? std::sqrt(sum / count) : 0.0;
}

void LapOnOutline::integrateSpeeds()
{
    const auto steps = static_cast<std::size_t>(std::ceil(m_length / SpeedStep));
    m_bySpeed.assign(1, 0.0);
    m_bySpeed.reserve(steps + 1);
    double before = std::max(speedAtPlace(0.0), LeastSpeed);
    for (std::size_t i = 1; i <= steps; ++i) {
        const double here = std::max(speedAtPlace(static_cast<double>(i) * SpeedStep), LeastSpeed);
        m_bySpeed.push_back(m_bySpeed.back() + (SpeedStep * ((0.5 / before) + (0.5 / here))));
        before = here;
    }
}

double LapOnOutline::timeAt(double place) const
{
    if (place <= 0.0)
        return 0.0;
    if (place >= m_length)
        return m_duration;
    const auto after
        = std::upper_bound(m_nodes.begin(), m_nodes.end(), place,
                           [](double value, const Node &node) { return value < node.place; });
    const Node from = after == m_nodes.begin() ? Node {} : *(after - 1);
    const Node to = after == m_nodes.end() ? Node {m_duration, m_length, 0.0} : *after;
    return from.time + ((to.time - from.time) * (place - from.place) / (to.place - from.place));
}

double LapOnOutline::placeAt(double time) const
{
    if (time >= m_duration)
        return m_length;
    if (time > 0.0) {
        const auto after
            = std::upper_bound(m_nodes.begin(), m_nodes.end(), time,
                               [](double value, const Node &node) { return value < node.time; });
        const Node from = after == m_nodes.begin() ? Node {} : *(after - 1);
        const Node to = after == m_nodes.end() ? Node {m_duration, m_length, 0.0} : *after;
        return std::lerp(from.place, to.place, (time - from.time) / (to.time - from.time));
    }
    double place = 0.0;
    double until = 0.0;
    for (std::size_t i = sampleBefore(0.0) + 1; i-- > 0 && until > time;) {
        const double from = i < m_samples.size() ? std::max(m_samples[i].time, time) : time;
        place -= (until - from) * (speedAt(from) + speedAt(until)) / 2.0;
        until = from;
    }
    return place;
}

// The last sample before @p time; the first one when there is none.
std::size_t LapOnOutline::sampleBefore(double time) const
{
    const auto after = std::lower_bound(
        m_samples.begin(), m_samples.end(), time,
        [](const LapSample &sample, double value) { return sample.time < value; });
    return after == m_samples.begin() ? 0 : static_cast<std::size_t>(after - m_samples.begin() - 1);
}

double LapOnOutline::speedAt(double time) const
{
    if (m_samples.empty())
        return 0.0;
    const std::size_t i = sampleBefore(time);
    const LapSample &from = m_samples[i];
    if (i + 1 == m_samples.size() || time <= from.time)
        return from.speed;
    const LapSample &to = m_samples[i + 1];
    return std::lerp(from.speed, to.speed, (time - from.time) / (to.time - from.time));
}

double LapOnOutline::slownessUpTo(double place) const
{
    const double position = std::clamp(place, 0.0, m_length) / SpeedStep;
    const auto i = static_cast<std::size_t>(position);
    if (i + 1 >= m_bySpeed.size())
        return m_bySpeed.empty() ? 0.0 : m_bySpeed.back();
    return std::lerp(m_bySpeed[i], m_bySpeed[i + 1], position - static_cast<double>(i));
}

double LapOnOutline::timeBySpeed(double from, double to) const
{
    return slownessUpTo(to) - slownessUpTo(from);
}

double LapOnOutline::longestGap(double from, double to) const
{
    double longest = 0.0;
    double last = m_samples.empty() ? from : std::min(m_samples.front().time, from);
    for (const LapSample &sample : m_samples) {
        if (!sample.hasFix)
            continue;
        if (sample.time >= from && last <= to)
            longest = std::max(longest, sample.time - last);
        last = sample.time;
    }
    return last < to ? std::max(longest, to - last) : longest;
}

} // namespace zuno
