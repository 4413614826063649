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
    Road(const QString &stretches)
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

    // Milliseconds at so many metres, at 18 to 34 m/s; and the other way around.
    [[nodiscard]] double timeAt(double along) const
    {
        return (along / 0.024) + (1500.0 * std::sin(along / 120.0)) + (trend * along * along);
    }
    [[nodiscard]] double placeAt(double time) const
    {
        double low = 0.0;
        for (double step = 2048.0; step > 1e-4; step /= 2.0)
            low += timeAt(low + step) <= time ? step : 0.0;
        return low;
    }
};

std::unique_ptr<Lap> lapOn(const Road &road, const Ride &ride, double stretch = 1.0)
{
    const double end = std::min(road.length(), ride.end);
    Points points;
    for (double time = 0.0, along = 0.0; along < end; time += ride.interval) {
        along = std::min(ride.placeAt(time), end);
        const bool lost = time >= ride.lostFrom && time < ride.lostTo;
        const QGeoCoordinate where = road.at(along, ride.right);
        PointAcquisition point;
        const double stamp = std::min(time, ride.timeAt(end)) * stretch;
        point.dataTimeStamp = 5000 + static_cast<quint32>(std::round(stamp));
        point.dataCoordX = lost ? NoFixCoordinate : where.longitude();
        point.dataCoordY = lost ? NoFixCoordinate : where.latitude();
        points.push_back(point);
    }
    auto lap = std::make_unique<Lap>();
    lap->setLapNumber(2);
    lap->setPoints(points);
    lap->setIsComplete(end < ride.end);
    lap->setEndsAtLine(end < ride.end);
    return lap;
}

double elapsed(const Lap &lap, std::size_t i)
{
    return lap.points()[i].dataTimeStamp - 5000.0;
}

const Road Circuit(u"400 188.5/180 150 47.1/-90 47.1/90 190 94.2/90 60 94.2/90"_s);
// Its legs are twelve metres apart, and two riders take its turns quite differently.
const Road Hairpins(u"300 18.8/180 280 18.8/-180 300"_s);
const Road Eight(u"200 235.6/270 200 235.6/-270 60"_s);

} // namespace

class TestLapGap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void againstItself()
    {
        const std::unique_ptr<Lap> lap = lapOn(Circuit, {});
        for (const double stretch : {1.0, 1.01}) {
            const std::unique_ptr<Lap> slower = lapOn(Circuit, {}, stretch);
            const LapGap gap(*slower, *lap);
            QCOMPARE(gap.size(), lap->points().size());
            for (std::size_t i = 0; i < gap.size(); ++i) {
                QCOMPARE(gap.gap(i), elapsed(*slower, i) - elapsed(*lap, i));
                QCOMPARE(gap.secondPoint(i), static_cast<double>(i));
            }
            QCOMPARE(gap.secondPointAt(250.0), 2.5);
            QCOMPARE(gap.secondPointAt(1e9), static_cast<double>(gap.size() - 1));
        }
    }

    void samePlace()
    {
        const Ride middle;
        const Ride slower {-3.0, 0.0005};
        const struct
        {
            QString name;
            const Road &road;
            Ride first;
            Ride second;
            double tolerance; // milliseconds
        } rows[] = {
            {u"slower"_s, Circuit, slower, middle, 20},
            {u"1 Hz to 10 Hz"_s, Circuit, {-3.0, 0.0005, 1000}, middle, 20},
            {u"10 Hz to 1 Hz"_s, Circuit, slower, {0.0, 0.0, 1000}, 60},
            {u"first lost in the turn"_s, Circuit, {-3.0, 0.0005, 100, 17000, 24000}, middle, 60},
            {u"second lost in the turn"_s, Circuit, slower, {0.0, 0.0, 100, 17000, 24000}, 60},
            {u"eight"_s, Eight, slower, middle, 20},
            {u"lost at the crossing"_s, Eight, slower, {0.0, 0.0, 100, 6000, 9000}, 60},
            {u"hairpins, lines crossing"_s, Hairpins, {3.0, 0.0005}, {-3.0}, 200},
            {u"lost in a hairpin"_s, Hairpins, {-3.0, 0.0005, 100, 11000, 15000}, middle, 80},
        };
        for (const auto &row : rows) {
            const std::unique_ptr<Lap> first = lapOn(row.road, row.first);
            const std::unique_ptr<Lap> second = lapOn(row.road, row.second);
            const LapGap gap(*first, *second);
            for (std::size_t i = 0; i + 1 < gap.size(); ++i) {
                const double time = elapsed(*first, i);
                const double truth = time - row.second.timeAt(row.first.placeAt(time));
                QVERIFY2(
                    std::fabs(gap.gap(i) - truth) < row.tolerance,
                    qPrintable(u"%1 at %2 ms: %3 ms"_s.arg(row.name).arg(time).arg(gap.gap(i))));
            }
            QCOMPARE(gap.gap(0), 0.0);
            QCOMPARE(gap.gap(gap.size() - 1), double(first->lapTime() - second->lapTime()));
        }
        // A wider line is longer all the same.
        QVERIFY(lapOn(Circuit, {-3.0})->distance() > lapOn(Circuit, middle)->distance() + 15.0);
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
        Lap outLap;
        outLap.setLapNumber(1);
        outLap.setPoints(points);
        outLap.setIsComplete(true);
        outLap.setEndsAtLine(true);
        const LapGap fromOutLap(outLap, *lap);
        for (std::size_t i = 0; i < fromOutLap.size(); ++i)
            QVERIFY(std::fabs(fromOutLap.gap(i) + 15000.0) < 20.0);

        const Lap none;
        QVERIFY(LapGap(none, *lap).isEmpty());
        QVERIFY(std::isnan(LapGap(*lap, none).gap(3)));
    }
};

QTEST_GUILESS_MAIN(TestLapGap)
#include "tst_lapgap.moc"
