// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/rideexport.h>

#include <algorithm>
#include <array>

namespace zuno {

namespace {

constexpr std::array Formats {
    RideFormat {"vbo", "VBO", rideAsVbo},
    RideFormat {"gpx", "GPX", rideAsGpx},
    RideFormat {"kml", "KML", rideAsKml},
    RideFormat {"csv", "CSV", rideAsCsv},
};

} // namespace

std::span<const RideFormat> rideFormats()
{
    return Formats;
}

const RideFormat *findRideFormat(const QString &id)
{
    const auto found
        = std::find_if(Formats.begin(), Formats.end(),
                       [&id](const RideFormat &format) { return id == QLatin1String(format.id); });
    return found != Formats.end() ? found : nullptr;
}

QDateTime recordingBegin(const QString &date, const QString &time)
{
    const QDate day = QDate::fromString(date, QStringLiteral("dd/MM/yyyy"));
    const QTime clock = QTime::fromString(time, QStringLiteral("HH:mm:ss"));
    return day.isValid() ? QDateTime(day, clock.isValid() ? clock : QTime(0, 0), Qt::UTC)
                         : QDateTime();
}

bool hasPlace(const PointAcquisition &sample)
{
    // NaN fails the comparisons.
    return sample.dataCoordX >= -180 && sample.dataCoordX <= 180 && sample.dataCoordY >= -90
           && sample.dataCoordY <= 90;
}

QByteArray csvText(const QString &text)
{
    QString safe = text;
    if (!safe.isEmpty() && QStringView(u"=+-@\t\r").contains(safe.front()))
        safe.prepend(u'\'');
    const bool needsQuotes = safe.contains(u',') || safe.contains(u'"') || safe.contains(u'\n')
                             || safe.contains(u'\r') || safe != text;
    if (!needsQuotes)
        return safe.toUtf8();
    return '"' + safe.replace(u'"', QStringLiteral("\"\"")).toUtf8() + '"';
}

} // namespace zuno
