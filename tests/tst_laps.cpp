// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

#include <QTest>

#include <base/laptimes.h>
#include <session/recording/trace.h>
#include <session/session.h>
#include <track/gate.h>
#include <track/map.h>

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

} // namespace

class TestLaps final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cuts()
    {
        const auto laps
            = [](const QString &description, double length = 680.0, const Numbers &invalid = {}) {
                  return lapsText(*Cut(ride(description), 10, length, {}, invalid).session);
              };
        QCOMPARE(laps(u""_s), u""_s);
        // A sample on the line, the nearest one behind it, turned before it, at either end.
        QCOMPARE(laps(u"-20..20/10"_s), u"1 0-200 b; 2 200-400"_s);
        QCOMPARE(laps(u"-16.05..13.95/10"_s), u"1 0-160 b; 2 160-300"_s);
        QCOMPARE(laps(u"-25.05..-5.05/10 -5.05..-25.05/10"_s), u"1 0-249 b; 2 249-500"_s);
        QCOMPARE(laps(u"-24.05..-4.05/10"_s), u"1 0-200 b; 2 200-200"_s);
        QCOMPARE(laps(u"-4.05..25.95/10"_s), u"1 40-40 b; 2 40-300"_s);
        // The next crossing 9 and 10 samples later.
        QCOMPARE(laps(u"-20 -1 50*8 -1 50"_s), u"1 0-101 b; 2 101-1100"_s);
        QCOMPARE(laps(u"-20 -1 50*9 -1 50"_s), u"1 0-101 b; 2 101-1101; 3 1101-1200"_s);
        // A tenth too long and a tenth too short, less and more; the first and the last never
        // count.
        const QString two = lapRide({0, 0});
        const QString allComplete = u"1 0-440; 2 440-3940 cb; 3 3940-7440 c; 4 7440-7900"_s;
        const QString noneComplete = u"1 0-440 b; 2 440-3940; 3 3940-7440; 4 7440-7900"_s;
        QCOMPARE(laps(two, 680.0 / 1.1 + 0.001), allComplete);
        QCOMPARE(laps(two, 680.0 / 1.1 - 0.001), noneComplete);
        QCOMPARE(laps(two, 680.0 / 0.9 - 0.001), allComplete);
        QCOMPARE(laps(two, 680.0 / 0.9 + 0.001), noneComplete);
        QCOMPARE(laps(lapRide({1, 0, 2})),
                 u"1 0-440; 2 440-4040 c; 3 4040-7540 cb; 4 7540-11240 c; 5 11240-11700"_s);
        // The last lap is never complete, so throwing it out has no meaning.
        QCOMPARE(laps(two, 680.0, {1, 2, 3, 4, 5}),
                 u"1 0-440 bx; 2 440-3940 cx; 3 3940-7440 cx; 4 7440-7900"_s);
    }

    // A clock that stood still: the first lap stands in for the best one, but none is stored.
    void withoutTime()
    {
        Points points = ride(u"-20..20/10"_s);
        for (PointAcquisition &point : points)
            point.dataTimeStamp = 7;
        const Cut cut(points, 10, 680);
        QCOMPARE(lapsText(*cut.session), u"1 7-7 b; 2 7-7"_s);
        QCOMPARE(cut.session->bestLapText(), QString());
        QCOMPARE(cut.session->state().information.bestLapText, StoredText());
    }

    void nearAndFar_data()
    {
        QTest::addColumn<QGeoCoordinate>("centre");
        QTest::addColumn<double>("radius");
        const QList<double> latitudes {0, 46, -46, 88.9, 89.1, 89.9999, -90};
        for (const double latitude : latitudes) {
            for (const double longitude : {6.0, 179.9999, -179.9999, -180.0}) {
                for (const double radius : {20.0, 300.0, 2e5}) {
                    QTest::addRow("%g %g, %g m", latitude, longitude, radius)
                        << QGeoCoordinate(latitude, longitude) << radius;
                }
            }
        }
    }

    // What is near enough is never taken for far, wherever on earth.
    void nearAndFar()
    {
        QFETCH(const QGeoCoordinate, centre);
        QFETCH(const double, radius);
        const Gate gate(centre, radius);
        for (int degrees = 0; degrees < 360; degrees += 5) {
            for (const double part : {0.0, 0.5, 0.999, 0.9999999, 1.0000001, 1.001, 2.0, 50.0}) {
                PointAcquisition here;
                const QGeoCoordinate place = centre.atDistanceAndAzimuth(part * radius, degrees);
                here.dataCoordY = place.latitude();
                here.dataCoordX = place.longitude();
                const Trace trace(std::span(&here, 1));
                const double metres = trace.at(0).distanceTo(centre);
                QCOMPARE(gate.isCrossedAt(trace, 0),
                         trace.at(0).isValid() && metres < radius && metres < 10000.0);
            }
        }
    }

    // Laps as "2t 500": counted twice (t), not ranked (-), the cumulated time; then the ideal time.
    void countedTwice()
    {
        const auto laps = [](const QString &description, double length) {
            const Cut cut(ride(description), 10, length, u"Time 0@200"_s);
            QString text;
            for (const auto &lap : cut.session->laps())
                text += u"%1%2%3 %4; "_s.arg(lap->lapNumber())
                            .arg(lap->isCountedTwice() ? u"t" : u"", lap->isRanked() ? u"" : u"-")
                            .arg(lap->cumulatedTime());
            return text += QString::number(cut.session->results().idealTime);
        };
        // 10 m/s: a second after the pass the rider is still in the circle, another later he is
        // not.
        QCOMPARE(laps(u"-120..400/1"_s, 1000), u"1 12000; 2t- 12000; 3 52000; 19999"_s);
        // A section in a lap that is too short for the ranking.
        QCOMPARE(laps(u"-120..400/1"_s, 4100), u"1- 12000; 2t- 12000; 3- 52000; -1"_s);
        // Standing beside the line; what leads to the line, and on from it, is no double.
        QCOMPARE(laps(u"-120..0/10 1*11 0 9*30"_s, 1000),
                 u"1 1200; 2t- 2400; 3t- 5400; 4- 5400; -1"_s);
    }

    // The line is met within twice the gate's size, a sector line within its size.
    void gates()
    {
        const double toLine = place(-4).distanceTo(place(0)) / 2;
        const double toSector = place(296).distanceTo(place(300));
        const auto laps = [](double gate) {
            return Cut(ride(u"-24 -4 16"_s), gate, 100).session->laps().size();
        };
        const auto sectors = [](double gate) {
            const Cut cut(ride(u"-24..316/20"_s), gate, 100, u"Time 0@300"_s);
            return cut.lap(1).crossedSectors();
        };
        QCOMPARE(laps(toLine), 0U);
        QCOMPARE(laps(std::nextafter(toLine, 100.0)), 2U);
        QCOMPARE(sectors(toSector), 0);
        QCOMPARE(sectors(std::nextafter(toSector, 100.0)), 1);
    }

    // The laps as numbers of their samples, and the distance.
    void gaps()
    {
        const auto laps = [](const QString &description) -> QString {
            const Cut cut(ride(description), 15, 100);
            QStringList laps;
            for (const auto &lap : cut.session->laps())
                laps.append(numbersOf(lap->points()));
            return laps.join(u" | "_s) + u"; %1"_s.arg(cut.session->results().distance);
        };
        // The line is crossed at 300.1 ms, truncated: the sample of 300 ms is not before it.
        QCOMPARE(laps(u"-40.55 -20.05 -*4 30.05 80.75"_s), u"1 3 2 | 2 4 5 6 7 8; 120"_s);
        QCOMPARE(laps(u"-40.95 -20.25 -*4 29.95 80.25"_s), u"1 3 4 2 | 2 5 6 7 8; 120"_s);
        QCOMPARE(laps(u"-15.75 4.95 -*3 55.55"_s), u"1 2 | 2 3 4 5 6; 70"_s);
        QCOMPARE(laps(u"-24.75 -4.05 -*2"_s), u"1 2 | 2 3 4; 20"_s);
        // Samples without a position count for the next crossing.
        QCOMPARE(laps(u"-20.5 -1 50.5 -*8 -1 50.5"_s),
                 u"1 2 | 2 3 4 5 6 7 8 9 10 11 12 | 12 13; 172"_s);
    }

    // The sectors of each lap, and the ideal time.
    void sectors()
    {
        const auto sectors = [](const QString &timing, const QString &description = lapRide({0, 1}),
                                const Numbers &invalid = {}) -> QString {
            const Cut cut(ride(description), 5, 680, timing, invalid);
            return sectorsText(*cut.session) + u"; %1"_s.arg(cut.session->results().idealTime);
        };
        const QString three = u"Time 0@100;Time 1@200;Time 2@0"_s;
        QCOMPARE(sectors(three), u"- - - | 1000* 1000* 1500* | 1000 1000 1600 | - - -; 3499"_s);
        QCOMPARE(sectors(three, lapRide({0, 1}), {2}),
                 u"- - - | 1000 1000 1500 | 1000* 1000* 1600* | - - -; 3599"_s);
        QCOMPARE(sectors(u"Time 0@100;Time 2@200"_s), u"- - | 1000* - | 1000 - | - -; 999"_s);
        // The name of the tenth contains 0 and 1 as well, and it is the last in order.
        QCOMPARE(sectors(u"Time 0@100;Time 1@250;Time 10@200"_s),
                 u"- - - | 2000* - - | 2000 - - | - - -; 1999"_s);
        // At the lap's start, and the next too soon by a sample.
        QCOMPARE(sectors(u"Time 0@0;Time 1@90"_s), u"- - | 0* - | 0 - | 0 -; -1"_s);
        // What leads up to the first line is no time, but the sectors after it count.
        QCOMPARE(sectors(u"Time 0@-300;Time 1@-150"_s, u"-404.05..45.95/10"_s),
                 u"- 1500* | - -; 1499"_s);
        QString nine = u"Time 0@100"_s;
        for (int i = 1; i < 9; ++i)
            nine += u";Time %1@%2"_s.arg(i).arg((i + 1) * 100);
        QCOMPARE(sectors(nine, u"-44.05..945.95/10"_s),
                 u"- - - - - - - - - |"_s + u" 1000*"_s.repeated(8) + u" -; 7999");
        // A gap at the sector's line, and the recording's end.
        QCOMPARE(sectors(u"Time 0@100"_s, u"-14.05..95.95/10 -*3 135.95 145.95"_s),
                 u"- | 1000*; 999"_s);
        QCOMPARE(sectors(u"Time 0@100"_s, u"-14.05..95.95/10"_s), u"- | 960*; 959"_s);
        const Cut cut(ride(lapRide({0})), 5, 680, three);
        QCOMPARE(numbersOf(cut.lap(1).sectorPoints(1)), u"15 16 17 18 19 20 21 22 23 24 25"_s);
    }

    void crossing()
    {
        // From P1 to P2, with the line at 0; the stamp of P1 is 1999.
        const auto crossed = [](double from, double to, quint32 stamp, double at = 0.0) -> quint32 {
            Points points = ride(u"%1 %2"_s.arg(from).arg(to));
            setChannels(points, u"s0=100 l0=-5 s1=200 l1=7"_s);
            points[0].dataTimeStamp = 1999;
            points[1].dataTimeStamp = stamp;
            const PointAcquisition point = crossingPoint(points[0], points[1], place(0));
            // The whole seconds are those of P1, and so is everything but place and time.
            const bool same = point.dataTimeSec == 1.0 && point.acquisitionNumber == 1
                              && point.dataSpeed == 100.0 && point.dataAngle == -5.0;
            return same && positionOf(point).distanceTo(place(at)) < 0.001 ? point.dataTimeStamp
                                                                           : 0;
        };
        QCOMPARE(crossed(-4.05, 5.95, 2099), 2039U);
        QCOMPARE(crossed(-23.95, -13.95, 2099), 2238U);
        QCOMPARE(crossed(-5.0, -5.0, 2099, -5.0), 1999U);
        QCOMPARE(crossed(-4.05, 5.95, 999), 1594U); // time runs back
    }

    // The logger's clock starts again at 0; a float knows it by then to 256 ms only.
    void stampsWrap()
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
    void wholeSamplesOnly()
    {
        Points points = ride(u"-24.5 -4.05 5.95 16.45"_s);
        points.resize(6);
        const Cut cut(points, 10, 100, {}, {}, 4);
        QCOMPARE(lapsText(*cut.session), u"1 0-140 b; 2 140-300"_s);
        QCOMPARE(cut.session->results().distance, 20 + 10 + 10);
        QVERIFY(cut.lap(1).distance() < 17);
    }

    void validity()
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
        // What was thrown out stays so on another map.
        const auto other = lineMap(10, 690);
        session.setMap(other.get());
        QCOMPARE(session.invalidLaps(), Numbers {2});
        QVERIFY(!cut.lap(1).isValid() && cut.lap(2).isValid());
    }

    // Maximum and minimum of speed, angle, acceleration, front and rear.
    void figures()
    {
        const auto figures = [](int count, const QString &channels) -> QString {
            Points points = ride(u"0*%1"_s.arg(count));
            setChannels(points, channels);
            Lap lap;
            lap.setPoints(points);
            const auto pair = [](auto max, auto min) { return u" %1/%2"_s.arg(max).arg(min); };
            const auto range = [&pair](const ReadingRange &range) {
                return range.max ? pair(*range.max, *range.min) : u" -"_s;
            };
            return pair(lap.maxSpeed(), lap.minSpeed()) + pair(lap.maxAngle(), lap.minAngle())
                   + pair(lap.accelMax(), lap.decelMax()) + range(lap.suspension1())
                   + range(lap.suspension2());
        };
        QCOMPARE(figures(2, u"s0=10.5 s1=9.49 l0=-10.5 l1=0.5"_s), u" 11/9 1/-11 0/0 - -"_s);
        QCOMPARE(figures(2, u"l0=-7 l1=-9 a0=-1.5 a1=-0.25 f0=-2 f1=-4"_s),
                 u" 0/0 -7/-9 -0.25/-1.5 -2/-4 -"_s);
        QCOMPARE(figures(2, u"s0=300 s1=390 r0=70 r0=60"_s), u" 390/300 0/0 0/0 - 70/60"_s);
        QCOMPARE(figures(3, u"f0=nan f1=5 f1=nan f2=4 r1=nan"_s), u" 0/0 0/0 0/0 5/4 -"_s);
    }

    // The samples, counted from 1, of the speed's maxima and minima.
    void turns()
    {
        const auto turns = [](const QList<double> &speeds) -> QString {
            Points points = ride(u"0*%1"_s.arg(speeds.size()));
            for (std::size_t i = 0; i < points.size(); ++i)
                points[i].dataSpeed = speeds[static_cast<qsizetype>(i)];
            Lap lap;
            lap.setPoints(points);
            return numbersOf(lap.maxSpeedPoints()) + u" / " + numbersOf(lap.minSpeedPoints());
        };
        QCOMPARE(turns({100, 150, 150, 150, 140}), u"4 / "_s);
        // The swing down counts from the first sample of the fall.
        QCOMPARE(turns({50, 40, 30, 35}), u"1 / "_s);
        QCOMPARE(turns({50, 40, 29, 35}), u"1 / 3"_s);
        QCOMPARE(turns({50, 40.4, 29.5, 35}), u"1 / "_s);
        // And the swing up from the first sample of the rise.
        QCOMPARE(turns({50, 40, 20, 25, 35, 30}), u"1 / 3"_s);
        QCOMPARE(turns({50, 40, 20, 25, 36, 30}), u"1 5 / 3"_s);
    }

    void marks()
    {
        const auto marks = [](const QString &channels, const Numbers &invalid = {}) {
            Points points = ride(lapRide({0, 0}));
            setChannels(points, channels);
            const Cut cut(points, 10, 680, {}, invalid);
            QStringList laps;
            for (const auto &lap : cut.session->laps()) {
                laps.append(QString());
                for (const Mark mark : lap->marks())
                    laps.back() += u' ' + QString::number(static_cast<int>(mark));
            }
            return laps.join(u" |"_s);
        };
        // Samples 0 to 4 lead to the line, 5 to 39 and 40 to 74 are laps 2 and 3; where all samples
        // are alike the first one counts. Samples 4, 39 and 74 give way to points on the line.
        QCOMPARE(marks(u"s10=9 a11=1 a50=-1 l12=20 l51=-20"_s), u" | 0 3 2 | 4 1 |"_s);
        QCOMPARE(marks(u"f10=5 f60=2 r10=1 r11=4"_s), u" 0 3 4 2 1 | 7 9 10 | 8 |"_s);
        QCOMPARE(marks(u"s10=100 s60=100"_s), u" 3 4 2 1 | 0 | |"_s);
        QCOMPARE(marks(u"s10=100 s60=90"_s, {2}), u" 3 4 2 1 | | |"_s);
        QCOMPARE(marks(u"s0=nan l0=nan"_s), u" 0 2 1 | | |"_s);
    }

    void times()
    {
        QCOMPARE(timeText(-1), u""_s);
        QCOMPARE(timeText(3599999), u"59:59.999"_s);
        QCOMPARE(timeText(3600000), u"01::00:00.000"_s);
        QCOMPARE(timeText(86400000), u""_s);
    }
};

QTEST_GUILESS_MAIN(TestLaps)
#include "tst_laps.moc"
