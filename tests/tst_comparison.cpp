// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <memory>

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QListView>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <app/windowlayout.h>
#include <theme/theme.h>
#include <track/map.h>
#include <track/mapfile.h>
#include <views/charts/lapcharts.h>
#include <views/comparison/comparison.h>
#include <views/corners/cornertablemodel.h>
#include <views/corners/lossbutton.h>
#include <views/laps/lapselection.h>

#include "mainwindow.h"
#include "testcircuit.h"

using namespace zuno;
using namespace zuno::test;

namespace {

const QString LauraAgain = u"2026-04-18 14h05 Valmora.ra1"_s;

const TestCircuit &track()
{
    static const TestCircuit circuit(u"S300 R50:180 S800 R50:180 S500"_s);
    return circuit;
}

/// A lap with these speeds at the two corners, m/s, and 45 where there is room for it.
LapPlan planOf(double first, double second)
{
    return {[first, second](double place) {
                const bool isFirst = place < 857.0;
                const double begin = isFirst ? 300.0 : 1257.0;
                const double lowest = isFirst ? first : second;
                const double away = std::max({begin - place, place - begin - 157.0, 0.0});
                return std::min(45.0, std::sqrt((lowest * lowest) + (8.0 * away)));
            },
            {}};
}

/// The comparison of a session's laps (from the second on), on a map file in a folder of its own.
struct Compared
{
    explicit Compared(const std::vector<LapPlan> &plans) : session(rideLaps(track(), *map, plans))
    {
        selection.setSession(session.get());
    }
    /// The losses in the two corners, in hundredths of a second.
    [[nodiscard]] QList<int> losses() const
    {
        QList<int> values;
        for (const TimePlace &place : comparison.places().places) {
            if (place.corners > 0)
                values.append(qRound(place.loss * 100.0));
        }
        return values;
    }
    [[nodiscard]] int selected() const { return selection.currentLap()->lapNumber(); }
    [[nodiscard]] int reference() const
    {
        return selection.reference() ? selection.reference()->lapNumber() : 0;
    }

    QTemporaryDir folder;
    Settings settings {folder.path()};
    MapLibrary maps;
    std::unique_ptr<Map> map = track().map();
    std::unique_ptr<Session> session;
    LapSelection selection;
    Comparison comparison {selection, settings, [this] {
                               return ReferenceSources {{session.get()}, maps, settings};
                           }};
};

/// The window with two sessions of one circuit.
struct Paddock
{
    Paddock()
    {
        home.startedBefore();
        window = std::make_unique<Window>();
        (void)window->open();
        window->select(home.path(AtValmora));
    }
    [[nodiscard]] QTableView &table() const { return window->part<QTableView>("tw_tours"); }
    [[nodiscard]] ChartState &state() const
    {
        return window->main.findChild<LapCharts *>()->state();
    }
    [[nodiscard]] LossButton &card(const char *name) const
    {
        return window->part<LossButton>(name);
    }

    Home home {{AtValmora, LauraAgain}, {u"Valmora.map"_s}};
    std::unique_ptr<Window> window;
};

} // namespace

// What laps are held against, what is said about that, and the keys and clicks that lead there.
class TestComparison final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    // The places add up to the difference of the lap times, and the slower corner comes first.
    void places()
    {
        Compared laps({planOf(20, 20), planOf(18, 20), planOf(19, 17)});
        QCOMPARE(laps.selected(), 2);
        QCOMPARE(laps.reference(), 2);
        QVERIFY(laps.comparison.places().isAgainstBest);
        laps.selection.setCurrentLap(3);
        const TimePlaces &found = laps.comparison.places();
        QVERIFY(!found.isAgainstBest && found.largest.size() == 2);
        const Lap &lap = *laps.selection.current();
        const Lap &best = *laps.selection.compared();
        QVERIFY(std::fabs(found.total - ((lap.lapTime() - best.lapTime()) / 1000.0)) < 0.0015);
        QVERIFY(std::fabs(found.total - found.sumOfOthers() - found.places[found.largest[0]].loss
                          - found.places[found.largest[1]].loss)
                < 1e-9);
        const TimePlace &worst = found.places[found.largest[0]];
        QCOMPARE(worst.title() + u' ' + worst.side(), u"Corner 2 right"_s);
        QVERIFY2(worst.spoken().startsWith(u"Corner 2, right, "_s)
                     && worst.spoken().contains(u"seconds lost, "_s),
                 qPrintable(worst.spoken()));
        QVERIFY(worst.isConfirmed && !worst.causes.isEmpty());
        for (const TimePlace &place : found.places) {
            QVERIFY(place.won >= 0.0 && place.lost >= 0.0);
            QVERIFY(std::fabs(place.lost - place.won - place.loss) < 1e-9);
        }
    }

    // The best lap against the best of each corner: where it is the best itself, it lost nothing.
    void againstBest()
    {
        Compared laps({planOf(20, 19), planOf(18, 20), planOf(17, 17), planOf(17, 17)});
        QCOMPARE(laps.selected(), laps.reference());
        QVERIFY(laps.comparison.places().isAgainstBest);
        const QList<int> losses = laps.losses();
        QCOMPARE(losses.size(), 2);
        const bool isFirstBest = laps.selected() == 2;
        QCOMPARE(losses[isFirstBest ? 0 : 1], 0);
        QVERIFY(losses[isFirstBest ? 1 : 0] > 10);
        QCOMPARE(laps.comparison.zones()[laps.comparison.places().places.back().unit].rank,
                 isFirstBest ? 1 : 0);
    }

    // Kept for the circuit: whatever was chosen is there again with the next session.
    void choices()
    {
        Compared laps({planOf(20, 20), planOf(18, 20), planOf(19, 17)});
        laps.selection.setCurrentLap(2);
        laps.comparison.chooseLap(laps.selection.current());
        QCOMPARE(laps.reference(), 3);
        laps.selection.setSession(laps.session.get());
        QCOMPARE(laps.selected(), 2);
        QCOMPARE(laps.reference(), 3);
        laps.comparison.swap();
        QCOMPARE(laps.selected(), 3);
        QCOMPARE(laps.reference(), 2);
        QCOMPARE(laps.comparison.recent().size(), 2);
        laps.comparison.clear();
        QCOMPARE(laps.reference(), 0);
        QCOMPARE(laps.comparison.lack(), Comparison::Lack::Off);
        laps.selection.setSession(laps.session.get());
        QCOMPARE(laps.reference(), 0);
        laps.comparison.choose({ReferenceKind::BestEver});
        QTRY_COMPARE(laps.reference(), 2);
        laps.comparison.choose(
            {ReferenceKind::ChosenLap, 7, u"/gone.ra1"_s, u"x"_s, u"d"_s, u"t"_s});
        QCOMPARE(laps.reference(), 0);
        QVERIFY(laps.comparison.problem().contains(u"gone"));
        QVERIFY(!describe(laps.comparison).isEmpty());
    }

    void thrownOut()
    {
        Compared laps({planOf(20, 20), planOf(18, 20), planOf(19, 17)});
        laps.session->setLapValid(1, false);
        laps.comparison.refresh();
        QVERIFY(laps.reference() != 2);
        laps.selection.setSession(nullptr);
        QCOMPARE(laps.comparison.lack(), Comparison::Lack::NoLaps);
        QVERIFY(laps.comparison.places().isEmpty() && laps.comparison.zones().empty());
    }

    void cornerTable()
    {
        Compared laps({planOf(20, 20), planOf(18, 20), planOf(19, 17)});
        CornerTableModel model(laps.comparison);
        using Mode = QAbstractItemModelTester::FailureReportingMode;
        const QAbstractItemModelTester tester(&model, Mode::QtTest);
        laps.selection.setCurrentLap(2);
        QCOMPARE(model.rowCount(), 2);
        const auto at = [&](int row, int column, int role = Qt::DisplayRole) {
            return model.index(row, column).data(role).toString();
        };
        QCOMPARE(at(0, CornerTableModel::Name), u"T1 right"_s);
        const int minimum = at(0, CornerTableModel::Minimum).toInt();
        QVERIFY2(std::abs(minimum - 65) <= 1, qPrintable(QString::number(minimum)));
        QCOMPARE(at(0, CornerTableModel::Minimum, CornerTableModel::DifferenceRole), u"\u22127"_s);
        QVERIFY(
            at(0, CornerTableModel::Difference, CornerTableModel::DifferenceRole).startsWith(u'+'));
        QCOMPARE(at(1, CornerTableModel::Difference, CornerTableModel::ColourRole).toInt(),
                 static_cast<int>(Colour::ThirdText));
        const CornerSpread spread = model.spreadOf(1);
        QCOMPARE(spread.times.size(), 3U);
        QVERIFY(*spread.selected < spread.most() && spread.most() - spread.least() > 0.5);
        laps.selection.setSession(nullptr);
        QCOMPARE(model.rowCount(), 0);
    }

    void measures_data()
    {
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QList<int>>("measures");
        QTest::newRow("large") << QSize(1600, 972) << QList<int> {200, 0, 312, 300};
        QTest::newRow("laptop") << QSize(1366, 700) << QList<int> {150, 0, 240, 250};
        QTest::newRow("just wide enough") << QSize(1200, 700) << QList<int> {150, 0, 240, 250};
        QTest::newRow("rail") << QSize(1199, 700) << QList<int> {150, 1, 240, 226};
        QTest::newRow("least") << QSize(1024, 500) << QList<int> {150, 1, 200, 226};
    }
    void measures()
    {
        QFETCH(const QSize, window);
        const WindowMeasures found = WindowMeasures::of(window);
        const QList<int> list {found.tree, found.hasRail ? 1 : 0, found.topRow, found.where};
        QTEST(list, "measures");
    }

    // One click or key shows the place, with some of the way on both sides; the same again the lap.
    void cards()
    {
        const Paddock paddock;
        paddock.table().selectRow(2);
        LossButton &card = paddock.card("card1");
        QVERIFY(card.isVisible() && !card.isChecked());
        QVERIFY(card.accessibleName().contains(u"seconds lost"));
        QTest::mouseClick(&card, Qt::LeftButton);
        QVERIFY(card.isChecked() && paddock.state().isZoomed());
        const AxisRange first = paddock.state().visible();
        QVERIFY(first.contains(paddock.state().cursorPlace()));
        QTest::keyClick(&card, Qt::Key_Space);
        QVERIFY(!card.isChecked() && !paddock.state().isZoomed());
        paddock.table().setFocus();
        QTest::keyClick(&paddock.table(), Qt::Key_1);
        QVERIFY(card.isChecked());
        QCOMPARE(paddock.state().visible(), first);
        QTest::keyClick(&paddock.table(), Qt::Key_Period);
        QVERIFY(!card.isChecked() && paddock.state().visible() != first);
        QTest::keyClick(&paddock.table(), Qt::Key_Escape);
        QVERIFY(!paddock.state().isZoomed());
        auto &list = paddock.window->part<QListView>("lv_corners");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(0, 0)).center());
        QVERIFY(paddock.state().isZoomed());
    }

    // The bar says what is compared, and nothing in the window moves for it.
    void bar()
    {
        const Paddock paddock;
        const Window &window = *paddock.window;
        const auto places = [&] {
            QList<QRect> rects;
            for (const char *name : {"comparisonBar", "tw_tours", "wherePane", "bottomWidget"})
                rects.append(window.part<QWidget>(name).geometry());
            return rects;
        };
        paddock.table().selectRow(2);
        paddock.table().setFocus();
        const QList<QRect> before = places();
        QCOMPARE(window.label("lb_selectedLap"), u"Lap 3"_s);
        QCOMPARE(window.label("lb_referenceKind"), u"Best of session"_s);
        QVERIFY(window.label("lb_difference").startsWith(u'+'));
        QTest::keyClick(&paddock.table(), Qt::Key_X);
        QVERIFY(window.label("lb_difference").startsWith(QChar(0x2212)));
        QVERIFY(window.label("lb_referenceLap").endsWith(u"Lap 3"));
        QTest::keyClick(&paddock.table(), Qt::Key_R, Qt::ShiftModifier);
        QCOMPARE(window.label("lb_referenceKind"), u"No reference on this circuit yet"_s);
        QVERIFY(paddock.state().second() == nullptr);
        QCOMPARE(places(), before);
        QTest::keyClick(&paddock.table(), Qt::Key_C);
        paddock.table().selectRow(3);
        QVERIFY(paddock.state().second() != nullptr);
        paddock.table().selectRow(4);
        QTest::keyClick(&paddock.table(), Qt::Key_O);
        paddock.table().selectRow(3);
        auto &chips = window.part<QWidget>("chips");
        QCOMPARE(chips.findChildren<QToolButton *>().size(), 1);
        QTest::mouseClick(chips.findChild<QToolButton *>(), Qt::LeftButton);
        QVERIFY(chips.findChildren<QToolButton *>().isEmpty());
    }

    // A lap of one session stays the reference for those of another.
    void otherSession()
    {
        const Paddock paddock;
        paddock.table().selectRow(2);
        paddock.table().setFocus();
        QTest::keyClick(&paddock.table(), Qt::Key_C);
        paddock.window->select(paddock.home.path(LauraAgain));
        QVERIFY(paddock.state().second() != nullptr);
        QCOMPARE(paddock.state().second()->lapNumber(), 3);
        QCOMPARE(paddock.state().second()->sessionName() != LauraAgain, true);
        QTest::keyClick(&paddock.table(), Qt::Key_X);
        QTRY_COMPARE(paddock.window->label("lb_selectedLap"), u"Lap 3"_s);
        QVERIFY(paddock.window->label("lb_referenceKind").contains(u"14h05"));
    }
};

QTEST_MAIN(TestComparison)
#include "tst_comparison.moc"
