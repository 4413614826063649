// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <vector>

#include <QString>

#include <session/recording/pointacquisition.h>
#include <views/charts/chartaxis.h>

namespace zuno {

class Lap;
struct SessionLap;

/// Between two sector lines of a lap.
struct SectorStretch
{
    /// Counts from 0.
    int sector = 0;
    /// Seconds since the start of the lap.
    AxisRange time;
};

/// A lap as charts and cursors need it: its samples, with the place of each on both axes.
///
/// A copy: it stays good when the session is cut anew or goes away.
class LapTrack
{
public:
    explicit LapTrack(const SessionLap &lap);

    [[nodiscard]] const Points &points() const { return m_points; }
    [[nodiscard]] std::size_t size() const { return m_points.size(); }
    /// The places of the samples, which never fall: metres ridden, or seconds since the start. A
    /// sample without a position lies between its neighbours as its time does.
    [[nodiscard]] const std::vector<double> &places(AxisKind axis) const;
    /// From 0 to the last sample's place.
    [[nodiscard]] AxisRange range(AxisKind axis) const;
    /// The same place of the lap on the other axis.
    [[nodiscard]] double converted(double place, AxisKind from, AxisKind to) const;
    [[nodiscard]] bool hasFix(std::size_t i) const { return m_hasFix[i]; }
    /// The sample at a fractional index, within the indexes there are: of the two samples around
    /// the nearer one, its position and its time interpolated.
    [[nodiscard]] PointAcquisition sampleAt(double position) const;

    /// The sectors that have both their lines, in order.
    [[nodiscard]] const std::vector<SectorStretch> &sectors() const { return m_sectors; }

    [[nodiscard]] qint32 lapNumber() const { return m_lapNumber; }
    [[nodiscard]] const QString &lapTimeText() const { return m_lapTimeText; }
    [[nodiscard]] const QString &sessionName() const { return m_sessionName; }
    /// Tells the maps of laps apart; empty without one.
    [[nodiscard]] const QString &mapName() const { return m_mapName; }

private:
    void computePlaces();
    void computeSectors(const Lap &lap);
    [[nodiscard]] double secondsOf(const PointAcquisition &point) const;

    Points m_points;
    std::vector<double> m_distance;
    std::vector<double> m_time;
    std::vector<bool> m_hasFix;
    std::vector<SectorStretch> m_sectors;
    QString m_lapTimeText;
    QString m_sessionName;
    QString m_mapName;
    qint32 m_lapNumber = 0;
};

} // namespace zuno
