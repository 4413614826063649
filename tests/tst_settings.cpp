// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QDir>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

#include <base/settings.h>
#include <base/units.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

/// Every test has a settings root of its own.
class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    // All programs of the set share the root: the program's own folder is no part of it.
    void namesFiles()
    {
        qputenv("XDG_DATA_HOME", "/home of all");
        const Settings settings(Settings::defaultRoot());
        QCOMPARE(settings.path(SettingsFile::Analyzer),
                 u"/home of all/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"_s);
        QCOMPARE(settings.mapsFolder(), u"/home of all/Norvale/Map"_s);
        QCOMPARE(settings.acquisitionFolder(), u"/home of all/Norvale/RemoteDevice"_s);
    }

    // Not even between two reads of one object is a value kept.
    void readsWhatOthersWrote()
    {
        const Settings reader = settings();
        QVERIFY(!reader.isOn(Setting::V1400) && reader.isOn(Setting::ShowDecel));
        QVERIFY2(QDir(m_folder->path()).isEmpty(), "reading must not write");
        for (const char *const stored : {"true", "0", "false", "1", "@Invalid()", "0, 0"}) {
            write(SettingsFile::Analyzer, QByteArray("showPartiels=") + stored);
            const bool isOff = QByteArray("0 false").contains(stored);
            QVERIFY2(reader.isOn(Setting::ShowPartiels) != isOff, stored);
        }
        // Typed by hand, a path with commas is none of QSettings' lists.
        for (const auto &[typed, path] : {std::pair("/a, b/c,d ,e", u"/a, b/c,d ,e"_s),
                                          {"/J\\xfcrgen,\\\\", u"/Jürgen,\\"_s},
                                          {"/\xc3\xbc,[1]\n[Other]\nmapFiles=/no,no", u"/ü,[1]"_s},
                                          {"\"/q, q\"", u"/q, q"_s}}) {
            write(SettingsFile::Config, QByteArray("mapFiles =/x\nmapFiles = ") + typed);
            QCOMPARE(reader.mapsFolder(), path);
        }
        write(SettingsFile::Config, "mapFiles=/J\\xfcrgen\nunknown=kept\n");
        QCOMPARE(reader.mapsFolder(), u"/Jürgen"_s);
        reader.setValue(Setting::MapFiles, u"/Straße"_s);
        QCOMPARE(content(SettingsFile::Config), "[General]\nmapFiles=/Straße\nunknown=kept\n");
    }

    // Unless the first one is there: then the rider has seen them all.
    void displayDefaults()
    {
        const QByteArray all
            = "[General]\nshowAccel=true\nshowAngleLeft=true\nshowAngleRight=true\n"
              "showCumulatedTime=true\nshowDecel=true\nshowLapType=true\nshowLocalMinMax=true\n"
              "showMaxFrontSusp=false\nshowMaxRearSusp=false\nshowMaxSpeed=true\n"
              "showMinFrontSusp=false\nshowMinRearSusp=false\nshowMinSpeed=true\n"
              "showPartiels=true\nshowPartielsPoints=true\nuseGradientCompare=true\nzzz=1\n";
        const QByteArray some = "showLapType=false\nshowMaxSpeed=false\n";
        for (const auto &[before, after] :
             {std::pair(QByteArray("zzz=1\n"), all), {some, "[General]\n" + some}}) {
            write(SettingsFile::Analyzer, before);
            settings().writeDisplayDefaults();
            QCOMPARE(content(SettingsFile::Analyzer), after);
        }
    }

    void mapChoices()
    {
        write(SettingsFile::Analyzer, "run.ra1=/lower.map\nshowLapType=false\n");
        const QByteArray before = content(SettingsFile::Analyzer);
        for (const QString &session :
             {u"Run.ra1"_s, u" Run 2  "_s, u"à 🏍 日本"_s, u"\"Joe's\" run"_s, u"100%20"_s,
              u";a=b#c,d"_s, u"[General]"_s, u"@Invalid()"_s, u"showlaptype"_s}) {
            QVERIFY(settings().mapChoice(session).isNull());
            settings().setMapChoice(session, u"/first.map"_s);
            settings().setMapChoice(session, session);
            QCOMPARE(settings().mapChoice(session), session);
            QCOMPARE(settings().mapChoice(u"run.ra1"_s), u"/lower.map"_s);
            QVERIFY(!settings().isOn(Setting::ShowLapType));
            settings().renameMapChoices(session, u"/second.map"_s);
            QCOMPARE(settings().mapChoice(session), u"/second.map"_s);
            QCOMPARE(settings().mapChoice(u"run.ra1"_s), u"/lower.map"_s);
            // A setting that happens to hold a map's name is no choice of it.
            settings().renameMapChoices(u"false"_s, u"true"_s);
            settings().removeMapChoices(u"/second.map"_s);
            QCOMPARE(content(SettingsFile::Analyzer), before);
            settings().setMapChoice(session, u"/first.map"_s);
            settings().removeMapChoice(session);
            QCOMPARE(content(SettingsFile::Analyzer), before);
        }
    }

    void units_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("speed");
        QTest::addColumn<QString>("difference");
        QTest::addColumn<QString>("distance");
        QTest::addColumn<QString>("temperature");
        const QByteArray other = "speedUnit=mph\ndistanceUnit=ft\ntemperatureUnit=F\n";
        QTest::newRow("as ever") << QByteArray() << u"160,9 km/h"_s << u"\u22120,2 km/h"_s
                                 << u"1609 m"_s << u"20 °C"_s;
        QTest::newRow("other") << other << u"100,0 mph"_s << u"\u22120,1 mph"_s << u"5280 ft"_s
                               << u"68 °F"_s;
        QTest::newRow("one of them")
            << QByteArray("speedUnit=mph\ndistanceUnit=mile\n") << u"100,0 mph"_s
            << u"\u22120,1 mph"_s << u"1609 m"_s << u"20 °C"_s;
    }

    void units()
    {
        QFETCH(const QByteArray, stored);
        write(SettingsFile::Analyzer, stored);
        QLocale german(QLocale::German);
        german.setNumberOptions(QLocale::OmitGroupSeparator);
        QLocale::setDefault(german);
        const Units units = Units::of(settings());
        QTEST(units.speedText(160.9344, 1), "speed");
        QTEST(units.speedText(-0.2, 1, true), "difference");
        QTEST(units.distanceText(1609.344), "distance");
        QTEST(units.temperatureText(20), "temperature");
        QCOMPARE(units.celsius(units.temperature(37)), 37.0);
        Units().store(settings());
        QCOMPARE(Units::of(settings()), Units());
        units.store(settings());
        QCOMPARE(Units::of(settings()), units);
        QLocale::setDefault(QLocale::c());
    }

    // What is written as zero has no sign.
    void signs()
    {
        QCOMPARE(shownNumber(-0.04, 1), u"0.0"_s);
        QCOMPARE(shownNumber(-0.04, 1, true), u"0.0"_s);
        QCOMPARE(shownNumber(0.06, 1, true), u"+0.1"_s);
        QCOMPARE(shownNumber(-7.5, 0), u"-8"_s);
    }

private:
    [[nodiscard]] Settings settings() const { return Settings(m_folder->path()); }
    [[nodiscard]] QByteArray content(SettingsFile file) const
    {
        return contents(settings().path(file));
    }
    void write(SettingsFile file, const QByteArray &keys) const
    {
        putFile(settings().path(file), "[General]\n" + keys);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
