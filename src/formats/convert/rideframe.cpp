// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/rideframe.h>

#include <cmath>

namespace zuno {

namespace {

constexpr double SameTime = 1e-4;
// From this many seconds between two measurements on, the way between them is bent by the speeds at
// both ends; on a straight line, a lap of a receiver that measures once a second is off by tenths.
constexpr double SlowReceiver = 0.35;
// Phones tell speed and course late, which matters little where they are fast, metres a second.
constexpr double FastEnough = 8.0;

double turned(double from, double to, double share)
{
    const double course = from + std::remainder(to - from, 360.0) * share;
    return course < 0 ? course + 360 : std::fmod(course, 360.0);
}

/// Metres north and east.
struct Step
{
    double north = 0.0;
    double east = 0.0;
};

Step velocity(const Fix &fix)
{
    const double angle = fix.course * RadiansPerDegree;
    return {fix.speed * std::cos(angle), fix.speed * std::sin(angle)};
}

// The cubic curve through both places with the velocities there (Hermite), at share @p u of the
// time.
Step bent(const Step &chord, const Step &v0, const Step &v1, double span, double u)
{
    const double h1 = u * u * (3 - 2 * u);
    const double h2 = u * (1 - u) * (1 - u) * span;
    const double h3 = u * u * (u - 1) * span;
    return {chord.north * h1 + v0.north * h2 + v1.north * h3,
            chord.east * h1 + v0.east * h2 + v1.east * h3};
}

// Velocities that do not fit the way bend it to somewhere else.
bool fits(const Step &chord, const Step &v0, const Step &v1, double span)
{
    const Step mean {(v0.north + v1.north) / 2 * span, (v0.east + v1.east) / 2 * span};
    const double length = std::hypot(chord.north, chord.east);
    const double off = std::hypot(mean.north - chord.north, mean.east - chord.east);
    return off < 0.25 * length; // false for NaN
}

} // namespace

Place RideFrame::between(const Fix &to, double time) const
{
    const double span = to.time - m_last.time;
    const double u = (time - m_last.time) / span;
    Place place;
    place.speed = static_cast<float>(m_last.speed + (to.speed - m_last.speed) * u);
    place.course = static_cast<float>(turned(m_last.course, to.course, u));
    if (span > LongestBridge || to.isApart)
        return place;
    Step way {to.latitude - m_last.latitude, longitudeStep(m_last.longitude, to.longitude)};
    const double shrink = std::cos(m_last.latitude * RadiansPerDegree);
    const Step chord {way.north * MetresPerDegree, way.east * MetresPerDegree * shrink};
    const Step v0 = velocity(m_last);
    const Step v1 = velocity(to);
    const bool isFast = m_last.speed > FastEnough && to.speed > FastEnough;
    if (span > SlowReceiver && isFast && fits(chord, v0, v1, span)) {
        const Step metres = bent(chord, v0, v1, span, u);
        way = {metres.north / MetresPerDegree, metres.east / MetresPerDegree / shrink};
    } else {
        way = {way.north * u, way.east * u};
    }
    place.latitude = m_last.latitude + way.north;
    place.longitude = longitudeStep(0, m_last.longitude + way.east);
    return place;
}

void RideFrame::take(const Fix &fix)
{
    if (m_places.empty()) {
        m_begin = fix.time;
        for (GridChannel *channel :
             {&along, &across, &axes[0], &axes[1], &axes[2], &lean, &front, &rear})
            channel->begin(m_begin);
    }
    double due = m_begin + SampleStep * static_cast<double>(m_places.size());
    while (due <= fix.time + SameTime) {
        const bool isHere = fix.time - due <= SameTime;
        m_places.push_back(isHere
                               ? Place {fix.latitude, fix.longitude, static_cast<float>(fix.speed),
                                        static_cast<float>(fix.course)}
                               : between(fix, due));
        due = m_begin + SampleStep * static_cast<double>(m_places.size());
    }
    m_last = fix;
}

void RideFrame::takeChannels(const RawRow &row)
{
    along.take(row.time, row.along);
    across.take(row.time, row.across);
    for (std::size_t i = 0; i < axes.size(); ++i)
        axes[i].take(row.time, row.axes[i]);
    lean.take(row.time, row.lean);
    front.take(row.time, row.front);
    rear.take(row.time, row.rear);
}

void RideFrame::finish()
{
    for (GridChannel *channel : {&along, &across, &axes[0], &axes[1], &axes[2], &lean})
        channel->finish(size());
    // One more than ten to a sample, so that the last sample gets its ten.
    for (GridChannel *channel : {&front, &rear})
        channel->finish(10 * size() + 1);
}

} // namespace zuno
