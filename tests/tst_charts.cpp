// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <memory>

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <app/settings.h>
#include <maps/map.h>
#include <session/session.h>
#include <views/lapchart.h>
#include <views/lapselection.h>

#include "builders.h"
#include "chartpane.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// A lap straight ahead, whose speed tells lap and sample.
std::unique_ptr<Lap> straight(const Session &session, int number, const QString &way)
{
    Points points = ride(way);
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i].dataSpeed = 10.0 * number + static_cast<double>(i);
        points[i].dataAngle = 20;
    }
    auto lap = std::make_unique<Lap>(session);
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
        charts.state().showLap(first.get());
        pane.show();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] ChartState &state() { return charts.state(); }
    [[nodiscard]] QStringList shown() const
    {
        QStringList titles;
        for (const LapChart *chart : pane.findChildren<LapChart *>()) {
            if (chart->isVisible())
                titles << chart->title().section(u' ', 0, 0);
        }
        return titles;
    }
    /// The cursor's place to the metre.
    [[nodiscard]] int cursor() { return qRound(state().cursorPlace()); }
    [[nodiscard]] LapChart &chart() const { return *pane.findChildren<LapChart *>()[1]; }
    [[nodiscard]] QPoint pixel(double place) const
    {
        return {static_cast<int>(std::lround(chart().horizontalScale().pixelOf(place))), 40};
    }
    void mouse(QEvent::Type type, double place, bool down = false) const
    {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, pixel(place), chart().mapToGlobal(pixel(place)),
                          moves ? Qt::NoButton : Qt::LeftButton,
                          down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(chart().viewport(), &event);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(&chart(), key, modifiers);
    }

    QTemporaryDir folder;
    Settings settings {folder.path()};
    Session session {u"/somewhere/Ride.ra1"_s};
    std::unique_ptr<Lap> first = straight(session, 1, u"0..400/10"_s);
    std::unique_ptr<Lap> second = straight(session, 2, u"0..400/8"_s);
    LapSelection selection;
    ChartPane pane;
    LapCharts charts {pane.widgets, selection, settings};
};

} // namespace

class TestCharts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void visibility();
    void exclusiveBoxes();
    void cursorUnderTheMouse();
    void cursorByKeys();
    void zoom();
    void sector();
    void comparison();
    void lostSamples();
    void anotherLap();
};

void TestCharts::visibility()
{
    Charts view;
    const auto &boxes = view.pane.widgets.channels;
    QCOMPARE(view.shown(), (QStringList {u"Speed"_s, u"Lean"_s}));
    QVERIFY(boxes[0]->isEnabled() && boxes[0]->toolTip().isEmpty());
    // Checked, but there is nothing to show.
    QVERIFY(boxes[2]->isChecked() && !boxes[2]->isEnabled());
    QCOMPARE(boxes[3]->toolTip(), u"This recording holds no front suspension."_s);
    boxes[1]->setChecked(false);
    QCOMPARE(view.shown(), QStringList {u"Speed"_s});
    QVERIFY(view.pane.widgets.labels.rows[1].first->isHidden());
    QVERIFY(!view.settings.isOn(Setting::ChartAngle));
    ChartPane next;
    const LapCharts started(next.widgets, view.selection, view.settings);
    QVERIFY(next.widgets.channels[0]->isChecked() && !next.widgets.channels[1]->isChecked());
    view.state().showLap(nullptr);
    QVERIFY(view.pane.isHidden());
}

void TestCharts::exclusiveBoxes()
{
    Charts view;
    QCheckBox *position = view.pane.widgets.byPosition;
    QCheckBox *time = view.pane.widgets.byTime;
    for (QCheckBox *clicked : {time, time, position, position, time}) {
        const bool wasByTime = time->isChecked();
        clicked->click();
        QCOMPARE(time->isChecked(), !wasByTime);
        QCOMPARE(position->isChecked(), wasByTime);
        QCOMPARE(view.state().whole().to, wasByTime ? 400.0 : 4.0);
    }
}

void TestCharts::cursorUnderTheMouse()
{
    Charts view;
    const QSignalSpy moved(&view.charts, &LapCharts::cursorMoved);
    view.mouse(QEvent::MouseMove, 104);
    QCOMPARE(view.state().cursor(), std::size_t {10});
    QCOMPARE(view.pane.widgets.labels.rows[0].first->text(), u"20.0 km/h"_s);
    QCOMPARE(view.pane.widgets.labels.time->text(), u"00:01.000   100 m"_s);
    QVERIFY(moved.last()[0].toString().contains(u"\"dataTimeStamp\":1000,"_s));
    QVERIFY(std::abs(view.pixel(view.state().cursorPlace()).x() - view.pixel(100).x()) <= 1);
    view.mouse(QEvent::MouseButtonPress, 200, true);
    view.mouse(QEvent::MouseButtonRelease, 200);
    view.mouse(QEvent::MouseMove, 320);
    QCOMPARE(view.cursor(), 320);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&view.chart(), &leave);
    QCOMPARE(view.cursor(), 200);
    view.state().pinSample(7);
    QCOMPARE(view.cursor(), 70);
}

void TestCharts::cursorByKeys()
{
    Charts view;
    view.key(Qt::Key_Left);
    QCOMPARE(view.state().cursor(), std::size_t {0});
    view.key(Qt::Key_Right, Qt::ShiftModifier);
    view.key(Qt::Key_Right);
    view.key(Qt::Key_Right);
    view.key(Qt::Key_Left);
    QCOMPARE(view.state().cursor(), std::size_t {11});
    view.state().showRange({0, 120});
    view.key(Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(view.state().visible().contains(view.state().cursorPlace()));
    QCOMPARE(view.state().visible().span(), 120.0);
}

void TestCharts::zoom()
{
    Charts view;
    const auto isNear = [&view](double from, double to) {
        const AxisRange visible = view.state().visible();
        return std::abs(visible.from - from) < 1 && std::abs(visible.to - to) < 1;
    };
    view.mouse(QEvent::MouseButtonPress, 300, true);
    view.mouse(QEvent::MouseMove, 100, true);
    QVERIFY(view.state().selected().has_value());
    view.mouse(QEvent::MouseButtonRelease, 100);
    QVERIFY(isNear(100, 300));
    QCOMPARE(view.state().cursor(), std::size_t {10});
    view.pane.widgets.byTime->click();
    QVERIFY(std::abs(view.state().visible().to - 3) < 0.01);
    view.key(Qt::Key_Escape);
    QVERIFY(!view.state().isZoomed());
    view.pane.widgets.byPosition->click();
    view.state().pin(200);
    view.key(Qt::Key_Plus);
    QVERIFY(isNear(40, 360));
    view.mouse(QEvent::MouseButtonDblClick, 100);
    QVERIFY(!view.state().isZoomed());
}

void TestCharts::sector()
{
    const auto map = lineMap(10, 680, {{u"Start"_s, 0}, {u"Time 0"_s, 100}, {u"Time 1"_s, 200}});
    const auto session = sessionOf(ride(lapRide({0, 0})));
    session->setMap(map.get());
    Charts view;
    view.selection.setSession(session.get());
    const QSignalSpy shown(&view.state(), &ChartState::stretchShown);
    view.state().showSector(1);
    QCOMPARE(shown.count(), 1);
    QVERIFY(std::abs(view.state().visible().from - 100) < 0.5);
    QVERIFY(std::abs(view.state().visible().to - 200) < 0.5);
    view.state().showSector(2);
    QCOMPARE(shown.count(), 1);
    for (int i = 0; i < 2; ++i)
        view.state().showWhole();
    QCOMPARE(shown.count(), 2);
}

void TestCharts::comparison()
{
    Charts view;
    view.state().showLaps(*view.first, *view.second);
    const CursorLabels::Row &speed = view.pane.widgets.labels.rows[0];
    QCOMPARE(view.shown().first(), u"Time"_s);
    const QSignalSpy second(&view.charts, &LapCharts::secondCursorMoved);
    view.state().pin(100);
    QCOMPARE(speed.first->text(), u"20.0 km/h"_s);
    QCOMPARE(speed.second->text(), u"32.5 km/h"_s);
    QCOMPARE(speed.difference->text(), u"-12.5 km/h"_s);
    QCOMPARE(view.pane.widgets.labels.gap->text(),
             u"Ahead on the lap 2 (Ride.ra1 - 00:05.000) : 0.250 s"_s);
    QVERIFY(second.last()[0].toString().contains(u"\"dataTimeStamp\":1250,"_s));
    view.pane.widgets.byTime->click();
    QCOMPARE(view.state().whole().to, 5.0);
    QCOMPARE(speed.second->text(), u"30.0 km/h"_s);
    QVERIFY(second.last()[0].toString().contains(u"\"dataTimeStamp\":1000,"_s));
    view.state().showLaps(*view.second, *view.first);
    view.state().pin(5.0);
    QCOMPARE(speed.second->text(), u"\u2013"_s);
    QCOMPARE(view.pane.widgets.labels.gap->text(), u"Delay on the lap 1 : 1.000 s"_s);
    view.state().showLap(view.first.get());
    QVERIFY(speed.second->isHidden() && view.pane.widgets.labels.gap->isHidden());
}

void TestCharts::lostSamples()
{
    const Session session(u"Ride.ra1"_s);
    const auto lap = straight(session, 1, u"0..50/10 -*2 80..100/10"_s);
    ChartState state;
    state.showLap(lap.get());
    const ChartContent content = contentOf(channels()[0], state);
    const Curve &curve = content.curves.front();
    const auto pieces = unbroken(curve.places, curve.values);
    QCOMPARE(pieces.size(), std::size_t {2});
    QCOMPARE(pieces[1].first().toPoint(), QPoint(80, 18));
    QVERIFY(std::isnan(curve.valueAt(65)));
    // There is time for them, so they have their place under the cursor.
    state.hover(62);
    QCOMPARE(qRound(state.cursorPlace()), 60);
    QVERIFY(std::isnan(valuesAtCursor(channels()[0], state).first));
}

void TestCharts::anotherLap()
{
    Charts view;
    view.state().showRange({100, 300});
    view.state().pin(160);
    view.state().showLap(view.second.get());
    QCOMPARE(view.state().visible(), (AxisRange {100, 300}));
    QCOMPARE(view.cursor(), 160);
    // What is shown is a copy.
    view.second.reset();
    view.key(Qt::Key_Right);
    QCOMPARE(view.cursor(), 168);
}

QTEST_MAIN(TestCharts)
#include "tst_charts.moc"
