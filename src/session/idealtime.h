// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QString>
#include <QtGlobal>

namespace zuno {

class Lap;
class Session;
struct SessionLap;

/// A time that somebody rode, and where it is to be found.
struct RiddenTime
{
    /// Milliseconds.
    qint32 time = 0;
    QString filePath;
    QString driver;
    qint32 lapNumber = 0;
};

/// Once around from a timing point to the same one.
struct ContinuousLap
{
    /// With the lap that it begins in.
    RiddenTime ridden;
    /// The sector at whose end it begins and ends, counted from 1; 0 for a lap from line to line.
    int afterSector = 0;
};

/// The best sectors over several sessions of one map, and what was really ridden to hold against
/// them. Laps thrown out count for nothing. Of equal times the first stands.
///
/// A value that keeps nothing of the sessions.
class IdealTime
{
public:
    /// Adds the laps of @p session, which must be cut on the same map as those before.
    void add(const Session &session);

    /// For each sector of the map the best time; none when no valid lap went through it. As in a
    /// session's own ideal time, the sectors of incomplete laps count.
    [[nodiscard]] const std::vector<std::optional<RiddenTime>> &sectors() const
    {
        return m_sectors;
    }
    /// The sum of the best sector times in milliseconds; none unless every sector has one.
    [[nodiscard]] std::optional<qint32> total() const;

    /// The best complete lap.
    [[nodiscard]] const std::optional<RiddenTime> &bestLap() const { return m_bestLap; }
    /// What the best lap took for a sector, milliseconds; -1 without a time.
    [[nodiscard]] qint32 bestLapSector(int sector) const;

    /// The best full lap between any two passings of the same timing point: a complete lap, or the
    /// end of a valid lap from a sector's line on and the next valid lap up to there. So never
    /// slower than the best lap.
    [[nodiscard]] const std::optional<ContinuousLap> &bestContinuousLap() const
    {
        return m_bestContinuousLap;
    }

private:
    void addSectors(const Session &session);
    void addLap(const SessionLap &lap);
    void addContinuousLaps(const SessionLap &lap, const Lap &next);
    void offerContinuousLap(qint32 time, const SessionLap &lap, int afterSector);

    std::vector<std::optional<RiddenTime>> m_sectors;
    std::vector<qint32> m_bestLapSectors;
    std::optional<RiddenTime> m_bestLap;
    std::optional<ContinuousLap> m_bestContinuousLap;
};

} // namespace zuno
