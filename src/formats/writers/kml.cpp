// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>

#include <QXmlStreamWriter>

#include <formats/rideexport.h>

namespace zuno {

namespace {

constexpr int Colours = 10;

// From blue over green to red; KML wants alpha, blue, green, red.
QString colour(int step)
{
    const double share = static_cast<double>(step) / (Colours - 1);
    const auto level = [](double value) {
        return QStringLiteral("%1").arg(std::lround(255 * std::clamp(value, 0.0, 1.0)), 2, 16,
                                        QLatin1Char('0'));
    };
    return QStringLiteral("ff") + level(2 - 4 * share) + level(2 - std::abs(4 * share - 2))
           + level(4 * share - 2);
}

void writeStyles(QXmlStreamWriter &xml)
{
    for (int i = 0; i < Colours; ++i) {
        xml.writeStartElement(QStringLiteral("Style"));
        xml.writeAttribute(QStringLiteral("id"), QStringLiteral("speed%1").arg(i));
        xml.writeStartElement(QStringLiteral("LineStyle"));
        xml.writeTextElement(QStringLiteral("color"), colour(i));
        xml.writeTextElement(QStringLiteral("width"), QStringLiteral("4"));
        xml.writeEndElement();
        xml.writeEndElement();
    }
}

QString placeText(const PointAcquisition &sample)
{
    return QString::number(sample.dataCoordX, 'f', 8) + u','
           + QString::number(sample.dataCoordY, 'f', 8) + u' ';
}

void writeLine(QXmlStreamWriter &xml, const QString &places, int step, double fastest)
{
    xml.writeStartElement(QStringLiteral("Placemark"));
    xml.writeTextElement(QStringLiteral("name"),
                         QStringLiteral("%1 - %2 km/h")
                             .arg(std::lround(fastest * step / Colours))
                             .arg(std::lround(fastest * (step + 1) / Colours)));
    xml.writeTextElement(QStringLiteral("styleUrl"), QStringLiteral("#speed%1").arg(step));
    xml.writeStartElement(QStringLiteral("LineString"));
    xml.writeTextElement(QStringLiteral("tessellate"), QStringLiteral("1"));
    xml.writeTextElement(QStringLiteral("coordinates"), places.trimmed());
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

QByteArray rideAsKml(const RideToExport &ride)
{
    double fastest = 1;
    for (const PointAcquisition &sample : ride.samples)
        fastest = std::max(fastest, hasPlace(sample) ? sample.dataSpeed : 0.0);
    const auto stepOf = [fastest](const PointAcquisition &sample) {
        const double share = std::clamp(sample.dataSpeed / fastest, 0.0, 1.0);
        return share >= 0 ? std::min(Colours - 1, static_cast<int>(Colours * share)) : 0;
    };
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("kml"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.opengis.net/kml/2.2"));
    xml.writeStartElement(QStringLiteral("Document"));
    xml.writeTextElement(QStringLiteral("name"), ride.name);
    writeStyles(xml);
    QString places;
    int step = -1;
    for (const PointAcquisition &sample : ride.samples) {
        const int now = hasPlace(sample) ? stepOf(sample) : -1;
        // A piece ends where the next one begins, so that there is no gap between the colours.
        if (now != step && step >= 0)
            writeLine(xml, places + (now >= 0 ? placeText(sample) : QString()), step, fastest);
        if (now != step)
            places.clear();
        if (now >= 0)
            places += placeText(sample);
        step = now;
    }
    if (step >= 0)
        writeLine(xml, places, step, fastest);
    xml.writeEndDocument();
    return text;
}

} // namespace zuno
