// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QApplication>
#include <QComboBox>
#include <QDirIterator>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <app/darkstyle.h>
#include <app/keysheet.h>
#include <theme/shownunits.h>
#include <theme/themes.h>
#include <views/charts/lapchart.h>

#include "mainwindow.h"

using namespace zuno;
using namespace zuno::test;

namespace {

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

QStringList textsOf(const QWidget &widget, const QString &name)
{
    QStringList texts;
    for (const QLabel *label : widget.findChildren<QLabel *>(name))
        texts.append(label->text());
    return texts;
}

} // namespace

/// How the window looks and what it says of itself.
class TestLook final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale::c());
        m_home = std::make_unique<Home>(QStringList {AtValmora}, QStringList {u"Valmora.map"_s});
        m_home->startedBefore();
        Themes::instance().choose(ThemeChoice::Dark);
        m_window = std::make_unique<Window>();
        QVERIFY(m_window->open());
    }
    void cleanup()
    {
        m_window.reset();
        Themes::instance().choose(ThemeChoice::Dark);
    }

    // By a click and by its key; it is a lasting choice.
    void themeButton()
    {
        auto &button = m_window->part<QToolButton>("tb_theme");
        QCOMPARE(button.text(), u"Light"_s);
        button.click();
        QVERIFY(!theme().isDark());
        QCOMPARE(button.text(), u"Dark"_s);
        QCOMPARE(m_home->settings.value(Setting::Theme).toString(), u"light"_s);
        QTest::keyClick(&m_window->main, Qt::Key_L, Qt::ControlModifier);
        QVERIFY(theme().isDark());
        QCOMPARE(m_home->settings.value(Setting::Theme).toString(), u"dark"_s);
    }

    void settings()
    {
        QString question;
        onDialog([&question](QWidget &dialog) {
            child<QComboBox>(dialog, "cb_theme").setCurrentIndex(2);
            child<QComboBox>(dialog, "cb_speedUnit").setCurrentIndex(1);
            child<QComboBox>(dialog, "cb_language").setCurrentIndex(2);
            onDialog([&question](QWidget &box) {
                auto &message = dynamic_cast<QMessageBox &>(box);
                question = message.text();
                message.button(QMessageBox::No)->click();
            });
            child<QPushButton>(dialog, "pb_ok").click();
        });
        m_window->main.openSettings();
        QVERIFY(!theme().isDark());
        QCOMPARE(units().speedName(), u"mph"_s);
        QVERIFY(question.contains(u"language"_s));
        ShownUnits::instance().choose({});
    }

    // The same temperature in the other unit; typed in it, it is stored in degrees Celsius.
    void temperature_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("stored");
        QTest::newRow("freezing") << u"32"_s << 0;
        QTest::newRow("warm") << u"77"_s << 25;
        QTest::newRow("highest") << u"489"_s << 254;
        QTest::newRow("not possible") << u"600"_s << 16;
    }

    void temperature()
    {
        QFETCH(const QString, typed);
        m_window->select(m_home->path(AtValmora));
        m_window->part<QTabWidget>("tabWidget").setCurrentIndex(1);
        auto &box = m_window->part<QSpinBox>("sb_trackTemp");
        box.setValue(20);
        ShownUnits::instance().choose({.temperatureUnit = Units::Temperature::Fahrenheit});
        QCOMPARE(box.text(), u"68"_s);
        QCOMPARE(m_window->label("l_degrees"), u"\u00b0F"_s);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, typed);
        QTest::keyClick(&box, Qt::Key_Return);
        QTEST(box.value(), "stored");
        ShownUnits::instance().choose({});
    }

    // The sheet shows what actions and charts really take.
    void keys()
    {
        QStringList keys;
        onDialog([&keys](QWidget &dialog) {
            keys = textsOf(dialog, u"keys"_s);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QTest::keyClick(&m_window->main, Qt::Key_Slash, Qt::ControlModifier);
        for (const char *key : {"Ctrl+I", "Ctrl+L", "Ctrl+/, ?", "F1", "F2", "Del", "V", "Ctrl+E"})
            QVERIFY2(keys.contains(QString::fromLatin1(key)), key);
        QCOMPARE(keys.count(u"Ctrl+I"_s), 1);
    }

    // From an empty library: there with one click, gone with another, and nothing else with them.
    void demo()
    {
        m_home = std::make_unique<Home>();
        m_home->startedBefore();
        m_window = std::make_unique<Window>();
        QVERIFY(m_window->open());
        QVERIFY(child<QWidget>(m_window->main, "emptyPage").isVisible());
        QVERIFY(!child<QWidget>(m_window->main, "demoStrip").isVisible());
        m_window->part<QPushButton>("pb_demo").click();
        QVERIFY(!child<QWidget>(m_window->main, "emptyPage").isVisible());
        QVERIFY(m_window->laps() > 3);
        const QString folder = m_home->path(u"Demo"_s);
        QDirIterator files(folder, {u"*.ra1"_s}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(files.hasNext());
        const QByteArray recording = contents(files.next());
        const QString own = folder + u"/own.ra1"_s;
        const QString ownMap = m_home->map(u"Valmora.map"_s);
        putFile(own, recording);
        putFile(ownMap, contents(ownMap) + "x");
        const QString replaced = files.next();
        putFile(replaced, QByteArray(contents(replaced)).replace(40, 1, "x"));
        m_window->part<QToolButton>("tb_removeDemo").click();
        QVERIFY(QFile::remove(replaced) && QDir().rmdir(QFileInfo(replaced).path()));
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList {u"own.ra1"_s});
        QCOMPARE(QDir(m_home->map({})).entryList(QDir::Files), QStringList {u"Valmora.map"_s});
        QVERIFY(QFile::remove(own));
        QTRY_VERIFY(child<QWidget>(m_window->main, "emptyPage").isVisible());
        QVERIFY(!child<QWidget>(m_window->main, "demoStrip").isVisible());
    }

    void chartTakesItsKeys()
    {
        m_window->select(m_home->path(AtValmora));
        auto *chart = m_window->main.findChild<LapChart *>();
        for (const KeyHelp &help : chartKeys()) {
            for (const QKeySequence &keys : help.keys) {
                QKeyEvent press(QEvent::KeyPress, keys[0].key(), keys[0].keyboardModifiers());
                QApplication::sendEvent(chart, &press);
                QVERIFY2(press.isAccepted(), qPrintable(keys.toString()));
            }
        }
    }

private:
    std::unique_ptr<Home> m_home;
    std::unique_ptr<Window> m_window;
};

QTEST_MAIN(TestLook)
#include "tst_look.moc"
