// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Maps proposed for made-up rides, held against a plain line across the track, and wrong maps.

#include <algorithm>
#include <cmath>
#include <random>

#include <QTest>

#include <maps/mapcheck.h>
#include <maps/mapproposal.h>
#include <session/plane.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;
using Kind = MapWarning::Kind;

namespace {

/// A closed way, a place for each metre: corners rounded by a mean over metres before and behind.
struct Track
{
    Track(const std::vector<PlaneVector> &corners, std::size_t rounding, double fastest)
        : fastest(fastest)
    {
        std::vector<PlaneVector> sharp;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const PlaneVector way = corners[(i + 1) % corners.size()] - corners[i];
            for (double metre = 0.0; metre < way.length(); metre += 1.0)
                sharp.push_back(corners[i] + (way * (metre / way.length())));
        }
        for (std::size_t i = 0; i < sharp.size(); ++i) {
            PlaneVector sum;
            for (std::size_t k = 0; k < rounding; ++k)
                sum = sum + sharp[(i + k) % sharp.size()];
            places.push_back(sum * (1.0 / static_cast<double>(rounding)));
        }
    }
    [[nodiscard]] PlaneVector way(std::size_t i) const
    {
        return places[(i + 1) % places.size()] - places[i % places.size()];
    }
    /// Metres per second: slow before bends and in them.
    [[nodiscard]] double speed(std::size_t i) const
    {
        const double straight = std::min(way(i) * way(i + 30), way(i) * way(i + 15));
        return fastest * (0.35 + (0.65 * std::max(0.0, straight)));
    }
    std::vector<PlaneVector> places;
    double fastest = 0.0;
};

Track track(const QString &name)
{
    if (name == u"kart")
        return {{{0, 0}, {140, 0}, {140, 15}, {40, 15}, {40, 30}, {150, 30}, {150, 90}, {-20, 90}},
                13,
                24};
    if (name == u"eight")
        return {{{-300, -200}, {300, 200}, {500, 0}, {300, -200}, {-300, 200}, {-520, 0}}, 81, 50};
    return {
        {{0, 0}, {1100, 0}, {1150, 400}, {700, 300}, {900, 900}, {300, 700}, {-200, 800}}, 81, 75};
}

/// A ride from one count of laps to another, up to so many metres off the track's middle.
struct Ride
{
    double from = 0.0;
    double to = 0.0;
    double off = 2.0;
    quint32 interval = 100;
    /// Metres beside the track at the begin and the end of the ride, at 60 km/h.
    double pitLane = 0.0;
};

Points ridden(const Track &track, const Ride &ride)
{
    std::mt19937 random(7); // the same numbers everywhere
    const auto shake = [&random](double most) {
        return most * (static_cast<double>(random() % 2001) / 1000 - 1);
    };
    const auto length = static_cast<double>(track.places.size());
    double phase = 0.0;
    Points points;
    double driven = ride.from * length;
    for (quint32 stamp = 0; driven < ride.to * length; stamp += 10) {
        const auto metre = static_cast<std::size_t>(driven);
        const PlaneVector way = track.way(metre);
        const bool isInPit = ride.pitLane != 0.0
                             && (driven < (std::ceil(ride.from) + 0.08) * length
                                 || driven > (std::floor(ride.to) - 0.08) * length);
        const double aside = isInPit ? ride.pitLane : ride.off * std::sin((driven / 170) + phase);
        const PlaneVector here = track.places[metre % track.places.size()]
                                 + (way * (driven - static_cast<double>(metre)));
        if (stamp % ride.interval == 0) {
            const QGeoCoordinate where = place(here.y + (aside * way.x) + shake(0.1),
                                               here.x - (aside * way.y) + shake(0.1));
            points.emplace_back().dataTimeStamp = stamp;
            points.back().dataCoordX = where.longitude();
            points.back().dataCoordY = where.latitude();
        }
        phase += shake(0.004);
        driven += (isInPit ? 16.0 : track.speed(metre)) * 0.01;
    }
    return points;
}

/// Milliseconds between crossings of the line that lies across the outline's ends.
QList<double> plainLaps(const Points &points, const MapDraft &draft)
{
    const Plane plane(draft.start);
    const PlaneVector along
        = plane.place(draft.outline[4]) - plane.place(draft.outline[draft.outline.size() - 5]);
    QList<double> times;
    double last = -1.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PlaneVector a = plane.place({points[i - 1].dataCoordY, points[i - 1].dataCoordX});
        const PlaneVector b = plane.place({points[i].dataCoordY, points[i].dataCoordX});
        const double part = (a * along) / ((a - b) * along);
        if (a * along > 0.0 || b * along <= 0.0
            || (a + ((b - a) * part)).length() > 2.0 * draft.gateSize)
            continue;
        const quint32 stamp = points[i - 1].dataTimeStamp;
        const double time = stamp + (part * (points[i].dataTimeStamp - stamp));
        if (last >= 0.0)
            times.append(time - last);
        last = time;
    }
    return times;
}

} // namespace

class TestMapProposal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void proposals_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Ride>("ride");
        QTest::addColumn<int>("laps");
        QTest::newRow("hairpins 15 m apart") << u"kart"_s << Ride {0.3, 12.2, 1.5} << 11;
        QTest::newRow("figure of eight") << u"eight"_s << Ride {0.1, 6.3} << 6;
        QTest::newRow("two laps") << u"large"_s << Ride {0.6, 2.9, 3.0} << 2;
        QTest::newRow("a lap and a little") << u"large"_s << Ride {0.8, 2.0} << 1;
        QTest::newRow("switched on on the straight") << u"large"_s << Ride {0.09, 4.3} << 4;
        QTest::newRow("pit lane") << u"large"_s << Ride {0.98, 5.05, 2.0, 100, -18.0} << 3;
        QTest::newRow("a position a second") << u"large"_s << Ride {0.6, 4.8, 2.0, 1000} << 4;
        QTest::newRow("20 a second") << u"kart"_s << Ride {0.3, 6.5, 1.0, 50} << 6;
    }
    void proposals()
    {
        QFETCH(const QString, name);
        QFETCH(const Ride, ride);
        QFETCH(const int, laps);
        const Points points = ridden(track(name), ride);
        const MapProposal proposal = proposeMap(points);
        QCOMPARE(static_cast<int>(proposal.laps.size()), laps);
        const qsizetype sectors = proposal.draft.timingPoints.size();
        QVERIFY(sectors >= 3 && sectors <= 6);
        const MapCheck check = checkMap(points, proposal.draft);
        for (const MapWarning &warning : check.warnings)
            QFAIL(qPrintable(warningText(warning)));
        const auto length = static_cast<double>(track(name).places.size());
        QVERIFY(std::fabs(check.length - length) < 0.06 * length);
        const QList<double> plain = plainLaps(points, proposal.draft);
        for (const CheckedLap &lap : check.laps) {
            QVERIFY(!lap.isComplete || !lap.sectorTimes.contains(-1));
            QVERIFY(!lap.isComplete || std::any_of(plain.begin(), plain.end(), [&lap](double time) {
                return std::fabs(time - lap.time) < 50.0;
            }));
        }
    }

    void noProposals()
    {
        QCOMPARE(proposeMap({}).reason, NoProposal::NoPositions);
        Points points = ridden(track(u"large"_s), {0.1, 0.95});
        QCOMPARE(proposeMap(points).reason, NoProposal::NoLap);
        const Points back(points.rbegin(), points.rend());
        points.insert(points.end(), back.begin(), back.end());
        for (std::size_t i = 0; i < points.size(); ++i)
            points[i].dataTimeStamp = static_cast<quint32>(i) * 100;
        QCOMPARE(proposeMap(points).reason, NoProposal::NoLap); // there and back
        for (std::size_t i = 0; i < points.size(); ++i)
            points[i].dataCoordX = static_cast<double>(i / 40 * 7919 % 360) - 180.0;
        QCOMPARE(proposeMap(points).reason, NoProposal::NoLap); // all over the globe
        for (PointAcquisition &point : points)
            point.dataCoordX = point.dataCoordY = 10.0;
        QCOMPARE(proposeMap(points).reason, NoProposal::NoMovement);
    }

    void warnings()
    {
        const Points points = ridden(track(u"kart"_s), {0.3, 6.5, 1.0});
        const MapDraft sound = proposeMap(points).draft;
        QVERIFY(checkMap(points, sound).warnings.isEmpty());
        const auto warns = [&](Kind kind, const std::function<void(MapDraft &)> &spoil) {
            MapDraft draft = sound;
            spoil(draft);
            const QList<MapWarning> warnings = checkMap(points, draft).warnings;
            return std::any_of(warnings.begin(), warnings.end(),
                               [kind](const MapWarning &warning) { return warning.kind == kind; });
        };
        QVERIFY(warns(Kind::NoLine, [](MapDraft &d) { d.start = {}; }));
        QVERIFY(warns(Kind::NoPass, [](MapDraft &d) { d.start = place(9000); }));
        QVERIFY(warns(Kind::PointOutOfOrder, [](auto &d) { d.timingPoints.swapItemsAt(0, 1); }));
        QVERIFY(warns(Kind::MissedPoint, [](auto &d) { d.timingPoints[0] = place(45, 90); }));
        QVERIFY(warns(Kind::LastNotOnLine, [](auto &d) { d.timingPoints.removeLast(); }));
        QVERIFY(warns(Kind::GatesTouch, [](auto &d) { d.timingPoints += d.timingPoints; }));
        QVERIFY(warns(Kind::TooManyPoints, [](auto &d) { d.timingPoints += d.timingPoints; }));
        QVERIFY(warns(Kind::NoLapComplete, [](MapDraft &d) { d.outline.remove(0, 50); }));
        QVERIFY(warns(Kind::SecondTrack, [](MapDraft &d) { d.gateSize = 18.0; }));
        QVERIFY(warns(Kind::CountedTwice, [](MapDraft &d) { d.gateSize = 18.0; }));
    }
};

QTEST_GUILESS_MAIN(TestMapProposal)
#include "tst_mapproposal.moc"
