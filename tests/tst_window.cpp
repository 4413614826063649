// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstdio>

#include <QDir>
#include <QFile>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>

#include <app/zunoanalyzer.h>
#include <base/settings.h>
#include <session/sessionfile.h>
#include <session/sessionrewrite.h>

#include "builders.h"
#include "mainwindow.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

/// Whether two lap times are less than a sample apart.
bool isNear(const QString &one, const QString &two)
{
    const auto milliseconds = [](const QString &text) {
        return QTime::fromString(text, u"mm:ss.zzz"_s).msecsSinceStartOfDay();
    };
    return !one.isEmpty() && !two.isEmpty() && qAbs(milliseconds(one) - milliseconds(two)) < 100;
}

} // namespace

class TestWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }

    void firstStart()
    {
        const Home home;
        const Window window;
        QVERIFY(QDir(home.path(u""_s)).exists());
        QVERIFY(home.settings.isStored(Setting::AcquisitionFolder));
        QVERIFY(home.settings.isStored(Setting::ShowLapType));
        QVERIFY(window.state().startsWith(u"There are no sessions yet."));
        putFile(home.path(AtValmora), demoFile(AtValmora));
        QTRY_VERIFY(window.state().startsWith(u"Select a session in the list"));
    }

    // Where nothing can be stored, a full disk or a folder that cannot be made, it says so.
    void noRoom()
    {
        qputenv("XDG_DATA_HOME", "/proc/nobody");
        const Window window;
        QVERIFY(window.main.statusBar()->currentMessage().contains(u"/proc/nobody/Norvale"));
    }

    void languages_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("forOneRun");
        QTest::addColumn<QStringList>("texts");
        const QStringList german {u"Karten und Runden  "_s, u"Fahrer:"_s, u"Abbrechen"_s};
        QTest::newRow("setting") << u"de"_s << QString() << german;
        QTest::newRow("for one run") << u"fr"_s << u"de"_s << german;
        QTest::newRow("unknown") << u"de"_s << u"tlh"_s
                                 << QStringList {u"Maps and Laps  "_s, u"Driver :"_s, u"Cancel"_s};
    }

    // Texts of the code, of a form, and of Qt.
    void languages()
    {
        QFETCH(QString, setting);
        QFETCH(QString, forOneRun);
        const Home home;
        home.settings.setValue(Setting::Language, setting);
        const ZunoAnalyzer window(forOneRun);
        const QStringList texts {child<QTabWidget>(window, "tabWidget").tabText(0),
                                 child<QLabel>(window, "l_driver").text(),
                                 QCoreApplication::translate("QPlatformTheme", "Cancel")};
        QTEST(texts, "texts");
        QCOMPARE(home.settings.value(Setting::Language).toString(), setting);
    }

    // Damaged files beside them must not keep sessions from their information.
    void upgrade()
    {
        const QStringList names {WithoutBlock, AtValmora, NeverOpened};
        const Home home(names, {u"Karoosberg.map"_s, u"Valmora.map"_s});
        for (int i = 0; i < 12; ++i)
            putFile(home.path(u"%1.ra1"_s.arg(i)), "hello");
        {
            const Window window;
            QTRY_VERIFY(home.settings.isOn(Setting::V1400));
        }
        for (const QString &name : names) {
            const auto session = openSession(home.path(name)).session;
            QVERIFY2(!session->bestLapText().isEmpty(), qPrintable(name));
            QVERIFY2(name.contains(session->circuitName()), qPrintable(name));
            QCOMPARE(session->newSession(), 0);
            makeOld(home.path(name));
        }
        // Once, and never again.
        const Window window;
        for (const QString &name : names)
            QVERIFY2(isOld(home.path(name)), qPrintable(name));
    }

    // What the rider stops is done; what ends with the program goes on the next time.
    void endedUpgrade()
    {
        QStringList names;
        for (int i = 0; i < 40; ++i)
            names << u"%1 %2"_s.arg(i).arg(NeverOpened);
        const Home home({NeverOpened}, {u"Karoosberg.map"_s});
        for (const QString &name : names) {
            putFile(home.path(name), contents(home.path(NeverOpened)));
            makeOld(home.path(name));
        }
        const auto viewed = [&] {
            return std::count_if(names.begin(), names.end(), [&](const QString &name) {
                return openSession(home.path(name)).session->newSession() == 0;
            });
        };
        {
            const Window window;
            QTRY_VERIFY(viewed() > 0);
        }
        QVERIFY(!home.settings.isOn(Setting::V1400));
        QVERIFY(viewed() < names.size());
        {
            const Window window;
            QTRY_VERIFY(home.settings.isOn(Setting::V1400));
            QTRY_VERIFY(window.main.findChild<QPushButton *>(u"pb_stopPass"_s) == nullptr);
        }
        QCOMPARE(viewed(), names.size());
        for (const QString &name : names)
            putFile(home.path(name), demoFile(NeverOpened));
        home.settings.setValue(Setting::V1400, false);
        const Window window;
        window.part<QPushButton>("pb_stopPass").click();
        QTRY_VERIFY(home.settings.isOn(Setting::V1400));
        QVERIFY(viewed() < names.size());
    }

    // What the demo says of the session was computed as it was made up, not by this program.
    void restoresSession()
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
        for (const auto &[field, text] : {std::pair("le_event", file->eventName()),
                                          {"le_driver", u"Laura Brandt"_s},
                                          {"le_vehicle", file->vehicle()},
                                          {"le_tires", file->tyres()}})
            QCOMPARE(window.part<QLineEdit>(field).text(), text);
        QCOMPARE(window.part<QTextEdit>("te_infos").toPlainText(), file->notes());
        QCOMPARE(window.part<QSpinBox>("sb_trackTemp").value(), 33);
        // The best sectors are not those of the out lap, nor of the one that was struck out.
        const auto &sectors = window.part<QTableWidget>("tableWidget");
        QVERIFY(sectors.rowCount() > 1);
        for (int row = 0; row < sectors.rowCount(); ++row)
            QVERIFY(!QStringList({u""_s, u"1"_s, u"5"_s}).contains(sectors.item(row, 2)->text()));
        // The best lap is the current one.
        const QModelIndex current = window.part<QTableView>("tw_tours").currentIndex();
        QCOMPARE(current.siblingAtColumn(3).data().toString(), best);
    }

    // How what is shown instead of laps begins; with laps it is empty.
    void states()
    {
        const Home home({AtValmora, AtHaidemoor, OnTheRoad}, {u"Haidemoor.map"_s});
        putFile(home.map(u"<i>.map"_s), demoFile(u"Valmora.map"_s));
        putFile(home.path(u"damaged.ra1"_s), "hello");
        home.startedBefore();
        home.settings.setMapChoice(AtHaidemoor, u"/<i>.map"_s);
        Window window;
        QVERIFY(window.state().startsWith(u"Select a session in the list"));
        QVERIFY(!window.part<QLineEdit>("le_driver").isEnabled());
        const QString other
            = u"This session never passes the start/finish line of the map \"<i>\"."_s;
        for (const auto &[session, state] :
             {std::pair(AtValmora, u""_s),
              {OnTheRoad, u"No map is known for the place"_s},
              {AtHaidemoor, other},
              {u"damaged.ra1"_s, u"\"damaged.ra1\" holds no session"_s}}) {
            window.select(home.path(session));
            QCOMPARE(window.state().left(state.size()), state);
            QCOMPARE(window.laps() > 0, window.state().isEmpty());
            const bool isSession = session.startsWith(u"2026");
            QCOMPARE(window.label("lb_mapSelected").isEmpty(), !isSession || session == OnTheRoad);
            QCOMPARE(window.part<QLineEdit>("le_driver").isEnabled(), isSession);
            QCOMPARE(window.part<QLineEdit>("le_driver").text().isEmpty(), !isSession);
        }
        // Names from files are no markup.
        for (const char *name : {"lb_mapSelected", "lb_circuit", "lb_state"})
            QVERIFY2(window.part<QLabel>(name).textFormat() == Qt::PlainText, name);
    }

    void filesAndMapsChange()
    {
        const Home home({AtValmora}, {u"Haidemoor.map"_s});
        home.startedBefore(AtValmora);
        const Window window;
        QTRY_VERIFY(window.state().startsWith(u"No map is known"));
        // Folders that appear later are watched, too.
        putFile(home.map(u"Spain/Valmora.map"_s), demoFile(u"Valmora.map"_s));
        QTRY_COMPARE(window.laps(), 7);
        QVERIFY(QFile::remove(home.map(u"Spain/Valmora.map"_s)));
        QTRY_VERIFY(window.state().startsWith(u"No map is known"));
        putFile(home.path(u"new"_s), demoFile(AtHaidemoor));
        QCOMPARE(std::rename(QFile::encodeName(home.path(u"new"_s)).constData(),
                             QFile::encodeName(home.path(AtValmora)).constData()),
                 0);
        QTRY_COMPARE(window.label("lb_mapSelected"), u"Map : Haidemoor"_s);
        QCOMPARE(window.part<QLineEdit>("le_driver").text(), u"Pieter Vos"_s);
        QVERIFY(QFile::remove(home.path(AtValmora)));
        QTRY_VERIFY(window.state().startsWith(u"There are no sessions yet."));
        QVERIFY(window.part<QLineEdit>("le_driver").text().isEmpty());
    }

    // No session may point at a map that is loaded no more.
    void otherMaps()
    {
        const Home home({AtValmora}, {u"Valmora.map"_s});
        home.startedBefore(AtValmora);
        Window window;
        QTRY_COMPARE(window.laps(), 7);
        const QTemporaryDir empty;
        window.main.loadMaps(empty.path());
        QCOMPARE(window.laps(), 0);
        window.main.reloadMaps();
        QCOMPARE(window.laps(), 7);
        Session *session = window.main.findSessionByPath(home.path(AtValmora));
        const Map *map = session->map();
        window.main.chooseMapByLength(nullptr, {map});
        window.main.chooseMapByLength(session, {});
        QVERIFY(session->map() == nullptr);
        window.main.chooseMapByLength(session, {map});
        QVERIFY(session->map() == map && session->laps().size() == 7);
    }

    void throwsLapOut()
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
    }

    // The library changes under the program, faster than it can notice.
    void otherPrograms()
    {
        const Home home({}, {u"Valmora.map"_s});
        const QString path = home.path(u"Spring/ride.ra1"_s);
        putFile(path, demoFile(AtValmora));
        home.startedBefore(u"Spring/ride.ra1"_s);
        Window window;
        auto &vehicle = window.part<QLineEdit>("le_vehicle");
        auto &tabs = window.part<QTabWidget>("tabWidget");
        tabs.setCurrentIndex(1);
        QTRY_COMPARE(window.laps(), 7);
        const OpenedSession other = openSession(path);
        other.session->setDriver(u"Bob"_s);
        QVERIFY(rewriteSessionFile(*other.session).ok());
        vehicle.setText(u"R6"_s);
        tabs.setCurrentIndex(0); // Leaving the page saves.
        const auto joined = openSession(path).session;
        QCOMPARE(joined->driver() + joined->vehicle(), u"BobR6"_s);
        QCOMPARE(window.part<QLineEdit>("le_driver").text(), u"Bob"_s);
        QVERIFY(window.main.statusBar()->currentMessage().contains(u"changed by another program"));

        QVERIFY(QDir().rename(home.path(u"Spring"_s), home.path(u"Summer"_s)));
        vehicle.setText(u"R1"_s);
        QTest::keyClick(&vehicle, Qt::Key_Return);
        QVERIFY(window.main.statusBar()->currentMessage().contains(u"was not changed: No such"));
        QTRY_COMPARE(window.laps(), 0);
        QVERIFY(window.main.statusBar()->currentMessage().contains(u"no longer there"));
        window.select(home.path(u"Summer/ride.ra1"_s));
        QTRY_COMPARE(window.laps(), 7);
    }

    void lookingWritesNothing()
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
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
