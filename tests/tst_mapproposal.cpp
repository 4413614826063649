// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Maps proposed for made-up rides, held against a plain line across the track, and wrong maps.

#include <algorithm>
#include <cmath>
#include <random>

#include <QTest>

#include <base/plane.h>
#include <maps/check/mapcheck.h>
#include <maps/proposal/mapproposal.h>
#include <session/recording/trace.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using Kind = MapWarning::Kind;

namespace {

using Places = std::vector<PlaneVector>;

/// A closed way, a place for each metre: corners rounded by a mean over so many metres.
Places track(const Places &corners, std::size_t rounding)
{
    Places sharp;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PlaneVector way = corners[(i + 1) % corners.size()] - corners[i];
        for (double metre = 0.0; metre < way.length(); metre += 1.0)
            sharp.push_back(corners[i] + (way * (metre / way.length())));
    }
    Places places(sharp.size());
    for (std::size_t i = 0; i < sharp.size(); ++i) {
        for (std::size_t k = 0; k < rounding; ++k)
            places[i] = places[i] + (sharp[(i + k) % sharp.size()] * (1.0 / rounding));
    }
    return places;
}

const Places Kart
    = track({{0, 0}, {140, 0}, {140, 15}, {40, 15}, {40, 30}, {150, 30}, {150, 90}, {-20, 90}}, 13);
const Places Eight
    = track({{-300, -200}, {300, 200}, {500, 0}, {300, -200}, {-300, 200}, {-520, 0}}, 81);
const Places Large
    = track({{0, 0}, {1100, 0}, {1150, 400}, {700, 300}, {900, 900}, {300, 700}, {-200, 800}}, 81);

/// From one count of laps to another, so many metres off the middle; in a pit lane at both ends;
/// with positions that wander by about so many metres.
struct Ride
{
    double from = 0.0, to = 0.0, off = 2.0;
    quint32 interval = 100;
    double pitLane = 0.0;
    double drift = 0.0;
};

Points ridden(const Places &track, const Ride &ride)
{
    const auto count = track.size();
    const auto way = [&](std::size_t i) { return track[(i + 1) % count] - track[i % count]; };
    std::mt19937 random(7); // the same numbers everywhere
    const auto shake = [&](double most) { return most * ((random() % 2001) / 1000.0 - 1.0); };
    Points points;
    PlaneVector drift;
    double laps = ride.from;
    for (quint32 stamp = 0; laps < ride.to; stamp += 10) {
        const double metre = laps * static_cast<double>(count);
        const auto i = static_cast<std::size_t>(metre);
        const bool isInPit
            = ride.pitLane != 0.0 && (laps < std::ceil(ride.from) + 0.08 || laps > ride.to - 0.13);
        const double aside = isInPit ? ride.pitLane : ride.off * std::sin(metre / 170);
        const PlaneVector here = track[i % count] + (way(i) * std::fmod(metre, 1.0));
        drift = (drift * 0.9995) + PlaneVector {shake(ride.drift), shake(ride.drift)} * 0.05;
        if (stamp % ride.interval == 0) {
            const QGeoCoordinate where = place(here.y + drift.y + (aside * way(i).x) + shake(0.1),
                                               here.x + drift.x - (aside * way(i).y) + shake(0.1));
            points.emplace_back().dataTimeStamp = stamp;
            points.back().dataCoordX = where.longitude();
            points.back().dataCoordY = where.latitude();
        }
        // Slow before bends and in them.
        const double straight = std::min(way(i) * way(i + 30), way(i) * way(i + 15));
        const double speed = (count < 1000 ? 24 : 70) * (0.35 + (0.65 * std::max(0.0, straight)));
        laps += (isInPit ? 16.0 : speed) * 0.01 / static_cast<double>(count);
    }
    return points;
}

/// Whether two crossings of the line that lies across the outline's ends are so far apart.
bool isPlainLap(const Points &points, const MapDraft &draft, double milliseconds)
{
    const Plane plane(draft.start);
    const PlaneVector along
        = plane.place(draft.outline[4]) - plane.place(draft.outline[draft.outline.size() - 5]);
    double last = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PlaneVector a = plane.place({points[i - 1].dataCoordY, points[i - 1].dataCoordX});
        const PlaneVector b = plane.place({points[i].dataCoordY, points[i].dataCoordX});
        const double part = (a * along) / ((a - b) * along);
        if (a * along > 0.0 || b * along <= 0.0
            || (a + ((b - a) * part)).length() > 2.0 * draft.gateSize)
            continue;
        const quint32 stamp = points[i - 1].dataTimeStamp;
        const double time = stamp + (part * (points[i].dataTimeStamp - stamp));
        if (std::fabs(time - last - milliseconds) < 50.0)
            return true;
        last = time;
    }
    return false;
}

} // namespace

class TestMapProposal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void proposals_data()
    {
        QTest::addColumn<Places>("track");
        QTest::addColumn<Ride>("ride");
        QTest::addColumn<int>("laps");
        QTest::newRow("hairpins 15 m apart") << Kart << Ride {0.3, 12.2, 1.5} << 11;
        QTest::newRow("figure of eight") << Eight << Ride {0.1, 6.3} << 6;
        QTest::newRow("two laps") << Large << Ride {0.6, 2.9, 3.0} << 2;
        QTest::newRow("a lap and a little") << Large << Ride {0.8, 2.0} << 1;
        QTest::newRow("switched on on the straight") << Large << Ride {0.09, 4.3} << 4;
        QTest::newRow("pit lane") << Large << Ride {0.98, 5.05, 2.0, 100, -18.0} << 3;
        QTest::newRow("25 rough positions a second")
            << Kart << Ride {0.3, 26.4, 1.0, 40, 0.0, 1.5} << 25;
        QTest::newRow("a position a second") << Large << Ride {0.6, 4.8, 2.0, 1000} << 4;
    }
    void proposals()
    {
        QFETCH(const Places, track);
        QFETCH(const Ride, ride);
        QFETCH(const int, laps);
        const Points points = ridden(track, ride);
        const MapProposal proposal = proposeMap(points);
        QCOMPARE(static_cast<int>(proposal.laps.size()), laps);
        const qsizetype sectors = proposal.draft.timingPoints.size();
        QVERIFY(sectors >= 3 && sectors <= 6);
        const MapCheck check = checkMap(points, proposal.draft);
        // At 25 positions a second the line counts again after 0.4 seconds.
        for (const MapWarning &warning : check.warnings)
            QVERIFY2(warning.kind == Kind::SlowPass && ride.interval < 100,
                     qPrintable(warningText(warning)));
        const auto length = static_cast<double>(track.size());
        QVERIFY(std::fabs(check.length - length) < 0.06 * length);
        for (const CheckedLap &lap : check.laps) {
            QVERIFY(!lap.isComplete || !lap.sectorTimes.contains(-1));
            QVERIFY(!lap.isComplete || isPlainLap(points, proposal.draft, lap.time));
        }
    }

    // The map of one day on another, when everybody is half as fast, and from wherever one begins.
    void otherDays()
    {
        for (const Places &track : {Kart, Large}) {
            const MapProposal proposal = proposeMap(ridden(track, {0.3, 4.2, 2.0}));
            const QGeoCoordinate begin = positionOf(ridden(track, {0.3, 0.31}).front());
            QVERIFY(begin.distanceTo(proposal.draft.start) < 900.0);
            Points slow = ridden(track, {0.7, 4.6, -1.0, 50});
            for (PointAcquisition &point : slow)
                point.dataTimeStamp *= 2;
            const MapCheck check = checkMap(slow, proposal.draft);
            for (const MapWarning &warning : check.warnings)
                QVERIFY2(warning.kind == Kind::SlowPass, qPrintable(warningText(warning)));
            QCOMPARE(std::count_if(check.laps.begin(), check.laps.end(),
                                   [](const CheckedLap &lap) { return lap.isComplete; }),
                     3);
        }
    }

    void noProposals()
    {
        QCOMPARE(proposeMap({}).reason, NoProposal::NoPositions);
        Points points = ridden(Large, {0.1, 0.95});
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
        const Points points = ridden(Kart, {0.3, 6.5, 1.0});
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
        QVERIFY(warns(Kind::MissedPoint, [](MapDraft &d) { // the line itself
            d.timingPoints.clear();
            d.gateSize = 0.6;
        }));
        QVERIFY(warns(Kind::PointOutOfOrder, [](auto &d) { d.timingPoints.swapItemsAt(0, 1); }));
        QVERIFY(warns(Kind::MissedPoint, [](auto &d) { d.timingPoints[0] = place(45, 90); }));
        QVERIFY(warns(Kind::LastNotOnLine, [](auto &d) { d.timingPoints.removeLast(); }));
        QVERIFY(warns(Kind::GatesTouch, [](auto &d) { d.timingPoints += d.timingPoints; }));
        QVERIFY(warns(Kind::TooManyPoints, [](auto &d) { d.timingPoints += d.timingPoints; }));
        QVERIFY(warns(Kind::NoLapComplete, [](MapDraft &d) { d.outline.remove(0, 50); }));
        QVERIFY(warns(Kind::SecondTrack, [](MapDraft &d) { d.gateSize = 18.0; }));
        QVERIFY(warns(Kind::CountedTwice, [](MapDraft &d) { d.gateSize = 18.0; }));
        QVERIFY(warns(Kind::SlowPass, [](MapDraft &d) { d.gateSize = 14.0; }));
        // Another circuit's outline, with a line where this ride began.
        QVERIFY(warns(Kind::NotFound, [&points](MapDraft &d) {
            for (QGeoCoordinate &point : d.outline)
                point = point.atDistanceAndAzimuth(500.0, 45.0);
            d.start = positionOf(points.front());
        }));
    }
};

QTEST_GUILESS_MAIN(TestMapProposal)
#include "tst_mapproposal.moc"
