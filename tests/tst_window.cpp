// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileSystemModel>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QTreeView>

#include <app/downloadinprogress.h>
#include <app/settings.h>
#include <app/zunoanalyzer.h>
#include <cli/demolibrary.h>
#include <maps/map.h>
#include <session/sessionfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

const QString AtValmora = u"2026-04-18 10h12 Valmora.ra1"_s;
const QString AtHaidemoor = u"2026-05-24 14h33 Haidemoor.ra1"_s;
const QString OnTheRoad = u"2026-06-06 08h15 Hill road.ra1"_s;
const QString WithoutBlock = u"2026-07-11 13h45 Karoosberg.ra1"_s;
const QString NeverOpened = u"2026-07-12 09h27 Karoosberg.ra1"_s;

void save(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void makeOld(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime))
        qFatal("cannot age %s", qPrintable(path));
}

bool isOld(const QString &path)
{
    return QFileInfo(path).lastModified() < QDateTime::currentDateTime().addSecs(-3600);
}

/// Finds a file of the demo library.
QByteArray demo(const QString &name)
{
    static const QTemporaryDir folder;
    static const DemoResult result = writeDemoLibrary(folder.path());
    if (!result.ok())
        qFatal("%s", qPrintable(result.error));
    QDirIterator files(folder.path(), {name}, QDir::Files, QDirIterator::Subdirectories);
    return contents(files.next());
}

/// Whether two lap times are less than a sample apart.
bool isNear(const QString &one, const QString &two)
{
    const auto milliseconds = [](const QString &text) {
        return QTime::fromString(text, u"mm:ss.zzz"_s).msecsSinceStartOfDay();
    };
    return !one.isEmpty() && !two.isEmpty() && qAbs(milliseconds(one) - milliseconds(two)) < 100;
}

/// A map as a file without a start point.
QByteArray mapWithoutStart()
{
    Bytes map;
    map.text("MAP").text("1.0").f64(1).f64(2).f64(3).f64(4).u32(1).u32(0).f64(10).u32(0);
    return map;
}

/// A rider's data folder, which the program takes for its own while this stands.
class Home
{
public:
    explicit Home(const QStringList &sessions = {}, const QStringList &maps = {})
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_root.path()));
        // As the log has made it.
        QDir(m_root.path()).mkpath(u"Norvale/ZUNO Analyzer"_s);
        for (const QString &name : sessions)
            save(path(name), demo(name));
        for (const QString &name : maps)
            save(map(name), demo(name));
    }
    /// Not the first start; a session of the last one is shown again.
    void startedBefore(const QString &lastSelected = {}) const
    {
        settings.writeDisplayDefaults();
        settings.setValue(Setting::V1400, true);
        if (!lastSelected.isNull())
            settings.setValue(Setting::LastFileSelected, path(lastSelected));
    }
    [[nodiscard]] QString path(const QString &name) const
    {
        return m_root.filePath(u"Norvale/RemoteDevice/"_s + name);
    }
    [[nodiscard]] QString map(const QString &name) const
    {
        return m_root.filePath(u"Norvale/Map/"_s + name);
    }
    [[nodiscard]] QStringList keys(SettingsFile file) const
    {
        return QSettings(settings.path(file), QSettings::IniFormat).allKeys();
    }

private:
    QTemporaryDir m_root;

public:
    const Settings settings {m_root.path()};
};

/// The main window, whose parts are found by their names.
struct Window
{
    template<typename Widget>
    [[nodiscard]] Widget &part(const char *name) const
    {
        auto *found = main.findChild<Widget *>(QString::fromLatin1(name));
        if (found == nullptr)
            qFatal("no %s", name);
        return *found;
    }
    [[nodiscard]] QString label(const char *name) const
    {
        const auto &found = part<QLabel>(name);
        return found.isVisibleTo(&main) ? found.text() : QString();
    }
    [[nodiscard]] int laps() const { return part<QTableView>("tw_tours").model()->rowCount(); }
    /// What is shown instead of laps; empty with laps.
    [[nodiscard]] QString state() const
    {
        const bool isShown
            = part<QStackedWidget>("lapsStack").currentWidget()->objectName() == u"statePage";
        return isShown ? part<QLabel>("lb_state").text() : QString();
    }
    void select(const QString &path)
    {
        auto &view = part<QTreeView>("tw_arbo");
        view.setCurrentIndex(qobject_cast<QFileSystemModel *>(view.model())->index(path));
    }
    [[nodiscard]] bool open()
    {
        main.resize(1400, 900);
        main.show();
        main.activateWindow();
        return QTest::qWaitForWindowActive(&main);
    }

    ZunoAnalyzer main;
};

const QStringList DisplayKeys {
    u"showAccel"_s,       u"showAngleLeft"_s, u"showAngleRight"_s,     u"showCumulatedTime"_s,
    u"showDecel"_s,       u"showLapType"_s,   u"showLocalMinMax"_s,    u"showMaxFrontSusp"_s,
    u"showMaxRearSusp"_s, u"showMaxSpeed"_s,  u"showMinFrontSusp"_s,   u"showMinRearSusp"_s,
    u"showMinSpeed"_s,    u"showPartiels"_s,  u"showPartielsPoints"_s, u"useGradientCompare"_s};

} // namespace

class TestWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void parts();
    void form();
    void firstStart_data();
    void firstStart();
    void settingsAreNotRepaired();
    void upgrade();
    void upgradeSkipsWhatIsNoSession();
    void upgradeCancelled();
    void restoresSession();
    void states_data();
    void states();
    void walksTheTree();
    void newMapAppears();
    void fileReplaced();
    void fileGone();
    void splitters();
    void throwsLapOut();
    void firstLapLabel();
    void numbersOfTheLanguage();
    void infosSave_data();
    void infosSave();
    void infosTakenBack_data();
    void infosTakenBack();
    void infosOfOneSessionOnly();
    void lookingWritesNothing();
    void textsOfFilesArePlain();
};

void TestWindow::parts()
{
    const Home home;
    home.startedBefore();
    const Window window;
    QStringList missing;
    for (const char *name : {"tw_arbo",
                             "tabWidget",
                             "infos",
                             "tw_tours",
                             "lb_firstLapSelected",
                             "lb_idealTime",
                             "lb_traveledDistance",
                             "tableWidget",
                             "googleWidget",
                             "lb_mapSelected",
                             "lb_errorMap",
                             "lb_mapLength",
                             "bottomWidget",
                             "cb_speed",
                             "cb_angleLandR",
                             "cb_accel",
                             "cb_frontSuspension",
                             "cb_rearSuspension",
                             "w_compare",
                             "compare",
                             "cb_comparePositions2",
                             "cb_compareTime",
                             "timeFromStart",
                             "vitesse",
                             "vitesse2",
                             "diffSpeed",
                             "angle",
                             "angle2",
                             "diffAngle",
                             "accel",
                             "accel2",
                             "diffAccel",
                             "frontSusp",
                             "frontSusp2",
                             "diffFrontSusp",
                             "rearSusp",
                             "rearSusp2",
                             "diffRearSusp",
                             "diffTime",
                             "le_vehicle",
                             "le_driver",
                             "le_tires",
                             "sb_trackTemp",
                             "cb_weather",
                             "lb_date",
                             "lb_circuit",
                             "le_event",
                             "te_infos",
                             "lb_bestLap",
                             "lb_idealTime_2",
                             "webSite",
                             "mail",
                             "menuBar",
                             "statusBar"}) {
        if (window.main.findChild<QWidget *>(QString::fromLatin1(name)) == nullptr)
            missing.append(QString::fromLatin1(name));
    }
    for (const char *name : {"webview_layout", "layout_chartLaps"}) {
        if (window.main.findChild<QLayout *>(QString::fromLatin1(name)) == nullptr)
            missing.append(QString::fromLatin1(name));
    }
    QCOMPARE(missing.join(u' '), QString());
}

void TestWindow::form()
{
    const Home home;
    home.startedBefore();
    const Window window;
    QCOMPARE(window.main.windowTitle(), u"ZUNO Analyzer"_s);
    QStringList actions;
    for (const QAction *action : window.main.menuBar()->actions())
        actions.append(action->text() + action->shortcut().toString());
    QCOMPARE(actions.join(u'|'), u"   Import   Ctrl+I|   Settings   Ctrl+,|   Maps   Ctrl+M|"
                                 "   Statistics   Ctrl+T|"
                                 "   Help   F1|   ?   Shift+F1"_s);
    const auto &tabs = window.part<QTabWidget>("tabWidget");
    QCOMPARE(tabs.count(), 2);
    QCOMPARE(tabs.tabText(0), u"Maps and Laps  "_s);
    QCOMPARE(tabs.tabText(1), u" Session infos  "_s);
    QCOMPARE(tabs.currentIndex(), 0);
    QVERIFY(window.part<QComboBox>("cb_weather").findText(u"Mixte"_s) >= 0);
    QCOMPARE(window.main.centralWidget()->objectName(), u"splitter3"_s);
    QCOMPARE(window.part<QSplitter>("splitter1").orientation(), Qt::Vertical);
}

void TestWindow::firstStart_data()
{
    QTest::addColumn<bool>("hasMaps");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("nothing there") << false << QStringList {u"acquisitionFolder"_s};
    QTest::newRow("a maps folder") << true << QStringList {u"acquisitionFolder"_s, u"mapFiles"_s};
}

void TestWindow::firstStart()
{
    QFETCH(const bool, hasMaps);
    const Home home({}, hasMaps ? QStringList {u"Valmora.map"_s} : QStringList {});
    const Window window;
    QTEST(home.keys(SettingsFile::Config), "keys");
    QCOMPARE(home.settings.value(Setting::AcquisitionFolder).toString() + u'/', home.path(u""_s));
    QVERIFY(QDir(home.path(u""_s)).exists());
    QCOMPARE(QDir(home.map(u""_s)).exists(), hasMaps);
    QCOMPARE(home.keys(SettingsFile::Analyzer), DisplayKeys + QStringList {u"v1400"_s});
    for (const Setting setting : Settings::displaySettings()) {
        const QString key = Settings::key(setting);
        QVERIFY2(home.settings.isOn(setting) != key.endsWith(u"Susp"), qPrintable(key));
    }
    QVERIFY(home.settings.isOn(Setting::V1400));
    QVERIFY(window.state().startsWith(u"There are no sessions yet."));
    QVERIFY(window.state().contains(home.settings.acquisitionFolder()));
}

void TestWindow::settingsAreNotRepaired()
{
    const Home home;
    home.settings.setValues({{Setting::ShowLapType, false}, {Setting::V1400, true}});
    const Window window;
    QCOMPARE(home.keys(SettingsFile::Analyzer), QStringList({u"showLapType"_s, u"v1400"_s}));
    QVERIFY(!home.settings.isOn(Setting::ShowLapType));
}

void TestWindow::upgrade()
{
    const Home home({WithoutBlock, AtValmora, NeverOpened},
                    {u"Karoosberg.map"_s, u"Valmora.map"_s});
    {
        const Window window;
        QVERIFY(home.settings.isOn(Setting::V1400));
        QVERIFY(window.laps() > 2);
    }
    for (const QString &name : {WithoutBlock, AtValmora, NeverOpened}) {
        const auto session = openSession(home.path(name)).session;
        QVERIFY2(!session->bestLapText().isEmpty(), qPrintable(name));
        QVERIFY2(!session->idealTimeText().isEmpty(), qPrintable(name));
        QVERIFY2(name.contains(session->circuitName()), qPrintable(name));
        QCOMPARE(session->newSession(), 0);
        makeOld(home.path(name));
    }
    // Once, and never again.
    const Window window;
    QTest::qWait(50);
    for (const QString &name : {WithoutBlock, AtValmora, NeverOpened})
        QVERIFY2(isOld(home.path(name)), qPrintable(name));
}

// Damaged files beside them must not keep sessions from their information.
void TestWindow::upgradeSkipsWhatIsNoSession()
{
    const Home home({}, {u"Karoosberg.map"_s});
    QStringList paths;
    for (int i = 0; i < 4; ++i) {
        paths.append(home.path(u"day %1.ra1"_s.arg(i)));
        save(paths.last(), demo(NeverOpened));
    }
    for (int i = 0; i < 12; ++i)
        save(home.path(u"%1.ra1"_s.arg(i)), "hello");
    const Window window;
    for (const QString &path : std::as_const(paths))
        QCOMPARE(openSession(path).session->newSession(), 0);
}

// When the rider cancels, one more session is done; the pass does not come again.
void TestWindow::upgradeCancelled()
{
    const Home home({}, {u"Karoosberg.map"_s});
    QStringList paths;
    for (int i = 0; i < 5; ++i) {
        paths.append(home.path(u"day %1/%1.ra1"_s.arg(i)));
        save(paths.last(), demo(NeverOpened));
    }
    QString title;
    QString text;
    QTimer::singleShot(0, this, [&] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *progress = qobject_cast<DownloadInProgress *>(widget)) {
                title = progress->windowTitle();
                text = progress->findChild<QLabel *>(u"lb_nbToConvert"_s)->text();
                progress->findChild<QPushButton *>(u"pb_cancel"_s)->click();
            }
        }
    });
    const Window window;
    QCOMPARE(title, u"Adding additionnal infos to sessions - for version 1.4.0.0 "_s);
    QCOMPARE(text, u"5 sessions to parse \nIn order to have access to all your statistics with "
                   "this new version of Analyzer, let this analysis finish "_s);
    qsizetype done = 0;
    for (const QString &path : std::as_const(paths))
        done += openSession(path).session->newSession() == 0 ? 1 : 0;
    QCOMPARE(done, 2);
    QVERIFY(home.settings.isOn(Setting::V1400));
    for (QWidget *widget : QApplication::topLevelWidgets())
        QVERIFY(qobject_cast<DownloadInProgress *>(widget) == nullptr);
}

// What the demo says of the session was computed as it was made up, not by this program.
void TestWindow::restoresSession()
{
    const Home home({u"2026-04-18 14h05 Valmora.ra1"_s, AtHaidemoor},
                    {u"Valmora.map"_s, u"Haidemoor.map"_s});
    const QString name = u"2026-04-18 14h05 Valmora.ra1"_s;
    home.startedBefore(name);
    const auto file = openSession(home.path(name)).session;
    const Window window;
    QTRY_COMPARE(window.laps(), 9);
    QCOMPARE(window.state(), QString());
    QCOMPARE(window.label("lb_mapSelected"), u"Map : Valmora"_s);
    const QString ideal = window.part<QLabel>("lb_idealTime_2").text();
    const QString best = window.part<QLabel>("lb_bestLap").text();
    QVERIFY2(isNear(ideal, file->idealTimeText()), qPrintable(ideal));
    QVERIFY2(isNear(best, file->bestLapText()), qPrintable(best));
    QCOMPARE(window.label("lb_idealTime"), u"Ideal Time : "_s + ideal);
    QCOMPARE(window.label("lb_errorMap"), QString());
    QVERIFY(window.label("lb_mapLength").startsWith(u"Map length : "));
    QVERIFY(window.label("lb_traveledDistance").startsWith(u"Traveled distance : "));
    QCOMPARE(window.part<QLineEdit>("le_event").text(), u"Season opening"_s);
    QCOMPARE(window.part<QLineEdit>("le_driver").text(), u"Laura Brandt"_s);
    QCOMPARE(window.part<QLineEdit>("le_vehicle").text(), u"Supersport 600"_s);
    QCOMPARE(window.part<QLineEdit>("le_tires").text(), u"Slick soft"_s);
    QCOMPARE(window.part<QComboBox>("cb_weather").currentText(), u"Dry"_s);
    QCOMPARE(window.part<QSpinBox>("sb_trackTemp").value(), 33);
    QVERIFY(window.part<QTextEdit>("te_infos").toPlainText().startsWith(u"Lap 5 struck out"));
    QCOMPARE(window.part<QLabel>("lb_circuit").text(), u"Valmora"_s);
    const auto &sectors = window.part<QTableWidget>("tableWidget");
    QVERIFY(sectors.rowCount() > 1);
    for (int row = 0; row < sectors.rowCount(); ++row) {
        QCOMPARE(sectors.item(row, 0)->text(), QString::number(row + 1));
        QVERIFY(!sectors.item(row, 1)->text().isEmpty());
        // Not in the out lap, nor in the one that was struck out.
        QVERIFY(!QStringList({u""_s, u"1"_s, u"5"_s}).contains(sectors.item(row, 2)->text()));
    }
    // The best lap is the current one.
    const QTableView &table = window.part<QTableView>("tw_tours");
    const QModelIndex time = table.currentIndex().siblingAtColumn(3);
    QCOMPARE(time.data().toString(), best);
}

void TestWindow::states_data()
{
    QTest::addColumn<QString>("session"); // displayed; empty: none
    QTest::addColumn<QString>("choice"); // its stored map
    QTest::addColumn<QString>("state"); // how it begins; empty: laps
    QTest::addColumn<bool>("mapError");
    QTest::newRow("laps") << AtValmora << QString() << u""_s << false;
    QTest::newRow("none selected")
        << QString() << QString() << u"Select a session in the list"_s << false;
    QTest::newRow("no map") << OnTheRoad << QString() << u"No map is known for the place"_s << true;
    QTest::newRow("no start point")
        << AtValmora << u"/No start.map"_s
        << u"The map \"No start\" has no start point, so laps cannot be cut."_s << false;
    QTest::newRow("another circuit")
        << AtHaidemoor << u"/Valmora.map"_s
        << u"This session never passes the start/finish line of the map \"Valmora\"."_s << false;
    QTest::newRow("damaged") << u"damaged.ra1"_s << QString()
                             << u"\"damaged.ra1\" holds no session that can be shown"_s << false;
}

void TestWindow::states()
{
    QFETCH(const QString, session);
    QFETCH(const QString, choice);
    QFETCH(const QString, state);
    QFETCH(const bool, mapError);
    const Home home({AtValmora, AtHaidemoor, OnTheRoad}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    save(home.map(u"No start.map"_s), mapWithoutStart());
    save(home.path(u"damaged.ra1"_s), "hello");
    home.startedBefore();
    if (!choice.isNull())
        home.settings.setMapChoice(session, choice);
    Window window;
    if (!session.isNull()) {
        window.select(home.path(AtValmora));
        window.select(home.path(session));
    }
    QCOMPARE(window.state().left(state.size()), state);
    QCOMPARE(window.state().isEmpty(), state.isEmpty());
    QCOMPARE(window.laps() > 0, state.isEmpty());
    QCOMPARE(window.label("lb_errorMap"),
             mapError ? u"No map found, please try to select one from the Map configuraton panel"_s
                      : QString());
    const bool isSession = session.startsWith(u"2026");
    QCOMPARE(window.label("lb_mapSelected").isEmpty(), !isSession || mapError);
    QCOMPARE(window.part<QLineEdit>("le_driver").isEnabled(), isSession);
    QCOMPARE(window.part<QLineEdit>("le_driver").text().isEmpty(), !isSession);
    QCOMPARE(window.part<QTableWidget>("tableWidget").isVisibleTo(&window.main), state.isEmpty());
}

void TestWindow::walksTheTree()
{
    const Home home({AtValmora, AtHaidemoor, OnTheRoad}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    home.startedBefore();
    Window window;
    QVERIFY(window.open());
    auto &tree = window.part<QTreeView>("tw_arbo");
    QTRY_COMPARE(tree.model()->rowCount(tree.rootIndex()), 3);
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Home);
    QTest::keyClick(&tree, Qt::Key_Return);
    QCOMPARE(window.label("lb_mapSelected"), u"Map : Valmora"_s);
    QTest::keyClick(&tree, Qt::Key_Down);
    QCOMPARE(window.label("lb_mapSelected"), u"Map : Haidemoor"_s);
    QCOMPARE(home.settings.value(Setting::LastFileSelected).toString(), home.path(AtHaidemoor));
    QTimer::singleShot(0, this, [] {
        auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        dialog->setTextValue(u"Heath"_s);
        dialog->accept();
    });
    QTest::keyClick(&tree, Qt::Key_F2);
    QVERIFY(QFile::exists(home.path(u"Heath.ra1"_s)));
    QCOMPARE(home.settings.value(Setting::LastFileSelected).toString(), home.path(u"Heath.ra1"_s));
    QCOMPARE(window.label("lb_mapSelected"), u"Map : Haidemoor"_s);
    QTest::qWait(100);
    QCOMPARE(window.main.viewedStateMap().keys(),
             QStringList({AtValmora, OnTheRoad, u"Heath.ra1"_s}));
}

void TestWindow::newMapAppears()
{
    const Home home({AtValmora, AtHaidemoor}, {u"Haidemoor.map"_s});
    home.startedBefore(AtValmora);
    const Window window;
    QTRY_VERIFY(window.state().startsWith(u"No map is known"));
    save(home.map(u"Spain/Valmora.map"_s), demo(u"Valmora.map"_s));
    QTRY_COMPARE(window.label("lb_mapSelected"), u"Map : Valmora"_s);
    QCOMPARE(window.laps(), 7);
    QCOMPARE(window.main.viewedStateMap().size(), 2);
    // Folders that appear later are watched, too.
    QVERIFY(QFile::remove(home.map(u"Spain/Valmora.map"_s)));
    QTRY_VERIFY(window.state().startsWith(u"No map is known"));
}

void TestWindow::fileReplaced()
{
    const Home home({AtValmora}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    home.startedBefore(AtValmora);
    const Window window;
    QTRY_COMPARE(window.label("lb_mapSelected"), u"Map : Valmora"_s);
    save(home.path(u"new"_s), demo(AtHaidemoor));
    QCOMPARE(std::rename(QFile::encodeName(home.path(u"new"_s)).constData(),
                         QFile::encodeName(home.path(AtValmora)).constData()),
             0);
    QTRY_COMPARE(window.label("lb_mapSelected"), u"Map : Haidemoor"_s);
    QCOMPARE(window.part<QLineEdit>("le_driver").text(), u"Pieter Vos"_s);
}

void TestWindow::fileGone()
{
    const Home home({AtValmora, AtHaidemoor}, {u"Valmora.map"_s});
    home.startedBefore(AtValmora);
    const Window window;
    QTRY_COMPARE(window.laps(), 7);
    QVERIFY(QFile::remove(home.path(AtValmora)));
    QTRY_COMPARE(window.laps(), 0);
    QVERIFY(window.state().startsWith(u"Select a session"));
    QVERIFY(window.part<QLineEdit>("le_driver").text().isEmpty());
    QVERIFY(QFile::remove(home.path(AtHaidemoor)));
    QTRY_VERIFY(window.main.viewedStateMap().isEmpty());
    QTRY_VERIFY(window.state().startsWith(u"There are no sessions yet."));
    save(home.path(AtValmora), demo(AtValmora));
    QTRY_VERIFY(window.state().startsWith(u"Select a session"));
}

void TestWindow::splitters()
{
    const QStringList keys {u"splitter0Sizes"_s, u"splitter1Sizes"_s, u"splitter2Sizes"_s,
                            u"splitter3Sizes"_s};
    const auto stored = [&keys](const Home &home) {
        QStringList found = home.keys(SettingsFile::Analyzer);
        found.removeIf([&keys](const QString &key) { return !keys.contains(key); });
        return found;
    };
    const Home home;
    home.startedBefore();
    QList<int> sizes;
    {
        Window window;
        QVERIFY(window.open());
        QCOMPARE(stored(home), QStringList());
        auto &splitter = window.part<QSplitter>("splitter3");
        const QList<int> before = splitter.sizes();
        QSplitterHandle *handle = splitter.handle(1);
        const QPoint centre = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, centre);
        QTest::mouseMove(handle, centre + QPoint(90, 0));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, centre + QPoint(90, 0));
        QCOMPARE(stored(home), keys);
        sizes = splitter.sizes();
        QVERIFY(sizes != before);
    }
    Window window;
    QVERIFY(window.open());
    QCOMPARE(window.part<QSplitter>("splitter3").sizes(), sizes);
}

void TestWindow::throwsLapOut()
{
    const Home home({AtValmora}, {u"Valmora.map"_s});
    home.startedBefore();
    Window window;
    QVERIFY(window.open());
    window.select(home.path(AtValmora));
    const QString ideal = window.label("lb_idealTime");
    const QString best = window.part<QLabel>("lb_bestLap").text();
    auto &table = window.part<QTableView>("tw_tours");
    table.setFocus();
    const int lap = table.currentIndex().row() + 1;
    QTest::keyClick(&table, Qt::Key_V);
    auto file = openSession(home.path(AtValmora)).session;
    QCOMPARE(file->invalidLaps(), QList<quint8> {static_cast<quint8>(lap)});
    QVERIFY(window.label("lb_idealTime") != ideal);
    QCOMPARE(window.label("lb_idealTime"), u"Ideal Time : "_s + file->idealTimeText());
    QVERIFY(file->bestLapText() != best);
    QCOMPARE(window.part<QLabel>("lb_bestLap").text(), file->bestLapText());
    QTest::keyClick(&table, Qt::Key_V);
    file = openSession(home.path(AtValmora)).session;
    QVERIFY(file->invalidLaps().isEmpty());
    QCOMPARE(file->bestLapText(), best);
    QCOMPARE(window.label("lb_idealTime"), ideal);
}

void TestWindow::firstLapLabel()
{
    const Home home({AtValmora, AtHaidemoor}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    home.startedBefore();
    Window window;
    QVERIFY(window.open());
    window.select(home.path(AtValmora));
    QCOMPARE(window.label("lb_firstLapSelected"), QString());
    auto &table = window.part<QTableView>("tw_tours");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_C);
    const auto cell = [&table](int column) {
        return table.currentIndex().siblingAtColumn(column).data().toString();
    };
    const QString text = u"Infos of first lap selected : Map : Valmora --- Session : %1 --- Lap "
                         "num : %2 --- Lap time : %3 --- max speed : %4"_s.arg(AtValmora, cell(0),
                                                                               cell(3), cell(4));
    QCOMPARE(window.label("lb_firstLapSelected"), text);
    // It stays while another session is shown.
    window.select(home.path(AtHaidemoor));
    QCOMPARE(window.label("lb_firstLapSelected"), text);
    window.select(home.path(AtValmora));
    QCOMPARE(window.label("lb_firstLapSelected"), text);
    // On another map that lap is none any more.
    window.main.onMapChanged({}, 1);
    QCOMPARE(window.laps(), 0);
    QCOMPARE(window.label("lb_firstLapSelected"), QString());
}

void TestWindow::numbersOfTheLanguage()
{
    const Home home({AtValmora}, {u"Valmora.map"_s});
    home.startedBefore();
    home.settings.setValue(Setting::Language, u"de"_s);
    Window window;
    window.select(home.path(AtValmora));
    const QString length = window.label("lb_mapLength");
    const QString distance = window.label("lb_traveledDistance");
    QLocale::setDefault(QLocale::c());
    static const QRegularExpression german(u"^\\D+ : \\d{1,3}(\\.\\d{3})+ m$"_s);
    QVERIFY2(length.contains(german), qPrintable(length));
    QVERIFY2(distance.contains(german), qPrintable(distance));
}

void TestWindow::infosSave_data()
{
    QTest::addColumn<QByteArray>("widget");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    const auto row
        = [](const char *name, const char *widget, const QString &typed, const QString &stored) {
              QTest::newRow(name) << QByteArray(widget) << typed << stored;
          };
    row("event", "le_event", u"Cup"_s, u"Cup"_s);
    row("event loses its blanks", "le_event", u"  Hill Cup  "_s, u"Hill Cup"_s);
    row("event emptied", "le_event", u""_s, u""_s);
    row("driver keeps its blanks", "le_driver", u"  Ann  "_s, u"  Ann  "_s);
    row("driver emptied", "le_driver", u""_s, u""_s);
    row("vehicle keeps its blanks", "le_vehicle", u" R6 "_s, u" R6 "_s);
    row("tyres", "le_tires", u"soft"_s, u"soft"_s);
    row("tyres emptied", "le_tires", u""_s, u"Slick soft"_s);
    row("condition", "cb_weather", u"Foggy"_s, u"Foggy"_s);
    row("condition emptied", "cb_weather", u""_s, u""_s);
    row("temperature", "sb_trackTemp", u"41"_s, u"41"_s);
    row("notes", "te_infos", u"one\ntwo"_s, u"one\ntwo"_s);
    row("notes emptied", "te_infos", u""_s,
        u"First outing of the year. Fork two clicks softer than last autumn."_s);
    row("markup is text", "le_driver", u"<b>Ann</b>"_s, u"<b>Ann</b>"_s);
    // The file can only hold what survives its counting of bytes.
    row("umlauts", "te_infos", u"Fr\u00FChling"_s, u"Fruhling"_s);
}

namespace {

/// Types as the rider does, with Enter where a field waits for it.
void type(const Window &window, const QByteArray &widget, const QString &text)
{
    if (widget == "te_infos") {
        window.part<QTextEdit>(widget).setPlainText(text);
    } else if (widget == "cb_weather") {
        window.part<QComboBox>(widget).setEditText(text);
    } else {
        auto &field = window.part<QWidget>(widget);
        auto *edit = widget == "sb_trackTemp" ? field.findChild<QLineEdit *>()
                                              : qobject_cast<QLineEdit *>(&field);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        edit->insert(text);
        QTest::keyClick(&field, Qt::Key_Return);
    }
}

QString storedText(const QString &path, const QByteArray &widget)
{
    const auto session = openSession(path).session;
    return widget == "le_event"       ? session->eventName()
           : widget == "le_driver"    ? session->driver()
           : widget == "le_vehicle"   ? session->vehicle()
           : widget == "le_tires"     ? session->tyres()
           : widget == "cb_weather"   ? session->condition()
           : widget == "sb_trackTemp" ? QString::number(session->temperature())
                                      : session->notes();
}

} // namespace

void TestWindow::infosSave()
{
    QFETCH(const QByteArray, widget);
    QFETCH(const QString, typed);
    const Home home({AtValmora}, {u"Valmora.map"_s});
    home.startedBefore();
    Window window;
    window.select(home.path(AtValmora));
    const SessionInformation before = openSession(home.path(AtValmora)).session->information();
    type(window, widget, typed);
    QTEST(storedText(home.path(AtValmora), widget), "stored");
    // Nothing else has changed.
    const auto after = openSession(home.path(AtValmora)).session;
    const QList<std::pair<const char *, QString>> others {
        {"le_event", before.event.text()},
        {"le_driver", before.driver.text()},
        {"le_vehicle", before.vehicle.text()},
        {"le_tires", before.tyres.text()},
        {"cb_weather", before.condition.text()},
        {"sb_trackTemp", QString::number(before.temperature)},
        {"te_infos", before.notes.text()}};
    for (const auto &[other, text] : others) {
        if (other != widget)
            QCOMPARE(storedText(home.path(AtValmora), other), text);
    }
    QVERIFY(after->sampleCount() > 100);
}

void TestWindow::infosTakenBack_data()
{
    QTest::addColumn<QByteArray>("widget");
    for (const char *widget :
         {"le_event", "le_driver", "le_vehicle", "le_tires", "cb_weather", "te_infos"})
        QTest::newRow(widget) << QByteArray(widget);
}

// What was typed and then changed back must not stay in the file.
void TestWindow::infosTakenBack()
{
    QFETCH(const QByteArray, widget);
    const Home home({AtValmora}, {u"Valmora.map"_s});
    home.startedBefore();
    Window window;
    window.select(home.path(AtValmora));
    const QString before = storedText(home.path(AtValmora), widget);
    type(window, widget, u"Wrong"_s);
    QCOMPARE(storedText(home.path(AtValmora), widget), u"Wrong"_s);
    type(window, widget, before);
    QCOMPARE(storedText(home.path(AtValmora), widget), before);
}

void TestWindow::infosOfOneSessionOnly()
{
    const Home home({AtValmora, AtHaidemoor}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    home.startedBefore();
    Window window;
    QVERIFY(window.open());
    window.part<QTabWidget>("tabWidget").setCurrentIndex(1);
    window.select(home.path(AtValmora));
    // Typed, but not finished with Enter: leaving the page saves it.
    auto &driver = window.part<QLineEdit>("le_driver");
    driver.setText(u"Zoe"_s);
    window.part<QTabWidget>("tabWidget").setCurrentIndex(0);
    QCOMPARE(storedText(home.path(AtValmora), "le_driver"), u"Zoe"_s);
    window.select(home.path(AtHaidemoor));
    QCOMPARE(driver.text(), u"Pieter Vos"_s);
    QCOMPARE(storedText(home.path(AtHaidemoor), "le_driver"), u"Pieter Vos"_s);
    window.select(home.path(AtValmora));
    QCOMPARE(driver.text(), u"Zoe"_s);
}

void TestWindow::lookingWritesNothing()
{
    const QStringList names {AtValmora, AtHaidemoor, OnTheRoad, WithoutBlock};
    const Home home(names, {u"Valmora.map"_s, u"Haidemoor.map"_s, u"Karoosberg.map"_s});
    home.startedBefore();
    // What an old program wrote stays as it is as well.
    save(home.path(WithoutBlock), demo(WithoutBlock));
    for (const QString &name : names)
        makeOld(home.path(name));
    {
        Window window;
        QVERIFY(window.open());
        for (const QString &name : names) {
            window.select(home.path(name));
            window.part<QTabWidget>("tabWidget").setCurrentIndex(1);
            window.select(home.path(names.first()));
            window.select(home.path(name));
        }
    }
    for (const QString &name : names)
        QVERIFY2(isOld(home.path(name)), qPrintable(name));
}

void TestWindow::textsOfFilesArePlain()
{
    const Home home({AtValmora});
    save(home.map(u"<img src=x>.map"_s), demo(u"Valmora.map"_s));
    home.startedBefore();
    Window window;
    QVERIFY(window.open());
    window.select(home.path(AtValmora));
    QCOMPARE(window.label("lb_mapSelected"), u"Map : <img src=x>"_s);
    for (const char *name : {"lb_mapSelected", "lb_firstLapSelected", "lb_circuit", "lb_bestLap",
                             "lb_idealTime", "lb_idealTime_2", "lb_date", "lb_state"})
        QVERIFY2(window.part<QLabel>(name).textFormat() == Qt::PlainText, name);
    QVERIFY(!window.part<QTextEdit>("te_infos").acceptRichText());
}

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
