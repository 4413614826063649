// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Maps proposed for made-up rides, held against a plain line across the track.

#include <algorithm>
#include <cmath>

#include <QTest>

#include <maps/check/mapcheck.h>
#include <maps/proposal/mapproposal.h>
#include <session/recording/trace.h>
#include <track/map.h>

#include "builders.h"
#include "rides.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// Whether two crossings of the line that lies across the outline's ends are so far apart.
bool isPlainLap(Points points, const MapDraft &draft, double milliseconds)
{
    std::erase_if(points, [](const auto &point) { return !positionOf(point).isValid(); });
    const Plane plane(draft.start);
    const auto few = static_cast<qsizetype>(
        std::ceil(8.0 * static_cast<double>(draft.outline.size()) / draft.toMap()->length()));
    const PlaneVector along = plane.place(draft.outline[few])
                              - plane.place(draft.outline[draft.outline.size() - 1 - few]);
    double last = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PlaneVector a = plane.place(positionOf(points[i - 1]));
        const PlaneVector b = plane.place(positionOf(points[i]));
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

/// The track's metre that is nearest to a place.
int metreOf(const Places &track, const QGeoCoordinate &where)
{
    const PlaneVector at = Plane(place(0)).place(where);
    const auto nearest
        = std::min_element(track.begin(), track.end(), [at](PlaneVector a, PlaneVector b) {
              return (a - at).length() < (b - at).length();
          });
    return static_cast<int>(nearest - track.begin());
}

/// The line and the timing points by metres of the track, the gate's size; the typical lap and how
/// many there are, some of them not as long as a plain line says; the outline, and warnings.
QString textOf(const MapProposal &proposal, const Points &points, const Places &track)
{
    if (proposal.reason != NoProposal::None)
        return u"none %1"_s.arg(static_cast<int>(proposal.reason));
    const MapDraft &draft = proposal.draft;
    QString text = QString::number(metreOf(track, draft.start)) + u':';
    for (const QGeoCoordinate &point : draft.timingPoints)
        text += u' ' + QString::number(metreOf(track, point));
    text += u" / %1, lap %2 of %3"_s.arg(draft.gateSize)
                .arg(proposal.typicalLap + 1)
                .arg(proposal.laps.size());
    const auto odd
        = std::count_if(proposal.laps.begin(), proposal.laps.end(),
                        [&](const FoundLap &lap) { return !isPlainLap(points, draft, lap.time); });
    text += odd > 0 ? u" but %1"_s.arg(odd) : u""_s;
    const MapCheck check = checkMap(points, draft);
    text += u", %1 m in %2"_s.arg(qRound(check.length)).arg(draft.outline.size());
    return text + shortText(check.warnings);
}

} // namespace

class TestMapProposal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void proposals_data()
    {
        QTest::addColumn<QString>("ride");
        QTest::addColumn<QString>("proposal");
        const auto row = [](const char *name, const QString &ride, const QString &proposal) {
            QTest::newRow(name) << ride << proposal;
        };
        row("hairpins 15 m apart", u"kart 0.3-12.2 off 1.5"_s,
            u"523: 638 81 193 314 391 523 / 5.5, lap 6 of 11, 678 m in 86"_s);
        row("figure of eight", u"eight 0.1-6.3"_s,
            u"450: 735 1036 1400 2074 2443 450 / 12, lap 6 of 6, 2524 m in 317"_s);
        row("two laps", u"large 0.6-2.9 off 3"_s,
            u"3441: 4346 459 1252 2151 2720 3441 / 12, lap 2 of 2, 4451 m in 558"_s);
        row("a lap and a little", u"large 0.8-2.0"_s,
            u"4118: 333 1148 1775 2399 3473 4118 / 12, lap 1 of 1, 4444 m in 557"_s);
        row("half a lap too few", u"kart 0.3-1.5"_s,
            u"320: 396 511 648 65 200 320 / 5, lap 1 of 1, 679 m in 87"_s);
        row("switched on on the straight", u"large 0.09-4.3"_s,
            u"715: 1287 2003 2653 3463 4239 715 / 12, lap 3 of 4, 4446 m in 557"_s);
        row("pit lane", u"large 0.98-5.05 pit -18"_s,
            u"3446: 4269 871 1338 1842 2708 3446 / 12, lap 2 of 3, 4435 m in 556"_s);
        row("pit lane near, few laps", u"kart 0.05-2.35 drift 5 pit 9 box 1.95-2.2"_s,
            u"531: 646 24 393 531 / 5.5, lap 1 of 1, 705 m in 361; SlowPass -1 below 42"_s);
        row("pit lane inside, positions lost there",
            u"kart 0.98-5.38 every 200 off 4 pit -9 lost ~0.19-0.24 wide 2.69-2.89/-12"_s,
            u"465: 630 256 395 465 / 11, lap 3 of 3, 672 m in 87"_s);
        row("slow where the pit lane ends", u"kart 0.3-4.7 every 500 pit -12 slow ~0.67-0.82/0.3"_s,
            u"474: 131 262 474 / 12, lap 4 of 4 but 2, 695 m in 89"_s);
        row("25 rough positions a second", u"kart 0.3-26.4 off 1 every 40 drift 1.5"_s,
            u"627: 20 142 384 546 627 / 4, lap 19 of 25, 678 m in 87; SlowPass -1 below 76"_s);
        row("25 rougher positions a second", u"kart 0.3-4.7 every 40 drift 5"_s,
            u"473: 695 141 473 / 3.5, lap 1 of 1, 715 m in 727; SlowPass -1 below 67"_s);
        row("rough positions", u"kart 0.3-15 every 200 drift 4"_s,
            u"560: 643 465 560 / 9.5, lap 1 of 14, 685 m in 88"_s);
        row("rougher positions, some lost", u"kart 0.05-8.25 drift 5 off 1 pit -9 lost 1.54-1.74"_s,
            u"20: 456 628 20 / 8.5, lap 4 of 7 but 1, 685 m in 89; Missed 0 #2 #8; Missed 1 #7; Missed 2 #4; OtherWay -1 #1; SlowPass -1 below 65"_s);
        row("pit lane in the gates", u"kart 0.98-8.7 off 1 every 200 pit 7 drift 1"_s,
            u"651: 84 195 294 392 537 651 / 10.5, lap 5 of 6, 681 m in 87"_s);
        row("rough and wide", u"kart 0.3-9.6 every 200 drift 7 off 3"_s,
            u"498: 5 498 / 13.5, lap 3 of 8 but 1, 702 m in 183; Missed 0 #6; SlowPass -1 below 52"_s);
        row("too rough", u"oval 0.3-12.6 every 40 drift 5"_s, u"none 3"_s);
        row("pit lane far from the straights", u"snake 0.9-3.9 pit -15"_s,
            u"1127: 1855 2552 3880 4693 357 1127 / 12, lap 1 of 2, 4909 m in 615"_s);
        row("25 positions a second, tiny track", u"mini 0.3-14.3 off 1 every 40"_s,
            u"37: 103 160 278 37 / 4, lap 8 of 13, 293 m in 38; SlowPass -1 below 76"_s);
        row("a lane, a rough position a second", u"lane 0.3-6.3 every 1000 drift 4"_s,
            u"1705: 2807 747 1705 / 38, lap 4 of 5, 2792 m in 351"_s);
        row("a position a second", u"large 0.6-4.8 every 1000"_s,
            u"2879: 60 1568 2879 / 38, lap 1 of 4, 4441 m in 556"_s);
        row("a position a second, small track", u"kart 0.3-12 every 1000 drift 2"_s,
            u"526: 144 526 / 13.5, lap 1 of 11, 675 m in 86"_s);
        row("a position a second, all rough", u"kart 0.3-8.5 every 1000 drift 8 off 1"_s,
            u"515: 515 / 19.5, lap 3 of 7 but 3, 696 m in 89; Touch -1+0"_s);
        row("two positions a second, tiny track", u"mini 0.3-8.3 off 1 every 500 drift 1"_s,
            u"34: 34 / 12, lap 6 of 7, 292 m in 38; Touch -1+0"_s);
        row("no straights", u"bends 0.2-7.1"_s,
            u"1292: 134 417 697 979 1292 / 6, lap 5 of 6, 877 m in 111; SlowPass -1 below 46"_s);
        row("no straights, rough", u"bends 0.3-9 every 500 drift 3"_s,
            u"744: 1227 101 389 744 / 12, lap 6 of 8, 885 m in 111"_s);
        row("no straights, slow before the pits",
            u"bends 0.98-3.28 every 1000 drift 3 off 1 pit -9 lost ~0.38-0.43 slow ~0.78-0.93/0.1"_s,
            u"361: 1096 1264 361 / 12.5, lap 1 of 2 but 1, 869 m in 112"_s);
        row("straights side by side", u"twins 0.3-6.2"_s,
            u"1855: 2632 3299 843 1855 / 12, lap 2 of 5, 3812 m in 478"_s);
        row("side by side, rough",
            u"twins 0.05-4.45 every 200 drift 5 off 1 pit -18 lost 1.83-2.03 wide 1.53-1.73/-12"_s,
            u"1583: 2002 659 1583 / 8, lap 1 of 1, 3804 m in 477"_s);
        row("side by side, slow, two a second",
            u"twins 0.05-8.25 every 500 drift 3 pit -12 box 1.95-2.2 slow ~0.75-0.9/0.3 wide 1.54-1.74/-12"_s,
            u"2910: 3655 985 2910 / 20, lap 3 of 7 but 1, 3822 m in 479"_s);
        row("side by side, slow, one a second",
            u"twins 0.6-8.8 every 1000 off 4 lost ~0.76-0.81 slow ~0.15-0.3/0.3"_s,
            u"1103: 3566 715 1103 / 38, lap 5 of 7, 3806 m in 477"_s);
        row("a lane there and back", u"lane 0.4-5.3"_s,
            u"2081: 2538 167 739 1718 2081 / 12, lap 4 of 4, 2817 m in 354"_s);
        row("oval", u"oval 0.3-15.4 every 200 drift 2"_s,
            u"556: 813 104 311 556 / 10.5, lap 10 of 14, 858 m in 108"_s);
        row("oval, rough and dense", u"oval 0.3-30.4 every 40 drift 3"_s,
            u"122: 288 717 122 / 4.5, lap 24 of 29, 854 m in 109; Twice -1 #6 #20 #29; Missed 0 #10 #23 #27; Missed 1 #7 #9 #19; Missed 2 #4 #8 #21; SlowPass -1 below 86"_s);
        row("wide line, lost at the pits", u"kart 0.3-4.7 every 40 off 4 pit 18 lost ~0.17-0.22"_s,
            u"80: 375 608 80 / 4.5, lap 3 of 4 but 1, 676 m in 91; Missed 0 #2; Missed 2 #3 #4; SlowPass -1 below 86"_s);
        row("lost and rough everywhere",
            u"kart 0.05-8.25 every 40 drift 5 off 1 pit 18 lost ~0.44-0.49"_s, u"none 3"_s);
        row("slow in one lap", u"kart 0.3-12.2 off 1.5 slow 2.7-2.85/0.05"_s,
            u"645: 47 191 312 389 537 645 / 5.5, lap 7 of 11, 679 m in 86"_s);
        row("positions of nowhere first", u"kart 0.3-5.3 zero 0.3-0.6"_s,
            u"516: 634 60 197 326 516 / 5.5, lap 4 of 4, 682 m in 87"_s);
        row("always lost at a place", u"large 0.6-4.8 lost ~0.64-0.68"_s,
            u"2829: 3383 4348 1246 1811 2829 / 12, lap 1 of 4, 4439 m in 556"_s);
        row("lost for a lap", u"snake 0.6-7.7 lost 3.6-4.7"_s,
            u"3687: 4517 357 1200 1881 2540 3687 / 12, lap 2 of 5, 4898 m in 614"_s);
        row("jumps for long, then lost", u"large 0.6-4.8 far 1.2-1.5/4000 lost 2.3-2.5"_s,
            u"2956: 4350 912 2956 / 12, lap 3 of 3, 4431 m in 555"_s);
        row("jumps a little", u"large 0.6-4.8 far 1.2-1.5/400"_s,
            u"2958: 4344 908 2958 / 12, lap 2 of 3, 4448 m in 557"_s);
        row("clock put back", u"kart 0.3-8.2 off 1 clock 0.3-1.9"_s,
            u"521: 628 47 174 297 389 521 / 5.5, lap 6 of 7, 677 m in 86"_s);
        row("two layouts", u"large 0-3 then short 0-2.4"_s,
            u"516: 1276 2441 3110 516 / 12, lap 3 of 3, 4430 m in 555"_s);
        row("there and back", u"shuttle 0.2-6.3"_s, u"none 3"_s);
        row("there and back, then laps", u"shuttle 0-14.2 then large 0.2-2.4"_s,
            u"1264: 1768 2697 3594 4370 1264 / 12, lap 2 of 2, 4449 m in 557"_s);
        row("no whole lap", u"large 0.1-0.95"_s, u"none 3"_s);
        row("too slow", u"kart 0-4.2 slow ~0-1/0.42"_s, u"none 3"_s);
        row("pushed", u"kart 0-1.4 slow ~0-1/0.16"_s, u"none 2"_s);
        row("a short way", u"kart 0-0.15"_s, u"none 2"_s);
        row("turns on a yard", u"circle 0-12.2"_s, u"none 3"_s);
    }
    void proposals()
    {
        QFETCH(const QString, ride);
        const Points points = ridden(ride);
        const Places &track = trackOf(ride.section(u" then "_s, -1).section(u' ', 0, 0));
        QTEST(textOf(proposeMap(points), points, track), "proposal");
    }

    void noPositions()
    {
        QCOMPARE(proposeMap({}).reason, NoProposal::NoPositions);
        Points points = ridden(u"large 0.1-0.95"_s);
        for (std::size_t i = 0; i < points.size(); ++i)
            points[i].dataCoordX = static_cast<double>(i / 40 * 7919 % 360) - 180.0;
        QCOMPARE(proposeMap(points).reason, NoProposal::NoLap); // all over the globe
        for (PointAcquisition &point : points)
            point.dataCoordX = point.dataCoordY = 10.0;
        QCOMPARE(proposeMap(points).reason, NoProposal::NoMovement);
    }
};

QTEST_GUILESS_MAIN(TestMapProposal)
#include "tst_mapproposal.moc"
