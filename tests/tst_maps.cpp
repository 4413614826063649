// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <base/bytereader.h>
#include <session/session.h>
#include <track/mapdraft.h>
#include <track/mapfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// A map file of one start point, two timing points, one other and three outline points.
QByteArray mapBytes(const QByteArray &magic = "MAP", const QByteArray &version = "1.0")
{
    Bytes file;
    file.text(magic).text(version).f64(1).f64(2).f64(3).f64(4).u32(77).u32(4);
    for (const char *name : {"Start", "Time 2", "Paddock", "time 1"})
        file.text(name).f64(9.5).f64(45.5);
    file.f64(12.5).u32(3);
    for (int i = 0; i < 3; ++i)
        file.f64(9.0 + i).f64(45.0);
    return file;
}

std::unique_ptr<Map> parsed(const QByteArray &bytes)
{
    ByteReader reader(bytes);
    return parseMap(reader);
}

QString text(const QGeoCoordinate &place)
{
    return place.isValid() ? u"%1/%2"_s.arg(place.latitude()).arg(place.longitude()) : u"-"_s;
}

} // namespace

class TestMaps final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutAtEveryLength()
    {
        const QByteArray whole = mapBytes();
        const qsizetype startAt = 4 + 4 + 4 * 8 + 4 + 4;
        const qsizetype outlineAt = whole.size() - 3 * 16;
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            const auto map = parsed(whole.left(size));
            const QByteArray where = "cut at " + QByteArray::number(size);
            // The version's text of a file that ends within it reads as one that is new enough.
            QVERIFY2((map != nullptr) == (size > 4), where);
            if (!map)
                continue;
            QVERIFY2(map->isUsable() == (size >= startAt + 6), where);
            QVERIFY2(map->gateSize() == 12.5 || size < outlineAt - 4, where);
            if (size < outlineAt)
                continue;
            QCOMPARE(map->trackPoints().size(), 3);
            for (qsizetype i = 0; i < 3; ++i) {
                const double latitude = size >= outlineAt + 16 * i + 16 ? 45.0 : 0.0;
                QVERIFY2(map->trackPoints()[i].latitude() == latitude, where);
            }
        }
    }

    void parses()
    {
        for (const char *version : {"1.0", "1.0.0.0", "2"})
            QVERIFY2(parsed(mapBytes("MAP", version)), version);
        for (const char *version : {"1", "0.9", ""})
            QVERIFY2(!parsed(mapBytes("MAP", version)), version);
        QVERIFY(!parsed(mapBytes("MAP1")));
        const auto map = parsed(mapBytes() + "and more");
        QCOMPARE(text(map->cornerB()), u"2/4"_s);
        QCOMPARE(text(map->startPoint()), u"45.5/9.5"_s);
        QCOMPARE(QStringList(map->timingPoints().keys()), (QStringList {u"Time 2"_s, u"time 1"_s}));
        QCOMPARE(text(map->trackPoints().last()), u"45/11"_s);
    }

    void counts()
    {
        // How many outline points come of so many claimed and so many in the file.
        const auto trackPoints = [](quint32 claimed, int held) {
            Bytes file;
            file.text("MAP").text("1.0").raw(QByteArray(36, '\0')).u32(0xffffffffU);
            file.f64(5).u32(claimed).raw(QByteArray(held * 16, '\1'));
            return parsed(file)->trackPoints().size();
        };
        QCOMPARE(trackPoints(0x80000000U, 2), 0);
        QCOMPARE(trackPoints(1, 2), 1);
        // Cut short, up to 1000 are believed, more only when half of them are there.
        QCOMPARE(trackPoints(1000, 1), 1000);
        QCOMPARE(trackPoints(1001, 1), 1);
        QCOMPARE(trackPoints(1002, 501), 1002);
        QCOMPARE(trackPoints(0x7fffffff, 3), 3);
        // Named points are asked for only as long as there is something to read.
        Bytes endless;
        endless.text("MAP").text("1.0").raw(QByteArray(36, '\0')).u32(0x7fffffff);
        QCOMPARE(parsed(endless.text("Time").f64(9).f64(45))->timingPoints().size(), 1);
    }

    // Whatever a file says, it is read in no time.
    void size()
    {
        Bytes file;
        file.text("MAP").text("1.0").raw(QByteArray(36, '\0')).u32(17000);
        for (int i = 0; i < 17000; ++i)
            file.text("time" + QByteArray::number(i)).f64(9.5 + i * 1e-6).f64(45.5);
        file.f64(5).u32(25000);
        for (int i = 0; i < 25000; ++i)
            file.f64(9.5 + i * 1e-6).f64(45.5 + i * 1e-6);
        QElapsedTimer timer;
        timer.start();
        const auto map = parsed(file);
        QVERIFY2(timer.elapsed() < 2000, QByteArray::number(timer.elapsed()));
        QCOMPARE(map->timingDirections().size(), 17000);
        QVERIFY(map->timingDirections()[63].first > 0.0F);
        QCOMPARE(map->sectorGate(0)->centre(), map->timingPoints().value(u"time9990"_s));
        QVERIFY(!map->sectorGate(MaximumSectors));
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.map"_s);
        putFile(path, mapBytes());
        QVERIFY(QFile::resize(path, 16'000'000) && readMapFile(path, folder.path()));
        QVERIFY(QFile::resize(path, 16'000'001) && !readMapFile(path, folder.path()));
    }

    void namedPoints()
    {
        // The names' points are at 1, 2, ... degrees north.
        const auto points = [](const QStringList &names) {
            Map map;
            for (qsizetype i = 0; i < names.size(); ++i)
                map.addNamedPoint(names[i], {static_cast<double>(i + 1), 9.0});
            QString points = text(map.startPoint());
            for (auto it = map.timingPoints().begin(); it != map.timingPoints().end(); ++it)
                points += u"; %1 %2"_s.arg(it.key(), text(it.value()));
            return points;
        };
        QCOMPARE(points({u"RESTART"_s, u"xTiMe"_s}), u"1/9; xTiMe 2/9"_s);
        QCOMPARE(points({u"time"_s, u"TIME"_s, u"time"_s}), u"-; TIME 2/9; time 3/9"_s);
        QCOMPARE(points({u"time2"_s, u"time10"_s, u"Time3"_s}),
                 u"-; Time3 3/9; time10 2/9; time2 1/9"_s);
    }

    void loadsFolder()
    {
        const QTemporaryDir folder;
        putFile(folder.filePath(u"b.map"_s), mapBytes());
        putFile(folder.filePath(u"a/z.bin"_s), mapBytes());
        putFile(folder.filePath(u"c/deep/er/a"_s), mapBytes());
        putFile(folder.filePath(u".hidden.map"_s), mapBytes());
        putFile(folder.filePath(u"old.map"_s), mapBytes("MAP", "0.9"));
        MapLibrary library;
        for (const QString &path : {folder.path(), QString(folder.path() + u"//")}) {
            library.loadMaps(path);
            QStringList names;
            for (const Map *map : library.maps())
                names.append(map->name());
            QCOMPARE(names.join(u' '), u"/a/z.bin /b.map /c/deep/er/a"_s);
        }
        QCOMPARE(library.find(u"/b.map"_s), library.maps().at(1));
    }

    // What is written is read as it was; what the format has no room for is left out.
    void draftRoundTrip()
    {
        const QTemporaryDir folder;
        MapDraft draft {u"/new/x.map"_s, {{1, 2}, {1, 2.5}, {1.5, 2}}, {1, 2}, {}, 7.5};
        for (int i = 0; i < MaximumSectors; ++i)
            draft.timingPoints.append({1.25, 2.0 + 0.1 * i});
        MapDraft crowded = draft;
        crowded.timingPoints.append({9, 9});
        crowded.outline.append(QGeoCoordinate());
        const QString path = folder.filePath(u"new/x.map"_s);
        QCOMPARE(writeMapFile(crowded, path), QString());
        const auto map = readMapFile(path, folder.path());
        QVERIFY(map);
        QCOMPARE(MapDraft::of(*map), draft);
        QCOMPARE(MapDraft::of(*crowded.toMap()), draft);
        QCOMPARE(map->cornerA(), QGeoCoordinate(1, 2));
        QCOMPARE(map->cornerB(), QGeoCoordinate(1.5, 2.7));
        QVERIFY(!writeMapFile(draft, path + u"/below/a/file.map"_s).isEmpty());
        QCOMPARE(MapDraft().toMap()->isUsable(), false);
    }

    // The name goes into the session's file, which holds nothing but ASCII without harm.
    void sessionTakesName()
    {
        const auto session = sessionOf(ride(lapRide({0})));
        const auto map = lineMap(10, 680);
        map->setName(u"/Straße é.x.map"_s);
        session->setMap(map.get());
        QCOMPARE(session->circuitName(), u"Strasse e"_s);
    }
};

QTEST_GUILESS_MAIN(TestMaps)
#include "tst_maps.moc"
