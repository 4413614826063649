// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include <maps/map.h>
#include <maps/mapdetection.h>
#include <session/session.h>

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
    void candidates_data();
    void candidates();
    void firstPosition_data();
    void firstPosition();
    void choosesByLength_data();
    void choosesByLength();
};

void TestMapDetection::candidates_data()
{
    QTest::addColumn<QString>("starts"); // metres from the first sample to each map's start point
    QTest::addColumn<QString>("found");
    const auto row = [](const char *starts, const char *found) {
        QTest::newRow(starts) << QString::fromLatin1(starts) << QString::fromLatin1(found);
    };
    row("", "");
    row("0.4", "");
    row("0.9", "");
    row("1.1", "1.1");
    row("999.9", "999.9");
    row("1000.9", "1000.9");
    row("1001.1", "");
    row("none", "");
    row("none 300.5", "300.5");
    // 500 metres apart are not clearly apart; whole metres count.
    row("300.5 700.5", "300.5 700.5");
    row("100.9 600.1", "100.9 600.1");
    row("100.1 600.9", "100.1 600.9");
    row("100.9 601.1", "100.9");
    row("600.9 100.1", "600.9 100.1");
    row("601.1 100.9", "100.9");
    row("100.5 900.5", "100.5");
    row("900.5 100.5", "100.5");
    // What counts is the map accepted last, even when it is farther away.
    row("100.5 600.5 990.5", "100.5 600.5 990.5");
    row("900.5 500.5 100.5", "900.5 500.5 100.5");
    row("100.5 990.5 600.5", "100.5 600.5");
    row("950.5 900.5 100.5 800.5 550.5", "100.5 550.5");
    row("300.5 300.5", "300.5 300.5");
}

void TestMapDetection::candidates()
{
    QFETCH(const QString, starts);
    const QStringList names = starts.split(u' ', Qt::SkipEmptyParts);
    Circuits circuits;
    for (const QString &name : names) {
        const QString kind = name == u"none" ? u"Time"_s : u"Start"_s;
        circuits.add(lineMap(10, 600, {{kind, name.toDouble()}}), name);
    }
    QStringList found;
    for (const Map *map : findCandidates(*sessionOf(ride(u"0 5000"_s)), circuits.maps))
        found.append(map->name());
    QTEST(found.join(u' '), "found");
}

void TestMapDetection::firstPosition_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<bool>("found");
    Points half = ride(u"0 0"_s);
    half[0].dataCoordX = NoFixCoordinate;
    Points otherHalf = ride(u"9000 0"_s);
    otherHalf[0].dataCoordY = NoFixCoordinate;
    Points wrong = ride(u"0 0"_s);
    wrong[0].dataCoordX = 181.0;
    QTest::newRow("no samples") << Points() << false;
    QTest::newRow("the first") << ride(u"0 9000"_s) << true;
    QTest::newRow("not the second") << ride(u"9000 0"_s) << false;
    QTest::newRow("after samples without") << ride(u"-*3 0 9000"_s) << true;
    QTest::newRow("none") << ride(u"-*3"_s) << false;
    QTest::newRow("without a longitude") << half << true;
    QTest::newRow("without a latitude") << otherHalf << true;
    QTest::newRow("nowhere on Earth") << wrong << false;
}

void TestMapDetection::firstPosition()
{
    QFETCH(const Points, points);
    const auto map = lineMap(10, 600, {{u"Start"_s, 200}});
    QTEST(!findCandidates(*sessionOf(points), {map.get()}).isEmpty(), "found");
}

void TestMapDetection::choosesByLength_data()
{
    QTest::addColumn<QString>("lengths"); // of the candidates; "x" when the line is never met
    QTest::addColumn<QString>("chosen"); // its place in the list, counted from 1
    QTest::addColumn<int>("laps");
    QTest::newRow("none") << u""_s << u""_s << 0;
    QTest::newRow("one, however long") << u"5000"_s << u"1"_s << 4;
    QTest::newRow("one without laps") << u"680x"_s << u"1"_s << 0;
    // The second lap is 680 metres long.
    QTest::newRow("the nearest") << u"500 700 720"_s << u"2"_s << 4;
    QTest::newRow("the first is nearest") << u"681 700 500"_s << u"1"_s << 4;
    QTest::newRow("the last is nearest") << u"500 900 679"_s << u"3"_s << 4;
    QTest::newRow("less than a metre nearer") << u"690.7 690.3"_s << u"1"_s << 4;
    QTest::newRow("nearer by a whole metre") << u"690.2 689.7"_s << u"2"_s << 4;
    QTest::newRow("nothing within 100 km") << u"200000 300000"_s << u""_s << 0;
    // Without laps on the first there is no length: it is passed over.
    QTest::newRow("first without laps") << u"680x 5000"_s << u"2"_s << 4;
    QTest::newRow("then by length again") << u"680x 700 500"_s << u"2"_s << 4;
    QTest::newRow("none with laps") << u"680x 690x 100x"_s << u"3"_s << 0;
}

void TestMapDetection::choosesByLength()
{
    QFETCH(const QString, lengths);
    QFETCH(const QString, chosen);
    QFETCH(const int, laps);
    const QStringList names = lengths.split(u' ', Qt::SkipEmptyParts);
    Circuits circuits;
    for (const QString &name : names) {
        const double north = name.endsWith(u'x') ? -700.0 : 0.0;
        const double length = QString(name).remove(u'x').toDouble();
        circuits.add(lineMap(10, length, {{u"Start"_s, north}}),
                     QString::number(circuits.maps.size() + 1));
    }
    const auto session = sessionOf(ride(lapRide({0, 0})));
    const auto before = lineMap(10, 1);
    session->setMap(before.get());
    chooseMapByLength(*session, circuits.maps);
    QCOMPARE(session->map() == nullptr ? QString() : session->map()->name(), chosen);
    QCOMPARE(static_cast<int>(session->laps().size()), laps);
    QCOMPARE(circuits.maps.size(), names.size());
}

QTEST_GUILESS_MAIN(TestMapDetection)
#include "tst_mapdetection.moc"
