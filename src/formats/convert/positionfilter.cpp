// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/convert/positionfilter.h>

#include <cmath>
#include <utility>

#include <formats/convert/ridelimits.h>

namespace zuno {

namespace {

// 400 km/h, and what receivers are wrong by from one measurement to the next.
constexpr double FastestSpeed = 110.0;
constexpr double Trembling = 6.0;
// A receiver that stays somewhere else so long is right, seconds; and it has measured so often.
constexpr double ProofTime = 1.0;
constexpr std::size_t ProofFixes = 3;
// Who has been right for so long before, seconds, was where he said.
constexpr double ShortPast = 5.0;
// Further apart than this, the way between two places is not known.
constexpr double Apart = 100.0;
// Metres a second; below, a position that stays is a motorcycle that stands.
constexpr double Walking = 1.5;

bool isPlace(const Fix &fix)
{
    // NaN fails the comparisons.
    return std::abs(fix.latitude) <= 90 && std::abs(fix.longitude) <= 180;
}

} // namespace

double longitudeStep(double from, double to)
{
    const double step = to - from;
    if (step > 180)
        return step - 360;
    return step < -180 ? step + 360 : step;
}

double metresBetween(const Fix &a, const Fix &b)
{
    const double north = (b.latitude - a.latitude) * MetresPerDegree;
    const double east = longitudeStep(a.longitude, b.longitude) * MetresPerDegree
                        * std::cos(a.latitude * RadiansPerDegree);
    return std::hypot(north, east);
}

bool PositionFilter::isReachable(const Fix &from, const Fix &to) const
{
    return metresBetween(from, to) <= FastestSpeed * (to.time - from.time) + Trembling;
}

void PositionFilter::take(const Fix &fix, bool isFresh, std::vector<Fix> &fixes)
{
    if (!isFresh || !isPlace(fix))
        return;
    if (fix.latitude == 0 && fix.longitude == 0) {
        ++m_counts.zeros;
        return;
    }
    if (!m_hasLast) {
        m_since = fix.time;
        accept(fix, fixes);
        return;
    }
    if (fix.time <= m_last.time || isRepeat(fix, fixes))
        return;
    if (!isReachable(m_last, fix)) {
        suspect(fix, fixes);
        return;
    }
    m_counts.jumps += std::ssize(m_suspects);
    m_suspects.clear();
    accept(fix, fixes);
}

bool PositionFilter::isRepeat(const Fix &fix, std::vector<Fix> &fixes)
{
    const bool isSame = fix.latitude == m_last.latitude && fix.longitude == m_last.longitude;
    if (!isSame) {
        // Who stood for long, and does not tell a speed, stood here until then.
        if (m_isHeld && fix.time - m_last.time > LongestBridge)
            accept(Fix(m_held), fixes);
        return false;
    }
    if (fix.speed < Walking)
        return false;
    ++m_counts.repeats;
    if (std::isnan(fix.speed)) {
        m_held = fix;
        m_isHeld = true;
    }
    return true;
}

void PositionFilter::suspect(const Fix &fix, std::vector<Fix> &fixes)
{
    if (!m_suspects.empty() && !isReachable(m_suspects.back(), fix)) {
        m_counts.jumps += std::ssize(m_suspects);
        m_suspects.clear();
    }
    m_suspects.push_back(fix);
    const Fix first = m_suspects.front();
    if (m_suspects.size() < ProofFixes || fix.time - first.time < ProofTime)
        return;
    m_wasWrong = m_last.time - m_since < ShortPast;
    const bool isApart = metresBetween(m_last, first) > Apart;
    m_since = first.time;
    if (m_wasWrong)
        fixes.clear();
    for (Fix &proven : std::exchange(m_suspects, {})) {
        proven.isApart = isApart && proven.time == first.time;
        accept(proven, fixes);
    }
}

void PositionFilter::accept(const Fix &fix, std::vector<Fix> &fixes)
{
    m_hasLast = true;
    m_last = fix;
    m_isHeld = false;
    ++m_counts.fixes;
    fixes.push_back(fix);
}

void PositionFilter::finish(std::vector<Fix> &fixes)
{
    m_counts.jumps += std::ssize(m_suspects);
    m_suspects.clear();
    if (m_isHeld)
        accept(Fix(m_held), fixes);
}

bool PositionFilter::hasBeenWrong()
{
    return std::exchange(m_wasWrong, false);
}

} // namespace zuno
