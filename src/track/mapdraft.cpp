// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/mapdraft.h>

#include <algorithm>

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QGeoRectangle>

#include <base/bytereader.h>
#include <base/wholefile.h>
#include <session/recording/trace.h>
#include <track/map.h>
#include <track/mapfile.h>

namespace zuno {

namespace {

void writeCounted(QDataStream &out, const QByteArray &text)
{
    out << static_cast<quint8>(text.size());
    out.writeRawData(text.constData(), static_cast<int>(text.size()));
}

// The file has the longitude first.
void writePlace(QDataStream &out, const QGeoCoordinate &place)
{
    out << place.longitude() << place.latitude();
}

QList<QGeoCoordinate> valid(const QList<QGeoCoordinate> &places)
{
    QList<QGeoCoordinate> list;
    std::copy_if(places.cbegin(), places.cend(), std::back_inserter(list),
                 [](const QGeoCoordinate &place) { return place.isValid(); });
    return list;
}

void writeNamedPoints(QDataStream &out, const QGeoCoordinate &start,
                      const QList<QGeoCoordinate> &timingPoints)
{
    out << static_cast<qint32>(timingPoints.size() + (start.isValid() ? 1 : 0));
    if (start.isValid()) {
        writeCounted(out, "Start");
        writePlace(out, start);
    }
    for (qsizetype i = 0; i < timingPoints.size(); ++i) {
        writeCounted(out, "Time " + QByteArray::number(i));
        writePlace(out, timingPoints[i]);
    }
}

} // namespace

MapDraft MapDraft::of(const Map &map)
{
    MapDraft draft;
    draft.name = map.name();
    draft.outline = map.trackPoints();
    draft.start = map.startPoint();
    draft.gateSize = map.gateSize();
    draft.mapNumber = map.mapNumber();
    for (int sector = 0; sector < map.sectorCount(); ++sector) {
        if (const auto gate = map.sectorGate(sector))
            draft.timingPoints.append(gate->centre());
    }
    return draft;
}

std::unique_ptr<Map> MapDraft::toMap() const
{
    const QByteArray bytes = toFile();
    ByteReader reader(bytes);
    std::unique_ptr<Map> map = parseMap(reader);
    map->setName(name);
    return map;
}

QByteArray MapDraft::toFile() const
{
    const QList<QGeoCoordinate> track = valid(outline);
    const QList<QGeoCoordinate> sectorEnds = valid(timingPoints).mid(0, MaximumSectors);
    QList<QGeoCoordinate> all = track + sectorEnds;
    if (start.isValid())
        all.append(start);
    const QGeoRectangle extent(all);

    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    writeCounted(out, "MAP");
    writeCounted(out, "1.0.0.0");
    const QGeoCoordinate southWest = extent.bottomLeft();
    const QGeoCoordinate northEast = extent.topRight();
    for (const double degrees :
         {southWest.latitude(), northEast.latitude(), southWest.longitude(), northEast.longitude()})
        out << degrees;
    out << mapNumber;
    writeNamedPoints(out, start, sectorEnds);
    out << gateSize << static_cast<qint32>(track.size());
    for (const QGeoCoordinate &place : track)
        writePlace(out, place);
    return bytes;
}

QString writeMapFile(const MapDraft &draft, const QString &path)
{
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder))
        return QCoreApplication::translate("zuno::MapDraft", "The folder \"%1\" cannot be made.")
            .arg(QDir::toNativeSeparators(folder));
    return writeWholeFile(path, draft.toFile());
}

} // namespace zuno
