// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/mapfile.h>

#include <algorithm>

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <base/bytereader.h>

namespace zuno {

namespace {

constexpr qint64 OutlineRecordSize = 16;

// Bytes; a million points.
constexpr qint64 MaximumMapSize = 16'000'000;

// Up to this many missing outline records are taken for a file cut short and read as zeros.
constexpr qint32 PlausibleCount = 1000;

// The file has the longitude first.
QGeoCoordinate readCoordinate(ByteReader &reader)
{
    const double longitude = reader.f64();
    const double latitude = reader.f64();
    return {latitude, longitude};
}

void readHeader(ByteReader &reader, Map &map)
{
    const double latitudeA = reader.f64();
    const double latitudeB = reader.f64();
    const double longitudeA = reader.f64();
    const double longitudeB = reader.f64();
    map.setCorners({latitudeA, longitudeA}, {latitudeB, longitudeB});
    map.setMapNumber(reader.i32());
}

void readNamedPoints(ByteReader &reader, Map &map)
{
    const qint32 count = reader.i32();
    map.setNamedPointCount(count);
    for (qint32 i = 0; i < count && !reader.atEnd(); ++i) {
        const QString name = QString::fromLocal8Bit(reader.countedBytes());
        map.addNamedPoint(name, readCoordinate(reader));
    }
}

void readOutline(ByteReader &reader, Map &map)
{
    const qint32 count = reader.i32();
    map.setTrackPointCount(count);
    qint64 readable = count;
    // A count that nothing in the file supports is damage, not a promise.
    if (count > PlausibleCount && count * OutlineRecordSize > 2 * reader.left())
        readable = reader.left() / OutlineRecordSize;
    for (qint64 i = 0; i < readable; ++i)
        map.addTrackPoint(readCoordinate(reader));
}

} // namespace

std::unique_ptr<Map> parseMap(ByteReader &reader)
{
    if (reader.countedBytes() != "MAP" || reader.countedBytes() < "1.0")
        return nullptr;
    auto map = std::make_unique<Map>();
    readHeader(reader, *map);
    readNamedPoints(reader, *map);
    map->setGateSize(reader.f64());
    readOutline(reader, *map);
    map->computeGeometry();
    return map;
}

std::unique_ptr<Map> readMapFile(const QString &path, const QString &folder)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.size() > MaximumMapSize)
        return nullptr;
    // Piecewise, so that a film that somebody left in the folder is not read to the end.
    ByteReader reader(file);
    std::unique_ptr<Map> map = parseMap(reader);
    if (map) {
        QString name = path;
        map->setName(name.remove(folder));
    }
    return map;
}

void MapLibrary::loadMaps(const QString &folder)
{
    m_owned.clear();
    const QString clean = QDir::cleanPath(folder);
    QStringList paths;
    QDirIterator files(clean, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    // The order decides between maps that suit a session equally well; the file system's would
    // differ from one machine to the next.
    std::sort(paths.begin(), paths.end());
    for (const QString &path : std::as_const(paths)) {
        if (auto map = readMapFile(path, clean))
            m_owned.push_back(std::move(map));
    }
}

QList<const Map *> MapLibrary::maps() const
{
    QList<const Map *> list;
    for (const auto &map : m_owned)
        list.append(map.get());
    return list;
}

const Map *MapLibrary::find(const QString &name) const
{
    const auto found = std::find_if(m_owned.rbegin(), m_owned.rend(),
                                    [&name](const auto &map) { return map->name() == name; });
    return found == m_owned.rend() ? nullptr : found->get();
}

} // namespace zuno
