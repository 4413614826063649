// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What maps, right and wrong ones, make of made-up rides.

#include <QTest>

#include <maps/check/mapcheck.h>

#include "builders.h"
#include "rides.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// A map by metres of a track: "kart 500: 640 180/20 500 gate 6" has its line at 500, a timing
/// point 20 metres to the left of 180, and the track as its outline, or the first "outline" metres
/// of it; "x" is no place.
MapDraft draftOf(const QString &text)
{
    QStringList words = text.split(u' ');
    const Places &track = trackOf(words.takeFirst());
    const Plane plane(place(0));
    const auto at = [&](const QString &word) {
        const std::size_t i = word.section(u'/', 0, 0).toUInt() % track.size();
        const PlaneVector way = track[(i + 1) % track.size()] - track[i];
        const double left = word.section(u'/', 1).toDouble();
        return plane.coordinate(track[i] + PlaneVector {-way.y, way.x} * left);
    };
    MapDraft draft;
    const QString line = words.takeFirst().remove(u':');
    draft.start = line == u"x" ? QGeoCoordinate() : at(line);
    while (words.value(0) != u"gate")
        draft.timingPoints.append(at(words.takeFirst()));
    draft.gateSize = words.value(1).toDouble();
    const int end = words.value(3, QString::number(track.size())).toInt();
    for (int metre = 0; metre <= end; metre += 4)
        draft.outline.append(at(QString::number(metre)));
    draft.outline.append(draft.outline.last()); // a point that stands twice
    return draft;
}

} // namespace

class TestMapCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checks_data()
    {
        QTest::addColumn<QString>("draft");
        QTest::addColumn<QString>("ride");
        QTest::addColumn<QString>("check");
        const auto row
            = [](const char *name, const QString &draft, const QString &ride,
                 const QString &check) { QTest::newRow(name) << draft << ride << check; };
        row("sound", u"kart 500: 640 180 300 390 500 gate 6"_s, u"kart 0.3-5.3 off 1"_s,
            u"6 laps, best 1, ideal 42964; SlowPass -1 below 46"_s);
        row("ridden the other way", u"kart 500: 180 500 gate 6"_s, u"-kart 0.3-5.3 off 1"_s,
            u"7 laps, best 1, ideal 42980; SlowPass -1 below 46"_s);
        row("the other way, points in its order", u"kart 500: 390 180 500 gate 6"_s,
            u"-kart 0.3-5.3 off 1"_s, u"7 laps, best 1, ideal 42965; SlowPass -1 below 46"_s);
        row("points out of order", u"kart 500: 400 180 500 gate 6"_s, u"kart 0.3-5.3 off 1"_s,
            u"6 laps, best 1, ideal 36833; OutOfOrder 1+0; SlowPass -1 below 46"_s);
        row("no line", u"kart x: 180 500 gate 6"_s, u"kart 0.3-3.3 off 1"_s,
            u"0 laps, best -1, ideal -1; NoLine -1"_s);
        row("never there", u"kart 500/300: 180 500 gate 6"_s, u"kart 0.3-3.3 off 1"_s,
            u"0 laps, best -1, ideal -1; NoPass -1; NotOnLine 1"_s);
        row("last point not on the line", u"kart 500: 640 180 300 gate 6"_s,
            u"kart 0.3-5.3 off 1"_s,
            u"6 laps, best 1, ideal 30677; NotOnLine 2; SlowPass -1 below 46"_s);
        row("last point just on the line", u"kart 500: 180 505 gate 6"_s,
            u"kart 0.3-5.3 off 1 then shuttle 0-1"_s,
            u"6 laps, best 1, ideal 42978; SlowPass -1 below 46"_s);
        row("too many points", u"kart 500: 540 580 620 650 20 70 140 200 300 500 gate 4"_s,
            u"kart 0.3-5.3 off 1"_s, u"6 laps, best 1, ideal 23264; TooMany 8"_s);
        row("outline too short", u"kart 500: 180 500 gate 6 outline 400"_s, u"kart 0.3-5.3 off 1"_s,
            u"6 laps, best -1, ideal 42978; NoneComplete -1; OtherWay -1 #3; SlowPass -1 below 46"_s);
        row("gates touch", u"kart 500: 515 530 640 500 gate 9"_s, u"kart 0.3-5.3 off 1"_s,
            u"6 laps, best 1, ideal 42967; Missed 1 #2 #3 #4; Touch -1+0; Touch 0+1; Touch 0+3; SlowPass -1 below 69"_s);
        row("gates touch beside each other", u"kart 500: 65 185 500 gate 8"_s,
            u"kart 0.3-5.3 off 1"_s, u"6 laps, best 1, ideal 42975; SlowPass -1 below 61"_s);
        row("small gates", u"kart 500: 180 500 gate 0.6"_s, u"kart 0.3-5.3 off 1"_s,
            u"4 laps, best 2, ideal 128960; Missed -1 #2; Missed 0 #3"_s);
        row("point beside the track", u"large 500: 1800/10 3000/-8 500 gate 12"_s,
            u"large 0.3-6.2 wide ~0.35-0.45/50"_s,
            u"7 laps, best 3, ideal -1; Missed 0 #2 #3 #4 #5 #6"_s);
        row("hairpins in the gates", u"kart 100: 180 500 100 gate 12"_s, u"kart 0.3-5.3 off 1"_s,
            u"21 laps, best -1, ideal 36506; NoneComplete -1; Twice -1 #2 #3 #6 #7 #10 #11 #14 #15 #18 #19; SecondTrack -1; SlowPass -1 below 91"_s);
        row("large gates", u"kart 500: 640 180 300 500 gate 18"_s, u"kart 0.3-5.3 off 1"_s,
            u"11 laps, best 2, ideal 42790; Twice -1 #2 #4 #6 #8 #10; SecondTrack 1; SecondTrack 2 #3 #5 #7 #9; SlowPass -1 below 137"_s);
        row("track beside the line", u"twins 300: 1500 2700 300 gate 14"_s, u"twins 0.3-4.3"_s,
            u"9 laps, best -1, ideal 18177; NoneComplete -1; SecondTrack -1 #1 #3 #5 #7"_s);
        row("crossing", u"eight 360: 1000 1850 360 gate 20"_s, u"eight 0.1-4.3"_s,
            u"10 laps, best -1, ideal 10017; NoneComplete -1; SecondTrack -1 #2 #4 #6 #8; SlowPass -1 below 152"_s);
        row("line before the crossing, a position a second", u"eight 360: 1000 360 gate 12"_s,
            u"eight 0.1-4.3 every 1000"_s, u"4 laps, best 1, ideal 39724"_s);
        row("stands on the line", u"large 500: 1800 3000 500 gate 12"_s,
            u"large 0.3-6.2 slow 2.05-2.2/0.04"_s,
            u"15 laps, best 11, ideal 69747; Twice -1 #3 #4 #5 #6 #7 #8 #9 #10"_s);
        row("lost at the line", u"large 500: 1800 3000 500 gate 12"_s,
            u"large 0.3-6.2 lost 2.08-2.2"_s, u"6 laps, best 2, ideal 69745; Missed -1 #2"_s);
        row("a position a second", u"large 500: 1800 3000 500 gate 12"_s,
            u"large 0.3-6.2 every 1000"_s,
            u"6 laps, best 3, ideal 69749; Missed -1 #3; Missed 0 #2 #5"_s);
        row("wide at the line", u"kart 500: 180 500 gate 6"_s,
            u"kart 0.3-6.3 off 1 wide 2.7-2.8/30"_s,
            u"7 laps, best 2, ideal 42793; SlowPass -1 below 46"_s);
        row("through the pits", u"large 500: 1800 3000 500 gate 12"_s,
            u"large 0.98-6.05 pit -18 box 3.05-3.2"_s,
            u"6 laps, best 4, ideal 69749; Missed 2 #3; OtherWay -1 #3"_s);
        row("pit lane in the gate", u"large 200: 1800 3000 200 gate 18"_s,
            u"large 0.98-6.1 pit -12 box 3.0-3.1"_s,
            u"13 laps, best 8, ideal 69748; Twice -1 #2 #3 #6 #7 #11 #12; OtherWay -1 #1 #5 #10; SlowPass -1 below 137"_s);
        row("turns about", u"large 500: 1800 3000 500 gate 12"_s,
            u"large 0.3-3.2 then -large 0.3-2.2"_s,
            u"6 laps, best 4, ideal 69751; Missed 1 #5; OtherWay -1 #4 #5; OtherWay 0 #5"_s);
        row("turns about, then again", u"large 500: 1800 3000 500 gate 14"_s,
            u"large 0.98-4.2 pit -14 then -large 0.3-1.2 then large 0.98-3.2 pit -14"_s,
            u"11 laps, best 2, ideal 69749; Twice -1 #5 #10; Missed 2 #9; OtherWay -1 #4 #6 #9"_s);
        row("line near the outline's end", u"large 4480: 1800 3000 4480 gate 12"_s,
            u"large 0.3-3.2"_s, u"4 laps, best 1, ideal 69751"_s);
    }
    // The laps, the best one and the ideal time, and the warnings.
    void checks()
    {
        QFETCH(const QString, draft);
        QFETCH(const QString, ride);
        const MapCheck check = checkMap(ridden(ride), draftOf(draft));
        const QString laps = u"%1 laps, best %2, ideal %3"_s.arg(check.laps.size())
                                 .arg(check.bestLap)
                                 .arg(check.idealTime);
        QTEST(QString(laps + shortText(check.warnings)), "check");
    }

    // What riders read.
    void texts()
    {
        using Kind = MapWarning::Kind;
        QVERIFY(warningText({Kind::OtherWay, 0, -1, {2, 3}})
                    .contains(u"circle of timing point 1 (laps 2, 3)."));
        QVERIFY(warningText({Kind::MissedPoint, -1, -1, {1, 2, 3, 4, 5, 6}})
                    .contains(u"pass by the line outside of its circle (6 laps)."));
        QVERIFY(warningText({Kind::GatesTouch, -1, 1, {}})
                    .startsWith(u"The circles of the line and timing point 2 touch"));
        QVERIFY(
            warningText({Kind::TooManyPoints, 8, -1, {}})
                .startsWith(u"A lap has room for 8 sections; timing points after timing point 8"));
    }
};

QTEST_GUILESS_MAIN(TestMapCheck)
#include "tst_mapcheck.moc"
