// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <app/settings.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

/// What a program that knows nothing of the table finds in a file, a key a line.
QString contentOf(const QString &path)
{
    const QSettings file(path, QSettings::IniFormat);
    QStringList keys = file.allKeys();
    keys.sort();
    QString content;
    for (const QString &key : keys)
        content += key + u'=' + file.value(key).toString() + u'\n';
    return content;
}

} // namespace

/// Every test has a settings root of its own.
class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }

    void rootIsTheDataHome_data();
    void rootIsTheDataHome();
    void namesFiles();
    void defaults();
    void displayDefaults_data();
    void displayDefaults();
    void readsWhatOthersWrote_data();
    void readsWhatOthersWrote();
    void folders_data();
    void folders();
    void mapChoices_data();
    void mapChoices();

private:
    [[nodiscard]] Settings settings() const { return Settings(m_folder->path()); }
    [[nodiscard]] QString analyzerPath() const { return settings().path(SettingsFile::Analyzer); }
    void write(SettingsFile file, const QByteArray &content) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSettings::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestSettings::write(SettingsFile file, const QByteArray &content) const
{
    const QString path = settings().path(file);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile written(path);
    QVERIFY(written.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(written.write(content), content.size());
}

void TestSettings::rootIsTheDataHome_data()
{
    QTest::addColumn<QString>("organization");
    QTest::addColumn<QString>("application");
    QTest::addColumn<QString>("below");
    QTest::newRow("a program") << u""_s << u"zuno"_s << u""_s;
    QTest::newRow("with a blank in its name") << u""_s << u"ZUNO Analyzer"_s << u""_s;
    QTest::newRow("of somebody") << u"Riders"_s << u"zuno"_s << u"/Riders"_s;
}

// All programs of the set share the root: the program's own folder is no part of it.
void TestSettings::rootIsTheDataHome()
{
    QFETCH(QString, organization);
    QFETCH(QString, application);
    QFETCH(QString, below);
    const QByteArray home = qgetenv("XDG_DATA_HOME");
    const QString name = QCoreApplication::applicationName();
    qputenv("XDG_DATA_HOME", m_folder->path().toLocal8Bit());
    QCoreApplication::setOrganizationName(organization);
    QCoreApplication::setApplicationName(application);
    const QString root = Settings::defaultRoot();
    QCoreApplication::setOrganizationName(QString());
    QCoreApplication::setApplicationName(name);
    home.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", home);
    QCOMPARE(root, QString(m_folder->path() + below));
}

void TestSettings::namesFiles()
{
    const Settings settings(u"/root of all"_s);
    QCOMPARE(settings.path(SettingsFile::Config), u"/root of all/Norvale/Config.ini"_s);
    QCOMPARE(settings.path(SettingsFile::Analyzer),
             u"/root of all/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"_s);
    QCOMPARE(settings.path(SettingsFile::Monitor),
             u"/root of all/Norvale/ZUNO Monitor/ConfigMonitor.ini"_s);
    QCOMPARE(settings.logPath(), u"/root of all/Norvale/ZUNO Analyzer/logAnalyzer.txt"_s);
}

void TestSettings::defaults()
{
    const QString root = m_folder->path();
    QCOMPARE(settings().mapsFolder(), QString(root + u"/Norvale/Map"));
    QCOMPARE(settings().acquisitionFolder(), QString(root + u"/Norvale/RemoteDevice"));
    QCOMPARE(settings().value(Setting::Language), QVariant(u""_s));
    QCOMPARE(settings().value(Setting::LastFileSelected), QVariant(QString()));
    QCOMPARE(settings().value(Setting::Splitter3Sizes), QVariant(QByteArray()));
    QVERIFY(!settings().isOn(Setting::V1400));
    QVERIFY(settings().isOn(Setting::ShowDecel));
    QVERIFY(!settings().isOn(Setting::ShowMinRearSusp));
    QVERIFY2(QDir(root).isEmpty(), "reading must not write");
}

void TestSettings::displayDefaults_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("after");
    const QString all = u"showAccel=true\nshowAngleLeft=true\nshowAngleRight=true\n"
                        "showCumulatedTime=true\nshowDecel=true\nshowLapType=true\n"
                        "showLocalMinMax=true\nshowMaxFrontSusp=false\nshowMaxRearSusp=false\n"
                        "showMaxSpeed=true\nshowMinFrontSusp=false\nshowMinRearSusp=false\n"
                        "showMinSpeed=true\nshowPartiels=true\nshowPartielsPoints=true\n"
                        "useGradientCompare=true\n"_s;
    QTest::newRow("first run") << QByteArray() << all;
    QTest::newRow("a value that is none") << QByteArray("showLapType=@Invalid()\n") << all;
    QTest::newRow("other keys stay")
        << QByteArray("Run.ra1=/A.map\nzzz=1\n") << u"Run.ra1=/A.map\n"_s + all + u"zzz=1\n"_s;
    QTest::newRow("never repaired") << QByteArray("showLapType=false\nshowMaxSpeed=false\n")
                                    << u"showLapType=false\nshowMaxSpeed=false\n"_s;
}

void TestSettings::displayDefaults()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, after);
    write(SettingsFile::Analyzer, "[General]\n" + before);
    settings().writeDisplayDefaults();
    QCOMPARE(contentOf(analyzerPath()), after);

    // Nothing that the rider switches afterwards is set back.
    settings().setValue(Setting::ShowAccel, false);
    settings().writeDisplayDefaults();
    QVERIFY(!settings().isOn(Setting::ShowAccel));
    QVERIFY(settings().isOn(Setting::ShowDecel));
}

void TestSettings::readsWhatOthersWrote_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isOn");
    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("no value: the default") << QByteArray("@Invalid()") << true;
    QTest::newRow("a list: the default") << QByteArray("false, false") << true;
}

// Also between two reads of one object.
void TestSettings::readsWhatOthersWrote()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isOn);
    const Settings reader = settings();
    QVERIFY(reader.isOn(Setting::ShowPartiels));
    write(SettingsFile::Analyzer, "[General]\nshowPartiels=" + text + '\n');
    QCOMPARE(reader.isOn(Setting::ShowPartiels), isOn);
    write(SettingsFile::Analyzer, "[General]\nother=" + text + text + '\n');
    QVERIFY(reader.isOn(Setting::ShowPartiels));
}

void TestSettings::folders_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QByteArray("/data/Map") << u"/data/Map"_s;
    QTest::newRow("with blanks") << QByteArray("/my data/The Maps") << u"/my data/The Maps"_s;
    QTest::newRow("in UTF-8") << QByteArray("/Jürgen/Straße") << u"/Jürgen/Straße"_s;
    QTest::newRow("escaped") << QByteArray(R"(/J\xfcrgen)") << u"/Jürgen"_s;
    QTest::newRow("with a drive") << QByteArray("D:/Map") << u"D:/Map"_s;
}

// In the file that other programs of the set write, too.
void TestSettings::folders()
{
    QFETCH(QByteArray, stored);
    QFETCH(QString, folder);
    write(SettingsFile::Config, "[General]\nmapFiles=" + stored + "\nacquisitionFolder=" + stored
                                    + "/sub\nunknown=kept\n");
    QCOMPARE(settings().mapsFolder(), folder);
    QCOMPARE(settings().acquisitionFolder(), QString(folder + u"/sub"));
    settings().setValue(Setting::MapFiles, u"/elsewhere"_s);
    QCOMPARE(contentOf(settings().path(SettingsFile::Config)),
             u"acquisitionFolder=%1/sub\nmapFiles=/elsewhere\nunknown=kept\n"_s.arg(folder));
}

void TestSettings::mapChoices_data()
{
    QTest::addColumn<QString>("session");
    QTest::addColumn<QString>("map");
    QTest::newRow("plain") << u"Run.ra1"_s << u"/Spain/Jerez.map"_s;
    QTest::newRow("blanks") << u" Run 2  .ra1"_s << u"/The Ring/North and South.map "_s;
    QTest::newRow("umlauts") << u"Frühjahr à Alès.ra1"_s << u"/Österreich/Straße.map"_s;
    QTest::newRow("beyond the first plane") << u"🏍.ra1"_s << u"/日本/鈴鹿🏁.map"_s;
    QTest::newRow("quotes") << u"\"Joe's\" run.ra1"_s << u"/\"A\".map"_s;
    QTest::newRow("percent") << u"100%20.ra1"_s << u"/100%.map"_s;
    QTest::newRow("equals") << u"a=b.ra1"_s << u"/c=d.map"_s;
    QTest::newRow("comment signs") << u";a#b.ra1"_s << u"/a;b#c.map"_s;
    QTest::newRow("commas") << u"a,b.ra1"_s << u"/a, b.map"_s;
    QTest::newRow("brackets") << u"[General].ra1"_s << u"[General]"_s;
    QTest::newRow("at signs") << u"@Invalid().ra1"_s << u"@Invalid()"_s;
    QTest::newRow("as a setting") << u"showlaptype"_s << u"/true.map"_s;
}

void TestSettings::mapChoices()
{
    QFETCH(QString, session);
    QFETCH(QString, map);
    write(SettingsFile::Analyzer, "[General]\nrun.ra1=/lower.map\nshowLapType=false\n\n"
                                  "[Other]\nkey=value\n");
    const QString before = contentOf(analyzerPath());
    QVERIFY(settings().mapChoice(session).isNull());
    settings().setMapChoice(session, u"/first.map"_s);
    settings().setMapChoice(session, map);
    QCOMPARE(settings().mapChoice(session), map);
    QCOMPARE(settings().mapChoice(u"run.ra1"_s), u"/lower.map"_s);
    QVERIFY(!settings().isOn(Setting::ShowLapType));
    settings().removeMapChoice(session);
    QVERIFY(settings().mapChoice(session).isNull());
    QCOMPARE(contentOf(analyzerPath()), before);
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
