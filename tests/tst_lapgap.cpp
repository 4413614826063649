// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QTest>

#include <session/lap.h>
#include <session/lapgap.h>
#include <session/session.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

struct Spot
{
    double north = 0.0;
    double east = 0.0;
};

// A road of straights and arcs of a circle, by its middle.
class Road
{
public:
    Road &straight(double metres) { return turn(metres, 0.0); }
    Road &left(double radius, double degrees) { return arc(radius, -degrees); }
    Road &right(double radius, double degrees) { return arc(radius, degrees); }

    // Metres.
    [[nodiscard]] double length() const { return 0.1 * static_cast<double>(m_spots.size() - 1); }

    // So many metres along the road and to the right of its middle.
    [[nodiscard]] Spot at(double along, double right) const
    {
        const double last = static_cast<double>(m_spots.size() - 2);
        const double index = std::clamp(along / 0.1, 0.0, last);
        const auto i = static_cast<std::size_t>(index);
        const double part = (along / 0.1) - static_cast<double>(i);
        const double heading = std::lerp(m_headings[i], m_headings[i + 1], part);
        return {
            std::lerp(m_spots[i].north, m_spots[i + 1].north, part) - (right * std::sin(heading)),
            std::lerp(m_spots[i].east, m_spots[i + 1].east, part) + (right * std::cos(heading))};
    }

private:
    Road &arc(double radius, double degrees)
    {
        const double angle = degrees * std::numbers::pi / 180.0;
        return turn(radius * std::fabs(angle), angle);
    }

    Road &turn(double metres, double angle)
    {
        const auto steps = static_cast<int>(std::round(metres / 0.1));
        for (int i = 0; i < steps; ++i) {
            m_heading += angle / (2.0 * steps);
            m_spots.push_back({m_spots.back().north + (0.1 * std::cos(m_heading)),
                               m_spots.back().east + (0.1 * std::sin(m_heading))});
            m_heading += angle / (2.0 * steps);
            m_headings.push_back(m_heading);
        }
        return *this;
    }

    std::vector<Spot> m_spots {{}};
    std::vector<double> m_headings {0.0};
    double m_heading = 0.0;
};

Road circuit()
{
    return Road()
        .straight(400)
        .right(60, 180)
        .straight(150)
        .left(30, 90)
        .right(30, 90)
        .straight(190)
        .right(60, 90)
        .straight(60)
        .right(60, 90);
}

// Legs twelve metres apart, in turns that the lines of two riders round differently.
Road hairpin()
{
    return Road().straight(300).right(6, 180).straight(280).left(6, 180).straight(300);
}

Road figureOfEight()
{
    return Road().straight(200).right(50, 270).straight(200).left(50, 270).straight(60);
}

// Milliseconds at which a rider is so many metres along the road: at 18 to 34 m/s, and steadily
// faster or slower by @p trend.
double paceTime(double along, double trend)
{
    const double wave = along / 120.0;
    return (1000.0 * along / 24.0) + (1500.0 * std::sin(wave)) + (trend * along * along / 1000.0);
}

struct Ride
{
    double right = 0.0;
    double trend = 0.0;
    double stretch = 1.0;
    // Milliseconds from sample to sample.
    int interval = 100;
    // Samples without a position, by their time.
    int lostFrom = 0;
    int lostTo = 0;
    double length = 1e9;
};

Points rideOn(const Road &road, const Ride &ride)
{
    const double end = std::min(road.length() - 0.2, ride.length);
    Points points;
    double along = 0.0;
    for (int time = 0;; time += ride.interval) {
        const auto reached
            = [&](double metres) { return ride.stretch * paceTime(metres, ride.trend) >= time; };
        while (along < end && !reached(along))
            along += 0.001;
        const Spot spot = road.at(std::min(along, end), ride.right);
        const QGeoCoordinate where = place(spot.north, spot.east);
        const bool lost = time >= ride.lostFrom && time < ride.lostTo;
        PointAcquisition point;
        const double stamp = along < end ? time : ride.stretch * paceTime(end, ride.trend);
        point.dataTimeStamp = 5000 + static_cast<quint32>(std::round(stamp));
        point.dataCoordX = lost ? NoFixCoordinate : where.longitude();
        point.dataCoordY = lost ? NoFixCoordinate : where.latitude();
        points.push_back(point);
        if (along >= end)
            return points;
    }
}

std::unique_ptr<Lap> lapOn(const Road &road, const Ride &ride)
{
    static const Session session(u"/somewhere/Ride.ra1"_s);
    auto lap = std::make_unique<Lap>(session);
    lap->setLapNumber(2);
    lap->setPoints(rideOn(road, ride));
    lap->setIsComplete(ride.length > road.length());
    return lap;
}

} // namespace

Q_DECLARE_METATYPE(Road)
Q_DECLARE_METATYPE(Ride)

class TestLapGap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void againstItself_data();
    void againstItself();
    void samePlace_data();
    void samePlace();
    void incompleteLaps();
};

void TestLapGap::againstItself_data()
{
    QTest::addColumn<double>("stretch");
    QTest::newRow("the same") << 1.0;
    QTest::newRow("one per cent slower") << 1.01;
}

void TestLapGap::againstItself()
{
    QFETCH(double, stretch);
    const std::unique_ptr<Lap> lap = lapOn(circuit(), {});
    Points points = lap->points();
    for (PointAcquisition &point : points)
        point.dataTimeStamp
            = 5000 + static_cast<quint32>(std::round((point.dataTimeStamp - 5000.0) * stretch));
    Lap slower(lap->session());
    slower.setLapNumber(3);
    slower.setPoints(points);
    slower.setIsComplete(true);
    const LapGap gap(slower, *lap);
    QCOMPARE(gap.size(), points.size());
    for (std::size_t i = 0; i < gap.size(); ++i) {
        const double time = points[i].dataTimeStamp - 5000.0;
        QVERIFY(std::fabs(gap.gap(i) - (time * (1.0 - (1.0 / stretch)))) < 1.0);
        QVERIFY(std::fabs(gap.secondPoint(i) - static_cast<double>(i)) < 1e-6);
    }
    QCOMPARE(gap.secondPointAt(250.0), 2.5);
    QCOMPARE(gap.secondPointAt(1e9), static_cast<double>(points.size() - 1));
}

void TestLapGap::samePlace_data()
{
    QTest::addColumn<Road>("road");
    QTest::addColumn<Ride>("first");
    QTest::addColumn<Ride>("second");
    QTest::addColumn<double>("tolerance"); // milliseconds
    const Ride middle;
    const Ride outside {-3.0};
    const Ride slower {-3.0, 0.5};
    QTest::newRow("outside, the same pace") << circuit() << outside << middle << 20.0;
    QTest::newRow("inside, the same pace") << circuit() << middle << outside << 20.0;
    QTest::newRow("outside, slower") << circuit() << slower << middle << 20.0;
    QTest::newRow("25 Hz against 10 Hz")
        << circuit() << Ride {-3.0, 0.5, 1.0, 40} << middle << 20.0;
    QTest::newRow("1 Hz against 10 Hz")
        << circuit() << Ride {-3.0, 0.5, 1.0, 1000} << middle << 20.0;
    QTest::newRow("10 Hz against 1 Hz")
        << circuit() << slower << Ride {0.0, 0.0, 1.0, 1000} << 120.0;
    QTest::newRow("first without positions in the turn")
        << circuit() << Ride {-3.0, 0.5, 1.0, 100, 17000, 24000} << middle << 60.0;
    QTest::newRow("second without positions in the turn")
        << circuit() << slower << Ride {0.0, 0.0, 1.0, 100, 17000, 24000} << 60.0;
    QTest::newRow("figure-of-eight") << figureOfEight() << slower << middle << 20.0;
    QTest::newRow("figure-of-eight, no positions at the crossing")
        << figureOfEight() << slower << Ride {0.0, 0.0, 1.0, 100, 3000, 6000} << 60.0;
    QTest::newRow("hairpin") << hairpin() << slower << middle << 80.0;
    QTest::newRow("hairpin, lines crossing over")
        << hairpin() << Ride {3.0, 0.5} << Ride {-3.0} << 200.0;
    QTest::newRow("hairpin, no positions in it")
        << hairpin() << Ride {-3.0, 0.5, 1.0, 100, 11000, 15000} << middle << 60.0;
}

void TestLapGap::samePlace()
{
    QFETCH(Road, road);
    QFETCH(Ride, first);
    QFETCH(Ride, second);
    QFETCH(double, tolerance);
    const std::unique_ptr<Lap> lap1 = lapOn(road, first);
    const std::unique_ptr<Lap> lap2 = lapOn(road, second);
    // The wider line of a lap around a circuit is 19 metres longer.
    if (QByteArray(QTest::currentDataTag()).startsWith("outside"))
        QVERIFY(lap1->distance() - lap2->distance() > 15.0);
    const LapGap gap(*lap1, *lap2);
    double along = 0.0;
    for (std::size_t i = 0; i + 1 < gap.size(); ++i) {
        const double time = lap1->points()[i].dataTimeStamp - 5000.0;
        while (first.stretch * paceTime(along, first.trend) < time)
            along += 0.001;
        const double truth = time - (second.stretch * paceTime(along, second.trend));
        QVERIFY2(!std::isnan(gap.gap(i)), qPrintable(u"%1 m"_s.arg(along)));
        QVERIFY2(std::fabs(gap.gap(i) - truth) < tolerance,
                 qPrintable(u"%1 ms for %2 ms at %3 m"_s.arg(gap.gap(i)).arg(truth).arg(along)));
    }
    QCOMPARE(gap.gap(0), 0.0);
    QCOMPARE(gap.gap(gap.size() - 1), static_cast<double>(lap1->lapTime() - lap2->lapTime()));
}

// The first lap of a recording starts somewhere, the last ends somewhere.
void TestLapGap::incompleteLaps()
{
    const std::unique_ptr<Lap> lap = lapOn(circuit(), {});
    const std::unique_ptr<Lap> ended = lapOn(circuit(), {2.0, 0.0, 1.0, 100, 0, 0, 600.0});
    const LapGap toEnded(*lap, *ended);
    const LapGap fromEnded(*ended, *lap);
    std::size_t met = 0;
    for (std::size_t i = 0; i < toEnded.size(); ++i) {
        const bool there = !std::isnan(toEnded.gap(i));
        met += there ? 1 : 0;
        QCOMPARE(there, i < met);
        QVERIFY(!there || std::fabs(toEnded.gap(i)) < 20.0);
    }
    QVERIFY(met + 3 >= ended->points().size() && met <= ended->points().size());
    QVERIFY(std::fabs(fromEnded.gap(fromEnded.size() - 1)) < 20.0);

    Points points = rideOn(circuit(), {2.0});
    points.erase(points.begin(), points.begin() + 150);
    Lap outLap(lap->session());
    outLap.setLapNumber(1);
    outLap.setPoints(points);
    outLap.setIsComplete(true); // and so ends at the line
    const LapGap fromOutLap(outLap, *lap);
    for (std::size_t i = 0; i < fromOutLap.size(); ++i)
        QVERIFY(std::fabs(fromOutLap.gap(i) + 15000.0) < 20.0);
    QCOMPARE(fromOutLap.gap(points.size() - 1), outLap.lapTime() - double(lap->lapTime()));

    QVERIFY(LapGap().isEmpty());
    const LapGap withoutPoints(Lap(lap->session()), *lap);
    QVERIFY(withoutPoints.isEmpty());
    QVERIFY(std::isnan(LapGap(*lap, Lap(lap->session())).gap(3)));
}

QTEST_GUILESS_MAIN(TestLapGap)
#include "tst_lapgap.moc"
