// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/gpsquality.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <base/numbers.h>
#include <base/processorstate.h>
#include <session/recording/trace.h>

namespace zuno {

namespace {

constexpr double FastestPerSecond = 500.0 / 3.6;
constexpr double ReceiverError = 50.0;
constexpr double BelievedAfterMs = 1000.0;
constexpr double MetresPerDegree = 111195.0;

// Flat earth is near enough for what is asked, and half a million samples are looked at.
double roughMetres(const PointAcquisition &a, const PointAcquisition &b)
{
    const double latitude = (a.dataCoordY + b.dataCoordY) / 2 * std::numbers::pi / 180;
    return MetresPerDegree
           * std::hypot(b.dataCoordY - a.dataCoordY,
                        (b.dataCoordX - a.dataCoordX) * std::cos(latitude));
}

double millisecondsBetween(const PointAcquisition &a, const PointAcquisition &b)
{
    return std::max(0.0,
                    static_cast<double>(b.dataTimeStamp) - static_cast<double>(a.dataTimeStamp));
}

bool isReachable(const PointAcquisition &from, const PointAcquisition &to)
{
    return roughMetres(from, to)
           <= ReceiverError + (FastestPerSecond * millisecondsBetween(from, to) / 1000.0);
}

// How many slips, each to another place, may follow one another.
constexpr int SlipsInARow = 3;

// Metres per second; no motorcycle comes near.
constexpr double Impossible = 150.0;

bool isImpossible(const PointAcquisition &from, const PointAcquisition &to)
{
    const qint32 milliseconds = wrappedDifference(to.dataTimeStamp, from.dataTimeStamp);
    if (milliseconds <= 0)
        return false;
    const double reach = Impossible * milliseconds / 1000.0;
    // Cheap, and safely below what the next test asks: nearly every sample ends here.
    const double north = (to.dataCoordY - from.dataCoordY) * MetresPerDegree;
    const double east = (to.dataCoordX - from.dataCoordX) * MetresPerDegree;
    if ((north * north) + (east * east) < 0.98 * reach * reach)
        return false;
    // Longer than it is anywhere but on the equator.
    const double most
        = MetresPerDegree
          * std::hypot(to.dataCoordY - from.dataCoordY, to.dataCoordX - from.dataCoordX);
    return most > 0.99 * reach && positionOf(from).distanceTo(positionOf(to)) > reach;
}

// Whether there are slips at all. Where most of a ride is impossible it is the clock that is wrong.
bool hasSlips(std::span<const PointAcquisition> samples)
{
    qint64 steps = 0;
    qint64 impossible = 0;
    const PointAcquisition *before = nullptr;
    for (const PointAcquisition &sample : samples) {
        if (!sample.hasPosition())
            continue;
        if (before != nullptr) {
            ++steps;
            impossible += isImpossible(*before, sample) ? 1 : 0;
        }
        before = &sample;
    }
    return impossible > 0 && impossible * 4 <= steps;
}

} // namespace

void markMisplaced(std::span<PointAcquisition> samples)
{
    clearVectorRegisters();
    if (!hasSlips(samples))
        return;
    const std::size_t end = samples.size();
    const auto next = [samples, end](std::size_t i) {
        while (i < end && !samples[i].hasPosition())
            ++i;
        return i;
    };
    const auto isBackSoon = [&](std::size_t before, std::size_t after) {
        for (int k = 0; k < SlipsInARow && after < end; ++k, after = next(after + 1)) {
            if (!isImpossible(samples[before], samples[after]))
                return true;
        }
        return false;
    };
    std::size_t before = end;
    for (std::size_t here = next(0); here < end; here = next(here + 1)) {
        const std::size_t after = next(here + 1);
        const bool isSlip
            = before < end && after < end && isImpossible(samples[before], samples[here])
              && isImpossible(samples[here], samples[after]) && isBackSoon(before, after);
        if (isSlip)
            samples[here].isMisplaced = true;
        else
            before = here;
    }
}

PositionJudge::Verdict PositionJudge::judge(const PointAcquisition &sample)
{
    if (sample.isMisplaced)
        return Verdict::Jump;
    if (!sample.hasPosition())
        return Verdict::None;
    const bool isBelieved = m_firstBad != nullptr && isReachable(*m_firstBad, sample)
                            && millisecondsBetween(*m_firstBad, sample) >= BelievedAfterMs;
    if (m_good == nullptr || isReachable(*m_good, sample) || isBelieved) {
        m_good = &sample;
        m_firstBad = nullptr;
        return Verdict::Good;
    }
    if (m_firstBad == nullptr || !isReachable(*m_firstBad, sample))
        m_firstBad = &sample;
    return Verdict::Jump;
}

GpsQuality gpsQuality(std::span<const PointAcquisition> samples)
{
    GpsQuality quality;
    PositionJudge positions;
    for (const PointAcquisition &sample : samples) {
        const PositionJudge::Verdict verdict = positions.judge(sample);
        quality.withoutPosition += verdict == PositionJudge::Verdict::None ? 1 : 0;
        quality.jumps += verdict == PositionJudge::Verdict::Jump ? 1 : 0;
    }
    return quality;
}

} // namespace zuno
