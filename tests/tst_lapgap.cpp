// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include <QTest>

#include <session/laps/lap.h>
#include <session/laps/lapgap.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

// A road, by its middle: straights of so many metres, and turns with the degrees to the right.
class Road
{
public:
    Road() = default;
    explicit Road(const QString &stretches)
    {
        for (const QString &stretch : stretches.split(u' ')) {
            const auto steps = static_cast<int>(stretch.section(u'/', 0, 0).toDouble() * 100.0);
            const double turn = stretch.section(u'/', 1).toDouble() * std::numbers::pi / 180.0;
            for (int i = 0; i < steps; ++i) {
                const auto [north, east, heading] = m_spots.back();
                m_spots.push_back({north + (0.01 * std::cos(heading)),
                                   east + (0.01 * std::sin(heading)), heading + (turn / steps)});
            }
        }
    }

    [[nodiscard]] double length() const { return 0.01 * static_cast<double>(m_spots.size() - 1); }
    // So many metres along the road and to the right of its middle.
    [[nodiscard]] QGeoCoordinate at(double along, double right) const
    {
        const auto [north, east, heading] = m_spots[static_cast<std::size_t>(along * 100.0)];
        return place(north - (right * std::sin(heading)), east + (right * std::cos(heading)));
    }

private:
    std::vector<std::array<double, 3>> m_spots {{0.0, 0.0, 0.0}}; // a hundred to a metre
};

constexpr double StandTime = 8000.0;

struct Ride
{
    double right = 0.0;
    // How much slower the rider gets.
    double trend = 0.0;
    // Milliseconds from sample to sample.
    int interval = 100;
    // Between these times the positions are missing.
    int lostFrom = 0;
    int lostTo = 0;
    // Metres at most.
    double end = 1e9;
    // Where the rider stands for eight seconds while the receiver's positions wander.
    double stand = 1e9;

    // Milliseconds at so many metres, at 18 to 34 m/s; and the other way around.
    [[nodiscard]] double timeAt(double along) const
    {
        return (along / 0.024) + (1500.0 * std::sin(along / 120.0)) + (trend * along * along)
               + (along > stand ? StandTime : 0.0);
    }
    [[nodiscard]] double placeAt(double time) const
    {
        double low = 0.0;
        for (double step = 2048.0; step > 1e-4; step /= 2.0)
            low += timeAt(low + step) <= time ? step : 0.0;
        return low;
    }
};

/// A lap that ends at the line.
std::unique_ptr<Lap> lapOf(const Points &points, qint32 number, bool isComplete)
{
    auto lap = std::make_unique<Lap>();
    lap->setLapNumber(number);
    lap->setPoints(points);
    lap->setIsComplete(isComplete);
    lap->setEndsAtLine(true);
    return lap;
}

std::unique_ptr<Lap> lapOn(const Road &road, const Ride &ride, double stretch = 1.0)
{
    const double end = std::min(road.length(), ride.end);
    Points points;
    for (double time = 0.0, along = 0.0; along < end; time += ride.interval) {
        along = std::min(ride.placeAt(time), end);
        const bool lost = time >= ride.lostFrom && time < ride.lostTo;
        const bool stands = std::fabs(along - ride.stand) < 0.001;
        const QGeoCoordinate where
            = road.at(along + (stands ? 2.0 * std::sin(time / 900.0) : 0.0), ride.right);
        PointAcquisition point;
        const double stamp = std::min(time, ride.timeAt(end)) * stretch;
        point.dataTimeStamp = 5000 + static_cast<quint32>(std::round(stamp));
        point.dataCoordX = lost ? NoFixCoordinate : where.longitude();
        point.dataCoordY = lost ? NoFixCoordinate : where.latitude();
        points.push_back(point);
    }
    std::unique_ptr<Lap> lap = lapOf(points, 2, end < ride.end);
    lap->setEndsAtLine(end < ride.end);
    return lap;
}

double elapsed(const Lap &lap, std::size_t i)
{
    return lap.points()[i].dataTimeStamp - 5000.0;
}

const QString CircuitText = u"400 188.5/180 150 47.1/-90 47.1/90 190 94.2/90 60 94.2/90"_s;
const Road Circuit(CircuitText);
// Its legs are twelve metres apart, and two riders take its turns quite differently.
const Road Hairpins(u"300 18.8/180 280 18.8/-180 300"_s);
const Road ShortLegs(u"400 18.8/180 80 18.8/-180 300"_s);
const Road Eight(u"200 235.6/270 200 235.6/-270 60"_s);

} // namespace

class TestLapGap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void againstItself_data()
    {
        QTest::addColumn<double>("stretch"); // of the first lap's times
        QTest::addColumn<double>("end");
        QTest::newRow("same") << 1.0 << 1e9;
        QTest::newRow("slower") << 1.01 << 1e9;
        QTest::newRow("ends somewhere") << 1.0 << 600.0;
    }
    void againstItself()
    {
        QFETCH(const double, stretch);
        QFETCH(const double, end);
        const std::unique_ptr<Lap> lap = lapOn(Circuit, {0.0, 0.0, 100, 0, 0, end});
        const std::unique_ptr<Lap> slower = lapOn(Circuit, {0.0, 0.0, 100, 0, 0, end}, stretch);
        const LapGap gap(*slower, *lap);
        QCOMPARE(gap.size(), lap->points().size());
        for (std::size_t i = 0; i < gap.size(); ++i) {
            QCOMPARE(gap.gap(i), elapsed(*slower, i) - elapsed(*lap, i));
            QCOMPARE(gap.secondPoint(i), static_cast<double>(i));
        }
        QCOMPARE(gap.secondPointAt(-5.0), 0.0);
        QCOMPARE(gap.secondPointAt(250.0), 2.5);
        QCOMPARE(gap.firstPointAt(250.0 * stretch), 2.5);
        QCOMPARE(gap.secondPointAt(1e9), static_cast<double>(gap.size() - 1));
    }

    // Where the ways have nothing in common the gap is even, and a clock that was put back makes
    // nobody ride backwards.
    void oddLaps()
    {
        const std::unique_ptr<Lap> lap = lapOn(Circuit, {});
        const Road straight(u"600"_s);
        const std::unique_ptr<Lap> aside = lapOn(straight, {75.0}, 1.1);
        const LapGap even(*aside, *lapOn(straight, {0.0, 0.0001}));
        const double share = even.gap(even.size() - 1) / aside->lapTime();
        for (std::size_t i = 0; i < even.size(); ++i)
            QVERIFY(std::fabs(even.gap(i) - (elapsed(*aside, i) * share)) < 1.0);
        Points points = lap->points();
        for (std::size_t i = 200; i < points.size(); ++i)
            points[i].dataTimeStamp -= 3000;
        const auto put = lapOf(points, 2, true);
        for (const LapGap &gap : {LapGap(*put, *lap), LapGap(*lap, *put)}) {
            for (std::size_t i = 1; i < gap.size(); ++i)
                QVERIFY(gap.secondTime(i) >= gap.secondTime(i - 1));
        }
    }

    // The ends of both laps are one place only when the second has no way left to it.
    void ends_data()
    {
        QTest::addColumn<Road>("road"); // of the second lap, which is not complete
        QTest::addColumn<int>("lost"); // positions of the first, milliseconds before its end
        QTest::addColumn<int>("gap");
        QTest::newRow("lost before the line") << Circuit << 4000 << 0;
        QTest::newRow("passed the line unseen") << Road(CircuitText + u' ' + CircuitText) << 0 << 0;
        QTest::newRow("both at once") << Road(CircuitText + u' ' + CircuitText) << 4000 << -1;
    }
    void ends()
    {
        QFETCH(const Road, road);
        QFETCH(const int, lost);
        QFETCH(const int, gap);
        const int end = lapOn(Circuit, {})->lapTime();
        const auto lap = lapOn(Circuit, {0.0, 0.0, 100, end - lost, end});
        const auto other = lapOf(lapOn(road, {})->points(), 2, false);
        const LapGap found(*lap, *other);
        const double last = found.gap(found.size() - 1);
        QVERIFY(gap < 0 ? std::isnan(last) : std::fabs(last - gap) < 1.0);
    }

    void samePlace_data()
    {
        QTest::addColumn<Road>("road");
        QTest::addColumn<Ride>("first");
        QTest::addColumn<Ride>("second");
        QTest::addColumn<double>("tolerance"); // milliseconds
        const Ride middle;
        const Ride slower {-3.0, 0.0005};
        const Ride lost {0.0, 0.0, 100, 17000, 24000};
        const auto row
            = [](const char *name, const Road &road, const Ride &first, const Ride &second,
                 double tolerance) { QTest::newRow(name) << road << first << second << tolerance; };
        // A tolerance is what positions between samples cost, and little more.
        row("slower", Circuit, slower, middle, 13);
        row("far to the side", Circuit, {25.0}, {-9.0}, 110);
        row("1 Hz to 10 Hz", Circuit, {-3.0, 0.0005, 1000}, middle, 6);
        row("10 Hz to 1 Hz", Circuit, slower, {0.0, 0.0, 1000}, 38);
        row("first lost in the turn", Circuit, {-3.0, 0.0005, 100, 17000, 24000}, middle, 13);
        row("second lost in the turn", Circuit, slower, lost, 13);
        row("lost in the turn, far outside", Circuit, {20.0, 0.0, 100, 17000, 24000}, middle, 95);
        row("first stands", Circuit, {-3.0, 0.0, 100, 0, 0, 1e9, 480.0}, middle, 140);
        row("second stands", Circuit, slower, {0.0, 0.0, 100, 0, 0, 1e9, 480.0}, 60);
        row("eight", Eight, slower, middle, 3);
        row("lost at the crossing", Eight, slower, {0.0, 0.0, 100, 6000, 9000}, 3);
        row("hairpins, lines crossing", Hairpins, {3.0, 0.0005}, {-3.0}, 70);
        row("lost in a hairpin", Hairpins, {-3.0, 0.0005, 100, 11000, 15000}, middle, 36);
        row("beside the way back", ShortLegs, {11.0, 0.0, 100, 16300, 18000}, middle, 55);
        // The third leg is nearer, the first one has the distance driven.
        row("back beside another leg", ShortLegs, {13.0, 0.0, 100, 1000, 15500, 397.0}, middle, 20);
    }
    void samePlace()
    {
        QFETCH(const Road, road);
        QFETCH(const Ride, first);
        QFETCH(const Ride, second);
        QFETCH(const double, tolerance);
        const std::unique_ptr<Lap> lap = lapOn(road, first);
        const std::unique_ptr<Lap> other = lapOn(road, second);
        const LapGap gap(*lap, *other);
        for (std::size_t i = 0; i + 1 < gap.size(); ++i) {
            const double time = elapsed(*lap, i);
            const double along = first.placeAt(time);
            const double truth = time - second.timeAt(along);
            // Where the second stands he is at all times at once.
            if (std::fabs(along - second.stand) < 10.0)
                continue;
            QVERIFY2(std::fabs(gap.gap(i) - truth) < tolerance,
                     qPrintable(u"%1 ms, not %2, at %3"_s.arg(gap.gap(i)).arg(truth).arg(time)));
            QVERIFY(!(gap.secondTime(i) > gap.secondTime(i + 1)));
        }
        QCOMPARE(gap.gap(0), 0.0);
        if (lap->endsAtLine())
            QCOMPARE(gap.gap(gap.size() - 1), double(lap->lapTime() - other->lapTime()));
    }

    // The first lap of a recording starts somewhere, the last ends somewhere.
    void incompleteLaps()
    {
        const std::unique_ptr<Lap> lap = lapOn(Circuit, {});
        const std::unique_ptr<Lap> ended = lapOn(Circuit, {2.0, 0.0, 100, 0, 0, 600.0});
        const LapGap toEnded(*lap, *ended);
        for (std::size_t i = 0; i < toEnded.size(); ++i) {
            if (elapsed(*lap, i) < ended->lapTime() - 100.0)
                QVERIFY(std::fabs(toEnded.gap(i)) < 20.0);
            else if (elapsed(*lap, i) > ended->lapTime() + 100.0)
                QVERIFY(std::isnan(toEnded.gap(i)) && std::isnan(toEnded.secondPoint(i)));
        }
        const LapGap fromEnded(*ended, *lap);
        QVERIFY(std::fabs(fromEnded.gap(fromEnded.size() - 1)) < 20.0);

        Points points = lapOn(Circuit, {2.0})->points();
        points.erase(points.begin(), points.begin() + 150);
        const auto outLap = lapOf(points, 1, true);
        const LapGap fromOutLap(*outLap, *lap);
        for (std::size_t i = 0; i < fromOutLap.size(); ++i)
            QVERIFY(std::fabs(fromOutLap.gap(i) + 15000.0) < 20.0);
        // Neither starts nor ends with the other.
        points.erase(points.end() - 40, points.end());
        const auto middle = lapOf(points, 1, false);
        middle->setEndsAtLine(false);
        const LapGap fromMiddle(*middle, *lap);
        for (std::size_t i = 1; i + 1 < fromMiddle.size(); ++i)
            QVERIFY(std::fabs(fromMiddle.gap(i) + 15000.0) < 20.0);

        const Lap none;
        QVERIFY(LapGap(none, *lap).isEmpty());
        QVERIFY(std::isnan(LapGap(*lap, none).gap(3)));
    }
};

QTEST_GUILESS_MAIN(TestLapGap)
#include "tst_lapgap.moc"
