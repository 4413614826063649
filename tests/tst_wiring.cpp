// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <csignal>
#include <functional>

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QWebEngineView>

#include <app/ending.h>
#include <library/exportdialogs.h>
#include <maps/editor/mapeditor.h>
#include <maps/page/lineswitch.h>
#include <maps/page/mapwebpage.h>
#include <session/csvexport.h>
#include <session/sessionfile.h>
#include <theme/themes.h>
#include <track/mapfile.h>
#include <views/charts/cornerstrip.h>
#include <views/charts/lapchart.h>
#include <views/charts/lapcharts.h>
#include <views/laps/lapstablemodel.h>

#include "mainwindow.h"

using namespace zuno;
using namespace zuno::test;

namespace {

// Columns of the laps table.
constexpr int MaxSpeed = 4;
constexpr int SecondSection = 15;

const QString LauraAgain = u"2026-04-18 14h05 Valmora.ra1"_s;

/// Does something to the dialog that is open next, once it is.
void onDialog(const std::function<void(QWidget &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            act(*dialog);
        else
            onDialog(act);
    });
}

/// The window with two sessions of one circuit and one of another, the first on display.
struct Paddock
{
    Paddock()
    {
        home.startedBefore();
        window = std::make_unique<Window>();
        (void)window->open();
        window->select(home.path(AtValmora));
        charts = window->main.findChild<LapCharts *>();
        // It is made when the window has been painted.
        const auto view = [this] { return window->main.findChild<QWebEngineView *>(); };
        if (QTest::qWaitFor([&view] { return view() != nullptr; }))
            page = qobject_cast<MapWebPage *>(view()->page());
    }
    [[nodiscard]] QTableView &table() const { return window->part<QTableView>("tw_tours"); }
    [[nodiscard]] ChartState &state() const { return charts->state(); }
    /// Compares every lap with that one (a row).
    void choose(int row) const
    {
        table().selectRow(row);
        table().setFocus();
        QTest::keyClick(&table(), Qt::Key_C);
    }

    /// Types into the notes and does not leave them.
    void typeNotes() const
    {
        window->part<QTabWidget>("tabWidget").setCurrentIndex(1);
        auto &notes = window->part<QTextEdit>("te_infos");
        notes.setFocus();
        notes.selectAll();
        QTest::keyClicks(&notes, u"typed"_s);
    }

    Home home {{AtValmora, LauraAgain, AtHaidemoor}, {u"Valmora.map"_s, u"Haidemoor.map"_s}};
    std::unique_ptr<Window> window;
    LapCharts *charts = nullptr;
    MapWebPage *page = nullptr;
};

} // namespace

// What one part tells is done by the other: clicks and keys in the window, seen at the far end.
class TestWiring final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void sectors_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("click") << false;
        QTest::newRow("Enter") << true;
    }
    // A section's cell zooms the charts to it.
    void sectors()
    {
        QFETCH(const bool, byKey);
        const Paddock paddock;
        QTableView &table = paddock.table();
        const QModelIndex cell = table.model()->index(table.currentIndex().row(), SecondSection);
        QVERIFY(!paddock.state().isZoomed());
        table.setCurrentIndex(cell);
        if (byKey)
            QTest::keyClick(&table, Qt::Key_Return);
        else
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                              table.visualRect(cell).center());
        QVERIFY(paddock.state().isZoomed());
        const AxisRange seen = paddock.state().visible();
        const AxisRange whole = paddock.state().whole();
        QVERIFY(seen.from > whole.from && seen.to < whole.to);
    }

    // Both laps go to the map, each with its own line, and the labels name them in their order.
    void comparison()
    {
        const Paddock paddock;
        paddock.choose(4);
        const QSignalSpy sent(&paddock.page->connector(), &JSConnector::drawTwoLaps);
        paddock.table().selectRow(2);
        QCOMPARE(sent.count(), 1);
        QVERIFY(sent[0][0] != sent[0][1]);
        const auto first = std::as_const(paddock.state()).first();
        QCOMPARE(first->lapNumber(), 3);
        QVERIFY(sent[0][0].toString().contains(
            u"\"dataTimeStamp\":%1,"_s.arg(first->points().front().dataTimeStamp)));
        QCOMPARE(std::as_const(paddock.state()).second()->lapNumber(), 5);
        QVERIFY(paddock.window->label("diffTime").contains(u"on the lap 5"_s));
    }

    // With a lap of another session of the circuit.
    void comparedSession()
    {
        const Paddock paddock;
        const QSignalSpy sent(&paddock.page->connector(), &JSConnector::drawTwoLaps);
        const Session *before
            = paddock.window->main.findSessionByPath(paddock.home.path(AtValmora));
        paddock.choose(2);
        const qsizetype drawn = sent.count();
        paddock.window->select(paddock.home.path(LauraAgain));
        QCOMPARE(sent.count(), drawn + 1);
        // It is a copy that is compared with; the session itself lets go of its laps.
        QVERIFY(before->laps().empty());
    }

    // A click on the line moves the cursor of the charts, and theirs the map's.
    void cursor()
    {
        const Paddock paddock;
        QSignalSpy moved(&paddock.page->connector(), &JSConnector::drawCursor);
        Q_EMIT paddock.page->samplePicked(50);
        QCOMPARE(paddock.state().cursor(), 50U);
        const quint32 stamp = paddock.state().first()->points()[50].dataTimeStamp;
        QVERIFY(moved.last()[0].toString().contains(u"\"dataTimeStamp\":%1,"_s.arg(stamp)));
        auto *chart = paddock.charts->parent()->findChild<LapChart *>();
        QTest::keyClick(chart, Qt::Key_Right);
        QCOMPARE(paddock.state().cursor(), 51U);
        QCOMPARE(moved.count(), 2);
    }

    // Line mode and corner that are chosen on the map, and the theme, reach the page as a scene.
    void scenes()
    {
        const Paddock paddock;
        paddock.choose(4);
        paddock.table().selectRow(2);
        QSignalSpy sent(&paddock.page->connector(), &JSConnector::drawScene);
        QTRY_VERIFY(paddock.page->connector().isConnected());
        QTRY_VERIFY(!sent.isEmpty());
        const auto mode = [&sent] { return sent.last()[0].toString().section(u'"', 3, 3); };
        QTRY_COMPARE(mode(), u"gain"_s);
        auto &line = paddock.window->part<LineSwitch>("lineSwitch");
        line.showNext();
        QTRY_COMPARE(mode(), u"speed"_s);
        const QString dark = sent.last()[0].toString();
        Themes::instance().choose(ThemeChoice::Light);
        QTRY_VERIFY(sent.last()[0].toString() != dark);
        Themes::instance().choose(ThemeChoice::Dark);
        TrackZones zones(2);
        zones[1].from = 20;
        zones[1].to = 30;
        paddock.state().setZones(zones);
        Q_EMIT paddock.page->zonePicked(1);
        QCOMPARE(paddock.state().shownZone(), std::optional<std::size_t>(1));
    }

    // The comparison's units are those of charts and map, and each leads the others to them.
    void units()
    {
        const Paddock paddock;
        paddock.choose(4);
        paddock.table().selectRow(2);
        ChartState &state = paddock.state();
        QTRY_VERIFY(!state.zones().empty() && state.zones().back().loss.has_value());
        auto &strip = paddock.window->part<CornerStrip>("cornerStrip");
        // It has just got its place.
        QCoreApplication::processEvents();
        const QPoint middle = strip.cell(1).center().toPoint();
        QTest::mouseClick(&strip, Qt::LeftButton, {}, middle);
        QCOMPARE(state.shownZone(), std::optional<std::size_t>(1));
        QTest::keyClick(&paddock.table(), Qt::Key_Escape);
        QVERIFY(!state.isZoomed());
        QTest::keyClick(&paddock.table(), Qt::Key_Period);
        QVERIFY(state.shownZone().has_value());
        QTest::keyClick(&paddock.table(), Qt::Key_Escape);
        QVERIFY(!state.shownZone().has_value());
        // Another lap has its own times in them.
        const double end = state.zones().back().to;
        paddock.table().selectRow(3);
        QTRY_VERIFY(!state.zones().empty() && state.zones().back().to != end);
    }

    // In the charts: forwards is to the right.
    void pages()
    {
        const Paddock paddock;
        ChartState &state = paddock.state();
        state.showRange({500.0, 700.0});
        auto *chart = paddock.charts->parent()->findChild<LapChart *>();
        QTest::keyClick(chart, Qt::Key_PageDown);
        QVERIFY(state.visible().from > 600.0);
        QTest::keyClick(chart, Qt::Key_PageUp);
        QTest::keyClick(chart, Qt::Key_PageUp);
        QVERIFY(state.visible().from < 400.0);
    }

    // What is set in the dialog shows in the table and on the map at once.
    void settings()
    {
        const Paddock paddock;
        const QSignalSpy sent(&paddock.page->connector(), &JSConnector::setOptions);
        QVERIFY(!paddock.table().isColumnHidden(MaxSpeed));
        onDialog([](QWidget &dialog) {
            child<QCheckBox>(dialog, "cb_maxSpeed").click();
            child<QCheckBox>(dialog, "cb_displayMinMax").click();
            child<QPushButton>(dialog, "pb_ok").click();
        });
        paddock.window->main.openSettings();
        QVERIFY(paddock.table().isColumnHidden(MaxSpeed));
        QCOMPARE(sent.count(), 1);
        QVERIFY(sent[0][0].toString().contains(u"\"minMax\":\"false\""_s));
    }

    // The same as of a session that was displayed, smoothed.
    void exportsData()
    {
        const Home home({AtValmora});
        const auto session = openSession(home.path(AtValmora)).session;
        const auto shown = openSession(home.path(AtValmora)).session;
        shown->smooth();
        QWidget window;
        ExportDialogs exports(&window);
        const QString target = home.path(u"data.csv"_s);
        onDialog([target](QWidget &dialog) {
            qobject_cast<QFileDialog *>(&dialog)->selectFile(target);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        exports.exportSessionData(session.get());
        QCOMPARE(contents(target), sessionCsv(*shown, QLocale()));
    }

    // The page's process dies: the page is loaded again. Of a page that dies again and again the
    // map says so, and loads it once more when the rider wants it.
    void deadPage()
    {
        const Paddock paddock;
        auto *view = paddock.window->main.findChild<QWebEngineView *>();
        QTRY_VERIFY(paddock.page->connector().isConnected() && !paddock.page->isLoading());
        QSignalSpy started(view, &QWebEngineView::loadStarted);
        const auto die = [&paddock] {
            Q_EMIT paddock.page->renderProcessTerminated(QWebEnginePage::CrashedTerminationStatus,
                                                         1);
        };
        die();
        QTRY_VERIFY(!started.isEmpty());
        auto &again = paddock.window->part<QPushButton>("pb_mapAgain");
        QVERIFY(view->isVisible() && !again.isVisible());
        for (int i = 0; i < 3; ++i)
            die();
        QTRY_VERIFY(again.isVisible() && !view->isVisible());
        QVERIFY(!paddock.window->label("lb_mapStopped").isEmpty());
        QTRY_VERIFY(!paddock.page->isLoading());
        started.clear();
        again.click();
        QTRY_VERIFY(!started.isEmpty());
        QVERIFY(view->isVisible() && !again.isVisible());
    }

    // The system ends the program while somebody types: the line is in the file.
    void ending()
    {
        const Paddock paddock;
        const Ending ending;
        connect(&ending, &Ending::imminent, &paddock.window->main, &ZunoAnalyzer::commit);
        paddock.typeNotes();
        QTimer::singleShot(0, qApp, [] { (void)std::raise(SIGTERM); });
        QCOMPARE(QApplication::exec(), 128 + SIGTERM);
        QCOMPARE(openSession(paddock.home.path(AtValmora)).session->notes(), u"typed"_s);
    }

    // What cannot be written is asked for before the window closes.
    void unsaved()
    {
        const Paddock paddock;
        QMainWindow &window = paddock.window->main;
        paddock.typeNotes();
        putFile(paddock.home.path(AtValmora), demoFile(LauraAgain));
        onDialog([](QWidget &dialog) { qobject_cast<QMessageBox *>(&dialog)->reject(); });
        QVERIFY(!window.close() && window.isVisible());
        onDialog([](QWidget &dialog) {
            const auto buttons = dialog.findChildren<QPushButton *>();
            for (QPushButton *button : buttons) {
                if (button->text() == u"Close without saving")
                    button->click();
            }
        });
        QVERIFY(window.close());
        QCOMPARE(contents(paddock.home.path(AtValmora)), demoFile(LauraAgain));
    }

    void mapEditor_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("answer");
        QTest::addColumn<bool>("isOpen");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("cancel") << QMessageBox::Cancel << true << false;
        QTest::newRow("discard") << QMessageBox::Discard << false << false;
        QTest::newRow("save") << QMessageBox::Save << true << true;
    }
    // Asked whether to save changes, Cancel goes on editing; saving closes it once it is saved.
    void mapEditor()
    {
        QFETCH(const QMessageBox::StandardButton, answer);
        MapDraft draft;
        draft.outline = {place(0), place(100), place(100, 100), place(0)};
        draft.start = place(0);
        draft.timingPoints = {place(100), place(0)};
        draft.gateSize = 5.0;
        draft.name = u"/Hill.map"_s;
        MapEditor::Content content;
        content.draft = draft;
        MapEditor editor(content);
        QSignalSpy saved(&editor, &MapEditor::saveRequested);
        editor.show();
        child<QLineEdit>(editor, "le_name").setText(u"Mountain"_s);
        onDialog(
            [answer](QWidget &box) { qobject_cast<QMessageBox *>(&box)->button(answer)->click(); });
        child<QPushButton>(editor, "pb_cancel").click();
        QTEST(editor.isVisible(), "isOpen");
        QTEST(!saved.isEmpty(), "isSaved");
    }
};

QTEST_MAIN(TestWiring)
#include "tst_wiring.moc"
