// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/rideexport.h>

namespace zuno {

namespace {

QByteArray number(double value, int decimals)
{
    return QByteArray::number(value, 'f', decimals);
}

QByteArray mean(const SuspensionChannel &channel)
{
    return channel.readings.empty() ? QByteArray() : number(static_cast<double>(channel.mean), 3);
}

QByteArray row(const PointAcquisition &sample, const QDateTime &begin, bool hasReadings)
{
    const bool isKnown = hasPlace(sample);
    QByteArray text = number(sample.dataTimeStamp / 1000.0, 3) + ',';
    if (begin.isValid())
        text
            += begin.addMSecs(sample.dataTimeStamp).toString(u"yyyy-MM-dd HH:mm:ss.zzz").toLatin1();
    text += ',' + (isKnown ? number(sample.dataCoordY, 8) : QByteArray()) + ','
            + (isKnown ? number(sample.dataCoordX, 8) : QByteArray()) + ','
            + number(sample.dataSpeed, 4) + ',' + number(sample.dataAngle, 3) + ','
            + number(sample.dataAccelXPH, 4) + ',' + number(sample.dataAccelYPH, 4);
    if (hasReadings)
        text += ',' + mean(sample.suspension1()) + ',' + mean(sample.suspension2());
    return text + "\r\n";
}

} // namespace

QByteArray rideAsCsv(const RideToExport &ride)
{
    bool hasReadings = false;
    for (const PointAcquisition &sample : ride.samples)
        hasReadings = hasReadings || sample.hasReadings();
    QByteArray text;
    for (const auto &[key, value] : {std::pair("Session", &ride.name),
                                     {"Circuit", &ride.circuit},
                                     {"Driver", &ride.driver},
                                     {"Vehicle", &ride.vehicle}})
        text += key + (',' + csvText(*value)) + "\r\n";
    text += "\r\nTime (s),Date and time,Latitude (deg),Longitude (deg),Speed (km/h),Lean angle "
            "(deg),"
            "Longitudinal acc (G),Lateral acc (G)";
    text += hasReadings ? ",Front suspension,Rear suspension\r\n" : "\r\n";
    for (const PointAcquisition &sample : ride.samples)
        text += row(sample, ride.begin, hasReadings);
    return text;
}

} // namespace zuno
