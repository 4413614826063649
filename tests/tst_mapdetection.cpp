// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include <maps/detection/mapdetection.h>
#include <session/session.h>
#include <track/map.h>

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
    void candidates()
    {
        // Of maps whose start points are so many metres from the first sample, those that are
        // found.
        const auto found = [](const QString &starts) {
            Circuits circuits;
            const QStringList names = starts.split(u' ');
            for (const QString &name : names) {
                const QString kind = name == u"none" ? u"Time"_s : u"Start"_s;
                circuits.add(lineMap(10, 600, {{kind, name.toDouble()}}), name);
            }
            QStringList found;
            for (const Map *map : findCandidates(*sessionOf(ride(u"0 5000"_s)), circuits.maps))
                found.append(map->name());
            return found.join(u' ');
        };
        for (const char *all : {"1.1", "1000.9", "100.1 600.9", "600.9 100.1", "100.5 600.5 990.5"})
            QCOMPARE(found(QString::fromLatin1(all)), QString::fromLatin1(all));
        QCOMPARE(found(u"0.9"_s), u""_s);
        QCOMPARE(found(u"1001.1"_s), u""_s);
        QCOMPARE(found(u"none 300.5"_s), u"300.5"_s);
        // 500 metres apart are not clearly apart; whole metres count.
        QCOMPARE(found(u"100.9 601.1"_s), u"100.9"_s);
        QCOMPARE(found(u"601.1 100.9"_s), u"100.9"_s);
        // What counts is the map accepted last, even when it is farther away.
        QCOMPARE(found(u"100.5 990.5 600.5"_s), u"100.5 600.5"_s);
        QCOMPARE(found(u"950.5 900.5 100.5 800.5 550.5"_s), u"100.5 550.5"_s);
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

    // Where no line is near the first position: 40 m/s past an outline that begins 2 km away.
    void followsOutline()
    {
        const auto found = [](const QString &description, double outline = 3000) {
            const auto map = lineMap(10, outline, {{u"Start"_s, 1500}});
            const Points points = ride(description);
            const QList<const Map *> candidates = findCandidates(*sessionOf(points), {map.get()});
            return candidates.size() == 1 && isFound(points, *map);
        };
        QVERIFY(found(u"-2000..3200/4"_s));
        QVERIFY(!found(u"-2000..2000/4"_s)); // two thirds of a lap
        QVERIFY(!found(u"5000..-2000/4"_s)); // the other way round
        QVERIFY(!found(u"-2000..3200/0.2"_s)); // pushed
        QVERIFY(found(u"-2000..600/4 -*100 1000..3200/4"_s)); // positions lost for a while
        QVERIFY(!found(u"-2000..3200/4"_s, 90)); // no circuit
        QVERIFY(!found(u"-2000..3200/4"_s, 200000));
    }

    void choosesByLength()
    {
        // The place of the chosen one of candidates of such lengths, and the laps on it; the line
        // of one with an x is never met. The second lap is 680 metres long.
        const auto chosen = [](const QString &lengths) {
            Circuits circuits;
            const QStringList names = lengths.split(u' ', Qt::SkipEmptyParts);
            for (const QString &name : names) {
                const double north = name.endsWith(u'x') ? -700.0 : 0.0;
                circuits.add(
                    lineMap(10, QString(name).remove(u'x').toDouble(), {{u"Start"_s, north}}),
                    QString::number(circuits.maps.size() + 1));
            }
            const auto session = sessionOf(ride(lapRide({0, 0})));
            const auto before = lineMap(10, 1);
            session->setMap(before.get());
            chooseMapByLength(*session, circuits.maps);
            return u"%1 %2"_s.arg(session->map() == nullptr ? u"-"_s : session->map()->name())
                .arg(session->laps().size());
        };
        QCOMPARE(chosen(u""_s), u"- 0"_s);
        QCOMPARE(chosen(u"5000"_s), u"1 4"_s);
        QCOMPARE(chosen(u"500 700 720"_s), u"2 4"_s);
        QCOMPARE(chosen(u"690.7 690.3"_s), u"1 4"_s); // nearer by less than a metre
        QCOMPARE(chosen(u"690.2 689.7"_s), u"2 4"_s);
        QCOMPARE(chosen(u"200000 300000"_s), u"- 0"_s); // nothing within 100 km
        // Without laps on the first there is no length: it is passed over.
        QCOMPARE(chosen(u"680x 5000"_s), u"2 4"_s);
        QCOMPARE(chosen(u"680x 700 500"_s), u"2 4"_s);
        QCOMPARE(chosen(u"680x 690x 100x"_s), u"3 0"_s);
        // The one whose length comes nearest gives no complete lap, but another does.
        QCOMPARE(chosen(u"700 685x"_s), u"1 4"_s);
        QCOMPARE(chosen(u"5000 6000x 700"_s), u"3 4"_s);
        QCOMPARE(chosen(u"900 685x"_s), u"2 0"_s);
    }
};

QTEST_GUILESS_MAIN(TestMapDetection)
#include "tst_mapdetection.moc"
