// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/laps/lap.h>

#include <algorithm>
#include <cmath>

#include <base/laptimes.h>
#include <base/numbers.h>
#include <session/recording/trace.h>
#include <track/cuttingrules.h>
#include <track/map.h>

namespace zuno {

namespace {

// How far the speed (km/h) must have swung for its turn to count.
constexpr qint64 MinimumSwing = 10;

void widen(ReadingRange &range, const SuspensionChannel &channel)
{
    for (const Reading &reading : channel.readings) {
        if (std::isnan(reading.value))
            continue;
        range.min = range.min ? std::min(*range.min, reading.value) : reading.value;
        range.max = range.max ? std::max(*range.max, reading.value) : reading.value;
    }
}

} // namespace

void Lap::setPoints(Points points, const Map *map)
{
    const Trace trace(points);
    setPoints(std::move(points), trace, map);
}

void Lap::setPoints(Points points, const Trace &trace, const Map *map)
{
    m_points = std::move(points);
    computeExtremes();
    computeTurns();
    computeSectors(trace, map);
}

void Lap::setBestSector(int sector, bool best)
{
    m_bestSectors.at(static_cast<std::size_t>(sector)) = best;
}

QString Lap::timeText() const
{
    return zuno::timeText(m_lapTime);
}

void Lap::computeExtremes()
{
    m_suspension1 = {};
    m_suspension2 = {};
    m_lapTime = 0;
    if (m_points.empty())
        return;
    const PointAcquisition &first = m_points.front();
    m_lapTime = wrappedDifference(m_points.back().dataTimeStamp, first.dataTimeStamp);
    m_maxSpeed = m_minSpeed = first.roundedSpeed();
    m_maxAngle = m_minAngle = first.roundedAngle();
    m_accelMax = m_decelMax = first.dataAccelXPHComputed;
    for (const PointAcquisition &point : m_points) {
        const qint32 speed = point.roundedSpeed();
        const qint32 angle = point.roundedAngle();
        m_maxSpeed = std::max(m_maxSpeed, speed);
        m_minSpeed = std::min(m_minSpeed, speed);
        m_maxAngle = std::max(m_maxAngle, angle);
        m_minAngle = std::min(m_minAngle, angle);
        m_accelMax = std::max(m_accelMax, point.dataAccelXPHComputed);
        m_decelMax = std::min(m_decelMax, point.dataAccelXPHComputed);
        if (point.hasReadings()) {
            widen(m_suspension1, point.suspension1());
            widen(m_suspension2, point.suspension2());
        }
    }
}

void Lap::computeTurns()
{
    m_maxSpeedPoints.clear();
    m_minSpeedPoints.clear();
    qint64 previous = 0;
    qint64 low = 0;
    qint64 high = 0;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const qint64 speed = m_points[i].roundedSpeed();
        if (speed > previous) {
            if (i > 0 && high > speed && high - low > MinimumSwing) {
                m_minSpeedPoints.push_back(m_points[i - 1]);
                low = speed;
            }
            high = speed;
        } else if (speed < previous) {
            if (i > 0 && low < speed && high - low > MinimumSwing) {
                m_maxSpeedPoints.push_back(m_points[i - 1]);
                high = speed;
            }
            low = speed;
        }
        previous = speed;
    }
}

void Lap::computeSectors(const Trace &trace, const Map *map)
{
    m_distance = 0.0;
    m_sectors.clear();
    if (m_points.empty())
        return;
    const int sectorCount = map != nullptr ? map->sectorCount() : 0;
    std::optional<Gate> gate = sectorCount > 0 ? map->sectorGate(0) : std::nullopt;
    Sector sector {m_points.front(), {}, 0, 0};
    std::size_t previous = Trace::None;
    PassScan scan;
    for (std::size_t i = 0; i < m_points.size(); ++i) {
        const bool isPass = scan.isPass(gate ? &*gate : nullptr, trace, i);
        if (!trace.hasPosition(i))
            continue;
        if (previous != Trace::None)
            m_distance += trace.step(previous, i);
        previous = i;
        if (!isPass)
            continue;
        const std::size_t next = trace.next(i);
        const bool stands = next == Trace::None || trace.at(i).distanceTo(trace.at(next)) == 0.0;
        sector.exit
            = stands ? m_points[i] : crossingPoint(m_points[i], m_points[next], gate->centre());
        sector.last = i;
        sector.driven = m_distance;
        // A sector line at the very start of the lap: the crossing is all there is of the sector.
        if (i == 0)
            sector.entry = sector.exit;
        // The recording starts somewhere before the line: what leads up to the first sector line
        // is no sector time, but the sectors after it count.
        sector.hasTime = m_lapNumber != 1 || !m_sectors.empty();
        m_sectors.push_back(sector);
        sector.entry = sector.exit;
        sector.first = i + 1;
        const int reached = crossedSectors();
        gate = reached < sectorCount ? map->sectorGate(reached) : std::nullopt;
    }
}

const Lap::Sector *Lap::timedSector(int sector) const
{
    if (sector < 0 || sector >= crossedSectors())
        return nullptr;
    const Sector &found = m_sectors[static_cast<std::size_t>(sector)];
    return found.hasTime ? &found : nullptr;
}

qint32 Lap::sectorTime(int sector) const
{
    const Sector *found = timedSector(sector);
    return found == nullptr
               ? -1
               : wrappedDifference(found->exit.dataTimeStamp, found->entry.dataTimeStamp);
}

std::optional<Lap::Passing> Lap::sectorEnd(int sector) const
{
    if (sector < 0 || sector >= crossedSectors())
        return {};
    const Sector &passed = m_sectors[static_cast<std::size_t>(sector)];
    return Passing {passed.exit.dataTimeStamp, passed.driven};
}

Points Lap::sectorPoints(int sector) const
{
    const Sector *found = timedSector(sector);
    Points points;
    if (found == nullptr)
        return points;
    if (sector > 0)
        points.push_back(found->entry);
    for (std::size_t i = found->first; i < found->last; ++i)
        points.push_back(m_points[i]);
    points.push_back(found->exit);
    return points;
}

bool Lap::isBestSector(int sector) const
{
    return sector >= 0 && sector < MaximumSectors
           && m_bestSectors[static_cast<std::size_t>(sector)];
}

} // namespace zuno
