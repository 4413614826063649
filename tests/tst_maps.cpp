// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <maps/mapfile.h>
#include <session/bytereader.h>
#include <session/session.h>

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

QString text(Map::Direction direction)
{
    return u"%1/%2"_s.arg(static_cast<double>(direction.first))
        .arg(static_cast<double>(direction.second));
}

} // namespace

class TestMaps final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutAtEveryLength();
    void refuses();
    void parses();
    void counts_data();
    void counts();
    void namedPoints_data();
    void namedPoints();
    void directions();
    void length();
    void loadsFolder();
    void sessionTakesName();
};

void TestMaps::cutAtEveryLength()
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

void TestMaps::refuses()
{
    for (const char *version : {"1.0", "1.0.0.0", "2", "10"})
        QVERIFY2(parsed(mapBytes("MAP", version)), version);
    for (const char *version : {"1", "0.9", "", "1."})
        QVERIFY2(!parsed(mapBytes("MAP", version)), version);
    for (const char *magic : {"", "MA", "MAP1", "map"})
        QVERIFY2(!parsed(mapBytes(magic)), magic);
}

void TestMaps::parses()
{
    const auto map = parsed(mapBytes() + "and more");
    QCOMPARE(text(map->cornerA()), u"1/3"_s);
    QCOMPARE(text(map->cornerB()), u"2/4"_s);
    QCOMPARE(map->mapNumber(), 77);
    QCOMPARE(map->namedPointCount(), 4);
    QCOMPARE(map->trackPointCount(), 3);
    QCOMPARE(map->gateSize(), 12.5);
    QCOMPARE(text(map->startPoint()), u"45.5/9.5"_s);
    QCOMPARE(QStringList(map->timingPoints().keys()), (QStringList {u"Time 2"_s, u"time 1"_s}));
    QCOMPARE(text(map->trackPoints().last()), u"45/11"_s);
}

void TestMaps::counts_data()
{
    QTest::addColumn<quint32>("outline");
    QTest::addColumn<int>("held"); // outline records
    QTest::addColumn<int>("trackPoints");
    QTest::newRow("negative") << 0x80000000U << 2 << 0;
    QTest::newRow("more held") << 1U << 2 << 1;
    QTest::newRow("a small outline cut") << 1000U << 1 << 1000;
    QTest::newRow("a large one cut to a bit") << 1001U << 1 << 1;
    QTest::newRow("not quite half") << 1001U << 500 << 500;
    QTest::newRow("half") << 1002U << 501 << 1002;
    QTest::newRow("more than half") << 1001U << 501 << 1001;
    QTest::newRow("a huge outline") << 0x7fffffffU << 3 << 3;
}

void TestMaps::counts()
{
    QFETCH(const quint32, outline);
    QFETCH(const int, held);
    Bytes head;
    head.text("MAP").text("1.0").f64(0).f64(0).f64(0).f64(0).u32(0);
    // Named points are asked for only as long as there is something to read.
    Bytes endless = head;
    QCOMPARE(parsed(endless.u32(0x7fffffff).text("Time").f64(9).f64(45))->timingPoints().size(), 1);
    head.u32(0xffffffffU).f64(5).u32(outline);
    for (int i = 0; i < held; ++i)
        head.f64(9).f64(45);
    const auto map = parsed(head);
    QTEST(static_cast<int>(map->trackPoints().size()), "trackPoints");
    QCOMPARE(map->trackPointCount(), static_cast<qint32>(outline));
}

void TestMaps::namedPoints_data()
{
    QTest::addColumn<QStringList>("names"); // at 1, 2, ... degrees north
    QTest::addColumn<QString>("points");
    const auto row = [](const QStringList &names, const char *points) {
        QTest::addRow("%s", qPrintable(names.join(u' '))) << names << QString::fromLatin1(points);
    };
    row({u"Stop"_s}, "start -");
    row({u"Start/Time 1"_s}, "start 1/9; Start/Time 1 1/9");
    row({u"RESTART"_s, u"xTiMe"_s}, "start 1/9; xTiMe 2/9");
    row({u"start"_s, u"Start"_s}, "start 2/9");
    row({u"time"_s, u"TIME"_s, u"time"_s}, "start -; TIME 2/9; time 3/9");
    row({u"time2"_s, u"time10"_s, u"Time3"_s}, "start -; Time3 3/9; time10 2/9; time2 1/9");
}

void TestMaps::namedPoints()
{
    QFETCH(const QStringList, names);
    Map map;
    for (qsizetype i = 0; i < names.size(); ++i)
        map.addNamedPoint(names[i], {static_cast<double>(i + 1), 9.0});
    QString points = u"start "_s + text(map.startPoint());
    for (auto it = map.timingPoints().begin(); it != map.timingPoints().end(); ++it)
        points += u"; %1 %2"_s.arg(it.key(), text(it.value()));
    QTEST(points, "points");
    QCOMPARE(map.isUsable(), !points.startsWith(u"start -"));
}

void TestMaps::directions()
{
    // The outline goes 0, 1000, 3000 and back to 0 metres; the last point begins no segment. On a
    // point, nearer to one, the turn, within 10 km and not, of two at the same place the first.
    const QList<std::pair<double, int>> directions {{1000, 2000},  {501, 2000},    {499, 1000},
                                                    {2900, -3000}, {12999, -3000}, {13001, 0},
                                                    {-5, 1000}};
    for (const auto &[north, direction] : directions) {
        Map map;
        for (const double point : {0.0, 1000.0, 3000.0, 0.0, -9000.0})
            map.addTrackPoint(place(point));
        map.addNamedPoint(u"start"_s, place(north));
        map.addNamedPoint(u"time 1"_s, place(north));
        map.addNamedPoint(u"time 2"_s, place(50000));
        map.computeGeometry();
        map.computeGeometry(); // starts afresh each time
        const double degrees = place(direction).latitude() - place(0).latitude();
        const QString expected = text(Map::Direction(static_cast<float>(degrees), 0.0F));
        QCOMPARE(text(map.startDirection()), expected);
        QCOMPARE(map.timingDirections().size(), 2);
        QCOMPARE(text(map.timingDirections()[0]), expected);
        QCOMPARE(text(map.timingDirections()[1]), u"0/0"_s);
    }
}

void TestMaps::length()
{
    Map map;
    map.addNamedPoint(u"Start"_s, place(0));
    map.computeGeometry();
    QCOMPARE(map.length(), 0.0);
    QVERIFY(map.timingDirections().isEmpty());
    for (const double north : {0.0, 400.0, 100.0})
        map.addTrackPoint(place(north));
    map.addTrackPoint(place(100.0, 50.0));
    map.computeGeometry();
    QVERIFY2(std::abs(map.length() - 750.0) < 0.01, qPrintable(QString::number(map.length())));
}

void TestMaps::loadsFolder()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"a"_s) && QDir(folder.path()).mkpath(u"c/deep/er"_s));
    putFile(folder.filePath(u"b.map"_s), mapBytes());
    putFile(folder.filePath(u"a/z.bin"_s), mapBytes());
    putFile(folder.filePath(u"c/deep/er/a"_s), mapBytes());
    putFile(folder.filePath(u".hidden.map"_s), mapBytes());
    putFile(folder.filePath(u"readme.txt"_s), "MAPs of all circuits");
    putFile(folder.filePath(u"old.map"_s), mapBytes("MAP", "0.9"));
    putFile(folder.filePath(u"empty.map"_s), "");
    const auto namesOf = [](const MapLibrary &library) {
        QStringList names;
        for (const Map *map : library.maps())
            names.append(map->name());
        return names.join(u' ');
    };
    MapLibrary library;
    for (const QString &path : {folder.path(), QString(folder.path() + u"//")}) {
        library.loadMaps(path);
        QCOMPARE(namesOf(library), u"/a/z.bin /b.map /c/deep/er/a"_s);
    }
    QCOMPARE(library.find(u"/b.map"_s), library.maps().at(1));
    QCOMPARE(library.find(u"/B.map"_s), nullptr);
    QCOMPARE(readMapFile(folder.filePath(u"b.map"_s), u"b"_s)->name(),
             folder.filePath(u"b.map"_s).remove(u'b'));
    QVERIFY(!readMapFile(folder.filePath(u"none"_s), folder.path()));
    library.loadMaps(folder.filePath(u"none"_s));
    QVERIFY(library.maps().isEmpty());
}

// The name goes into the session's file, which holds nothing but ASCII without harm.
void TestMaps::sessionTakesName()
{
    const auto session = sessionOf(ride(lapRide({0})));
    int changes = 0;
    QObject::connect(session.get(), &Session::mapInfoChanged, [&changes] { ++changes; });
    const auto map = lineMap(10, 680);
    map->setName(u"/Straße é.x.map"_s);
    session->setMap(map.get());
    QCOMPARE(session->circuitName(), u"Strasse e"_s);
    QCOMPARE(session->laps().size(), 3U);
    session->setCircuitName(u"mine"_s);
    session->setMap(map.get());
    QCOMPARE(session->circuitName(), u"mine"_s);
    QCOMPARE(changes, 1);
    session->setMap(nullptr);
    QCOMPARE(session->circuitName(), QString());
    QCOMPARE(changes, 2);
}

QTEST_GUILESS_MAIN(TestMaps)
#include "tst_maps.moc"
