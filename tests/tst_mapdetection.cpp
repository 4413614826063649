// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTemporaryDir>
#include <QTest>

#include <maps/detection/mapdetection.h>
#include <session/session.h>
#include <track/map.h>
#include <track/mapdraft.h>
#include <track/mapfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// Maps of the circuits that a row names, owned by it.
struct Circuits
{
    void add(std::unique_ptr<Map> map, const QString &name)
    {
        map->setName(name);
        maps.append(map.get());
        owned.push_back(std::move(map));
    }

    std::vector<std::unique_ptr<Map>> owned;
    QList<const Map *> maps;
};

} // namespace

class TestMapDetection final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Of maps whose start points are so many metres from the first sample, those that are found.
    void candidates_data()
    {
        QTest::addColumn<QString>("starts");
        QTest::addColumn<QString>("found");
        for (const char *all : {"1.1", "1000.9", "100.1 600.9", "600.9 100.1", "100.5 600.5 990.5"})
            QTest::newRow(all) << QString::fromLatin1(all) << QString::fromLatin1(all);
        QTest::newRow("less than a metre") << u"0.9"_s << u""_s;
        QTest::newRow("too far") << u"1001.1"_s << u""_s;
        QTest::newRow("no start point") << u"none 300.5"_s << u"300.5"_s;
        // 500 metres apart are not clearly apart; whole metres count.
        QTest::newRow("clearly farther") << u"100.9 601.1"_s << u"100.9"_s;
        QTest::newRow("clearly closer") << u"601.1 100.9"_s << u"100.9"_s;
        // What counts is the map accepted last, even when it is farther away.
        QTest::newRow("accepted last") << u"100.5 990.5 600.5"_s << u"100.5 600.5"_s;
        QTest::newRow("many") << u"950.5 900.5 100.5 800.5 550.5"_s << u"100.5 550.5"_s;
    }
    void candidates()
    {
        QFETCH(const QString, starts);
        Circuits circuits;
        const QStringList names = starts.split(u' ');
        for (const QString &name : names) {
            const QString kind = name == u"none" ? u"Time"_s : u"Start"_s;
            circuits.add(lineMap(10, 600, {{kind, name.toDouble()}}), name);
        }
        QStringList found;
        for (const Map *map : findCandidates(*sessionOf(ride(u"0 5000"_s)), circuits.maps))
            found.append(map->name());
        QTEST(found.join(u' '), "found");
    }

    void firstPosition()
    {
        const auto found = [](const Points &points) {
            const auto map = lineMap(10, 600, {{u"Start"_s, 200}});
            return !findCandidates(*sessionOf(points), {map.get()}).isEmpty();
        };
        QVERIFY(found(ride(u"-*3 0 9000"_s)));
        QVERIFY(!found(ride(u"9000 0"_s)));
        Points half = ride(u"9000 0"_s);
        half[0].dataCoordX = NoFixCoordinate;
        QVERIFY(found(half));
        half[0].dataCoordX = 181.0; // nowhere on Earth
        QVERIFY(!found(half));
    }

    // Where no line is near the first position: past an outline that begins 2 km away.
    void followsOutline_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<double>("outline");
        QTest::addColumn<bool>("isFound");
        const auto row = [](const char *name, const QString &ride, double outline, bool isFound) {
            QTest::newRow(name) << ride << outline << isFound;
        };
        row("40 m/s", u"-2000..3200/4"_s, 3000, true);
        row("two thirds of a lap", u"-2000..2000/4"_s, 3000, false);
        row("the other way round", u"5000..-2000/4"_s, 3000, false);
        row("pushed", u"-2000..3200/0.2"_s, 3000, false);
        row("lost for a while", u"-2000..600/4 -*100 1000..3200/4"_s, 3000, true);
        row("no circuit", u"-2000..3200/4"_s, 90, false);
        row("too long for one", u"-2000..3200/4"_s, 200000, false);
    }
    void followsOutline()
    {
        QFETCH(const QString, description);
        QFETCH(const double, outline);
        const auto map = lineMap(10, outline, {{u"Start"_s, 1500}});
        const Points points = ride(description);
        const QList<const Map *> candidates = findCandidates(*sessionOf(points), {map.get()});
        QTEST(candidates.size() == 1 && zuno::isFound(points, *map), "isFound");
    }

    // The place of the chosen one of candidates of such lengths, the laps on it and the best of
    // them; the line of one with an x is never met. The second lap is 680 metres long.
    void choosesByLength_data()
    {
        QTest::addColumn<QString>("lengths");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("none") << u""_s << u"- 0"_s;
        QTest::newRow("only one") << u"5000"_s << u"1 4"_s;
        QTest::newRow("nearest") << u"500 700 720"_s << u"2 4, best 1"_s;
        QTest::newRow("equally near") << u"700 690 690"_s << u"2 4, best 1"_s;
        QTest::newRow("nearer by less than a metre") << u"690.7 690.3"_s << u"1 4, best 1"_s;
        QTest::newRow("nearer by a metre") << u"690.2 689.7"_s << u"2 4, best 1"_s;
        QTest::newRow("nothing within 100 km") << u"200000 300000"_s << u"- 0"_s;
        // Without laps on the first there is no length: it is passed over.
        QTest::newRow("first never met") << u"680x 5000"_s << u"2 4"_s;
        QTest::newRow("shortest of the others") << u"680x 700 500"_s << u"2 4, best 1"_s;
        QTest::newRow("never met") << u"680x 690x 100x"_s << u"3 0"_s;
        // The one whose length comes nearest gives no complete lap, but another does.
        QTest::newRow("nearest without laps") << u"700 685x"_s << u"1 4, best 1"_s;
        QTest::newRow("third with laps") << u"5000 6000x 700"_s << u"3 4, best 1"_s;
        QTest::newRow("none with laps") << u"900 685x"_s << u"2 0"_s;
    }
    void choosesByLength()
    {
        QFETCH(const QString, lengths);
        Circuits circuits;
        const QStringList names = lengths.split(u' ', Qt::SkipEmptyParts);
        for (const QString &name : names) {
            const double north = name.endsWith(u'x') ? -700.0 : 0.0;
            circuits.add(lineMap(10, QString(name).remove(u'x').toDouble(), {{u"Start"_s, north}}),
                         QString::number(circuits.maps.size() + 1));
        }
        const auto session = sessionOf(ride(lapRide({0, 0})));
        const auto before = lineMap(10, 1);
        session->setMap(before.get());
        chooseMapByLength(*session, circuits.maps);
        QString chosen = session->map() == nullptr ? u"-"_s : session->map()->name();
        chosen += u" %1"_s.arg(session->laps().size());
        if (session->results().bestLap > 0)
            chosen += u", best %1"_s.arg(session->results().bestLap);
        QTEST(chosen, "chosen");
    }

    // What the rider has chosen counts, as long as there is such a map.
    void storedChoice()
    {
        const QTemporaryDir folder;
        for (const QString &name : {u"a.map"_s, u"b.map"_s})
            QCOMPARE(writeMapFile(MapDraft::of(*lineMap(10, 600, {{u"Start"_s, 100}})),
                                  folder.filePath(name)),
                     QString());
        MapLibrary maps;
        maps.loadMaps(folder.path());
        const auto session = sessionOf(ride(u"0 5000"_s));
        const auto names = [&](const QString &choice) {
            const MapCandidates candidates = candidatesOf(*session, maps, choice);
            QString names = candidates.isStored ? u"stored"_s : u"found"_s;
            for (const Map *map : candidates.maps)
                names += map->name();
            return names;
        };
        QCOMPARE(names(u"/b.map"_s), u"stored/b.map"_s);
        QCOMPARE(names(u"/c.map"_s), u"found/a.map/b.map"_s);
        QCOMPARE(names({}), u"found/a.map/b.map"_s);
    }
};

QTEST_GUILESS_MAIN(TestMapDetection)
#include "tst_mapdetection.moc"
