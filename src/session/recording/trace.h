// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include <QGeoCoordinate>

#include <session/recording/pointacquisition.h>

namespace zuno {

/// Where a sample was taken; an invalid coordinate for a sample without a position, or with
/// one that nobody can have ridden to.
[[nodiscard]] QGeoCoordinate positionOf(const PointAcquisition &point);

/// The positions of consecutive samples, computed once.
class Trace
{
public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    explicit Trace(std::span<const PointAcquisition> points);
    /// Of positions that are known already.
    explicit Trace(std::vector<QGeoCoordinate> positions);

    [[nodiscard]] const QGeoCoordinate &at(std::size_t i) const { return m_positions[i]; }
    /// The next sample after @p i that has a position; None when there is none.
    [[nodiscard]] std::size_t next(std::size_t i) const;

private:
    std::vector<QGeoCoordinate> m_positions;
};

/// Seconds from sample to sample, as a rule; a tenth when no time passes.
[[nodiscard]] double usualInterval(std::span<const PointAcquisition> samples);

/// The point between @p p1 and @p p2 at which @p centre projects onto their segment: a copy of
/// @p p1 with the interpolated position and time stamp, and the whole seconds of @p p1.
[[nodiscard]] PointAcquisition crossingPoint(const PointAcquisition &p1, const PointAcquisition &p2,
                                             const QGeoCoordinate &centre);

} // namespace zuno
