// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <map>
#include <memory>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtMath>

#include <base/settings.h>
#include <session/session.h>
#include <track/map.h>
#include <views/charts/lapchart.h>
#include <views/charts/lapcharts.h>
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
        QVERIFY(view.label("angle").isHidden());
        const LapCharts next(view.selection, view.settings);
        QVERIFY(child<QCheckBox>(next, "cb_speed").isChecked()
                && !child<QCheckBox>(next, "cb_angleLandR").isChecked());
        view.state.showLap({});
        QVERIFY(view.pane.isHidden());
    }

    // One of the two is always checked.
    void axisBoxes()
    {
        Charts view;
        QCheckBox *position = &view.box("cb_comparePositions2");
        QCheckBox *time = &view.box("cb_compareTime");
        for (QCheckBox *clicked : {time, time, position, position}) {
            const bool wasByTime = time->isChecked();
            clicked->click();
            QVERIFY(time->isChecked() != wasByTime && position->isChecked() == wasByTime);
            QCOMPARE(view.state.whole().to, wasByTime ? 400.0 : 4.0);
        }
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
        QVERIFY(secondSpeed.isHidden() && gap.isHidden());
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
