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

void write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the test's file");
}

} // namespace

class TestMaps final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutAtEveryLength();
    void refuses_data();
    void refuses();
    void parses();
    void counts_data();
    void counts();
    void namedPoints_data();
    void namedPoints();
    void directions_data();
    void directions();
    void length();
    void displayName_data();
    void displayName();
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

void TestMaps::refuses_data()
{
    QTest::addColumn<QByteArray>("magic");
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<bool>("accepted");
    const QByteArray good = "MAP";
    for (const char *version : {"1.0", "1.0.0.0", "1.0.2", "2", "10", "1.1"})
        QTest::addRow("version %s", version) << good << QByteArray(version) << true;
    for (const char *version : {"1", "0.9", "", "1."})
        QTest::addRow("version '%s'", version) << good << QByteArray(version) << false;
    for (const char *magic : {"", "MA", "MAP1", "map", "RA1"})
        QTest::addRow("magic '%s'", magic) << QByteArray(magic) << QByteArray("1.0") << false;
}

void TestMaps::refuses()
{
    QFETCH(const QByteArray, magic);
    QFETCH(const QByteArray, version);
    QTEST(parsed(mapBytes(magic, version)) != nullptr, "accepted");
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
    QVERIFY(map->isUsable());
    QVERIFY(map->name().isEmpty());
}

void TestMaps::counts_data()
{
    QTest::addColumn<quint32>("named");
    QTest::addColumn<quint32>("outline");
    QTest::addColumn<int>("held"); // outline records
    QTest::addColumn<int>("trackPoints");
    QTest::newRow("none") << 0U << 0U << 0 << 0;
    QTest::newRow("negative") << 0xffffffffU << 0x80000000U << 2 << 0;
    QTest::newRow("more held") << 0U << 1U << 2 << 1;
    QTest::newRow("a small outline cut") << 0U << 1000U << 1 << 1000;
    QTest::newRow("a large one cut to a bit") << 0U << 1001U << 1 << 1;
    QTest::newRow("not quite half") << 0U << 1001U << 500 << 500;
    QTest::newRow("half") << 0U << 1002U << 501 << 1002;
    QTest::newRow("more than half") << 0U << 1001U << 501 << 1001;
    QTest::newRow("a huge outline") << 0U << 0x7fffffffU << 3 << 3;
}

void TestMaps::counts()
{
    QFETCH(const quint32, named);
    QFETCH(const quint32, outline);
    QFETCH(const int, held);
    Bytes file;
    file.text("MAP").text("1.0").f64(0).f64(0).f64(0).f64(0).u32(0).u32(named);
    file.f64(5).u32(outline);
    for (int i = 0; i < held; ++i)
        file.f64(9).f64(45);
    const auto map = parsed(file);
    QTEST(static_cast<int>(map->trackPoints().size()), "trackPoints");
    QCOMPARE(map->namedPointCount(), static_cast<qint32>(named));
    QCOMPARE(map->trackPointCount(), static_cast<qint32>(outline));

    // Named points are asked for only as long as there is something to read.
    Bytes endless;
    endless.text("MAP").text("1.0").f64(0).f64(0).f64(0).f64(0).u32(0).u32(0x7fffffff);
    QCOMPARE(parsed(endless.text("Time").f64(9).f64(45))->timingPoints().size(), 1);
}

void TestMaps::namedPoints_data()
{
    QTest::addColumn<QStringList>("names"); // at 1, 2, ... degrees north
    QTest::addColumn<QString>("points");
    QTest::newRow("none") << QStringList() << u"start -"_s;
    QTest::newRow("neither") << QStringList {u"Stop"_s} << u"start -"_s;
    QTest::newRow("both") << QStringList {u"Start/Time 1"_s} << u"start 1/9; Start/Time 1 1/9"_s;
    QTest::newRow("whatever the case")
        << QStringList {u"RESTART"_s, u"xTiMe"_s} << u"start 1/9; xTiMe 2/9"_s;
    QTest::newRow("the later start") << QStringList {u"start"_s, u"Start"_s} << u"start 2/9"_s;
    QTest::newRow("a name again") << QStringList {u"time"_s, u"TIME"_s, u"time"_s}
                                  << u"start -; TIME 2/9; time 3/9"_s;
    QTest::newRow("ordered as text") << QStringList {u"time2"_s, u"time10"_s, u"Time3"_s}
                                     << u"start -; Time3 3/9; time10 2/9; time2 1/9"_s;
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

void TestMaps::directions_data()
{
    QTest::addColumn<double>("north"); // of the point whose direction is asked for
    QTest::addColumn<int>("direction"); // in metres north
    // The outline goes 0, 1000, 3000 and back to 0 metres; the last point begins no segment.
    QTest::newRow("on a point") << 1000.0 << 2000;
    QTest::newRow("nearer to the second") << 501.0 << 2000;
    QTest::newRow("nearer to the first") << 499.0 << 1000;
    QTest::newRow("the turn") << 2900.0 << -3000;
    QTest::newRow("10 km away, nearly") << 12999.0 << -3000;
    QTest::newRow("more than 10 km away") << 13001.0 << 0;
    QTest::newRow("of two at the same place, the first") << -5.0 << 1000;
}

void TestMaps::directions()
{
    QFETCH(const double, north);
    QFETCH(const int, direction);
    Map map;
    map.addNamedPoint(u"start"_s, place(north));
    map.addNamedPoint(u"time 1"_s, place(north));
    map.addNamedPoint(u"time 2"_s, place(50000));
    for (const double point : {0.0, 1000.0, 3000.0, 0.0, -9000.0})
        map.addTrackPoint(place(point));
    map.computeGeometry();
    map.computeGeometry(); // starts afresh each time
    const double degrees = place(direction).latitude() - place(0).latitude();
    const QString expected = text(Map::Direction(static_cast<float>(degrees), 0.0F));
    QCOMPARE(text(map.startDirection()), expected);
    QCOMPARE(map.timingDirections().size(), 2);
    QCOMPARE(text(map.timingDirections()[0]), expected);
    QCOMPARE(text(map.timingDirections()[1]), u"0/0"_s);
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

void TestMaps::displayName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("file") << u"/Brno.map"_s << u"Brno"_s;
    QTest::newRow("in a folder") << u"/it.aly/Mugello.map"_s << u"Mugello"_s;
    QTest::newRow("up to the first point") << u"/Brno v1.2.map"_s << u"Brno v1"_s;
    QTest::newRow("no extension") << u"/Brno"_s << u"Brno"_s;
    QTest::newRow("no name") << u""_s << u""_s;
}

void TestMaps::displayName()
{
    QFETCH(const QString, name);
    Map map;
    map.setName(name);
    QTEST(map.displayName(), "shown");
}

void TestMaps::loadsFolder()
{
    const QTemporaryDir folder;
    write(folder.filePath(u"b.map"_s), mapBytes());
    write(folder.filePath(u"a/z.bin"_s), mapBytes());
    write(folder.filePath(u"c/deep/er/a"_s), mapBytes());
    write(folder.filePath(u".hidden.map"_s), mapBytes());
    write(folder.filePath(u"readme.txt"_s), "MAPs of all circuits");
    write(folder.filePath(u"old.map"_s), mapBytes("MAP", "0.9"));
    write(folder.filePath(u"empty.map"_s), "");
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
