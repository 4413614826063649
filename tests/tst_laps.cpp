// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <numbers>

#include <QTest>

#include <maps/map.h>
#include <session/laptimes.h>
#include <session/session.h>
#include <session/trace.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

using Numbers = QList<quint8>;

/// "Time 0@100 Finish@0" as named points beside the start point at 0.
QList<NamedPlace> places(const QString &description)
{
    QList<NamedPlace> places {{u"Start"_s, 0.0}};
    for (const QString &point : description.split(u';', Qt::SkipEmptyParts))
        places.append({point.section(u'@', 0, 0), point.section(u'@', 1).toDouble()});
    return places;
}

/// A session cut into laps.
struct Cut
{
    Cut(const Points &points, double gate, double length, const QString &timing = {},
        const Numbers &invalid = {}, qint64 whole = 1000000)
        : map(lineMap(gate, length, places(timing)))
        , session(sessionOf(points, whole))
    {
        session->setInvalidLaps(invalid);
        session->setMap(map.get());
    }
    [[nodiscard]] const Lap &lap(std::size_t i) const { return *session->laps().at(i); }

    std::unique_ptr<Map> map;
    std::unique_ptr<Session> session;
};

/// "1 0-440; 2 440-3940 cb": number, first and last time stamp; complete, best, invalid (x).
QString lapsText(const Session &session)
{
    QStringList laps;
    for (const auto &lap : session.laps()) {
        QString text = u"%1 %2-%3 "_s.arg(lap->lapNumber())
                           .arg(lap->points().front().dataTimeStamp)
                           .arg(lap->points().back().dataTimeStamp);
        text += lap->isComplete() ? u"c" : u"";
        text += lap->isBest() ? u"b" : u"";
        text += lap->isValid() ? u"" : u"x";
        laps.append(text.trimmed());
    }
    return laps.join(u"; "_s);
}

/// The sector times of each lap, a star at the best: "- - | 1000* - | 1000 1200*".
QString sectorsText(const Session &session)
{
    QStringList laps;
    for (const auto &lap : session.laps()) {
        QStringList times;
        for (int sector = 0; sector < session.map()->timingPoints().size(); ++sector) {
            const qint32 time = lap->sectorTime(sector);
            times.append(time == -1
                             ? u"-"_s
                             : QString::number(time) + (lap->isBestSector(sector) ? u"*" : u""));
        }
        laps.append(times.join(u' '));
    }
    return laps.join(u" | "_s);
}

template<typename Value>
QString orDash(const std::optional<Value> &value)
{
    return value ? QString::number(static_cast<double>(*value)) : u"-"_s;
}

void addReading(PointAcquisition &point, QChar channel, float value)
{
    const Reading reading {1, value};
    if (channel == u'f')
        point.addSuspension1(&reading, 1);
    else
        point.addSuspension2(&reading, 1);
}

/// Sets channels of points: "s5=200 f7=3.5" makes the speed of the sixth 200 and adds a front
/// reading to the eighth; a is the computed acceleration, l the lean angle, r a rear reading.
void setChannels(Points &points, const QString &description)
{
    for (const QString &setting : description.split(u' ', Qt::SkipEmptyParts)) {
        PointAcquisition &point = points.at(setting.section(u'=', 0, 0).mid(1).toUInt());
        const double value = setting.section(u'=', 1).toDouble();
        const QChar channel = setting.front();
        if (channel == u's')
            point.dataSpeed = value;
        else if (channel == u'a')
            point.dataAccelXPHComputed = value;
        else if (channel == u'l')
            point.dataAngle = value;
        else
            addReading(point, channel, static_cast<float>(value));
    }
}

constexpr double Longer = 680.0 / 0.9;
constexpr double Shorter = 680.0 / 1.1;

} // namespace

class TestLaps final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cuts_data();
    void cuts();
    void gates_data();
    void gates();
    void exactlyATenth();
    void gaps_data();
    void gaps();
    void sectors_data();
    void sectors();
    void circles();
    void crossing_data();
    void crossing();
    void stampsWrap();
    void wholeSamplesOnly();
    void withoutUsableMap();
    void validity();
    void figures_data();
    void figures();
    void turns_data();
    void turns();
    void marks_data();
    void marks();
    void times_data();
    void times();
};

void TestLaps::cuts_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<double>("length");
    QTest::addColumn<Numbers>("invalid");
    QTest::addColumn<QString>("laps");
    const auto row = [](const char *name, const QString &description, const char *laps,
                        double length = 680.0, const Numbers &invalid = {}) {
        QTest::newRow(name) << description << length << invalid << QString::fromLatin1(laps);
    };
    row("no samples", u""_s, "");
    row("never near", u"-104..-24/10 104 204"_s, "");
    row("one pass", u"-44.05..45.95/10"_s, "1 0-440 b; 2 440-900");
    row("a sample on the line", u"-20..20/10"_s, "1 0-200 b; 2 200-400");
    row("nearest behind the line", u"-16.05..13.95/10"_s, "1 0-160 b; 2 160-300");
    row("turned before the line", u"-25.05..-5.05/10 -5.05..-25.05/10"_s, "1 0-249 b; 2 249-500");
    row("at the last sample", u"-24.05..-4.05/10"_s, "1 0-200 b; 2 200-200");
    row("at the first sample", u"-4.05..25.95/10"_s, "1 40-40 b; 2 40-300");
    row("9 samples later", u"-20 -1 50*8 -1 50"_s, "1 0-101 b; 2 101-1100");
    row("10 samples later", u"-20 -1 50*9 -1 50"_s, "1 0-101 b; 2 101-1101; 3 1101-1200");
    row("11 samples later", u"-20 -1 50*10 -1 50"_s, "1 0-101 b; 2 101-1201; 3 1201-1300");

    const QString two = lapRide({0, 0});
    const char *allComplete = "1 0-440; 2 440-3940 cb; 3 3940-7440 c; 4 7440-7900";
    const char *noneComplete = "1 0-440 b; 2 440-3940; 3 3940-7440; 4 7440-7900";
    row("equal times", two, allComplete);
    row("a tenth too long, less", two, allComplete, Shorter + 0.001);
    row("a tenth too long, more", two, noneComplete, Shorter - 0.001);
    row("a tenth too short, less", two, allComplete, Longer - 0.001);
    row("a tenth too short, more", two, noneComplete, Longer + 0.001);
    row("the first and the last as long", two, noneComplete, 45.0);
    row("a map without outline", two, noneComplete, 0.0);
    row("the fastest is not the first", lapRide({1, 0, 2}),
        "1 0-440; 2 440-4040 c; 3 4040-7540 cb; 4 7540-11240 c; 5 11240-11700");
    row("the fastest is thrown out", lapRide({1, 0, 2}),
        "1 0-440; 2 440-4040 cb; 3 4040-7540 cx; 4 7540-11240 c; 5 11240-11700", 680.0, {3});
    // The last lap is never complete, so throwing it out has no meaning.
    row("all thrown out", two, "1 0-440 bx; 2 440-3940 cx; 3 3940-7440 cx; 4 7440-7900", 680.0,
        {1, 2, 3, 4, 5});
}

void TestLaps::cuts()
{
    QFETCH(const QString, description);
    QFETCH(const double, length);
    QFETCH(const Numbers, invalid);
    const Cut cut(ride(description), 10, length, {}, invalid);
    QTEST(lapsText(*cut.session), "laps");
    quint32 sum = 0;
    for (const auto &lap : cut.session->laps()) {
        const Points &points = lap->points();
        const quint32 time = points.back().dataTimeStamp - points.front().dataTimeStamp;
        sum += time;
        QCOMPARE(lap->lapTime(), static_cast<qint32>(time));
        QCOMPARE(lap->cumulatedTime(), sum);
    }
}

void TestLaps::gates_data()
{
    QTest::addColumn<double>("direction"); // of the gate's size from the distance of the sample
    QTest::addColumn<bool>("met");
    QTest::newRow("smaller") << 0.0 << false;
    QTest::newRow("equal") << 1.0 << false;
    QTest::newRow("larger") << 100.0 << true;
}

// The line is met within twice the gate's size, a sector line within its size.
void TestLaps::gates()
{
    QFETCH(const double, direction);
    QFETCH(const bool, met);
    const double toLine = place(-4).distanceTo(place(0));
    const double gate = direction == 1.0 ? toLine / 2 : std::nextafter(toLine / 2, direction);
    QCOMPARE(Cut(ride(u"-24 -4 16"_s), gate, 100).session->laps().size(), met ? 2U : 0U);

    const double toSector = place(296).distanceTo(place(300));
    const double sectorGate = direction == 1.0 ? toSector : std::nextafter(toSector, direction);
    const Cut cut(ride(u"-24..316/20"_s), sectorGate, 100, u"Time 0@300"_s);
    QCOMPARE(cut.lap(1).crossedSectors(), met ? 1 : 0);
}

// A length that is off by a tenth to the last bit is too far off. Such a pair of lap and map is
// not easily come by: outlines of nearly the right length are tried for one lap after the other.
void TestLaps::exactlyATenth()
{
    for (int far = 300; far < 500; ++far) {
        const Cut cut(ride(u"-4.05 5.95 %1 55*9 -4.05 5.95"_s.arg(far)), 10, 100);
        const double distance = cut.lap(1).distance();
        double latitude = (place(distance / 0.9).latitude() - place(0).latitude());
        for (int i = 0; i < 200; ++i)
            latitude = std::nextafter(latitude, 0.0);
        for (int i = 0; i < 400; ++i, latitude = std::nextafter(latitude, 90.0)) {
            Map map;
            map.addNamedPoint(u"Start"_s, place(0));
            map.setGateSize(10);
            map.addTrackPoint({0, 0});
            map.addTrackPoint({latitude, 0});
            map.computeGeometry();
            if (map.length() - distance != 0.1 * map.length())
                continue;
            cut.session->setMap(&map);
            QCOMPARE(cut.lap(1).distance(), distance);
            QVERIFY(!cut.lap(1).isComplete());
            cut.session->setMap(nullptr);
            return;
        }
    }
    QFAIL("no lap and map found");
}

void TestLaps::gaps_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("laps"); // the numbers of their samples
    QTest::addColumn<int>("distance");
    // The line is crossed at 300.1 ms, truncated: the sample of 300 ms is not before it.
    QTest::newRow("stamp at the crossing's")
        << u"-40.55 -20.05 -*4 30.05 80.75"_s << u"1 3 2 | 2 4 5 6 7 8"_s << 20 + 50 + 50;
    QTest::newRow("stamp below the crossing's")
        << u"-40.95 -20.25 -*4 29.95 80.25"_s << u"1 3 4 2 | 2 5 6 7 8"_s << 20 + 50 + 50;
    QTest::newRow("crossed before the gap")
        << u"-15.75 4.95 -*3 55.55"_s << u"1 2 | 2 3 4 5 6"_s << 20 + 50;
    QTest::newRow("the gap ends the recording") << u"-24.75 -4.05 -*2"_s << u"1 2 | 2 3 4"_s << 20;
    QTest::newRow("before the line only")
        << u"-44.85 -*2 -4.05 36.45"_s << u"1 2 3 4 | 4 5"_s << 40 + 40;
    QTest::newRow("no position at all") << u"-*20"_s << u""_s << 0;
    QTest::newRow("counts for the next crossing, 9")
        << u"-20.5 -1 50.5 -*7 -1 50.5"_s << u"1 2 | 2 3 4 5 6 7 8 9 10 11 12"_s
        << 19 + 51 + 51 + 51;
    QTest::newRow("counts for the next crossing, 10")
        << u"-20.5 -1 50.5 -*8 -1 50.5"_s << u"1 2 | 2 3 4 5 6 7 8 9 10 11 12 | 12 13"_s
        << 19 + 51 + 51 + 51;
}

void TestLaps::gaps()
{
    QFETCH(const QString, description);
    const Cut cut(ride(description), 15, 100);
    QStringList laps;
    for (const auto &lap : cut.session->laps())
        laps.append(numbersOf(lap->points()));
    QTEST(laps.join(u" | "_s), "laps");
    QTEST(cut.session->results().distance, "distance");
}

void TestLaps::sectors_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("timing");
    QTest::addColumn<Numbers>("invalid");
    QTest::addColumn<QString>("sectors");
    QTest::addColumn<int>("idealTime");
    const auto row = [](const char *name, const QString &timing, const char *sectors, int idealTime,
                        const QString &description = lapRide({0, 1}), const Numbers &invalid = {}) {
        QTest::newRow(name) << description << timing << invalid << QString::fromLatin1(sectors)
                            << idealTime;
    };
    const QString three = u"Time 0@100;Time 1@200;Time 2@0"_s;
    row("the last at the line", three, "- - - | 1000* 1000* 1500* | 1000 1000 1600 | - - -", 3499);
    row("fastest thrown out", three, "- - - | 1000 1000 1500 | 1000* 1000* 1600* | - - -", 3599,
        lapRide({0, 1}), {2});
    row("none", u""_s, " |  |  | ", -1);
    row("none without a number", u"Time A@100;Time B@200"_s, "- - | - - | - - | - -", -1);
    row("a number is missing", u"Time 0@100;Time 2@200"_s, "- - | 1000* - | 1000 - | - -", 999);
    // The name of the tenth contains 0 and 1 as well, and it is the last in order.
    row("ten and more", u"Time 0@100;Time 1@250;Time 10@200"_s,
        "- - - | 2000* - - | 2000 - - | - - -", 1999);
    row("at the lap's start", u"Time 0@0;Time 1@100"_s, "- - | 0* 1000* | 0 1000 | 0 -", 999);
    row("just behind the lap's start", u"Time 0@2"_s, "- | 0* | 0 | 0", -1);
    row("too soon by a sample", u"Time 0@0;Time 1@90"_s, "- - | 0* - | 0 - | 0 -", -1);
    row("the first lap's first sector", u"Time 0@-300;Time 1@-150"_s, "- 1500* | - -", 1499,
        u"-404.05..45.95/10"_s);
    row("at most eight",
        u"Time 0@100;Time 1@200;Time 2@300;Time 3@400;Time 4@500;Time 5@600;Time 6@700;"
        "Time 7@800;Time 8@900"_s,
        "- - - - - - - - - | 1000* 1000* 1000* 1000* 1000* 1000* 1000* 1000* -", 7999,
        u"-44.05..945.95/10"_s);
    row("a gap at the line", u"Time 0@100"_s, "- | 1000*", 999,
        u"-14.05..95.95/10 -*3 135.95 145.95"_s);
    row("the recording ends there", u"Time 0@100"_s, "- | 960*", 959, u"-14.05..95.95/10"_s);
}

void TestLaps::sectors()
{
    QFETCH(const QString, description);
    QFETCH(const QString, timing);
    QFETCH(const Numbers, invalid);
    QFETCH(const int, idealTime);
    const Cut cut(ride(description), 5, 680, timing, invalid);
    QTEST(sectorsText(*cut.session), "sectors");
    const LapResults &results = cut.session->results();
    QCOMPARE(results.idealTime, idealTime);
    qint32 sum = -1;
    for (std::size_t s = 0; s < 8; ++s) {
        const qint32 best = results.bestSectorLaps[s];
        const int sector = static_cast<int>(s);
        QCOMPARE(results.bestSectorTimes[s],
                 best < 0 ? 10000000 : cut.lap(static_cast<std::size_t>(best)).sectorTime(sector));
        sum += best < 0 ? 0 : results.bestSectorTimes[s];
    }
    QCOMPARE(sum, idealTime);
    for (const auto &lap : cut.session->laps()) {
        QCOMPARE(lap->sectorTime(-1), -1);
        QCOMPARE(lap->sectorTime(8), -1);
        for (int sector = 0; sector < 8; ++sector) {
            const Points points = lap->sectorPoints(sector);
            QCOMPARE(points.empty(), lap->sectorTime(sector) == -1);
            if (points.empty())
                continue;
            const PointAcquisition &first = points.front();
            const PointAcquisition &last = points.back();
            QCOMPARE(static_cast<qint32>(last.dataTimeStamp - first.dataTimeStamp),
                     lap->sectorTime(sector));
            QCOMPARE(last.acquisitionNumber - first.acquisitionNumber + 1, points.size());
        }
    }
}

// 30 metres a second on a circle of a kilometre across: every figure is known.
void TestLaps::circles()
{
    constexpr double Radius = 500.0;
    constexpr double Length = 2 * std::numbers::pi * Radius;
    Map map;
    map.setGateSize(5);
    const auto onCircle = [](double part) {
        const double angle = 2 * std::numbers::pi * part;
        return place(Radius * std::sin(angle), Radius * std::cos(angle));
    };
    map.addNamedPoint(u"Start"_s, onCircle(0));
    map.addNamedPoint(u"Time 0"_s, onCircle(0.25));
    map.addNamedPoint(u"Time 1"_s, onCircle(0.5));
    map.addNamedPoint(u"Time 2"_s, onCircle(1));
    for (int i = 0; i <= 360; ++i)
        map.addTrackPoint(onCircle(i / 360.0));
    map.computeGeometry();
    const auto session = sessionOf(circle(Radius, -400, 3 * Length + 400, 3));
    session->setMap(&map);
    QCOMPARE(session->laps().size(), 5U);
    const auto near = [](double value, double expected, double tolerance) {
        return std::fabs(value - expected) < tolerance;
    };
    constexpr double Time = Length / 30 * 1000;
    for (std::size_t i = 1; i < 4; ++i) {
        const Lap &lap = *session->laps()[i];
        QVERIFY(lap.isComplete());
        QVERIFY2(near(lap.lapTime(), Time, 3), qPrintable(QString::number(lap.lapTime())));
        QVERIFY2(near(lap.distance(), Length, 1), qPrintable(QString::number(lap.distance())));
        QVERIFY(near(lap.sectorTime(0), Time / 4, 3));
        QVERIFY(near(lap.sectorTime(1), Time / 4, 3));
        QVERIFY(near(lap.sectorTime(2), Time / 2, 3));
        QCOMPARE(lap.sectorTime(0) + lap.sectorTime(1) + lap.sectorTime(2), lap.lapTime());
    }
    session->setMap(nullptr);
}

void TestLaps::crossing_data()
{
    QTest::addColumn<double>("from"); // P1 and P2, with the line at 0
    QTest::addColumn<double>("to");
    QTest::addColumn<quint32>("stamp"); // of P2; that of P1 is 1999
    QTest::addColumn<quint32>("crossed");
    QTest::addColumn<double>("at");
    QTest::newRow("between") << -4.05 << 5.95 << 2099U << 2039U << 0.0;
    QTest::newRow("before P1") << 3.95 << 13.95 << 2099U << 1959U << 0.0;
    QTest::newRow("behind P2") << -23.95 << -13.95 << 2099U << 2238U << 0.0;
    QTest::newRow("at P1") << 0.0 << 10.0 << 2099U << 1999U << 0.0;
    QTest::newRow("same place") << -5.0 << -5.0 << 2099U << 1999U << -5.0;
    QTest::newRow("time runs back") << -4.05 << 5.95 << 999U << 1594U << 0.0;
    QTest::newRow("before the first millisecond") << 30.0 << 40.0 << 2999U << 4294966295U << 0.0;
}

void TestLaps::crossing()
{
    QFETCH(const double, from);
    QFETCH(const double, to);
    QFETCH(const quint32, stamp);
    QFETCH(const double, at);
    Points points = ride(u"%1 %2"_s.arg(from).arg(to));
    setChannels(points, u"s0=100 l0=-5 f0=3 s1=200 l1=7"_s);
    points[0].dataTimeStamp = 1999;
    points[1].dataTimeStamp = stamp;
    const PointAcquisition point = crossingPoint(points[0], points[1], place(0));
    QTEST(point.dataTimeStamp, "crossed");
    // The whole seconds are those of P1, and so is everything but place and time.
    QCOMPARE(point.dataTimeSec, 1.0);
    QVERIFY(positionOf(point).distanceTo(place(at)) < 0.001);
    PointAcquisition same = point;
    same.dataTimeStamp = points[0].dataTimeStamp;
    same.dataTimeSec = points[0].dataTimeSec;
    same.dataCoordX = points[0].dataCoordX;
    same.dataCoordY = points[0].dataCoordY;
    QCOMPARE(same, points[0]);
}

// The logger's clock starts again at 0; a float knows it by then to 256 ms only.
void TestLaps::stampsWrap()
{
    Points points = ride(u"-40 -20 0 20 40 60"_s);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i].dataTimeStamp = static_cast<quint32>(256 * i) - 768U;
    const Cut cut(points, 15, 100);
    QCOMPARE(lapsText(*cut.session), u"1 4294966528-4294967040 b; 2 4294967040-512"_s);
    QCOMPARE(cut.lap(0).lapTime(), 512);
    QCOMPARE(cut.lap(1).lapTime(), 768);
    QCOMPARE(cut.lap(1).cumulatedTime(), 1280U);
}

// The rest of a recording cut short is zeros, a place in the Atlantic.
void TestLaps::wholeSamplesOnly()
{
    Points points = ride(u"-24.5 -4.05 5.95 16.45"_s);
    points.resize(6);
    const Cut cut(points, 10, 100, {}, {}, 4);
    QCOMPARE(lapsText(*cut.session), u"1 0-140 b; 2 140-300"_s);
    QCOMPARE(cut.session->results().distance, 20 + 10 + 10);
    QVERIFY(cut.lap(1).distance() < 17);
}

void TestLaps::withoutUsableMap()
{
    const Cut cut(ride(lapRide({0})), 10, 680, u"Time 0@100"_s);
    QCOMPARE(cut.session->laps().size(), 3U);
    const auto unusable = lineMap(10, 680, {{u"Time 0"_s, 0}});
    for (const Map *map : {unusable.get(), static_cast<Map *>(nullptr)}) {
        cut.session->setMap(cut.map.get());
        QVERIFY(cut.session->results().distance > 0);
        cut.session->setMap(map);
        QVERIFY(cut.session->laps().empty());
        QCOMPARE(cut.session->results().distance, 0);
        QCOMPARE(cut.session->results().idealTime, -1);
    }
}

void TestLaps::validity()
{
    const Cut cut(ride(lapRide({0, 1, 2})), 10, 680, u"Time 0@0"_s, {3});
    Session &session = *cut.session;
    QCOMPARE(session.results().bestLap, 1);
    session.setLapValid(1, false);
    QCOMPARE(session.results().bestLap, 3);
    QCOMPARE(session.bestLapText(), u"00:03.700"_s);
    QCOMPARE(session.invalidLaps(), (Numbers {2, 3}));
    QVERIFY(!cut.lap(1).isBest() && cut.lap(3).isBest());
    session.setLapValid(2, true);
    QCOMPARE(session.results().bestLap, 2);
    session.setLapValid(99, false);
    // What was thrown out stays so on another map.
    const auto other = lineMap(10, 690);
    session.setMap(other.get());
    QCOMPARE(session.invalidLaps(), Numbers {2});
    QVERIFY(!cut.lap(1).isValid() && cut.lap(2).isValid());
}

void TestLaps::figures_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("channels");
    QTest::addColumn<QString>("figures"); // speed, angle, acceleration, front, rear: max/min
    QTest::newRow("one sample") << 1 << u"s0=81.4 l0=-3 a0=-0.5"_s
                                << u"81/81 -3/-3 -0.5/-0.5 -/- -/-"_s;
    QTest::newRow("halves") << 2 << u"s0=10.5 s1=9.49 l0=-10.5 l1=0.5"_s
                            << u"11/9 1/-11 0/0 -/- -/-"_s;
    QTest::newRow("all below 0") << 2 << u"l0=-7 l1=-9 a0=-1.5 a1=-0.25 f0=-2 f1=-4"_s
                                 << u"0/0 -7/-9 -0.25/-1.5 -2/-4 -/-"_s;
    QTest::newRow("all large") << 2 << u"s0=300 s1=390 a0=1.5 a1=2 r0=70 r0=60"_s
                               << u"390/300 0/0 2/1.5 -/- 70/60"_s;
    QTest::newRow("no numbers") << 3 << u"f0=nan f1=5 f1=nan f2=4 r1=nan"_s
                                << u"0/0 0/0 0/0 5/4 -/-"_s;
}

void TestLaps::figures()
{
    QFETCH(const int, count);
    QFETCH(const QString, channels);
    Points points = ride(u"0*%1"_s.arg(count));
    setChannels(points, channels);
    const auto session = sessionOf({});
    Lap lap(*session);
    lap.setPoints(points);
    const auto pair = [](const auto &max, const auto &min) { return u"%1/%2"_s.arg(max).arg(min); };
    const auto range = [](const ReadingRange &range) -> QString {
        return orDash(range.max) + u'/' + orDash(range.min);
    };
    const QStringList figures {
        pair(lap.maxSpeed(), lap.minSpeed()), pair(lap.maxAngle(), lap.minAngle()),
        pair(lap.accelMax(), lap.decelMax()), range(lap.suspension1()), range(lap.suspension2())};
    QTEST(figures.join(u' '), "figures");
}

void TestLaps::turns_data()
{
    QTest::addColumn<QList<double>>("speeds");
    QTest::addColumn<QString>("maxima"); // numbers of the samples, from 1
    QTest::addColumn<QString>("minima");
    const auto row = [](const char *name, const QList<double> &speeds, const char *maxima,
                        const char *minima) {
        QTest::newRow(name) << speeds << QString::fromLatin1(maxima) << QString::fromLatin1(minima);
    };
    row("none", {100, 100, 120, 120}, "", "");
    row("a peak", {100, 150, 140}, "2", "");
    row("a plateau's end", {100, 150, 150, 150, 140}, "4", "");
    // The swing down counts from the first sample of the fall.
    row("a trough of 9", {50, 40, 31, 35}, "1", "");
    row("a trough of 10", {50, 40, 30, 35}, "1", "");
    row("a trough of 11", {50, 40, 29, 35}, "1", "3");
    row("rounded to 11", {50, 40.4, 29.4, 35}, "1", "3");
    row("rounded to 10", {50, 40.4, 29.5, 35}, "1", "");
    // And the swing up from the first sample of the rise.
    row("a peak of 10", {50, 40, 20, 25, 35, 30}, "1", "3");
    row("a peak of 11", {50, 40, 20, 25, 36, 30}, "1 5", "3");
    row("risen at once beyond the fall's begin", {50, 40, 20, 45, 30}, "1 4", "");
}

void TestLaps::turns()
{
    QFETCH(const QList<double>, speeds);
    Points points = ride(u"0*%1"_s.arg(speeds.size()));
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i].dataSpeed = speeds[static_cast<qsizetype>(i)];
    const auto session = sessionOf({});
    Lap lap(*session);
    lap.setPoints(points);
    QTEST(numbersOf(lap.maxSpeedPoints()), "maxima");
    QTEST(numbersOf(lap.minSpeedPoints()), "minima");
}

void TestLaps::marks_data()
{
    QTest::addColumn<QString>("channels");
    QTest::addColumn<Numbers>("invalid");
    QTest::addColumn<QString>("marks");
    const auto row = [](const char *name, const char *channels, const char *marks,
                        const Numbers &invalid = {}) {
        QTest::newRow(name) << QString::fromLatin1(channels) << invalid
                            << QString::fromLatin1(marks);
    };
    // Samples 0 to 4 lead to the line, 5 to 39 and 40 to 74 are laps 2 and 3; where all samples
    // are alike the first one counts. Samples 4, 39 and 74 give way to points on the line.
    row("all alike", "", "1: 0 3 4 2 1");
    row("each channel", "s10=9 a11=1 a50=-1 l12=20 l51=-20", "2: 0 3 2; 3: 4 1");
    row("suspensions", "f10=5 f60=2 r10=1 r11=4", "1: 0 3 4 2 1; 2: 7 9 10; 3: 8");
    row("not rounded", "s10=100.2 s60=100.4", "1: 3 4 2 1; 3: 0");
    row("the first of equal", "s10=100 s60=100", "1: 3 4 2 1; 2: 0");
    row("in a lap thrown out", "s10=100 s60=90", "1: 3 4 2 1", {2});
    row("a sample that gave way", "s39=100", "1: 3 4 2 1");
    row("no number", "s0=nan l0=nan", "1: 0 2 1");
    row("beside no number", "s10=100 l10=nan", "1: 3 4 2 1");
}

void TestLaps::marks()
{
    QFETCH(const QString, channels);
    QFETCH(const Numbers, invalid);
    Points points = ride(lapRide({0, 0}));
    setChannels(points, channels);
    const Cut cut(points, 10, 680, {}, invalid);
    QStringList marks;
    for (const auto &lap : cut.session->laps()) {
        QString text = u"%1:"_s.arg(lap->lapNumber());
        for (const Mark mark : lap->marks())
            text += u' ' + QString::number(static_cast<int>(mark));
        if (!lap->marks().isEmpty())
            marks.append(text);
    }
    QTEST(marks.join(u"; "_s), "marks");
}

void TestLaps::times_data()
{
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("below 0") << qint64(-1) << u""_s;
    QTest::newRow("0") << qint64(0) << u"00:00.000"_s;
    QTest::newRow("a lap") << qint64(62003) << u"01:02.003"_s;
    QTest::newRow("below an hour") << qint64(3599999) << u"59:59.999"_s;
    QTest::newRow("an hour") << qint64(3600000) << u"01::00:00.000"_s;
    QTest::newRow("below a day") << qint64(86399999) << u"23::59:59.999"_s;
    QTest::newRow("a day") << qint64(86400000) << u""_s;
}

void TestLaps::times()
{
    QFETCH(const qint64, milliseconds);
    QTEST(timeText(milliseconds), "text");
}

QTEST_GUILESS_MAIN(TestLaps)
#include "tst_laps.moc"
