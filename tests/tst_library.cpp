// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <app/acquisitionlibrary.h>
#include <app/informationwriter.h>
#include <app/sessiondisplay.h>
#include <app/settings.h>
#include <cli/demolibrary.h>
#include <maps/mapfile.h>
#include <session/sessionfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

void save(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    // A new file each time, of another time stamp than the old one's.
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Moves the file's time into the past, so that any writing shows.
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

QByteArray sessionBytes(const QByteArray &driver = "Ann")
{
    return SessionBytes {.information = InformationBytes {.driver = driver}.bytes()}.bytes();
}

/// A folder with session files of the given names.
struct Folder
{
    explicit Folder(const QStringList &names = {})
    {
        for (const QString &name : names)
            save(path(name), sessionBytes());
        library.load(folder.path());
    }
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    /// The sessions' paths below the folder, in alphabetical order.
    [[nodiscard]] QString names() const
    {
        QStringList list;
        for (const Session *session : library.sessions())
            list.append(QDir(folder.path()).relativeFilePath(session->filePath()));
        list.sort();
        return list.join(u'|');
    }

    QTemporaryDir folder;
    AcquisitionLibrary library;
};

const QString Valmora = u"/Spain/Valmora.map"_s;
const QString Haidemoor = u"/Germany/Haidemoor.map"_s;
const QString Karoosberg = u"/South Africa/Karoosberg.map"_s;

/// A library with the maps and sessions of the demo, and what displays them.
struct Outfit
{
    explicit Outfit(const QStringList &names = {})
    {
        for (const QString &map : {Valmora, Haidemoor, Karoosberg})
            save(settings.mapsFolder() + map, contents(demo().path() + u"/Map"_s + map));
        for (const QString &name : names)
            save(path(name), contents(find(name)));
        maps.loadMaps(settings.mapsFolder());
        library.load(settings.acquisitionFolder());
    }
    static const QTemporaryDir &demo()
    {
        static const QTemporaryDir folder;
        static const DemoResult result = writeDemoLibrary(folder.path());
        if (!result.ok())
            qFatal("%s", qPrintable(result.error));
        return folder;
    }
    static QString find(const QString &name)
    {
        QDirIterator files(demo().path(), {name}, QDir::Files, QDirIterator::Subdirectories);
        return files.next();
    }
    [[nodiscard]] QString path(const QString &name) const
    {
        return settings.acquisitionFolder() + u'/' + name;
    }
    [[nodiscard]] QString mapName() const
    {
        const Session *session = display.session();
        return session != nullptr && session->map() != nullptr ? session->map()->name() : QString();
    }

    QTemporaryDir root;
    Settings settings {root.path()};
    AcquisitionLibrary library;
    MapLibrary maps;
    InformationWriter writer;
    SessionDisplay display {{library, maps, settings, writer}};
};

const QString AtValmora = u"2026-04-18 10h12 Valmora.ra1"_s;
const QString AtHaidemoor = u"2026-05-24 14h33 Haidemoor.ra1"_s;
const QString OnTheRoad = u"2026-06-06 08h15 Hill road.ra1"_s;
const QString NeverOpened = u"2026-07-12 09h27 Karoosberg.ra1"_s;

} // namespace

class TestLibrary final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loads();
    void addsAndReloads();
    void removesAndMoves_data();
    void removesAndMoves();

    void firstDisplay();
    void mapChoice_data();
    void mapChoice();
    void noMap();
    void newSessionFlag();
    void otherFiles();
    void removals();
    void tellsOnce();
};

// What stands in a rider's folder: nested, oddly named, and not all of it recordings.
void TestLibrary::loads()
{
    const QString odd = u"it's \"quoted\", fr\u00FCh & sp\u00E4t %1.ra1"_s;
    Folder folder({odd, u"ZUNO (00.1B)/deep/b.ra1"_s, u"folder.ra1/c.ra1"_s, u".ra1"_s});
    for (const char *name : {"upper.RA1", "backup.ra1.bak", "notes.txt"})
        save(folder.path(QString::fromLatin1(name)), sessionBytes());
    save(folder.path(u"empty.ra1"_s), {});
    save(folder.path(u"old.ra1"_s), SessionBytes {.version = "0.9"}.bytes());
    QFile::link(folder.path(u"nowhere"_s), folder.path(u"dangling.ra1"_s));
    for (const char *name : {"empty.ra1", "old.ra1"}) {
        const QString path = folder.path(QString::fromLatin1(name));
        const QString text
            = u"(ZunoAnalyzer::loadAcquisitionsFolder) Error in decoding ZUNO File : "_s;
        QTest::ignoreMessage(QtDebugMsg, qPrintable(text + path));
    }
    folder.library.reload(folder.folder.path() + u"//");
    QCOMPARE(folder.names(), u"ZUNO (00.1B)/deep/b.ra1|folder.ra1/c.ra1|"_s + odd);
}

void TestLibrary::addsAndReloads()
{
    Folder folder({u"a.ra1"_s, u"c.ra1"_s});
    const QSignalSpy changed(&folder.library, &AcquisitionLibrary::sessionsChanged);
    const QSignalSpy leaving(&folder.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    save(folder.path(u"b.ra1"_s), sessionBytes());
    Session *added = folder.library.add(folder.path(u"sub/../b.ra1"_s), "test");
    QVERIFY(added != nullptr);
    QCOMPARE(folder.library.add(folder.folder.path() + u"//b.ra1", "test"), added);
    QVERIFY(folder.library.add(folder.path(u"missing.ra1"_s), "test") == nullptr);
    QCOMPARE(changed.count(), 1);
    folder.library.load(folder.folder.path() + u"/./");
    QCOMPARE(folder.names(), u"a.ra1|b.ra1|c.ra1"_s);
    QCOMPARE(folder.library.at(folder.library.indexOf(added)), added);
    added->setDriver(u"Zoe"_s);
    QFile::remove(folder.path(u"a.ra1"_s));
    folder.library.reload(folder.folder.path());
    QCOMPARE(leaving.count(), 3);
    QCOMPARE(folder.names(), u"b.ra1|c.ra1"_s);
    QCOMPARE(folder.library.find(folder.path(u"b.ra1"_s))->driver(), u"Ann"_s);
}

void TestLibrary::removesAndMoves_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to"); // empty: removed
    QTest::addColumn<QString>("left");
    const QString rest = u"|Hill 2/c.ra1|Hill.ra1"_s;
    QTest::newRow("file") << u"Hill/a.ra1"_s << u""_s << u"Hill/d/b.ra1"_s + rest;
    QTest::newRow("folder") << u"Hill"_s << u""_s << rest.mid(1);
    QTest::newRow("part") << u"Hil"_s << u""_s << u"Hill/a.ra1|Hill/d/b.ra1"_s + rest;
    QTest::newRow("moved") << u"Hill/a.ra1"_s << u"Hill/z.ra1"_s
                           << u"Hill/d/b.ra1|Hill/z.ra1"_s + rest;
    QTest::newRow("folder moved") << u"Hill"_s << u"Hill H"_s
                                  << u"Hill H/a.ra1|Hill H/d/b.ra1"_s + rest;
}

void TestLibrary::removesAndMoves()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QFETCH(const QString, left);
    Folder folder({u"Hill/a.ra1"_s, u"Hill/d/b.ra1"_s, u"Hill 2/c.ra1"_s, u"Hill.ra1"_s});
    const QSignalSpy leaving(&folder.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    if (to.isEmpty())
        folder.library.removeAt(folder.path(from));
    else
        folder.library.movePath(folder.path(from), folder.path(to));
    QStringList expected = left.split(u'|');
    expected.sort();
    QCOMPARE(folder.names(), expected.join(u'|'));
    QCOMPARE(leaving.count(), 4 - expected.size());
}

void TestLibrary::firstDisplay()
{
    Outfit shown({AtValmora});
    const QString path = shown.path(AtValmora);
    const QSignalSpy applied(&shown.display, &SessionDisplay::mapApplied);
    // Smoothed, and once only, however often it is shown.
    const OpenedSession once = openSession(path);
    once.session->smooth();
    QVERIFY(openSession(path).session->samples() != once.session->samples());
    for (const QString &same : {path, shown.path(u"sub/../"_s + AtValmora)}) {
        QVERIFY(shown.display.display(same));
        QCOMPARE(shown.mapName(), Valmora);
        QCOMPARE(shown.display.session()->laps().size(), 7U);
        QVERIFY(shown.display.session()->samples() == once.session->samples());
        QCOMPARE(shown.settings.value(Setting::LastFileSelected).toString(), path);
    }
    QCOMPARE(applied.count(), 2);
    QCOMPARE(shown.library.size(), 1);
}

// With mode -1 the session is shown with its stored choice, which goes if there is no such map;
// with the others another map is taken then.
void TestLibrary::mapChoice_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("map");
    QTest::addColumn<QString>("left");
    QTest::newRow("other circuit") << Haidemoor << -1 << Haidemoor << Haidemoor;
    QTest::newRow("not there") << u"/Gone.map"_s << -1 << Valmora << QString();
    QTest::newRow("in capitals") << Haidemoor.toUpper() << -1 << Valmora << QString();
    QTest::newRow("none") << QString() << -1 << Valmora << QString();
    QTest::newRow("detected") << u"/x.map"_s << 0 << Haidemoor << QString();
    QTest::newRow("chosen") << u"/x.map"_s << 1 << Haidemoor << Haidemoor;
    QTest::newRow("kept") << u"/x.map"_s << 2 << Haidemoor << u"/x.map"_s;
    QTest::newRow("kept without") << QString() << 2 << Haidemoor << QString();
}

void TestLibrary::mapChoice()
{
    QFETCH(const QString, stored);
    QFETCH(const int, mode);
    Outfit shown({AtValmora});
    if (mode >= 0)
        QVERIFY(shown.display.display(shown.path(AtValmora)));
    if (!stored.isNull())
        shown.settings.setMapChoice(AtValmora, stored);
    if (mode >= 0)
        shown.display.onMapChanged({shown.maps.find(Haidemoor)}, mode);
    else
        QVERIFY(shown.display.display(shown.path(AtValmora)));
    QTEST(shown.mapName(), "map");
    QTEST(shown.settings.mapChoice(AtValmora), "left");
    shown.display.detectMap();
    QCOMPARE(shown.mapName(), Valmora);
    QCOMPARE(shown.settings.mapChoice(AtValmora), QString());
}

// The choice stays while the maps are on a drive that is not plugged in.
void TestLibrary::noMap()
{
    for (const bool hasFolder : {false, true}) {
        Outfit shown({OnTheRoad});
        shown.settings.setMapChoice(OnTheRoad, Haidemoor);
        shown.maps.clear();
        if (!hasFolder)
            QVERIFY(QDir(shown.settings.mapsFolder()).removeRecursively());
        QVERIFY(shown.display.display(shown.path(OnTheRoad)));
        QCOMPARE(shown.mapName(), QString());
        QVERIFY(shown.display.session()->laps().empty());
        QCOMPARE(shown.settings.mapChoice(OnTheRoad), hasFolder ? QString() : Haidemoor);
    }
}

// Whoever only looks must not change a file; the first look is noted in it, once.
void TestLibrary::newSessionFlag()
{
    Outfit shown({NeverOpened, AtValmora});
    const QSignalSpy viewed(&shown.display, &SessionDisplay::viewedStateChanged);
    const QSignalSpy removed(&shown.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    for (const auto &[name, isWritten] : {std::pair(AtValmora, false), std::pair(NeverOpened, true),
                                          std::pair(NeverOpened, false)}) {
        const QString path = shown.path(name);
        makeOld(path);
        shown.library.noteWritten(*shown.library.find(path));
        QVERIFY(shown.display.display(path));
        QCOMPARE(isOld(path), !isWritten);
        QCOMPARE(openSession(path).session->newSession(), 0);
        QCOMPARE(shown.library.viewedStateMap()[name], false);
    }
    QCOMPARE(viewed.count(), 1);
    // The program's own writing is no change from outside.
    QCOMPARE(removed.count(), 0);
}

// A file that the library does not know, one that was replaced, and one that is no session.
void TestLibrary::otherFiles()
{
    Outfit shown({AtValmora});
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    save(shown.path(u"new.ra1"_s), contents(Outfit::find(AtHaidemoor)));
    QVERIFY(shown.display.display(shown.path(u"new.ra1"_s)));
    QCOMPARE(shown.display.index(), 1);
    QCOMPARE(shown.mapName(), Haidemoor);
    save(shown.path(AtValmora), contents(Outfit::find(AtHaidemoor)));
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    QCOMPARE(shown.library.size(), 2);
    QCOMPARE(shown.display.session()->driver(), u"Pieter Vos"_s);
    save(shown.path(u"text.ra1"_s), "hello");
    const QSignalSpy told(&shown.display, &SessionDisplay::notASession);
    const QSignalSpy cleared(&shown.display, &SessionDisplay::cleared);
    QVERIFY(!shown.display.display(shown.path(u"text.ra1"_s)));
    QCOMPARE(told.count(), 1);
    QCOMPARE(cleared.count(), 1);
    QVERIFY(shown.display.session() == nullptr);
    QCOMPARE(shown.settings.value(Setting::LastFileSelected).toString(), shown.path(AtValmora));
}

void TestLibrary::removals()
{
    Outfit shown({AtValmora, AtHaidemoor});
    Session *last = shown.library.at(1);
    QVERIFY(shown.display.display(last->filePath()));
    const QSignalSpy cleared(&shown.display, &SessionDisplay::cleared);
    shown.library.remove(shown.library.at(0));
    QCOMPARE(shown.display.session(), last);
    QCOMPARE(shown.display.index(), 0);
    shown.library.remove(last);
    QCOMPARE(cleared.count(), 1);
    QVERIFY(shown.display.session() == nullptr);
    shown.display.detectMap();
    QCOMPARE(shown.display.index(), -1);
}

// A write-protected card must not complain at every selection. There is no room for the name of
// the file that would be written first, so that the old one stands.
void TestLibrary::tellsOnce()
{
    const QString name = QString(251, u'n') + u".ra1";
    const Folder folder({u"a.ra1"_s, name});
    const QByteArray before = contents(folder.path(name));
    InformationWriter writer;
    const QSignalSpy failed(&writer, &InformationWriter::failed);
    const auto write = [&](const QString &file) {
        Session *session = folder.library.find(folder.path(file));
        session->setDriver(session->driver() + u'x');
        return writer.write(*session).outcome;
    };
    for (int i = 0; i < 2; ++i)
        QCOMPARE(write(name), RewriteOutcome::WriteFailed);
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed[0][0].toString().startsWith(name + u" was not changed: "));
    QCOMPARE(contents(folder.path(name)), before);
    QCOMPARE(write(u"a.ra1"_s), RewriteOutcome::Written);
    QCOMPARE(openSession(folder.path(u"a.ra1"_s)).session->driver(), u"Annx"_s);
    QCOMPARE(write(name), RewriteOutcome::WriteFailed);
    QCOMPARE(failed.count(), 2);
}

QTEST_GUILESS_MAIN(TestLibrary)
#include "tst_library.moc"
