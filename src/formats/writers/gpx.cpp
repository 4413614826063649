// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QXmlStreamWriter>

#include <formats/rideexport.h>

namespace zuno {

namespace {

constexpr QLatin1String Gpx("http://www.topografix.com/GPX/1/1");
constexpr QLatin1String Extension("http://www.garmin.com/xmlschemas/TrackPointExtension/v2");

QString number(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

void writePoint(QXmlStreamWriter &xml, const PointAcquisition &sample, const QDateTime &begin)
{
    xml.writeStartElement(QStringLiteral("trkpt"));
    xml.writeAttribute(QStringLiteral("lat"), number(sample.dataCoordY, 8));
    xml.writeAttribute(QStringLiteral("lon"), number(sample.dataCoordX, 8));
    xml.writeTextElement(
        QStringLiteral("time"),
        begin.addMSecs(sample.dataTimeStamp).toString(u"yyyy-MM-dd'T'HH:mm:ss.zzz'Z'"));
    xml.writeStartElement(QStringLiteral("extensions"));
    xml.writeStartElement(Extension, QStringLiteral("TrackPointExtension"));
    xml.writeTextElement(Extension, QStringLiteral("speed"), number(sample.dataSpeed / 3.6, 4));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

QByteArray rideAsGpx(const RideToExport &ride)
{
    const QDateTime begin
        = ride.begin.isValid() ? ride.begin : QDateTime(QDate(2000, 1, 1), QTime(0, 0), Qt::UTC);
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeDefaultNamespace(Gpx);
    xml.writeNamespace(Extension, QStringLiteral("gpxtpx"));
    xml.writeStartElement(Gpx, QStringLiteral("gpx"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.1"));
    xml.writeAttribute(QStringLiteral("creator"), QStringLiteral("ZUNO Analyzer"));
    xml.writeStartElement(QStringLiteral("trk"));
    xml.writeTextElement(QStringLiteral("name"), ride.name);
    bool isOpen = false;
    for (const PointAcquisition &sample : ride.samples) {
        if (hasPlace(sample) && !isOpen)
            xml.writeStartElement(QStringLiteral("trkseg"));
        else if (!hasPlace(sample) && isOpen)
            xml.writeEndElement();
        isOpen = hasPlace(sample);
        if (isOpen)
            writePoint(xml, sample, begin);
    }
    xml.writeEndDocument();
    return text;
}

} // namespace zuno
