// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

#include <QGeoCoordinate>

#include <session/recording/pointacquisition.h>

namespace zuno {

/// Where a sample was taken; an invalid coordinate for a sample without a position, or with
/// one that nobody can have ridden to.
[[nodiscard]] QGeoCoordinate positionOf(const PointAcquisition &point);

/// Where one of consecutive samples was taken.
struct TracePlace
{
    explicit TracePlace(QGeoCoordinate coordinate);

    QGeoCoordinate position;
    /// Degrees, without asking the position for them; not a number without one.
    double latitude;
    double longitude;
    /// Metres from the place before that has a position; not a number where nobody knows them.
    double step;
};

/// The positions of consecutive samples, computed once.
class Trace
{
public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    explicit Trace(std::span<const PointAcquisition> points);
    /// Of places that are known already.
    explicit Trace(std::vector<TracePlace> places);

    [[nodiscard]] const QGeoCoordinate &at(std::size_t i) const { return m_places[i].position; }
    [[nodiscard]] const TracePlace &place(std::size_t i) const { return m_places[i]; }
    [[nodiscard]] bool hasPosition(std::size_t i) const
    {
        return !std::isnan(m_places[i].latitude);
    }
    /// The next sample after @p i that has a position; None when there is none.
    [[nodiscard]] std::size_t next(std::size_t i) const;
    /// Metres to @p i from @p previous, the last sample before it that has a position.
    [[nodiscard]] double step(std::size_t previous, std::size_t i) const;

private:
    std::vector<TracePlace> m_places;
};

/// Seconds from sample to sample, as a rule; a tenth when no time passes.
[[nodiscard]] double usualInterval(std::span<const PointAcquisition> samples);

/// The point between @p p1 and @p p2 at which @p centre projects onto their segment: a copy of
/// @p p1 with the interpolated position and time stamp, and the whole seconds of @p p1.
[[nodiscard]] PointAcquisition crossingPoint(const PointAcquisition &p1, const PointAcquisition &p2,
                                             const QGeoCoordinate &centre);

} // namespace zuno
