// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/pointacquisition.h>

#include <base/numbers.h>

namespace zuno {

namespace {

// Not before somebody asks for it.
const SuspensionChannel &noReadings()
{
    static const SuspensionChannel none;
    return none;
}

} // namespace

void SuspensionChannel::add(const Reading *first, std::size_t count)
{
    readings.insert(readings.end(), first, first + count);
    float sum = 0.0F;
    min = std::numeric_limits<float>::max();
    max = -std::numeric_limits<float>::max();
    for (const Reading &reading : readings) {
        sum += reading.value;
        if (reading.value < min)
            min = reading.value;
        if (reading.value > max)
            max = reading.value;
    }
    mean = sum / 10.0F;
}

bool PointAcquisition::hasPosition() const
{
    // False for what is not a number.
    return !isMisplaced && dataCoordY >= -90.0 && dataCoordY <= 90.0 && dataCoordX >= -180.0
           && dataCoordX <= 180.0;
}

qint32 PointAcquisition::roundedSpeed() const
{
    return roundedToInt(dataSpeed);
}

qint32 PointAcquisition::roundedAngle() const
{
    return roundedToInt(dataAngle);
}

const SuspensionChannel &PointAcquisition::suspension1() const
{
    return hasReadings() ? m_suspension->channel1 : noReadings();
}

const SuspensionChannel &PointAcquisition::suspension2() const
{
    return hasReadings() ? m_suspension->channel2 : noReadings();
}

PointAcquisition::Suspension &PointAcquisition::ownSuspension()
{
    if (!hasReadings())
        m_suspension = new Suspension;
    return *m_suspension;
}

void PointAcquisition::addSuspension1(const Reading *first, std::size_t count)
{
    ownSuspension().channel1.add(first, count);
}

void PointAcquisition::addSuspension2(const Reading *first, std::size_t count)
{
    ownSuspension().channel2.add(first, count);
}

bool operator==(const PointAcquisition &a, const PointAcquisition &b)
{
    // The figures of a channel follow from its readings.
    return a.acquisitionNumber == b.acquisitionNumber && a.dataTimeStamp == b.dataTimeStamp
           && a.dataTimeSec == b.dataTimeSec && a.dataCoordX == b.dataCoordX
           && a.dataCoordY == b.dataCoordY && a.dataSpeed == b.dataSpeed
           && a.dataAngle == b.dataAngle && a.dataAccelXPH == b.dataAccelXPH
           && a.dataAccelXPHComputed == b.dataAccelXPHComputed && a.dataAccelYPH == b.dataAccelYPH
           && a.rawSpeed == b.rawSpeed && a.suspension1().readings == b.suspension1().readings
           && a.suspension2().readings == b.suspension2().readings;
}

} // namespace zuno
