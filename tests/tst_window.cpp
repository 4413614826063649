// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
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

} // namespace

class TestWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void firstStart();
    void upgrade();
    void upgradeCancelled();
    void restoresSession();
    void states_data();
    void states();
    void filesAndMapsChange();
    void splitters();
    void throwsLapOut();
    void infosSave_data();
    void infosSave();
    void infosOfOneSessionOnly();
    void lookingWritesNothing();
};

void TestWindow::firstStart()
{
    for (const bool hasMaps : {false, true}) {
        const Home home({}, hasMaps ? QStringList {u"Valmora.map"_s} : QStringList {});
        const Window window;
        QCOMPARE(home.keys(SettingsFile::Config).join(u' '),
                 hasMaps ? u"acquisitionFolder mapFiles"_s : u"acquisitionFolder"_s);
        QCOMPARE(home.settings.value(Setting::AcquisitionFolder).toString() + u'/',
                 home.path(u""_s));
        QVERIFY(QDir(home.path(u""_s)).exists());
        QCOMPARE(home.keys(SettingsFile::Analyzer).size(), 17);
        for (const Setting setting : Settings::displaySettings())
            QCOMPARE(home.settings.isOn(setting), !Settings::key(setting).endsWith(u"Susp"));
        QVERIFY(home.settings.isOn(Setting::V1400));
        QVERIFY(window.state().startsWith(u"There are no sessions yet."));
    }
    // Later starts repair nothing.
    const Home home;
    home.settings.setValues({{Setting::ShowLapType, false}, {Setting::V1400, true}});
    const Window window;
    QCOMPARE(home.keys(SettingsFile::Analyzer), QStringList({u"showLapType"_s, u"v1400"_s}));
}

// Damaged files beside them must not keep sessions from their information.
void TestWindow::upgrade()
{
    const QStringList names {WithoutBlock, AtValmora, NeverOpened};
    const Home home(names, {u"Karoosberg.map"_s, u"Valmora.map"_s});
    for (int i = 0; i < 12; ++i)
        save(home.path(u"%1.ra1"_s.arg(i)), "hello");
    {
        const Window window;
    }
    QVERIFY(home.settings.isOn(Setting::V1400));
    for (const QString &name : names) {
        const auto session = openSession(home.path(name)).session;
        QVERIFY2(!session->bestLapText().isEmpty(), qPrintable(name));
        QVERIFY2(!session->idealTimeText().isEmpty(), qPrintable(name));
        QVERIFY2(name.contains(session->circuitName()), qPrintable(name));
        QCOMPARE(session->newSession(), 0);
        makeOld(home.path(name));
    }
    // Once, and never again.
    const Window window;
    for (const QString &name : names)
        QVERIFY2(isOld(home.path(name)), qPrintable(name));
}

// When the rider cancels, one more session is done; the pass does not come again.
void TestWindow::upgradeCancelled()
{
    const Home home({}, {u"Karoosberg.map"_s});
    for (int i = 0; i < 5; ++i)
        save(home.path(u"%1.ra1"_s.arg(i)), demo(NeverOpened));
    QString text;
    QTimer::singleShot(0, this, [&] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *progress = qobject_cast<DownloadInProgress *>(widget)) {
                text = progress->findChild<QLabel *>(u"lb_nbToConvert"_s)->text();
                progress->findChild<QPushButton *>(u"pb_cancel"_s)->click();
            }
        }
    });
    const Window window;
    QVERIFY2(text.startsWith(u"5 sessions to parse"), qPrintable(text));
    int done = 0;
    for (int i = 0; i < 5; ++i)
        done += openSession(home.path(u"%1.ra1"_s.arg(i))).session->newSession() == 0 ? 1 : 0;
    QCOMPARE(done, 2);
    QVERIFY(home.settings.isOn(Setting::V1400));
}

// What the demo says of the session was computed as it was made up, not by this program.
void TestWindow::restoresSession()
{
    const QString name = u"2026-04-18 14h05 Valmora.ra1"_s;
    const Home home({name, AtHaidemoor}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    home.startedBefore(name);
    const auto file = openSession(home.path(name)).session;
    const Window window;
    QTRY_COMPARE(window.laps(), 9);
    QCOMPARE(window.label("lb_mapSelected"), u"Map : Valmora"_s);
    const QString ideal = window.part<QLabel>("lb_idealTime_2").text();
    const QString best = window.part<QLabel>("lb_bestLap").text();
    QVERIFY2(isNear(ideal, file->idealTimeText()), qPrintable(ideal));
    QVERIFY2(isNear(best, file->bestLapText()), qPrintable(best));
    QCOMPARE(window.label("lb_idealTime"), u"Ideal Time : "_s + ideal);
    QVERIFY(window.label("lb_mapLength").startsWith(u"Map length : "));
    QVERIFY(window.label("lb_traveledDistance").startsWith(u"Traveled distance : "));
    QCOMPARE(window.part<QLineEdit>("le_event").text(), u"Season opening"_s);
    QCOMPARE(window.part<QLineEdit>("le_driver").text(), u"Laura Brandt"_s);
    QCOMPARE(window.part<QLineEdit>("le_vehicle").text(), u"Supersport 600"_s);
    QCOMPARE(window.part<QLineEdit>("le_tires").text(), u"Slick soft"_s);
    QCOMPARE(window.part<QComboBox>("cb_weather").currentText(), u"Dry"_s);
    QCOMPARE(window.part<QSpinBox>("sb_trackTemp").value(), 33);
    QVERIFY(window.part<QTextEdit>("te_infos").toPlainText().startsWith(u"Lap 5 struck out"));
    // The best sectors are not those of the out lap, nor of the one that was struck out.
    const auto &sectors = window.part<QTableWidget>("tableWidget");
    QVERIFY(sectors.rowCount() > 1);
    for (int row = 0; row < sectors.rowCount(); ++row)
        QVERIFY(!QStringList({u""_s, u"1"_s, u"5"_s}).contains(sectors.item(row, 2)->text()));
    // The best lap is the current one.
    const QModelIndex current = window.part<QTableView>("tw_tours").currentIndex();
    QCOMPARE(current.siblingAtColumn(3).data().toString(), best);
}

void TestWindow::states_data()
{
    QTest::addColumn<QString>("session"); // displayed; empty: none
    QTest::addColumn<QString>("choice"); // its stored map
    QTest::addColumn<QString>("state"); // how it begins; empty: laps
    const QString damaged = u"damaged.ra1"_s;
    const QString noStart = u"The map \"No start\" has no start point, so laps cannot be cut."_s;
    const QString other = u"This session never passes the start/finish line of the map \"<i>\"."_s;
    QTest::newRow("laps") << AtValmora << QString() << u""_s;
    QTest::newRow("none selected") << QString() << QString() << u"Select a session in the list"_s;
    QTest::newRow("no map") << OnTheRoad << QString() << u"No map is known for the place"_s;
    QTest::newRow("no start point") << AtValmora << u"/No start.map"_s << noStart;
    QTest::newRow("other circuit") << AtHaidemoor << u"/<i>.map"_s << other;
    QTest::newRow("damaged") << damaged << QString() << u"\"damaged.ra1\" holds no session"_s;
}

void TestWindow::states()
{
    QFETCH(const QString, session);
    QFETCH(const QString, choice);
    QFETCH(const QString, state);
    const Home home({AtValmora, AtHaidemoor, OnTheRoad}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    save(home.map(u"No start.map"_s), mapWithoutStart());
    save(home.map(u"<i>.map"_s), demo(u"Valmora.map"_s));
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
    QCOMPARE(window.label("lb_errorMap").isEmpty(), session != OnTheRoad);
    const bool isSession = session.startsWith(u"2026");
    QCOMPARE(window.label("lb_mapSelected").isEmpty(), !isSession || session == OnTheRoad);
    QCOMPARE(window.part<QLineEdit>("le_driver").isEnabled(), isSession);
    QCOMPARE(window.part<QLineEdit>("le_driver").text().isEmpty(), !isSession);
    // Names from files are no markup.
    for (const char *name : {"lb_mapSelected", "lb_firstLapSelected", "lb_circuit", "lb_state"})
        QVERIFY2(window.part<QLabel>(name).textFormat() == Qt::PlainText, name);
}

void TestWindow::filesAndMapsChange()
{
    const Home home({AtValmora}, {u"Haidemoor.map"_s});
    home.startedBefore(AtValmora);
    const Window window;
    QTRY_VERIFY(window.state().startsWith(u"No map is known"));
    // Folders that appear later are watched, too.
    save(home.map(u"Spain/Valmora.map"_s), demo(u"Valmora.map"_s));
    QTRY_COMPARE(window.laps(), 7);
    QVERIFY(QFile::remove(home.map(u"Spain/Valmora.map"_s)));
    QTRY_VERIFY(window.state().startsWith(u"No map is known"));
    save(home.path(u"new"_s), demo(AtHaidemoor));
    QCOMPARE(std::rename(QFile::encodeName(home.path(u"new"_s)).constData(),
                         QFile::encodeName(home.path(AtValmora)).constData()),
             0);
    QTRY_COMPARE(window.label("lb_mapSelected"), u"Map : Haidemoor"_s);
    QCOMPARE(window.part<QLineEdit>("le_driver").text(), u"Pieter Vos"_s);
    QVERIFY(QFile::remove(home.path(AtValmora)));
    QTRY_VERIFY(window.state().startsWith(u"There are no sessions yet."));
    QVERIFY(window.part<QLineEdit>("le_driver").text().isEmpty());
    save(home.path(AtValmora), demo(AtValmora));
    QTRY_VERIFY(window.state().startsWith(u"Select a session"));
}

void TestWindow::splitters()
{
    const Home home;
    home.startedBefore();
    QList<int> sizes;
    {
        Window window;
        QVERIFY(window.open());
        QVERIFY(home.keys(SettingsFile::Analyzer).filter(u"splitter"_s).isEmpty());
        auto &splitter = window.part<QSplitter>("splitter3");
        const QList<int> before = splitter.sizes();
        QSplitterHandle *handle = splitter.handle(1);
        const QPoint centre = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, centre);
        QTest::mouseMove(handle, centre + QPoint(90, 0));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, centre + QPoint(90, 0));
        QCOMPARE(home.keys(SettingsFile::Analyzer).filter(u"splitter"_s).size(), 4);
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
    QTest::keyClick(&table, Qt::Key_V);
    file = openSession(home.path(AtValmora)).session;
    QVERIFY(file->invalidLaps().isEmpty());
    QCOMPARE(file->bestLapText(), best);
    QCOMPARE(window.label("lb_idealTime"), ideal);
}

void TestWindow::infosSave_data()
{
    QTest::addColumn<QByteArray>("widget");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored"); // null: what was there
    const auto row = [](const char *widget, const QString &typed, const QString &stored) {
        QTest::addRow("%s %s", widget, qPrintable(typed)) << QByteArray(widget) << typed << stored;
    };
    row("le_event", u"  Hill Cup  "_s, u"Hill Cup"_s);
    row("le_event", u""_s, u""_s);
    row("le_driver", u"  <b>Ann  "_s, u"  <b>Ann  "_s);
    row("le_vehicle", u" R6 "_s, u" R6 "_s);
    row("le_tires", u"soft"_s, u"soft"_s);
    row("le_tires", u""_s, QString());
    row("cb_weather", u"Foggy"_s, u"Foggy"_s);
    row("sb_trackTemp", u"41"_s, u"41"_s);
    // The file can only hold what survives its counting of bytes.
    row("te_infos", u"one\nFr\u00FCh"_s, u"one\nFruh"_s);
    row("te_infos", u""_s, QString());
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

/// What the file holds for each of the widgets.
QMap<QByteArray, QString> stored(const QString &path)
{
    const auto session = openSession(path).session;
    return {{"le_event", session->eventName()},
            {"le_driver", session->driver()},
            {"le_vehicle", session->vehicle()},
            {"le_tires", session->tyres()},
            {"cb_weather", session->condition()},
            {"te_infos", session->notes()},
            {"sb_trackTemp", QString::number(session->temperature())}};
}

} // namespace

// What was typed and then changed back must not stay in the file.
void TestWindow::infosSave()
{
    QFETCH(const QByteArray, widget);
    QFETCH(const QString, typed);
    QFETCH(const QString, stored);
    const Home home({AtValmora}, {u"Valmora.map"_s});
    home.startedBefore();
    Window window;
    window.select(home.path(AtValmora));
    const auto before = ::stored(home.path(AtValmora));
    auto expected = before;
    if (!stored.isNull())
        expected[widget] = stored;
    type(window, widget, typed);
    QCOMPARE(::stored(home.path(AtValmora)), expected);
    type(window, widget, before[widget]);
    QCOMPARE(::stored(home.path(AtValmora)), before);
}

// Typed, but not finished with Enter: leaving the page saves it, for its own session.
void TestWindow::infosOfOneSessionOnly()
{
    const Home home({AtValmora, AtHaidemoor}, {u"Valmora.map"_s, u"Haidemoor.map"_s});
    home.startedBefore();
    Window window;
    QVERIFY(window.open());
    window.part<QTabWidget>("tabWidget").setCurrentIndex(1);
    window.select(home.path(AtValmora));
    auto &driver = window.part<QLineEdit>("le_driver");
    driver.setText(u"Zoe"_s);
    window.part<QTabWidget>("tabWidget").setCurrentIndex(0);
    QCOMPARE(stored(home.path(AtValmora))["le_driver"], u"Zoe"_s);
    window.select(home.path(AtHaidemoor));
    QCOMPARE(driver.text(), u"Pieter Vos"_s);
    QCOMPARE(stored(home.path(AtHaidemoor))["le_driver"], u"Pieter Vos"_s);
}

void TestWindow::lookingWritesNothing()
{
    const QStringList names {AtValmora, AtHaidemoor, OnTheRoad, WithoutBlock};
    const Home home(names, {u"Valmora.map"_s, u"Haidemoor.map"_s, u"Karoosberg.map"_s});
    home.startedBefore();
    for (const QString &name : names)
        makeOld(home.path(name));
    {
        Window window;
        QVERIFY(window.open());
        window.part<QTabWidget>("tabWidget").setCurrentIndex(1);
        for (const QString &name : names + names)
            window.select(home.path(name));
    }
    for (const QString &name : names)
        QVERIFY2(isOld(home.path(name)), qPrintable(name));
}

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
