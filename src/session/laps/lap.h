// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QList>
#include <QString>

#include <session/recording/pointacquisition.h>
#include <track/map.h>

namespace zuno {

class Trace;

/// What of a session's extremes a lap holds. The numbers stand in payloads and reports.
enum class Mark : qint32 {
    MaximumSpeed = 0,
    LeftAngle = 1,
    RightAngle = 2,
    Acceleration = 3,
    Deceleration = 4,
    FrontSuspensionMaximum = 7,
    FrontSuspensionMinimum = 8,
    RearSuspensionMaximum = 9,
    RearSuspensionMinimum = 10,
};

/// The smallest and the largest of a channel's readings; absent without readings.
struct ReadingRange
{
    std::optional<float> min;
    std::optional<float> max;
};

/// One lap: its samples and the figures computed from them.
///
/// The first and the last sample are the interpolated points on the line, except at the start of
/// the recording and at its end.
class Lap
{
public:
    void setLapNumber(qint32 number) { m_lapNumber = number; }
    /// Takes the lap's samples, in time order, and computes every figure from them; the sectors by
    /// the lines of @p map, none without one. The lap number must be set before: the first sector
    /// of lap 1 has no time.
    void setPoints(Points points, const Map *map = nullptr);
    /// The same, for whoever has the samples' positions at hand.
    void setPoints(Points points, const Trace &trace, const Map *map);
    void setIsBest(bool best) { m_isBest = best; }
    void setIsComplete(bool complete) { m_isComplete = complete; }
    void setEndsAtLine(bool ends) { m_endsAtLine = ends; }
    void setIsValid(bool valid) { m_isValid = valid; }
    void setIsRanked(bool ranked) { m_isRanked = ranked; }
    void setIsCountedTwice(bool twice) { m_isCountedTwice = twice; }
    void setCumulatedTime(quint32 milliseconds) { m_cumulatedTime = milliseconds; }
    void setBestSector(int sector, bool best);
    void setMarks(QList<Mark> marks) { m_marks = std::move(marks); }

    [[nodiscard]] const Points &points() const { return m_points; }
    /// Counts from 1.
    [[nodiscard]] qint32 lapNumber() const { return m_lapNumber; }
    /// Milliseconds from the first sample to the last.
    [[nodiscard]] qint32 lapTime() const { return m_lapTime; }
    [[nodiscard]] QString timeText() const;
    /// Milliseconds: the lap times of this lap and of all before it; never less than that of the
    /// lap before.
    [[nodiscard]] quint32 cumulatedTime() const { return m_cumulatedTime; }
    /// Metres.
    [[nodiscard]] double distance() const { return m_distance; }

    [[nodiscard]] bool isBest() const { return m_isBest; }
    /// Whether the lap is as long as the map, within a tenth.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    /// Whether it begins, and ends, at the line. The recording begins somewhere before the first.
    [[nodiscard]] bool startsAtLine() const { return m_lapNumber != 1; }
    [[nodiscard]] bool endsAtLine() const { return m_endsAtLine; }
    /// Whether the rider has not thrown it out.
    [[nodiscard]] bool isValid() const { return m_isValid; }
    /// Whether it is long enough, and lasted at all, to hold a record or a section's best time.
    [[nodiscard]] bool isRanked() const { return m_isRanked; }
    /// Whether it is no lap, but one pass of the line that was counted twice.
    [[nodiscard]] bool isCountedTwice() const { return m_isCountedTwice; }

    /// km/h; degrees (left is the smallest angle); G.
    [[nodiscard]] qint32 maxSpeed() const { return m_maxSpeed; }
    [[nodiscard]] qint32 minSpeed() const { return m_minSpeed; }
    [[nodiscard]] qint32 maxAngle() const { return m_maxAngle; }
    [[nodiscard]] qint32 minAngle() const { return m_minAngle; }
    [[nodiscard]] double accelMax() const { return m_accelMax; }
    [[nodiscard]] double decelMax() const { return m_decelMax; }
    [[nodiscard]] const ReadingRange &suspension1() const { return m_suspension1; }
    [[nodiscard]] const ReadingRange &suspension2() const { return m_suspension2; }
    /// The samples at which the speed turned, after a swing of more than 10 km/h.
    [[nodiscard]] const Points &maxSpeedPoints() const { return m_maxSpeedPoints; }
    [[nodiscard]] const Points &minSpeedPoints() const { return m_minSpeedPoints; }
    [[nodiscard]] const QList<Mark> &marks() const { return m_marks; }

    /// The time of sector @p sector (counts from 0) in milliseconds; -1 when the lap has none.
    [[nodiscard]] qint32 sectorTime(int sector) const;
    /// How many sectors the lap went through.
    [[nodiscard]] int crossedSectors() const { return static_cast<int>(m_sectors.size()); }
    /// The samples of a sector, from crossing point to crossing point; empty when it has no time.
    [[nodiscard]] Points sectorPoints(int sector) const;
    [[nodiscard]] bool isBestSector(int sector) const;

    /// Where the lap passed a sector's line: the time stamp, and the metres from its first sample.
    struct Passing
    {
        quint32 timeStamp = 0;
        double distance = 0.0;
    };
    /// The passing of the line at the end of sector @p sector, also in the first lap of a
    /// recording, whose first sector has no time; none when the lap did not get there.
    [[nodiscard]] std::optional<Passing> sectorEnd(int sector) const;

private:
    /// One sector: between two crossing points, the samples from first up to (not including) last.
    struct Sector
    {
        PointAcquisition entry;
        PointAcquisition exit;
        std::size_t first = 0;
        std::size_t last = 0;
        // Metres from the lap's first sample to the exit's.
        double driven = 0.0;
        bool hasTime = true;
    };

    void computeExtremes();
    void computeTurns();
    void computeSectors(const Trace &trace, const Map *map);
    [[nodiscard]] const Sector *timedSector(int sector) const;

    Points m_points;
    Points m_maxSpeedPoints;
    Points m_minSpeedPoints;
    std::vector<Sector> m_sectors;
    QList<Mark> m_marks;
    std::array<bool, MaximumSectors> m_bestSectors {};
    ReadingRange m_suspension1;
    ReadingRange m_suspension2;
    double m_distance = 0.0;
    double m_accelMax = 0.0;
    double m_decelMax = 0.0;
    qint32 m_lapNumber = 0;
    qint32 m_lapTime = 0;
    quint32 m_cumulatedTime = 0;
    qint32 m_maxSpeed = 0;
    qint32 m_minSpeed = 0;
    qint32 m_maxAngle = 0;
    qint32 m_minAngle = 0;
    bool m_isBest = false;
    bool m_isComplete = false;
    bool m_endsAtLine = false;
    bool m_isValid = true;
    bool m_isRanked = true;
    bool m_isCountedTwice = false;
};

} // namespace zuno
