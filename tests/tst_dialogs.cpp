// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <memory>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <app/configurationwidget.h>
#include <app/help.h>
#include <base/settings.h>
#include <maps/dialog/mapswidget.h>
#include <session/session.h>
#include <tools/textfit/textfit.h>

#include "widgets.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // One box and its key, both ways: a key mixed up with another shows in either direction.
    void settings()
    {
        constexpr std::array Boxes {
            std::pair("cb_accel", Setting::ShowAccel),
            std::pair("cb_angleLeft", Setting::ShowAngleLeft),
            std::pair("cb_angleRight", Setting::ShowAngleRight),
            std::pair("cb_checkForUpdates", Setting::CheckForUpdates),
            std::pair("cb_cumulateTime", Setting::ShowCumulatedTime),
            std::pair("cb_decel", Setting::ShowDecel),
            std::pair("cb_displayMinMax", Setting::ShowLocalMinMax),
            std::pair("cb_gradientCompare", Setting::UseGradientCompare),
            std::pair("cb_lapType", Setting::ShowLapType),
            std::pair("cb_maxFrontSusp", Setting::ShowMaxFrontSusp),
            std::pair("cb_maxRearSusp", Setting::ShowMaxRearSusp),
            std::pair("cb_maxSpeed", Setting::ShowMaxSpeed),
            std::pair("cb_minFrontSusp", Setting::ShowMinFrontSusp),
            std::pair("cb_minRearSusp", Setting::ShowMinRearSusp),
            std::pair("cb_minSpeed", Setting::ShowMinSpeed),
            std::pair("cb_partiels", Setting::ShowPartiels),
            std::pair("cb_showPartiels", Setting::ShowPartielsPoints),
        };
        const QTemporaryDir folder;
        const Settings settings(folder.path());
        for (const auto &[name, changed] : Boxes) {
            // Without a file the boxes show what a first start has; all of it is written.
            QFile::remove(settings.path(SettingsFile::Analyzer));
            ConfigurationWidget dialog(settings);
            child<QCheckBox>(dialog, name).click();
            dialog.accept();
            QVERIFY(!QFile::exists(settings.path(SettingsFile::Analyzer)));
            dialog.storeValues();
            const ConfigurationWidget again(settings);
            for (const auto &[other, setting] : Boxes) {
                const bool isOn = (setting == changed) == QByteArray(other).endsWith("Susp");
                QVERIFY2(settings.isOn(setting) == isOn, name);
                QVERIFY2(child<QCheckBox>(again, other).isChecked() == isOn, name);
            }
        }
    }

    // What is changed is there the next time; what is not stays as others wrote it.
    void appearance()
    {
        const QTemporaryDir folder;
        const Settings settings(folder.path());
        ConfigurationWidget(settings).storeValues();
        QVERIFY(!QFile::exists(settings.path(SettingsFile::Config)));
        QVERIFY(!settings.isStored(Setting::Theme) && !settings.isStored(Setting::SpeedUnit));
        const QList<std::pair<const char *, Setting>> boxes {
            {"cb_theme", Setting::Theme},
            {"cb_language", Setting::Language},
            {"cb_speedUnit", Setting::SpeedUnit},
            {"cb_distanceUnit", Setting::DistanceUnit},
            {"cb_temperatureUnit", Setting::TemperatureUnit}};
        ConfigurationWidget dialog(settings);
        for (const auto &[name, setting] : boxes)
            child<QComboBox>(dialog, name).setCurrentIndex(1);
        dialog.storeValues();
        const ConfigurationWidget again(settings);
        QStringList stored;
        for (const auto &[name, setting] : boxes) {
            QCOMPARE(child<QComboBox>(again, name).currentIndex(), 1);
            stored.append(settings.value(setting).toString());
        }
        QCOMPARE(stored.join(u' '), u"dark fr mph ft F"_s);
        QCOMPARE(child<QLineEdit>(again, "le_mapFiles").text(), settings.mapsFolder());
        QVERIFY(!settings.isStored(Setting::MapFiles));
    }

    // Of maps of the same name the last is meant; showing another map is no choice of the rider's.
    void mapChosen()
    {
        std::array<Map, 3> maps;
        for (Map &map : maps)
            map.setName(&map == &maps[1] ? u"/b.map"_s : u"/a.map"_s);
        Session session(u"ride/<b>one.ra1"_s);
        session.setMap(&maps[1]);
        MapsWidget dialog({&maps[0], &maps[1], &maps[2]}, &session);
        QCOMPARE(child<QLabel>(dialog, "lb_session").text(),
                 u"Choose other Map for session : <b>one.ra1"_s);
        const QSignalSpy changed(&dialog, &MapsWidget::mapChanged);
        const QSignalSpy found(&dialog, &MapsWidget::autoFindMap);
        session.setMap(&maps[0]);
        session.setMap(nullptr);
        auto &box = child<QComboBox>(dialog, "cb_otherMap");
        QCOMPARE(box.currentIndex(), 1);
        QVERIFY(showActive(dialog));
        QTest::keyClick(&box, Qt::Key_Home); // The empty item.
        child<QPushButton>(dialog, "pb_autoDetectMap").click();
        QCOMPARE(changed.count(), 0);
        QCOMPARE(found.count(), 1);
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed[0][0].value<QList<const Map *>>(), QList<const Map *> {&maps[2]});
        QCOMPARE(changed[0][1].toInt(), 1);
    }

    // The maps folder may change while the dialog is open; maps and sessions are then replaced.
    void mapsReplaced()
    {
        Map old;
        Map map;
        map.setName(u"/new.map"_s);
        auto oldSession = std::make_unique<Session>(u"one.ra1"_s);
        MapsWidget dialog({&old}, oldSession.get());
        Session session(u"two.ra1"_s);
        dialog.setMaps({&old, &map}, &session);
        oldSession->setMap(&map);
        QCOMPARE(child<QComboBox>(dialog, "cb_otherMap").currentIndex(), 1);
        oldSession.reset();
        session.setMap(&map);
        QCOMPARE(child<QComboBox>(dialog, "cb_otherMap").currentText(), u"/new.map"_s);
    }

    void help()
    {
        const QTemporaryDir folder;
        const QString path = folder.path() + u'/';
        const QString english = path + u"ZUNOAnalyzerMUL_en.pdf";
        const QString french = path + u"ZUNOAnalyzerMUL_fr.pdf";
        QVERIFY(Help::file(path, u"fr"_s).isEmpty());
        QVERIFY(!Help::open(path, u"fr"_s).isEmpty());
        QVERIFY(QFile(english).open(QIODevice::WriteOnly));
        QVERIFY(QFile(french).open(QIODevice::WriteOnly));
        QCOMPARE(Help::file(path, u"fr"_s), french);
        QCOMPARE(Help::file(path, u"fr_CH"_s), french);
        QCOMPARE(Help::file(path, u"it"_s), english);
    }

    // What looks at every window must see a text that is cut off.
    void cutTexts()
    {
        QWidget window;
        QLabel label(u"Traveled distance"_s, &window);
        label.resize(label.sizeHint());
        window.resize(label.size());
        window.show();
        QCOMPARE(zuno::cutTexts(window), QStringList());
        window.resize(label.width() - 1, label.height());
        QCOMPARE(zuno::cutTexts(window).size(), 1);
    }
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
