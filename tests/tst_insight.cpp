// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>

#include <QTest>

#include <insight/consistency.h>
#include <insight/losscards.h>
#include <insight/recordingrate.h>
#include <insight/sessioninsight.h>
#include <insight/trackzones.h>
#include <session/laps/lapgap.h>
#include <session/recording/smoothing.h>
#include <session/session.h>
#include <track/map.h>
#include "testcircuit.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

// Corner 1 is 300 to 457 metres after the line, corner 2 1257 to 1414.
const TestCircuit &track()
{
    static const TestCircuit circuit(u"S300 R50:180 S800 R50:180 S500"_s);
    return circuit;
}

constexpr double Slow = 20.0;
constexpr double Fast = 45.0;

// Braking with 0.8 G to 20 m/s for the corner that begins at @p corner, @p earlier metres earlier
// than needed; accelerating with 0.4 G after its end.
double roundCorner(double place, double corner, double earlier, double lowest)
{
    const double begin = corner - earlier;
    const double end = corner + 157.0;
    if (place < begin)
        return std::sqrt((lowest * lowest) + (2.0 * 0.8 * 9.81 * (begin - place)));
    if (place <= end)
        return lowest;
    return std::sqrt((lowest * lowest) + (2.0 * 0.4 * 9.81 * (place - end)));
}

struct Ride
{
    double earlier = 0.0;
    double lowest = Slow;
    double top = Fast;

    // Otherwise in corner 1 only.
    [[nodiscard]] double operator()(double place) const
    {
        return std::min({roundCorner(place, 300.0, earlier, lowest),
                         place < 300.0 || place > 1700.0 ? top : Fast,
                         roundCorner(place, 1257.0, 0.0, Slow), Fast});
    }
};

std::vector<LapPlan> lapsOf(const std::vector<Ride> &rides)
{
    std::vector<LapPlan> laps;
    laps.reserve(rides.size());
    for (const Ride &ride : rides)
        laps.push_back({ride, {}});
    return laps;
}

struct Told
{
    std::unique_ptr<Map> map = track().map();
    std::unique_ptr<Session> session;
    SessionInsight insight;

    explicit Told(const std::vector<LapPlan> &laps) : session(rideLaps(track(), *map, laps))
    {
        insight = insightOf(*map, {}, session->wholeSamples(), session->laps());
    }
};

// "slow +8 %, stopped".
QString flagsText(const InsightLap &lap)
{
    QStringList texts;
    for (const LapFlag &flag : lap.flags)
        texts.append(flagText(flag));
    return texts.join(u", "_s);
}

QString causesText(const Causes &causes)
{
    QStringList texts;
    for (const Cause &cause : causes)
        texts.append(causeText(cause, {}));
    return texts.join(u"; "_s);
}

} // namespace

Q_DECLARE_METATYPE(Ride)

class TestInsight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timesAddUp()
    {
        const Told told(lapsOf({{}, {10.0}, {0.0, 18.0}, {0.0, 20.0, 40.0}}));
        QCOMPARE(told.insight.laps.size(), std::size_t {4});
        for (const InsightLap &lap : told.insight.laps) {
            qint32 sum = 0;
            for (const qint32 time : timesIn(told.insight.circuit.units, lap.path))
                sum += time;
            QCOMPARE(sum,
                     told.session->laps()[static_cast<std::size_t>(lap.number - 1)]->lapTime());
            const InsightLap &best = told.insight.laps[*told.insight.best];
            double lost = 0.0;
            for (const UnitLoss &loss :
                 lossesAgainst(lap.ridden(), best.ridden(), told.insight.circuit))
                lost += loss.loss;
            QVERIFY(std::fabs(lost - (lap.path.duration() - best.path.duration())) < 1e-9);
        }
    }

    // A receiver that stands metres off makes no tenths: each lap's offset is taken out.
    void offsetsAreTakenOut_data()
    {
        QTest::addColumn<double>("east");
        QTest::addColumn<double>("north");
        QTest::newRow("none") << 0.0 << 0.0;
        QTest::newRow("across") << 3.0 << 0.0;
        QTest::newRow("along") << 0.0 << -4.0;
        QTest::newRow("both") << -2.0 << 2.5;
    }
    void offsetsAreTakenOut()
    {
        QFETCH(double, east);
        QFETCH(double, north);
        std::vector<LapPlan> laps = lapsOf({{}, {}, {}});
        laps[1].offset = {east, north};
        const Told told(laps);
        const LapOnOutline &lap = told.insight.laps[1].path;
        QVERIFY(lap.offset().has_value());
        QVERIFY(std::fabs(lap.offset()->x - east) < 0.15);
        QVERIFY(std::fabs(lap.offset()->y - north) < 0.15);
        // The line is crossed by the positions as they are; the corners are not.
        const LapOnOutline &other = told.insight.laps[0].path;
        const double time = lap.timeAt(1414.0) - lap.timeAt(300.0);
        QVERIFY(std::fabs(time - (other.timeAt(1414.0) - other.timeAt(300.0))) < 0.015);
        QVERIFY(lap.roughness() < 0.5);
    }

    // The gap by place agrees with the times at places once the receivers' errors are out of it.
    void gapKnowsOffsets()
    {
        std::vector<LapPlan> laps = lapsOf({{}, {10.0, 19.0}});
        laps[1].offset = {0.0, 4.0};
        const Told told(laps);
        const LapOnOutline &one = told.insight.laps[0].path;
        const LapOnOutline &other = told.insight.laps[1].path;
        const auto error = [&](const LapGap &gap) {
            double largest = 0.0;
            for (std::size_t i = 0; i < gap.size(); ++i) {
                const double place = one.placeAt(gap.secondTime(i) / 1000.0 + gap.gap(i) / 1000.0);
                if (place < 50.0 || place > track().length() - 50.0)
                    continue;
                const double wanted = one.timeAt(place) - other.timeAt(place);
                largest = std::max(largest, std::fabs((gap.gap(i) / 1000.0) - wanted));
            }
            return largest;
        };
        const Lap &first = *told.session->laps()[1];
        const Lap &second = *told.session->laps()[2];
        QVERIFY(error(LapGap(first, second, shiftBetween(one, other))) < 0.02);
        QVERIFY(error(LapGap(first, second)) > 0.05);
    }

    // Cards of a lap against one of another session say all that a rider sees of a unit.
    void cards()
    {
        const Told here(lapsOf({{20.0, 18.0}, {}, {0.0, Slow, 38.0}}));
        const Told there(lapsOf({{}, {}}));
        const CircuitCorners &circuit = here.insight.circuit;
        const RiddenLap reference = there.insight.laps[1].ridden();
        for (const InsightLap &lap : here.insight.laps) {
            const LossCards cards = lossCards(lap.ridden(), reference, circuit);
            qint32 sum = 0;
            double place = 0.0;
            for (const LossCard &card : cards.units) {
                QVERIFY(card.from == place && card.to > place);
                place = card.to;
                const double more
                    = card.lap.to - card.lap.from - (card.reference.to - card.reference.from);
                QVERIFY(std::fabs((card.loss / 1000.0) - more) < 0.002);
                QVERIFY(!card.causes.isEmpty() || !card.isWorthTelling());
                sum += card.loss;
            }
            QVERIFY(std::fabs(place - circuit.ring.length()) < 1e-9);
            QCOMPARE(cards.total, sum);
            QCOMPARE(sum, qRound(1000.0 * lap.path.duration())
                              - qRound(1000.0 * reference.path.duration()));
        }
        const LossCards slow = lossCards(here.insight.laps[0].ridden(), reference, circuit);
        QVERIFY(!slow.largest().empty());
        const LossCard &card = slow.units[slow.largest().front()];
        QCOMPARE(card.label, u"1"_s);
        QVERIFY(std::fabs(card.lapSpeeds->lowest - (3.6 * 18.0)) < 0.3);
        QVERIFY(std::fabs(card.referenceSpeeds->lowest - (3.6 * Slow)) < 0.3);
        QVERIFY(card.causes.front().contains(u"slower"_s) || card.causes.front().contains(u"m "_s));
        // A lap against itself has lost nothing.
        QVERIFY(lossCards(reference, reference, circuit).largest().empty());
    }

    void placesAreThoseRidden()
    {
        const Told told(lapsOf({{}, {}}));
        const LapOnOutline &lap = told.insight.laps.front().path;
        QVERIFY(std::fabs(lap.speedAtPlace(380.0) - Slow) < 0.1);
        QVERIFY(std::fabs(lap.speedAtPlace(900.0) - Fast) < 0.1);
        // 500 metres at 45 m/s, by places and by speeds.
        QVERIFY(std::fabs(lap.timeAt(1100.0) - lap.timeAt(700.0) - (400.0 / Fast)) < 0.02);
        QVERIFY(std::fabs(lap.timeBySpeed(700.0, 1100.0) - (400.0 / Fast)) < 0.02);
        QVERIFY(std::fabs(lap.placeAt(lap.timeAt(700.0)) - 700.0) < 0.01);
        QVERIFY(std::fabs(lap.placeAt(-1.0) + Fast) < 1.0);
        QCOMPARE(lap.timeAt(-5.0), 0.0);
        QCOMPARE(lap.timeAt(track().length() + 5.0), lap.duration());
    }

    void figures()
    {
        const Told told(lapsOf({{}, {20.0}}));
        const CornerFigures first = *told.insight.laps[0].figures[0];
        const CornerFigures earlier = *told.insight.laps[1].figures[0];
        QVERIFY(std::fabs(first.lowestSpeed - (3.6 * Slow)) < 0.2);
        QVERIFY(std::fabs(first.entrySpeed - (3.6 * Slow)) < 2.0);
        QVERIFY(std::fabs(*first.maximumDeceleration - 0.8) < 0.03);
        // From 45 m/s down to 20 at 0.8 G takes 103.5 metres.
        const double start = told.insight.circuit.corners[0].start;
        QVERIFY(std::fabs(*first.brakingPoint - (start - 300.0 + 103.5)) < 6.0);
        QVERIFY(std::fabs(*earlier.brakingPoint - *first.brakingPoint - 20.0) < 1.5);
        QVERIFY(std::fabs(*first.brakingTime - (25.0 / 7.848)) < 0.4);
        QVERIFY(!first.lean || std::fabs(*first.lean) < 1.0);
    }

    void causes_data()
    {
        QTest::addColumn<Ride>("slow");
        QTest::addColumn<QString>("causes");
        QTest::newRow("brakes earlier") << Ride {30.0} << u"brakes 30 m earlier"_s;
        QTest::newRow("slower in the corner")
            << Ride {0.0, 18.0} << u"7 km/h slower at the slowest point"_s;
        QTest::newRow("slower on the straight") << Ride {0.0, Slow, 38.0} << u"arrives "_s;
    }
    void causes()
    {
        QFETCH(Ride, slow);
        const Told told(lapsOf({{}, slow, slow, slow, {}}));
        const std::vector<ListedLoss> &list = told.insight.list;
        const auto found = std::find_if(list.begin(), list.end(), [&](const ListedLoss &loss) {
            return told.insight.circuit.unitLabel(loss.loss.unit) == u"1";
        });
        QVERIFY(found != list.end());
        const ListedLoss &listed = *found;
        QFETCH(QString, causes);
        const QString text = causesText(listed.loss.causes);
        QVERIFY2(text.startsWith(causes), qPrintable(text));
        // What the ride itself says of the time.
        double lost = 0.0;
        const TrackPart &unit = told.insight.circuit.units[listed.loss.unit];
        for (double place = unit.from; place < unit.to; place += 0.1)
            lost += 0.1 * ((1.0 / slow(place)) - (1.0 / Ride {}(place)));
        QVERIFY(std::fabs(listed.loss.loss - lost) < 0.03);
        QVERIFY(std::fabs(listed.loss.bySpeed - lost) < 0.03);
    }

    void evenRiderHasNothingToList()
    {
        const Told told(lapsOf({{1.0}, {}, {2.0}, {0.0, 19.9}, {}}));
        QVERIFY(told.insight.hasEnoughLaps());
        QVERIFY(told.insight.list.empty());
    }

    // Positions that jump sideways and back lose time by place that the speeds know nothing of.
    void lossWithoutSpeedIsNotListed()
    {
        UnitLoss loss;
        loss.loss = 0.4;
        for (const auto &[bySpeed, isConfirmed] :
             {std::pair(0.19, false), {0.2, true}, {0.8, true}, {0.81, false}, {-0.4, false}}) {
            loss.bySpeed = bySpeed;
            QCOMPARE(loss.isConfirmed(), isConfirmed);
        }
    }

    void flags_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<QString>("flags");
        QTest::newRow("none") << u"nothing"_s << QString();
        QTest::newRow("stopped") << u"stop"_s << u"stopped, slow +7 %"_s;
        QTest::newRow("slow") << u"slow"_s << u"slow +11 %"_s;
        QTest::newRow("gap") << u"gap"_s << u"gap"_s;
        QTest::newRow("short gap") << u"short gap"_s << QString();
        QTest::newRow("from the pits") << u"out"_s << u"from the pits, slow +16 %"_s;
        QTest::newRow("into the pits") << u"in"_s << u"into the pits, slow +22 %"_s;
        QTest::newRow("off the track") << u"off"_s << u"positions off"_s;
    }
    void flags()
    {
        QFETCH(QString, what);
        std::vector<LapPlan> laps = lapsOf({{}, {}, {}, {}, {}});
        LapPlan &odd = laps[2];
        const Ride usual;
        const auto slowly = [usual](double from, double to, double speed) {
            return [=](double place) {
                return place >= from && place < to ? std::min(speed, usual(place)) : usual(place);
            };
        };
        const auto beside = [](double from, double to, double left) {
            return [=](double place) { return place >= from && place < to ? left : 0.0; };
        };
        if (what == u"stop")
            odd.speed = slowly(900.0, 905.0, 1.2);
        else if (what == u"slow")
            odd.speed = [usual](double place) { return usual(place) * 0.9; };
        else if (what == u"gap")
            std::tie(odd.lostFrom, odd.lostTo) = std::pair(800.0, 905.0);
        else if (what == u"short gap")
            std::tie(odd.lostFrom, odd.lostTo) = std::pair(800.0, 870.0);
        else if (what == u"out")
            std::tie(odd.speed, odd.left)
                = std::pair(slowly(20.0, 200.0, 14.0), beside(20, 200, 15));
        else if (what == u"in")
            std::tie(odd.speed, odd.left)
                = std::pair(slowly(1700.0, 1900.0, 12.0), beside(1700, 1900, 15));
        else if (what == u"off")
            odd.left = beside(700.0, 900.0, 30.0);
        const Told told(laps);
        QTEST(flagsText(told.insight.laps[2]), "flags");
        for (const std::size_t other : {0U, 1U, 3U, 4U})
            QCOMPARE(flagsText(told.insight.laps[other]), QString());
        QCOMPARE(told.insight.laps[2].isUsed(), what == u"nothing" || what == u"short gap");
    }

    // Behind somebody for a hundred metres, and as quick as ever everywhere else.
    void heldUp()
    {
        std::vector<LapPlan> laps = lapsOf({{}, {}, {}, {}});
        laps[1].speed
            = [](double place) { return place >= 600.0 && place < 700.0 ? 18.0 : Ride {}(place); };
        const Told told(laps);
        TrackParts segments;
        const double length = told.insight.circuit.ring.length();
        for (int i = 0; i < 10; ++i)
            segments.push_back({length * i / 10.0, length * (i + 1) / 10.0, 0, 1});
        std::vector<const LapOnOutline *> paths;
        for (const InsightLap &lap : told.insight.laps)
            paths.push_back(&lap.path);
        const std::vector<LapFlags> flags = flagLaps(paths, segments);
        QCOMPARE(flags[1], LapFlags({{LapFlagKind::HeldUp, 0}}));
        QCOMPARE(flags[2], LapFlags());
    }

    void thrownOutLapsAreNotUsed()
    {
        const Told told(lapsOf({{}, {}, {}}));
        told.session->setLapValid(1, false);
        const SessionInsight insight
            = insightOf(*told.map, {}, told.session->wholeSamples(), told.session->laps());
        QCOMPARE(insight.used, (std::vector<std::size_t> {1, 2}));
        QVERIFY(!insight.hasEnoughLaps());
    }

    void rates_data()
    {
        QTest::addColumn<int>("every");
        QTest::addColumn<double>("rate");
        QTest::addColumn<bool>("corners");
        QTest::addColumn<bool>("braking");
        QTest::addColumn<bool>("lean");
        QTest::newRow("10 Hz without lean") << 1 << 10.0 << true << true << false;
        QTest::newRow("5 Hz") << 2 << 5.0 << true << true << true;
        QTest::newRow("2 Hz") << 5 << 2.0 << true << true << false;
        QTest::newRow("1 Hz") << 10 << 1.0 << false << false << false;
    }
    void rates()
    {
        QFETCH(int, every);
        QFETCH(double, rate);
        Points points(3000);
        const auto speedAt = [](int i) { return 100.0 + (30.0 * std::sin(0.37 * i * i)); };
        for (int i = 0; i < 3000; ++i) {
            PointAcquisition &point = points[static_cast<std::size_t>(i)];
            point.dataTimeStamp = static_cast<quint32>(i) * 100;
            const int from = i / every * every;
            point.dataSpeed = std::lerp(speedAt(from), speedAt(from + every),
                                        static_cast<double>(i - from) / every);
        }
        const bool hasLean = every != 1;
        points.back().dataAngle = hasLean ? -3.0 : 0.0;
        smoothSamples(points);
        const double found = recordingRate(points);
        QVERIFY(std::fabs(found - rate) < 0.15 * rate);
        QTEST(carriesCorners(found), "corners");
        // Speeds that nobody measured say nothing.
        for (PointAcquisition &point : points)
            point.rawSpeed = 0.0F;
        QVERIFY(!carriesCorners(recordingRate(points)));
        QTEST(figureValidity(found, points).brakingPoint, "braking");
        QTEST(figureValidity(found, points).lean, "lean");
    }

    void trends_data()
    {
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<double>("correlation");
        QTest::addColumn<double>("probability");
        // Probabilities by numeric integration of Student's density.
        QTest::newRow("falling") << QList<double> {4, 3, 2, 1} << -1.0 << 0.0;
        QTest::newRow("even") << QList<double> {1, 3, 4, 2} << 0.4 << 0.6;
        QTest::newRow("odd degrees") << QList<double> {1, 2, 3, 5, 4} << 0.9 << 0.037386;
        QTest::newRow("ties") << QList<double> {1, 1, 2, 2, 3, 3} << 0.956183 << 0.002838;
    }
    void trends()
    {
        QFETCH(QList<double>, values);
        QFETCH(double, correlation);
        QFETCH(double, probability);
        const std::optional<Trend> trend = trendOf(values);
        QVERIFY(trend.has_value());
        QVERIFY(std::fabs(trend->correlation - correlation) < 1e-5);
        QVERIFY2(std::fabs(trend->probability - probability) < 1e-5,
                 qPrintable(QString::number(trend->probability, 'g', 9)));
        QVERIFY(!trendOf(QList<double> {2, 2, 2, 2}).has_value());
    }

    void consistency()
    {
        // One slower in corner 1, another one before it: ideal and rolling best know neither.
        const Told told(lapsOf({{}, {0.0, 19.0}, {}, {15.0}, {}, {0.0, 19.5}, {8.0}, {}}));
        const Consistency consistency = consistencyOf(told.insight);
        const CircuitCorners &circuit = told.insight.circuit;
        const double best = told.insight.laps[*told.insight.best].path.duration();
        QCOMPARE(circuit.unitLabel(consistency.spreads.front().unit), u"1"_s);
        QVERIFY(consistency.spreads.back().seconds < 0.03);
        QVERIFY(consistency.rollingBest->time <= best);
        QVERIFY(consistency.ideal->time <= qRound(1000.0 * best));
        QVERIFY(consistency.twice->time >= consistency.ideal->time);
        QVERIFY(!consistency.trend.has_value());
        qint32 sum = 0;
        for (std::size_t unit = 0; unit < circuit.units.size(); ++unit) {
            const InsightLap *lap = told.insight.lap(consistency.ideal->laps[unit]);
            sum += timesIn(circuit.units, lap->path)[unit];
        }
        QCOMPARE(sum, consistency.ideal->time);
        // What was ridden twice is told from seven laps on only, spreads from five.
        const Consistency few = consistencyOf(Told(lapsOf({{}, {}, {}, {}})).insight);
        QVERIFY(few.spreads.empty() && !few.twice && few.ideal);
    }

    void backwards()
    {
        // The outline is drawn against the way that it is ridden.
        const TestCircuit other(u"S500 L50:180 S800 L50:180 S300"_s);
        const std::unique_ptr<Map> map = track().map();
        Map turned;
        turned.setGateSize(10.0);
        turned.addNamedPoint(u"Start"_s, map->startPoint());
        for (qsizetype i = map->trackPoints().size(); i-- > 0;)
            turned.addTrackPoint(map->trackPoints().at(i));
        turned.computeGeometry();
        const auto session = rideLaps(track(), turned, lapsOf({{}, {}, {}}));
        const SessionInsight insight
            = insightOf(turned, {}, session->wholeSamples(), session->laps());
        QCOMPARE(insight.laps.size(), std::size_t {3});
        QVERIFY(insight.circuit.corners.front().isRight);
        QVERIFY(std::fabs(insight.circuit.corners.front().middle - 378.5) < 3.0);
        QCOMPARE(flagsText(insight.laps[1]), QString());
    }

    // What charts and map show: zones that join, with the comparison's losses, the largest first.
    void zones()
    {
        const Told told(lapsOf({{}, {30.0, 18.0}, {0.0, Slow, 44.0}}));
        const CircuitCorners &circuit = told.insight.circuit;
        const RiddenLap good = told.insight.laps[0].ridden();
        const RiddenLap slow = told.insight.laps[1].ridden();
        const TrackZones zones = trackZones(circuit, slow, &good);
        QCOMPARE(zones.size(), circuit.units.size());
        double sum = 0.0;
        double end = 0.0;
        for (const TrackZone &zone : zones) {
            QVERIFY(zone.from == end && zone.to > zone.from);
            end = zone.to;
            sum += *zone.loss;
        }
        QVERIFY(std::fabs(end - slow.path.duration()) < 1e-6);
        QVERIFY(std::fabs(sum - (slow.path.duration() - good.path.duration())) < 0.002);
        const auto first = std::find_if(zones.begin(), zones.end(),
                                        [](const TrackZone &zone) { return zone.label == u"1"; });
        QCOMPARE(first->rank, 1);
        QVERIFY(first->isRight && first->bendFrom > first->from && first->bendTo < first->to);
        QVERIFY(first->middle > first->bendFrom && first->middle < first->bendTo);
        // Earlier on the brakes, by the place; later in its own time on the gas.
        QVERIFY(slow.path.placeAt(*first->acts.brakes)
                < good.path.placeAt(*first->otherActs.brakes) - 15.0);
        QVERIFY(*first->acts.gas > *first->otherActs.gas);
        QVERIFY(!trackZones(circuit, slow, nullptr).front().loss.has_value());
    }

    void nothingToTell()
    {
        const Told told(lapsOf({{}}));
        Map none;
        QCOMPARE(insightOf(none, {}, {}, {}).lack, InsightLack::NoCorners);
        QCOMPARE(insightOf(*told.map, {}, {}, {}).lack, InsightLack::NoCompleteLap);
        QCOMPARE(told.insight.lack, InsightLack::None);
        QVERIFY(!told.insight.hasEnoughLaps());
        QVERIFY(told.insight.list.empty());
    }
};

QTEST_GUILESS_MAIN(TestInsight)
#include "tst_insight.moc"
