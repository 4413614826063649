// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <map>
#include <memory>

#include <QApplication>
#include <QCheckBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QtMath>

#include <base/settings.h>
#include <session/session.h>
#include <theme/themes.h>
#include <track/map.h>
#include <views/charts/chartcolours.h>
#include <views/charts/chartroom.h>
#include <views/charts/cornerstrip.h>
#include <views/charts/lapchart.h>
#include <views/charts/lapcharts.h>
#include <views/charts/lapscene.h>
#include <views/charts/measurement.h>
#include <views/laps/lapselection.h>

#include "builders.h"
#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// A lap straight ahead, whose speed tells lap and sample.
std::unique_ptr<Lap> straight(int number, const QString &way)
{
    Points points = ride(way);
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i].dataSpeed = 10.0 * number + static_cast<double>(i);
        points[i].dataAngle = 20;
    }
    auto lap = std::make_unique<Lap>();
    lap->setLapNumber(number);
    lap->setPoints(std::move(points));
    return lap;
}

/// The charts with a lap of 400 metres in 4 seconds and one of 400 metres in 5.
struct Charts
{
    Charts()
    {
        pane.resize(1000, 600);
        state.showLap({&session, first.get()});
        pane.show();
        QCoreApplication::processEvents();
    }
    void compare(const Lap &a, const Lap &b) { state.showLaps({&session, &a}, {&session, &b}); }
    [[nodiscard]] QString shown() const
    {
        QStringList titles;
        for (const LapChart *chart : pane.findChildren<LapChart *>()) {
            if (chart->isVisible())
                titles << chart->title().section(u' ', 0, 0);
        }
        return titles.join(u' ');
    }
    [[nodiscard]] QCheckBox &box(const char *name) const { return child<QCheckBox>(pane, name); }
    [[nodiscard]] QLabel &label(const char *name) const { return child<QLabel>(pane, name); }
    /// Cursor and visible range to the metre or second.
    [[nodiscard]] int cursor() const { return qRound(state.cursorPlace()); }
    [[nodiscard]] QPoint visible() const
    {
        return {qRound(state.visible().from), qRound(state.visible().to)};
    }
    [[nodiscard]] LapChart &chart() const { return *pane.findChildren<LapChart *>().at(1); }
    void mouse(QEvent::Type type, double place, bool down = false) const
    {
        const QPointF pixel(chart().horizontalScale().pixelOf(place), 40);
        QMouseEvent event(type, pixel, chart().mapToGlobal(pixel),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(chart().viewport(), &event);
    }

    QTemporaryDir folder;
    Settings settings {folder.path()};
    Session session {u"/somewhere/Ride.ra1"_s};
    std::unique_ptr<Lap> first = straight(1, u"0..400/10"_s);
    std::unique_ptr<Lap> second = straight(2, u"0..400/8"_s);
    LapSelection selection;
    LapCharts pane {selection, settings};
    ChartState &state = pane.state();
};

} // namespace

class TestCharts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void visibility()
    {
        Charts view;
        QCOMPARE(view.shown(), u"Speed Lean"_s);
        // Checked, but there is nothing to show.
        QVERIFY(view.box("cb_accel").isChecked() && !view.box("cb_accel").isEnabled());
        QCOMPARE(view.box("cb_frontSuspension").toolTip(),
                 u"This recording holds no front suspension."_s);
        view.box("cb_angleLandR").setChecked(false);
        QCOMPARE(view.shown(), u"Speed"_s);
        QVERIFY(!view.label("angle").isVisible());
        const LapCharts next(view.selection, view.settings);
        QVERIFY(child<QCheckBox>(next, "cb_speed").isChecked()
                && !child<QCheckBox>(next, "cb_angleLandR").isChecked());
        view.state.showLap({});
        QVERIFY(view.pane.isHidden());
    }

    // One of the two is always checked; clicks on it, and keys.
    void axisBoxes()
    {
        Charts view;
        QCheckBox *position = &view.box("cb_comparePositions2");
        QCheckBox *time = &view.box("cb_compareTime");
        QCOMPARE(position->toolTip() + time->toolTip(), u"Compare positionsCompare time"_s);
        const auto isByTime = [&](bool expected) {
            return time->isChecked() == expected && position->isChecked() != expected
                   && qRound(view.state.whole().to) == (expected ? 4 : 400);
        };
        for (QCheckBox *clicked : {time, time, position, position}) {
            QTest::mouseClick(clicked, Qt::LeftButton);
            QVERIFY(isByTime(clicked == time));
        }
        QTest::keyClick(&view.chart(), Qt::Key_T);
        QVERIFY(isByTime(true));
        QTest::keyClick(&view.chart(), Qt::Key_D);
        QVERIFY(isByTime(false));
        time->setChecked(true);
        time->setChecked(false);
        QVERIFY(isByTime(false));
    }

    // Three zones, the first without a corner; the second lap loses most in the last.
    static TrackZones zones()
    {
        TrackZones made(3);
        for (int i = 0; i < 3; ++i) {
            TrackZone &zone = made[static_cast<std::size_t>(i)];
            zone.label = i == 0 ? u"line"_s : QString::number(i);
            zone.hasCorner = i > 0;
            zone.from = 0.1 + (1.2 * i);
            zone.to = 1.3 + (1.2 * i);
            zone.bendFrom = zone.from + 0.4;
            zone.bendTo = zone.from + 0.6;
            zone.loss = 0.1 * i;
        }
        made[2].rank = 1;
        return made;
    }

    // Strip, keys and buttons bring charts and cursor to a zone, and back.
    void corners()
    {
        Charts view;
        auto &strip = child<CornerStrip>(view.pane, "cornerStrip");
        QVERIFY(!strip.isVisible());
        view.state.setZones(zones());
        QCoreApplication::processEvents();
        QVERIFY(strip.isVisible());
        const QSignalSpy stretch(&view.state, &ChartState::stretchShown);
        const auto click = [&](std::size_t zone) {
            QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.cell(zone).center().toPoint());
        };
        click(1);
        // 130 to 250 metres and 40 on each side; the speed rises all along.
        QCOMPARE(view.visible(), QPoint(90, 290));
        QCOMPARE(view.cursor(), 130);
        QCOMPARE(view.label("lb_corner").text(), u"Corner 1"_s);
        QVERIFY(stretch.last()[0].value<Points>().size() > 15);
        click(1);
        QVERIFY(!view.state.isZoomed() && !view.state.shownZone());
        const std::pair<Qt::Key, int> keys[] {
            {Qt::Key_1, 2}, {Qt::Key_Period, 1}, {Qt::Key_Comma, 2}, {Qt::Key_2, 2}};
        for (const auto &[key, zone] : keys) {
            QTest::keyClick(&view.chart(), key);
            QCOMPARE(static_cast<int>(view.state.shownZone().value_or(9)), zone);
        }
        // Another look is no longer the zone.
        QTest::keyClick(&view.chart(), Qt::Key_Plus);
        QVERIFY(!view.state.shownZone());
        child<QToolButton>(view.pane, "tb_wholeLap").click();
        QVERIFY(!view.state.isZoomed());
        child<QToolButton>(view.pane, "tb_nextCorner").click();
        QCOMPARE(view.visible(), QPoint(210, 400));
        // They belong to the lap; the zoom stays with another one.
        view.state.showLap({&view.session, view.second.get()});
        QVERIFY(view.state.zones().empty() && view.state.isZoomed());
    }

    void cellTexts_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("isTall");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("loss");
        QTest::newRow("wide") << 100 << true << u"T12"_s << u"+0.41"_s;
        QTest::newRow("wide, one line") << 100 << false << u"T12"_s << u"+0.41"_s;
        QTest::newRow("one line") << 53 << false << u"12"_s << u"+0.41"_s;
        QTest::newRow("narrow") << 40 << false << u"12"_s << QString();
        QTest::newRow("narrow, tall") << 35 << true << u"12"_s << QString();
    }
    void cellTexts()
    {
        QFETCH(const int, width);
        QFETCH(const bool, isTall);
        TrackZone zone;
        zone.label = u"12"_s;
        zone.loss = 0.412;
        // Eight pixels a letter, whatever fonts there are.
        QFont font;
        font.setPixelSize(10);
        const QFontMetrics metrics(font);
        const double letter = metrics.horizontalAdvance(u"12 +0.41"_s) / 8.0;
        const CellTexts texts
            = zuno::cellTexts(zone, 4 + ((width - 4) / 6.0 * letter), isTall, metrics);
        QTEST(texts.name, "name");
        QTEST(texts.loss, "loss");
        QCOMPARE(lossText(-0.217) + lossText(0.004) + lossText(-0.004), u"\u22120.220.000.00"_s);
    }

    // Dashes run on over the corners of a line.
    void dashes()
    {
        const QPolygonF line {{QPointF(0, 0), QPointF(4, 0), QPointF(4, 10)}};
        const std::array dash {6.0, 3.0};
        QString text;
        for (const QLineF &stroke : strokes(line, dash))
            text += u"%1,%2-%3,%4 "_s.arg(stroke.x1())
                        .arg(stroke.y1())
                        .arg(stroke.x2())
                        .arg(stroke.y2());
        QCOMPARE(text, u"0,0-4,0 4,0-4,2 4,5-4,10 "_s);
        QCOMPARE(strokes(line, {}).size(), 2);
        QVERIFY(strokes({}, dash).isEmpty());
    }

    // Between two clicks, for both laps at the same places, and as the mouse is drawn.
    void measuring()
    {
        Charts view;
        view.compare(*view.first, *view.second);
        QTest::keyClick(&view.chart(), Qt::Key_M);
        QVERIFY(view.state.isMeasuring() && view.label("lb_measured").isVisible());
        const auto click = [&](double place) {
            view.mouse(QEvent::MouseButtonPress, place, true);
            view.mouse(QEvent::MouseButtonRelease, place);
        };
        click(300);
        QVERIFY(!measurementOf(view.state).has_value());
        click(100);
        const auto measured = measurementOf(view.state);
        QVERIFY(std::fabs(measured->metres.from - 100) < 1
                && std::fabs(measured->metres.span() - 200) < 1);
        // 2 seconds from 20 to 40 km/h against 2.5 from 32.5 to 57.5.
        const auto isNear = [](const MeasuredLap &lap, double time, double low, double high) {
            return std::fabs(lap.seconds - time) < 0.02 && std::fabs(lap.lowest - low) < 0.3
                   && std::fabs(lap.highest - high) < 0.3
                   && std::fabs(lap.mean - ((low + high) / 2)) < 0.3;
        };
        QVERIFY(isNear(measured->first, 2.0, 20, 40));
        QVERIFY(isNear(measured->second.value(), 2.5, 32.5, 57.5));
        const QString line = view.label("lb_measured").text();
        QVERIFY2(line.contains(u"200 m"_s) && line.contains(u"-0.500 s"_s), qPrintable(line));
        // The same places on the other axis.
        QTest::keyClick(&view.chart(), Qt::Key_T);
        QCOMPARE(qRound(10 * view.state.measured()->to), 30);
        QVERIFY(isNear(measurementOf(view.state)->second.value(), 2.5, 32.5, 57.5));
        QTest::keyClick(&view.chart(), Qt::Key_D);
        view.mouse(QEvent::MouseButtonPress, 50, true);
        view.mouse(QEvent::MouseMove, 150, true);
        view.mouse(QEvent::MouseButtonRelease, 150);
        QVERIFY(!view.state.isZoomed());
        QCOMPARE(qRound(measurementOf(view.state)->metres.span()), 100);
        QTest::keyClick(&view.chart(), Qt::Key_Escape);
        QVERIFY(!view.state.isMeasuring() && !view.state.measured());
        QVERIFY(!view.label("lb_measured").isVisible());
    }

    // Each with its values; they are gone with the lap before.
    void otherLaps()
    {
        Charts view;
        const auto third = straight(3, u"0..400/8"_s);
        const std::vector<SessionLap> others(6, {&view.session, third.get()});
        view.state.showLaps({&view.session, view.first.get()}, {&view.session, view.second.get()},
                            others);
        QCOMPARE(view.state.others().size(), ChartState::MostOthers);
        const ChartContent content = contentOf(channels()[0], view.state);
        QCOMPARE(content.curves.size(), std::size_t {6});
        QCOMPARE(content.curves.back().lap, std::size_t {0});
        view.state.pin(100);
        QCOMPARE(qRound(10 * otherValueAtCursor(channels()[0], view.state, 3)), 425);
        view.state.showLaps({&view.session, view.first.get()}, {}, {others[0]});
        QVERIFY(view.state.second() == nullptr && view.state.others().size() == 1);
        QCOMPARE(view.shown(), u"Speed Lean"_s);
    }

    // The axis of the values fits what is in sight.
    void fitted()
    {
        Charts view;
        for (Lap *lap : {view.first.get()}) {
            Points points = lap->points();
            points[2].dataSpeed = 300;
            lap->setPoints(points);
        }
        view.state.showLap({&view.session, view.first.get()});
        QVERIFY(view.chart().shownValues().to > 300);
        view.state.showRange({100, 400});
        QVERIFY(view.chart().shownValues().to < 60);
        const ChartContent gap {{}, {-0.1, 0.1}, {}, {}, true, false};
        const AxisRange low = fittedRange(gap, AxisRange {0.5, 0.6});
        QVERIFY(low.from < 0 && low.to > 0.6 && low.to < 0.7);
        QVERIFY(std::fabs(fittedRange(gap, std::nullopt).from + 0.114) < 1e-9);
    }

    void lossRates()
    {
        const double none = std::nan("");
        std::vector<double> metres;
        std::vector<double> gaps;
        for (int i = 0; i <= 20; ++i) {
            metres.push_back(10.0 * i);
            gaps.push_back(i == 0 ? none : i <= 10 ? 0.5 : 0.5 + (0.02 * (i - 10)));
        }
        const std::vector<double> rates = zuno::lossRates(metres, gaps);
        QVERIFY(std::isnan(rates[0]) && std::fabs(rates[5]) < 1e-9);
        QVERIFY(std::fabs(rates[15] - 0.2) < 1e-9 && std::fabs(rates[20] - 0.2) < 1e-9);
        const QColor neutral(Qt::white);
        QCOMPARE(rateColour(0.01, neutral), neutral);
        QCOMPARE(rateColour(0.3, neutral), theme().colour(Colour::Loss));
        QCOMPARE(rateColour(-0.2, neutral), theme().colour(Colour::Gain));
    }

    // What is short of room is folded, in this order; what the rider says goes first.
    void folding()
    {
        ChartRoom room {0, 20, true, {true, true, true, true, false}, {}};
        const auto folded = [&room](int height) {
            room.height = height;
            QString text;
            for (const bool isFolded : foldedCharts(room))
                text += isFolded ? u'f' : u'-';
            return text;
        };
        const int all = (2 * 64) + (3 * 46) + (5 * 20);
        QCOMPARE(folded(all), u"-----"_s);
        QCOMPARE(folded(all - 1), u"--f--"_s);
        QCOMPARE(folded(all - 47), u"-ff--"_s);
        QCOMPARE(folded(0), u"-fff-"_s);
        room.choices[2] = false;
        QCOMPARE(folded(all - 1), u"-f---"_s);
        room.choices[1] = true;
        QCOMPARE(folded(2000), u"-f---"_s);
        // In the pane: the values stay, and a click opens it again.
        Charts view;
        view.pane.resize(1000, 170);
        QTRY_COMPARE(view.shown(), u"Speed"_s);
        QVERIFY(view.label("angle").isVisible());
        QTest::mouseClick(view.label("angle").parentWidget(), Qt::LeftButton);
        QCOMPARE(view.shown(), u"Speed Lean"_s);
    }

    // What the map draws of it: a value for each sample, and what the corners' signs say.
    void scene()
    {
        Charts view;
        const auto sent = [&](LineMode mode) {
            return QJsonDocument::fromJson(scenePayload(view.state, mode)).object();
        };
        const auto signsOf = [&](LineMode mode) {
            QStringList texts;
            const QJsonArray signs = sent(mode)[u"signs"].toArray();
            for (const auto &sign : signs)
                texts << sign[u"label"].toString() + u':' + sign[u"value"].toString();
            return texts.join(u' ');
        };
        // Without another lap there is no gain.
        QCOMPARE(sent(LineMode::Gain)[u"mode"].toString(), u"speed"_s);
        const QJsonArray speeds = sent(LineMode::Speed)[u"values"].toArray();
        QCOMPARE(speeds.size(), std::ssize(view.first->points()));
        QVERIFY(speeds[0].toDouble() == 0 && speeds.last().toDouble() == 1);
        // No sensor, no mode.
        QCOMPARE(shownMode(LineMode::Acceleration, view.state), LineMode::Speed);
        view.compare(*view.first, *view.second);
        view.state.setZones(zones());
        QCOMPARE(signsOf(LineMode::Gain), u"Start: 1:+0.10 2:+0.20"_s);
        QCOMPARE(signsOf(LineMode::Speed), u"Start: 1:23 2:35"_s);
        QCOMPARE(signsOf(LineMode::Lean), u"Start: 1:20\u00b0 2:20\u00b0"_s);
        const QJsonObject gain = sent(LineMode::Gain);
        // The first lap is ahead more and more: it gains 0.25 seconds on each 100 metres.
        QVERIFY(gain[u"values"].toArray()[20].toDouble() == 0);
        QCOMPARE(gain[u"legend"][u"other"].toString(), u"reference, lap 2"_s);
        // To the north, in a left corner, the sign stands to the east.
        const QJsonValue sign = gain[u"signs"].toArray()[1];
        QVERIFY(std::fabs(sign[u"dy"].toDouble()) < 0.01 && sign[u"dx"].toDouble() > 0.99);
        QCOMPARE(sign[u"zone"].toInt(), 1);
        TrackZones made = zones();
        made[1].acts.brakes = 1.4;
        made[1].otherActs.gas = 2.0;
        view.state.setZones(made);
        QVERIFY(sent(LineMode::Gain)[u"acts"].toArray().isEmpty());
        view.state.showZone(1);
        QCOMPARE(sent(LineMode::Gain)[u"acts"].toArray().size(), 2);
        view.state.showLap({});
        QVERIFY(sent(LineMode::Gain).isEmpty());
    }

    // A session without laps is shown as a whole; its zoom is no lap's.
    void wholeSession()
    {
        const auto session = sessionOf(ride(u"0..900/10"_s));
        Charts view;
        view.selection.setSession(session.get());
        QVERIFY(view.state.isRide() && view.pane.isVisible());
        QCOMPARE(view.visible(), QPoint(0, 900));
        QVERIFY(view.label("lb_ride").isVisible());
        const QJsonObject scene
            = QJsonDocument::fromJson(scenePayload(view.state, LineMode::Gain)).object();
        QCOMPARE(scene[u"path"].toArray().size(), 91);
        QCOMPARE(scene[u"speedFactor"].toDouble(), 1.0);
        QCOMPARE(scene[u"signs"][1][u"label"].toString(), u"last sample"_s);
        view.state.showRange({100, 200});
        view.state.showLap({&view.session, view.first.get()});
        QVERIFY(!view.state.isZoomed() && !view.state.isRide());
    }

    void cursor()
    {
        Charts view;
        const QSignalSpy moved(&view.pane, &LapCharts::cursorMoved);
        view.mouse(QEvent::MouseMove, 104);
        QCOMPARE(view.label("vitesse").text(), u"20.0 km/h"_s);
        QCOMPARE(view.label("timeFromStart").text(), u"00:01.000   100 m"_s);
        QVERIFY(moved.last()[0].toString().contains(u"\"dataTimeStamp\":1000,"_s));
        view.mouse(QEvent::MouseButtonPress, 200, true);
        view.mouse(QEvent::MouseButtonRelease, 200);
        view.mouse(QEvent::MouseMove, 320);
        QCOMPARE(view.cursor(), 320);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&view.chart(), &leave);
        QCOMPARE(view.cursor(), 200);
        view.state.pinSample(7);
        view.state.showRange({0, 120});
        QTest::keyClick(&view.chart(), Qt::Key_Left);
        QCOMPARE(view.cursor(), 60);
        QTest::keyClick(&view.chart(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(view.cursor(), 160);
        QCOMPARE(view.visible(), QPoint(52, 172)); // Into sight.
        view.state.showLap({&view.session, view.second.get()});
        // Place and range stay with another lap, of which a copy is shown.
        view.second.reset();
        QTest::keyClick(&view.chart(), Qt::Key_Right);
        QCOMPARE(view.cursor(), 168);
        QCOMPARE(view.visible(), QPoint(52, 172));
    }

    void zoom()
    {
        Charts view;
        view.mouse(QEvent::MouseButtonPress, 300, true);
        view.mouse(QEvent::MouseMove, 100, true);
        QVERIFY(view.state.selected().has_value());
        view.mouse(QEvent::MouseButtonRelease, 100);
        QCOMPARE(view.visible(), QPoint(100, 300));
        QCOMPARE(view.cursor(), 100);
        view.box("cb_compareTime").click();
        QCOMPARE(view.visible(), QPoint(1, 3));
        QTest::keyClick(&view.chart(), Qt::Key_Escape);
        QVERIFY(!view.state.isZoomed());
        view.box("cb_comparePositions2").click();
        view.state.pin(200);
        QTest::keyClick(&view.chart(), Qt::Key_Plus);
        QCOMPARE(view.visible(), QPoint(40, 360));
        view.mouse(QEvent::MouseButtonDblClick, 100);
        QVERIFY(!view.state.isZoomed());
    }

    void sector()
    {
        const auto map
            = lineMap(10, 680, {{u"Start"_s, 0}, {u"Time 0"_s, 100}, {u"Time 1"_s, 200}});
        const auto session = sessionOf(ride(lapRide({0, 0})));
        session->setMap(map.get());
        Charts view;
        view.selection.setSession(session.get());
        const QSignalSpy shown(&view.state, &ChartState::stretchShown);
        view.state.showSector(1);
        QCOMPARE(view.visible(), QPoint(100, 200));
        view.state.showSector(2); // There is none.
        QCOMPARE(shown.count(), 1);
        view.state.showWhole();
        view.state.showWhole();
        QCOMPARE(shown.count(), 2);
    }

    void comparison()
    {
        Charts view;
        view.compare(*view.first, *view.second);
        const QLabel &speed = view.label("vitesse");
        const QLabel &secondSpeed = view.label("vitesse2");
        const QLabel &gap = view.label("diffTime");
        QCOMPARE(view.shown(), u"Time Speed Lean"_s);
        const QSignalSpy second(&view.pane, &LapCharts::secondCursorMoved);
        view.state.pin(100);
        QCOMPARE(speed.text() + secondSpeed.text() + view.label("diffSpeed").text(),
                 u"20.0 km/h32.5 km/h-12.5 km/h"_s);
        QCOMPARE(gap.text(), u"Ahead on the lap 2 (Ride.ra1 - 00:05.000) : 0.250 s"_s);
        QVERIFY(second.last()[0].toString().contains(u"\"dataTimeStamp\":1250,"_s));
        view.box("cb_compareTime").click();
        QCOMPARE(view.state.whole().to, 5.0);
        QCOMPARE(secondSpeed.text(), u"30.0 km/h"_s);
        view.compare(*view.second, *view.first);
        view.state.pin(5.0);
        QCOMPARE(secondSpeed.text(), u"\u2013"_s);
        QCOMPARE(gap.text(), u"Delay on the lap 1 : 1.000 s"_s);
        view.state.showLap({&view.session, view.first.get()});
        QVERIFY(!secondSpeed.isVisible() && !gap.isVisible());
    }

    void lostSamples()
    {
        const Session session(u"Ride.ra1"_s);
        const auto lap = straight(1, u"0..50/10 -*2 80..100/10"_s);
        ChartState state;
        state.showLap({&session, lap.get()});
        const ChartContent content = contentOf(channels()[0], state);
        const Curve &curve = content.curves.front();
        const auto pieces = CurveLines(curve).lines({{0, 100}, 0, 100}, {{0, 100}, 0, 100});
        QCOMPARE(pieces.size(), std::size_t {2});
        QCOMPARE(pieces[1].first().toPoint(), QPoint(80, 18));
        // There is time for them, so they have their place under the cursor.
        state.hover(62);
        QCOMPARE(qRound(state.cursorPlace()), 60);
        QVERIFY(std::isnan(valuesAtCursor(channels()[0], state).first));
    }

    void pixels_data()
    {
        QTest::addColumn<int>("samples");
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::newRow("a minute") << 600 << 0.0 << 600.0;
        QTest::newRow("eight hours") << 288000 << 0.0 << 288000.0;
        QTest::newRow("a part of eight hours") << 288000 << 70000.5 << 171000.0;
        QTest::newRow("some seconds of eight hours") << 288000 << 70000.5 << 70030.5;
        QTest::newRow("standing in the box for most of it") << 50000 << 0.0 << 600.0;
    }

    // Each column of pixels reaches as far up and down as its samples, and the number of points
    // depends on the pixels.
    void pixels()
    {
        QFETCH(int, samples);
        QFETCH(double, from);
        QFETCH(double, to);
        constexpr int Width = 500;
        Curve curve;
        const bool stands = to < samples && from == 0;
        for (int i = 0; i < samples; ++i) {
            curve.places.push_back(stands ? std::min(i, 300) + std::max(0, i - samples + 300) : i);
            curve.values.push_back((i * 7919) % 1000);
            curve.lows.push_back(curve.values.back() - 1 - (i % 3));
            curve.highs.push_back(curve.values.back() + 1 + (i % 5));
        }
        const PixelScale horizontal {{from, to}, 0, Width};
        const PixelScale vertical {{0, 1024}, 0, 1024};
        const CurveLines drawn(curve);
        const auto ranges = [](const QPolygonF &polygon) {
            std::map<int, AxisRange> columns;
            for (const QPointF &point : polygon) {
                const AxisRange value {point.y(), point.y()};
                const auto [at, isNew] = columns.try_emplace(qFloor(point.x()), value);
                at->second = at->second.united(value);
            }
            return columns;
        };
        QPolygonF line;
        QPolygonF band;
        for (std::size_t i = 0; i < curve.places.size(); ++i) {
            const double x = horizontal.pixelOf(curve.places[i]);
            line << QPointF(x, curve.values[i]);
            band << QPointF(x, curve.lows[i]) << QPointF(x, curve.highs[i]);
        }
        const auto lines = drawn.lines(horizontal, vertical);
        const auto bands = drawn.bands(horizontal, vertical);
        QCOMPARE(lines.size(), std::size_t {1});
        QPolygonF filled;
        for (const QPolygonF &part : bands)
            filled << part;
        QVERIFY2(lines[0].size() <= 4 * (Width + 3), qPrintable(QString::number(lines[0].size())));
        for (const auto &[exact, shown] :
             {std::pair(ranges(line), ranges(lines[0])), std::pair(ranges(band), ranges(filled))}) {
            for (int x = 0; x < Width; ++x) {
                QCOMPARE(shown.contains(x), exact.contains(x));
                if (exact.contains(x))
                    QCOMPARE(shown.at(x), exact.at(x));
            }
        }
    }
};

QTEST_MAIN(TestCharts)
#include "tst_charts.moc"
