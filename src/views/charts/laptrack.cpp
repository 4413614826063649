// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/laptrack.h>

#include <algorithm>
#include <cmath>

#include <base/numbers.h>
#include <session/laps/lap.h>
#include <session/recording/trace.h>
#include <session/sessionlap.h>

namespace zuno {

LapTrack::LapTrack(const SessionLap &lap)
    : m_points(lap->points())
    , m_lapTimeText(lap->timeText())
    , m_sessionName(lap.fileName())
    , m_mapName(lap.mapName())
    , m_lapNumber(lap->lapNumber())
{
    computePlaces();
    computeSectors(*lap);
}

double LapTrack::secondsOf(const PointAcquisition &point) const
{
    return wrappedDifference(point.dataTimeStamp, m_points.front().dataTimeStamp) / 1000.0;
}

void LapTrack::computePlaces()
{
    const Trace trace(m_points);
    const std::size_t count = m_points.size();
    m_distance.assign(count, 0.0);
    m_time.assign(count, 0.0);
    m_hasFix.resize(count);
    std::size_t last = Trace::None;
    for (std::size_t i = 0; i < count; ++i) {
        m_time[i] = std::max(secondsOf(m_points[i]), i > 0 ? m_time[i - 1] : 0.0);
        m_hasFix[i] = trace.at(i).isValid();
        if (!m_hasFix[i]) {
            m_distance[i] = i > 0 ? m_distance[i - 1] : 0.0;
            continue;
        }
        if (last != Trace::None) {
            const double before = m_distance[last];
            const double ridden = trace.at(last).distanceTo(trace.at(i));
            const double elapsed = m_time[i] - m_time[last];
            m_distance[i] = before + ridden;
            for (std::size_t k = last + 1; k < i && elapsed > 0; ++k)
                m_distance[k] = before + (ridden * (m_time[k] - m_time[last]) / elapsed);
        }
        last = i;
    }
}

void LapTrack::computeSectors(const Lap &lap)
{
    for (int sector = 0; sector < lap.crossedSectors(); ++sector) {
        const Points points = lap.sectorPoints(sector);
        if (!points.empty())
            m_sectors.push_back({sector, {secondsOf(points.front()), secondsOf(points.back())}});
    }
}

const std::vector<double> &LapTrack::places(AxisKind axis) const
{
    return axis == AxisKind::Distance ? m_distance : m_time;
}

AxisRange LapTrack::range(AxisKind axis) const
{
    return {0.0, m_points.empty() ? 0.0 : places(axis).back()};
}

double LapTrack::converted(double place, AxisKind from, AxisKind to) const
{
    return from == to ? place : valueAtPosition(places(to), positionAmong(places(from), place));
}

PointAcquisition LapTrack::sampleAt(double position) const
{
    const auto last = static_cast<double>(m_points.size()) - 1;
    const double within = std::max(0.0, std::min(position, last));
    const auto before = static_cast<std::size_t>(within);
    const double part = within - static_cast<double>(before);
    PointAcquisition sample = m_points[static_cast<std::size_t>(std::lround(within))];
    if (part == 0 || !m_hasFix[before] || !m_hasFix[before + 1])
        return sample;
    const PointAcquisition &a = m_points[before];
    const PointAcquisition &b = m_points[before + 1];
    sample.dataCoordX = std::lerp(a.dataCoordX, b.dataCoordX, part);
    sample.dataCoordY = std::lerp(a.dataCoordY, b.dataCoordY, part);
    sample.dataTimeSec = std::lerp(a.dataTimeSec, b.dataTimeSec, part);
    sample.dataTimeStamp = a.dataTimeStamp
                           + static_cast<quint32>(std::lround(
                               part * wrappedDifference(b.dataTimeStamp, a.dataTimeStamp)));
    return sample;
}

} // namespace zuno
