// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <QtGlobal>

#include <session/recording/pointacquisition.h>

namespace zuno {

/// Marks the samples whose position would need more than 150 m/s both from the last good position
/// before and to the next one after, while one soon after can be ridden to: a receiver's slip of
/// one sample. @p samples in time order; where no time passes between samples nothing is said about
/// speed, nor is it where more than a quarter of the ride is as fast: then its clock is wrong.
void markMisplaced(std::span<PointAcquisition> samples);

/// Tells positions that nobody can have ridden to, sample by sample in time order.
class PositionJudge
{
public:
    enum class Verdict { Good, None, Jump };
    /// None for a sample without a position. The samples must stay where they are.
    [[nodiscard]] Verdict judge(const PointAcquisition &sample);

private:
    const PointAcquisition *m_good = nullptr;
    const PointAcquisition *m_firstBad = nullptr;
};

/// How many samples of a recording do not say where the motorcycle was, which is why a lap may be
/// missing.
struct GpsQuality
{
    /// Samples without a position.
    qint64 withoutPosition = 0;
    /// Samples whose position nobody can have ridden to from the one before: faster than 500 km/h,
    /// beyond 50 metres of what a receiver may be wrong by. A receiver that stays at the new place
    /// for a second is believed. A misplaced sample is one of these, too.
    qint64 jumps = 0;

    [[nodiscard]] qint64 total() const { return withoutPosition + jumps; }
};

[[nodiscard]] GpsQuality gpsQuality(std::span<const PointAcquisition> samples);

} // namespace zuno
