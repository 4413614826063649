// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

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

/// Sets channels of points: "s5=200 f7=3.5" makes the speed of the sixth 200 and adds a front
/// reading to the eighth; a is the computed acceleration, l the lean angle, r a rear reading.
void setChannels(Points &points, const QString &description)
{
    for (const QString &setting : description.split(u' ', Qt::SkipEmptyParts)) {
        PointAcquisition &point = points.at(setting.section(u'=', 0, 0).mid(1).toUInt());
        const double value = setting.section(u'=', 1).toDouble();
        const char channel = setting.front().toLatin1();
        if (channel == 'f' || channel == 'r')
            addReadings(point, channel == 'f' ? 1 : 2, {static_cast<float>(value)});
        else
            (channel == 's'   ? point.dataSpeed
             : channel == 'a' ? point.dataAccelXPHComputed
                              : point.dataAngle)
                = value;
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
    void gates();
    void gaps_data();
    void gaps();
    void sectors_data();
    void sectors();
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
    row("a tenth too long, less", two, allComplete, Shorter + 0.001);
    row("a tenth too long, more", two, noneComplete, Shorter - 0.001);
    row("a tenth too short, less", two, allComplete, Longer - 0.001);
    row("a tenth too short, more", two, noneComplete, Longer + 0.001);
    row("the first and the last as long", two, noneComplete, 45.0);
    row("the fastest is not the first", lapRide({1, 0, 2}),
        "1 0-440; 2 440-4040 c; 3 4040-7540 cb; 4 7540-11240 c; 5 11240-11700");
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
}

// The line is met within twice the gate's size, a sector line within its size.
void TestLaps::gates()
{
    const double toLine = place(-4).distanceTo(place(0)) / 2;
    const double toSector = place(296).distanceTo(place(300));
    const auto laps
        = [](double gate) { return Cut(ride(u"-24 -4 16"_s), gate, 100).session->laps().size(); };
    const auto sectors = [](double gate) {
        const Cut cut(ride(u"-24..316/20"_s), gate, 100, u"Time 0@300"_s);
        return cut.lap(1).crossedSectors();
    };
    QCOMPARE(laps(std::nextafter(toLine, 0.0)), 0U);
    QCOMPARE(laps(toLine), 0U);
    QCOMPARE(laps(std::nextafter(toLine, 100.0)), 2U);
    QCOMPARE(sectors(std::nextafter(toSector, 0.0)), 0);
    QCOMPARE(sectors(toSector), 0);
    QCOMPARE(sectors(std::nextafter(toSector, 100.0)), 1);
}

void TestLaps::gaps_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("laps"); // the numbers of their samples
    QTest::addColumn<int>("distance");
    const auto row = [](const char *name, const char *description, const char *laps, int distance) {
        QTest::newRow(name) << QString::fromLatin1(description) << QString::fromLatin1(laps)
                            << distance;
    };
    // The line is crossed at 300.1 ms, truncated: the sample of 300 ms is not before it.
    row("as the crossing", "-40.55 -20.05 -*4 30.05 80.75", "1 3 2 | 2 4 5 6 7 8", 120);
    row("below the crossing", "-40.95 -20.25 -*4 29.95 80.25", "1 3 4 2 | 2 5 6 7 8", 120);
    row("crossed before the gap", "-15.75 4.95 -*3 55.55", "1 2 | 2 3 4 5 6", 70);
    row("the gap ends the recording", "-24.75 -4.05 -*2", "1 2 | 2 3 4", 20);
    row("before the line only", "-44.85 -*2 -4.05 36.45", "1 2 3 4 | 4 5", 80);
    row("no position at all", "-*20", "", 0);
    // Samples without a position count for the next crossing.
    row("9 later", "-20.5 -1 50.5 -*7 -1 50.5", "1 2 | 2 3 4 5 6 7 8 9 10 11 12", 172);
    row("10 later", "-20.5 -1 50.5 -*8 -1 50.5", "1 2 | 2 3 4 5 6 7 8 9 10 11 12 | 12 13", 172);
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
    row("none without a number", u"Time A@100;Time B@200"_s, "- - | - - | - - | - -", -1);
    row("a number is missing", u"Time 0@100;Time 2@200"_s, "- - | 1000* - | 1000 - | - -", 999);
    // The name of the tenth contains 0 and 1 as well, and it is the last in order.
    row("ten and more", u"Time 0@100;Time 1@250;Time 10@200"_s,
        "- - - | 2000* - - | 2000 - - | - - -", 1999);
    row("at the lap's start", u"Time 0@0;Time 1@100"_s, "- - | 0* 1000* | 0 1000 | 0 -", 999);
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
    const Cut cut(ride(description), 5, 680, timing, invalid);
    QTEST(sectorsText(*cut.session), "sectors");
    QTEST(cut.session->results().idealTime, "idealTime");
    for (const auto &lap : cut.session->laps()) {
        for (int sector = 0; sector < 8; ++sector) {
            const Points points = lap->sectorPoints(sector);
            QCOMPARE(points.empty(), lap->sectorTime(sector) == -1);
            if (!points.empty())
                QCOMPARE(
                    static_cast<qint32>(points.back().dataTimeStamp - points.front().dataTimeStamp),
                    lap->sectorTime(sector));
        }
    }
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
    setChannels(points, u"s0=100 l0=-5 s1=200 l1=7"_s);
    points[0].dataTimeStamp = 1999;
    points[1].dataTimeStamp = stamp;
    const PointAcquisition point = crossingPoint(points[0], points[1], place(0));
    QTEST(point.dataTimeStamp, "crossed");
    QVERIFY(positionOf(point).distanceTo(place(at)) < 0.001);
    // The whole seconds are those of P1, and so is everything but place and time.
    QCOMPARE(point.dataTimeSec, 1.0);
    QCOMPARE(point.acquisitionNumber, 1U);
    QVERIFY(point.dataSpeed == 100 && point.dataAngle == -5);
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
    session.setLapValid(2, true);
    QVERIFY(cut.lap(2).isBest() && !cut.lap(3).isBest());
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
    const auto row = [](const char *name, int count, const char *channels, const char *figures) {
        QTest::newRow(name) << count << QString::fromLatin1(channels)
                            << QString::fromLatin1(figures);
    };
    row("halves", 2, "s0=10.5 s1=9.49 l0=-10.5 l1=0.5", "11/9 1/-11 0/0 -/- -/-");
    row("all below 0", 2, "l0=-7 l1=-9 a0=-1.5 a1=-0.25 f0=-2 f1=-4",
        "0/0 -7/-9 -0.25/-1.5 -2/-4 -/-");
    row("all large", 2, "s0=300 s1=390 a0=1.5 a1=2 r0=70 r0=60", "390/300 0/0 2/1.5 -/- 70/60");
    row("no numbers", 3, "f0=nan f1=5 f1=nan f2=4 r1=nan", "0/0 0/0 0/0 5/4 -/-");
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
    const auto range = [&pair](const ReadingRange &range) {
        return range.max ? pair(*range.max, *range.min) : u"-/-"_s;
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
    row("each channel", "s10=9 a11=1 a50=-1 l12=20 l51=-20", "2: 0 3 2; 3: 4 1");
    row("suspensions", "f10=5 f60=2 r10=1 r11=4", "1: 0 3 4 2 1; 2: 7 9 10; 3: 8");
    row("not rounded", "s10=100.2 s60=100.4", "1: 3 4 2 1; 3: 0");
    row("the first of equal", "s10=100 s60=100", "1: 3 4 2 1; 2: 0");
    row("in a lap thrown out", "s10=100 s60=90", "1: 3 4 2 1", {2});
    row("a sample that gave way", "s39=100", "1: 3 4 2 1");
    row("no number", "s0=nan l0=nan", "1: 0 2 1");
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

void TestLaps::times()
{
    QCOMPARE(timeText(-1), u""_s);
    QCOMPARE(timeText(0), u"00:00.000"_s);
    QCOMPARE(timeText(3599999), u"59:59.999"_s);
    QCOMPARE(timeText(3600000), u"01::00:00.000"_s);
    QCOMPARE(timeText(86399999), u"23::59:59.999"_s);
    QCOMPARE(timeText(86400000), u""_s);
}

QTEST_GUILESS_MAIN(TestLaps)
#include "tst_laps.moc"
