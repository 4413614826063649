// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <limits>
#include <utility>
#include <vector>

#include <QSharedData>
#include <QSharedDataPointer>
#include <QtGlobal>

namespace zuno {

/// The value of both coordinates of a sample that was recorded without a position: the largest
/// single-precision number.
inline constexpr double NoFixCoordinate = std::numeric_limits<float>::max();

/// One suspension reading: the logger's number and the value.
struct Reading
{
    qint32 number = 0;
    float value = 0.0F;

    friend bool operator==(const Reading &, const Reading &) = default;
};

/// The readings of one suspension channel within one sample, and their figures.
struct SuspensionChannel
{
    std::vector<Reading> readings;
    /// The sum of the readings divided by ten, however many there are: a sample is meant to hold
    /// ten.
    float mean = 0.0F;
    /// The smallest and largest reading; the largest float and its negative without readings.
    float min = std::numeric_limits<float>::max();
    float max = -std::numeric_limits<float>::max();

    /// Adds @p count readings and recomputes the figures.
    void add(const Reading *first, std::size_t count);
};

/// One sample of the logger's stream, every tenth of a second.
///
/// The fields up to `dataAccelYPH` are what the file says, but for `dataSpeed` and
/// `dataAccelXPHComputed`, which the smoothing pass writes; `rawSpeed` is what it found. The
/// suspension readings are shared between copies of a sample; a sample without any costs one null
/// pointer.
class PointAcquisition
{
public:
    /// Counts from 1 in the order of the file.
    quint32 acquisitionNumber = 0;
    /// Milliseconds since the start of the recording.
    quint32 dataTimeStamp = 0;
    /// Seconds.
    double dataTimeSec = 0.0;
    /// Longitude and latitude in degrees; both NoFixCoordinate without a position.
    double dataCoordX = 0.0;
    double dataCoordY = 0.0;
    /// km/h; once smoothed, 0 to 399.
    double dataSpeed = 0.0;
    /// Lean angle in degrees, left negative.
    double dataAngle = 0.0;
    /// Longitudinal acceleration in G: as recorded, and from the smoothing pass (-2 to 2).
    double dataAccelXPH = 0.0;
    double dataAccelXPHComputed = 0.0;
    /// Lateral acceleration in G, as recorded.
    double dataAccelYPH = 0.0;
    /// km/h, as recorded; 0 until the sample is smoothed. The smoothed speed comes up to 0.16 s
    /// late and its lowest values are up to 3 km/h too low: whatever tells where somebody braked,
    /// or how slow he was, takes this one.
    float rawSpeed = 0.0F;
    /// Nobody can have ridden to the position, nor on from it (markMisplaced()): the sample counts
    /// as one without a position.
    bool isMisplaced = false;

    /// Whether the coordinates say a place on Earth that can be believed.
    [[nodiscard]] bool hasPosition() const;
    /// `dataSpeed` and `dataAngle` to the nearest integer, halves away from zero.
    [[nodiscard]] qint32 roundedSpeed() const;
    [[nodiscard]] qint32 roundedAngle() const;

    /// Suspension 1 is the front channel, suspension 2 the rear one.
    [[nodiscard]] const SuspensionChannel &suspension1() const;
    [[nodiscard]] const SuspensionChannel &suspension2() const;
    [[nodiscard]] bool hasReadings() const { return m_suspension.constData() != nullptr; }
    void addSuspension1(const Reading *first, std::size_t count);
    void addSuspension2(const Reading *first, std::size_t count);

    /// Equal in every field, readings included; a value that is not a number equals none.
    friend bool operator==(const PointAcquisition &a, const PointAcquisition &b);

private:
    struct Suspension : QSharedData
    {
        SuspensionChannel channel1;
        SuspensionChannel channel2;
    };
    Suspension &ownSuspension();

    QSharedDataPointer<Suspension> m_suspension;
};

/// The samples of a recording or of a part of it, in time order.
using Points = std::vector<PointAcquisition>;

} // namespace zuno
