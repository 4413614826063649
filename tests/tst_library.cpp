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

QByteArray sessionBytes(const QByteArray &driver = "Ann", int newSession = 1)
{
    return SessionBytes {.newSession = newSession,
                         .information = InformationBytes {.driver = driver}.bytes()}
        .bytes();
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
    void unreadable();
    void loadsOnce();
    void adds();
    void removes_data();
    void removes();
    void moves_data();
    void moves();
    void viewedStates();
    void refreshes_data();
    void refreshes();
    void reloads();

    void firstDisplay();
    void storedChoice_data();
    void storedChoice();
    void modes_data();
    void modes();
    void noMap_data();
    void noMap();
    void newSessionFlag_data();
    void newSessionFlag();
    void displaysUnknownFile();
    void notASession();
    void replacedFile();
    void removals();
    void tellsOnce();
    void fullNameIsTooLongToWrite();
};

// What stands in a rider's folder: nested, oddly named, and not all of it recordings.
void TestLibrary::loads()
{
    const QStringList good {
        u"a.ra1"_s,
        u"ZUNO Laura (00.1B.DC.0F.52.A1)/deep/er/b.ra1"_s,
        u"folder.ra1/inside.ra1"_s,
        u"it's \"quoted\", fr\u00FCh & sp\u00E4t %1.ra1"_s,
        QString(200, u'x') + u".ra1",
        u".ra1"_s,
        u"two.dots.ra1"_s,
    };
    QStringList expected = good;
    expected.removeAll(u".ra1"_s); // A hidden file.
    Folder folder(good);
    const QList<std::pair<QString, QByteArray>> bad {
        {u"empty.ra1"_s, {}},
        {u"text.ra1"_s, "hello"},
        {u"RA1 only.ra1"_s, "\3RA1"},
        {u"old.ra1"_s, SessionBytes {.version = "0.9"}.bytes()},
        {u"no samples.ra1"_s, SessionBytes {.samples = 0}.bytes()}};
    for (const auto &[name, bytes] : bad) {
        save(folder.path(name), bytes);
        const QString message = u"(ZunoAnalyzer::loadAcquisitionsFolder) Error in decoding ZUNO "
                                "File : %1"_s.arg(folder.path(name));
        QTest::ignoreMessage(QtDebugMsg, qPrintable(message));
    }
    for (const char *name : {"upper.RA1", "backup.ra1.bak", "ra1", "notes.txt"})
        save(folder.path(QString::fromLatin1(name)), sessionBytes());
    QFile::link(folder.path(u"nowhere"_s), folder.path(u"dangling.ra1"_s));
    QDir(folder.folder.path()).mkpath(u"empty folder.ra1"_s);
    folder.library.load(folder.folder.path());
    expected.sort();
    QCOMPARE(folder.names(), expected.join(u'|'));
}

void TestLibrary::unreadable()
{
    const Folder folder;
    const QString path = folder.path(u"locked.ra1"_s);
    save(path, sessionBytes());
    QFile::setPermissions(path, {});
    if (QFile(path).open(QIODevice::ReadOnly))
        QSKIP("whoever runs this may read every file");
    AcquisitionLibrary library;
    library.load(folder.folder.path());
    QCOMPARE(library.size(), 0);
}

void TestLibrary::loadsOnce()
{
    Folder folder({u"a.ra1"_s, u"sub/b.ra1"_s});
    const QList<Session *> before = folder.library.sessions();
    QCOMPARE(before.size(), 2);
    const QString path = folder.folder.path();
    for (const QString &same : {u""_s, u"/"_s, u"/./"_s, u"/sub/.."_s})
        folder.library.load(path + same);
    QCOMPARE(folder.library.sessions(), before);
    AcquisitionLibrary library;
    library.load(path + u"//");
    QVERIFY(library.find(folder.path(u"sub/b.ra1"_s)) != nullptr);
    library.load(folder.path(u"missing"_s));
    QCOMPARE(library.size(), 2);
}

void TestLibrary::adds()
{
    Folder folder({u"a.ra1"_s});
    const QSignalSpy changed(&folder.library, &AcquisitionLibrary::sessionsChanged);
    save(folder.path(u"b.ra1"_s), sessionBytes());
    Session *added = folder.library.add(folder.path(u"sub/../b.ra1"_s), "test");
    QVERIFY(added != nullptr);
    QCOMPARE(folder.library.add(folder.path(u"b.ra1"_s), "test"), added);
    QCOMPARE(folder.library.add(folder.folder.path() + u"//b.ra1", "test"), added);
    QCOMPARE(folder.names(), u"a.ra1|b.ra1"_s);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(folder.library.at(1), added);
    QCOMPARE(folder.library.indexOf(added), 1);
    QVERIFY(folder.library.at(2) == nullptr);
    QVERIFY(folder.library.at(-1) == nullptr);
    const QString missing = folder.path(u"missing.ra1"_s);
    QTest::ignoreMessage(
        QtDebugMsg,
        qPrintable(u"(ZunoAnalyzer::test) Error in decoding ZUNO File : %1"_s.arg(missing)));
    QVERIFY(folder.library.add(missing, "test") == nullptr);
    QCOMPARE(changed.count(), 1);
}

void TestLibrary::removes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("left");
    QTest::newRow("a file") << u"Hill/a.ra1"_s << u"Hill 2/c.ra1|Hill/deep/b.ra1|Hill.ra1"_s;
    QTest::newRow("a folder") << u"Hill"_s << u"Hill 2/c.ra1|Hill.ra1"_s;
    QTest::newRow("the beginning of a name")
        << u"Hil"_s << u"Hill 2/c.ra1|Hill/a.ra1|Hill/deep/b.ra1|Hill.ra1"_s;
    QTest::newRow("everything") << u"."_s << u""_s;
}

void TestLibrary::removes()
{
    QFETCH(const QString, path);
    Folder folder({u"Hill/a.ra1"_s, u"Hill/deep/b.ra1"_s, u"Hill 2/c.ra1"_s, u"Hill.ra1"_s});
    const QSignalSpy leaving(&folder.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    folder.library.removeAt(QDir::cleanPath(folder.path(path)));
    QFETCH(const QString, left);
    QStringList expected = left.split(u'|', Qt::SkipEmptyParts);
    expected.sort();
    QCOMPARE(folder.names(), expected.join(u'|'));
    QCOMPARE(leaving.count(), 4 - expected.size());
}

void TestLibrary::moves_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("names");
    QTest::newRow("a file") << u"Hill/a.ra1"_s << u"Hill/z.ra1"_s
                            << u"Hill 2/c.ra1|Hill/deep/b.ra1|Hill/z.ra1"_s;
    QTest::newRow("a folder") << u"Hill"_s << u"Heath"_s
                              << u"Heath/a.ra1|Heath/deep/b.ra1|Hill 2/c.ra1"_s;
    QTest::newRow("to a longer name")
        << u"Hill"_s << u"Hill Hill"_s << u"Hill 2/c.ra1|Hill Hill/a.ra1|Hill Hill/deep/b.ra1"_s;
}

void TestLibrary::moves()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    Folder folder({u"Hill/a.ra1"_s, u"Hill/deep/b.ra1"_s, u"Hill 2/c.ra1"_s});
    folder.library.movePath(folder.path(from), folder.path(to));
    QTEST(folder.names(), "names");
}

void TestLibrary::viewedStates()
{
    Folder folder({u"one/a.ra1"_s, u"b.ra1"_s});
    save(folder.path(u"two/a.ra1"_s), sessionBytes("Ann", 0));
    folder.library.add(folder.path(u"two/a.ra1"_s), "test");
    QMap<QString, bool> expected {{u"a.ra1"_s, false}, {u"b.ra1"_s, true}};
    QCOMPARE(folder.library.viewedStateMap(), expected);
    folder.library.find(folder.path(u"two/a.ra1"_s))->setNewSession(7);
    expected[u"a.ra1"_s] = true;
    QCOMPARE(folder.library.viewedStateMap(), expected);
    folder.library.reload(folder.path(u"nowhere"_s));
    QCOMPARE(folder.library.viewedStateMap(), (QMap<QString, bool> {}));
}

void TestLibrary::refreshes_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: the file goes
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QString>("driver"); // null: no session
    QTest::newRow("untouched") << sessionBytes() << false << u"Ann"_s;
    QTest::newRow("another session") << sessionBytes("Beatrix") << true << u"Beatrix"_s;
    QTest::newRow("no session any more") << QByteArray("hello") << true << QString();
    QTest::newRow("gone") << QByteArray() << false << u"Ann"_s;
}

void TestLibrary::refreshes()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, driver);
    Folder folder({u"a.ra1"_s});
    const QString path = folder.path(u"a.ra1"_s);
    if (bytes.isNull())
        QFile::remove(path);
    else if (bytes != sessionBytes())
        save(path, bytes);
    QTEST(folder.library.refresh(path), "changed");
    const Session *session = folder.library.find(path);
    QCOMPARE(session != nullptr, !driver.isNull());
    if (session != nullptr)
        QCOMPARE(session->driver(), driver);
    QVERIFY(!folder.library.refresh(path));
    QVERIFY(!folder.library.refresh(folder.path(u"other.ra1"_s)));
}

void TestLibrary::reloads()
{
    Folder folder({u"a.ra1"_s, u"b.ra1"_s});
    folder.library.find(folder.path(u"a.ra1"_s))->setDriver(u"Zoe"_s);
    QFile::remove(folder.path(u"b.ra1"_s));
    const QSignalSpy leaving(&folder.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    folder.library.reload(folder.folder.path());
    QCOMPARE(leaving.count(), 2);
    QCOMPARE(folder.names(), u"a.ra1"_s);
    QCOMPARE(folder.library.at(0)->driver(), u"Ann"_s);
}

void TestLibrary::firstDisplay()
{
    Outfit shown({AtValmora});
    const QSignalSpy applied(&shown.display, &SessionDisplay::mapApplied);
    const QSignalSpy displayed(&shown.display, &SessionDisplay::sessionDisplayed);
    QCOMPARE(shown.display.index(), -1);
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    QCOMPARE(shown.display.session(), shown.library.at(0));
    QCOMPARE(shown.display.index(), 0);
    QCOMPARE(shown.mapName(), Valmora);
    QCOMPARE(shown.display.session()->laps().size(), 7U);
    QCOMPARE(applied.count(), 1);
    QCOMPARE(displayed.count(), 1);
    QCOMPARE(shown.settings.value(Setting::LastFileSelected).toString(), shown.path(AtValmora));
    // Smoothed, and once only, however often it is shown.
    const OpenedSession once = openSession(shown.path(AtValmora));
    const Points raw = once.session->samples();
    once.session->smooth();
    QVERIFY(raw != once.session->samples());
    QVERIFY(shown.display.session()->samples() == once.session->samples());
    const Lap *lap = shown.display.session()->laps()[0].get();
    QVERIFY(shown.display.display(shown.path(u"sub/../"_s + AtValmora)));
    QVERIFY(shown.display.session()->samples() == once.session->samples());
    QCOMPARE(applied.count(), 2);
    QCOMPARE(shown.display.session()->laps()[0].get(), lap);
    QCOMPARE(shown.settings.value(Setting::LastFileSelected).toString(), shown.path(AtValmora));
}

void TestLibrary::storedChoice_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("map");
    QTest::addColumn<QString>("left");
    QTest::newRow("another circuit") << Haidemoor << Haidemoor << Haidemoor;
    QTest::newRow("the same") << Valmora << Valmora << Valmora;
    QTest::newRow("not there any more") << u"/Gone.map"_s << Valmora << QString();
    QTest::newRow("in capitals") << Haidemoor.toUpper() << Valmora << QString();
    QTest::newRow("none") << QString() << Valmora << QString();
}

void TestLibrary::storedChoice()
{
    QFETCH(const QString, choice);
    Outfit shown({AtValmora});
    if (!choice.isNull())
        shown.settings.setMapChoice(AtValmora, choice);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(shown.display.display(shown.path(AtValmora)));
        QTEST(shown.mapName(), "map");
        QTEST(shown.settings.mapChoice(AtValmora), "left");
    }
}

void TestLibrary::modes_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("left");
    QTest::newRow("detected") << u"/x.map"_s << 0 << QString();
    QTest::newRow("chosen") << QString() << 1 << Haidemoor;
    QTest::newRow("chosen instead") << u"/x.map"_s << 1 << Haidemoor;
    QTest::newRow("kept") << u"/x.map"_s << 2 << u"/x.map"_s;
    QTest::newRow("kept without a choice") << QString() << 2 << QString();
}

void TestLibrary::modes()
{
    QFETCH(const QString, stored);
    QFETCH(const int, mode);
    Outfit shown({AtValmora});
    const Map *map = shown.maps.find(Haidemoor);
    shown.display.onMapChanged({map}, 1); // Nothing is displayed, so nothing happens.
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    if (!stored.isNull())
        shown.settings.setMapChoice(AtValmora, stored);
    const QSignalSpy applied(&shown.display, &SessionDisplay::mapApplied);
    shown.display.onMapChanged({map}, mode);
    QCOMPARE(applied.count(), 1);
    QCOMPARE(shown.mapName(), Haidemoor);
    QTEST(shown.settings.mapChoice(AtValmora), "left");
    shown.display.detectMap();
    QCOMPARE(shown.mapName(), Valmora);
    QCOMPARE(shown.settings.mapChoice(AtValmora), QString());
}

void TestLibrary::noMap_data()
{
    QTest::addColumn<bool>("hasFolder");
    QTest::addColumn<QString>("left");
    QTest::newRow("maps, but not of that place") << true << QString();
    QTest::newRow("on a drive that is not plugged in") << false << Haidemoor;
}

void TestLibrary::noMap()
{
    QFETCH(const bool, hasFolder);
    Outfit shown({OnTheRoad});
    shown.settings.setMapChoice(OnTheRoad, Haidemoor);
    shown.maps.clear();
    if (!hasFolder)
        QVERIFY(QDir(shown.settings.mapsFolder()).removeRecursively());
    QTest::ignoreMessage(QtDebugMsg, "(ZunoAnalyzer::onMapChanged) No map near detected or no map "
                                     "selected or no valid aquisition point.");
    QVERIFY(shown.display.display(shown.path(OnTheRoad)));
    QCOMPARE(shown.mapName(), QString());
    QVERIFY(shown.display.session()->laps().empty());
    QTEST(shown.settings.mapChoice(OnTheRoad), "left");
}

void TestLibrary::newSessionFlag_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isNew");
    QTest::newRow("never opened") << NeverOpened << true;
    QTest::newRow("opened before") << AtValmora << false;
}

// Whoever only looks must not change a file; the first look is noted in it, once.
void TestLibrary::newSessionFlag()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isNew);
    Outfit shown({name});
    const QString path = shown.path(name);
    makeOld(path);
    shown.library.noteWritten(*shown.library.at(0));
    const QByteArray before = contents(path);
    const QSignalSpy viewed(&shown.display, &SessionDisplay::viewedStateChanged);
    const QSignalSpy removed(&shown.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
    QCOMPARE(shown.library.viewedStateMap()[name], isNew);
    QVERIFY(shown.display.display(path));
    QCOMPARE(viewed.count(), isNew ? 1 : 0);
    QCOMPARE(shown.library.viewedStateMap()[name], false);
    QCOMPARE(!isOld(path), isNew);
    QCOMPARE(contents(path) != before, isNew);
    QCOMPARE(openSession(path).session->newSession(), 0);
    const QByteArray after = contents(path);
    makeOld(path);
    shown.library.noteWritten(*shown.library.at(0));
    QVERIFY(shown.display.display(path));
    QVERIFY(isOld(path));
    QCOMPARE(contents(path), after);
    QCOMPARE(viewed.count(), isNew ? 1 : 0);
    // The program's own writing is no change from outside.
    QCOMPARE(removed.count(), 0);
}

void TestLibrary::displaysUnknownFile()
{
    Outfit shown({AtValmora});
    const QString path = shown.path(u"new/"_s + AtHaidemoor);
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    save(path, contents(Outfit::find(AtHaidemoor)));
    QVERIFY(shown.display.display(path));
    QCOMPARE(shown.display.index(), 1);
    QCOMPARE(shown.mapName(), Haidemoor);
    QCOMPARE(shown.library.size(), 2);
    // Only the look-up that a display follows moves the displayed session.
    QCOMPARE(shown.display.findSessionByPath(shown.path(u"nothing.ra1"_s)), nullptr);
    QCOMPARE(shown.display.index(), 1);
    QCOMPARE(shown.display.findSessionByPath(shown.path(AtValmora)), shown.library.at(0));
    QCOMPARE(shown.display.index(), 0);
}

void TestLibrary::notASession()
{
    Outfit shown({AtValmora});
    const QString path = shown.path(u"text.ra1"_s);
    save(path, "hello");
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    const QSignalSpy told(&shown.display, &SessionDisplay::notASession);
    const QSignalSpy cleared(&shown.display, &SessionDisplay::cleared);
    QTest::ignoreMessage(
        QtDebugMsg,
        qPrintable(
            u"(ZunoAnalyzer::onSessionDisplayedChange) Error in decoding ZUNO File : %1"_s.arg(
                path)));
    QVERIFY(!shown.display.display(path));
    QCOMPARE(told.count(), 1);
    QCOMPARE(told[0][0].toString(), path);
    QCOMPARE(cleared.count(), 1);
    QVERIFY(shown.display.session() == nullptr);
    QCOMPARE(shown.settings.value(Setting::LastFileSelected).toString(), shown.path(AtValmora));
    QVERIFY(shown.display.display(shown.path(AtValmora)));
}

void TestLibrary::replacedFile()
{
    Outfit shown({AtValmora});
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    save(shown.path(AtValmora), contents(Outfit::find(AtHaidemoor)));
    QVERIFY(shown.display.display(shown.path(AtValmora)));
    QCOMPARE(shown.library.size(), 1);
    QCOMPARE(shown.mapName(), Haidemoor);
    QCOMPARE(shown.display.session()->driver(), u"Pieter Vos"_s);
}

void TestLibrary::removals()
{
    Outfit shown({AtValmora, AtHaidemoor});
    Session *last = shown.library.at(1);
    QVERIFY(shown.display.display(last->filePath()));
    const QSignalSpy cleared(&shown.display, &SessionDisplay::cleared);
    shown.library.remove(shown.library.at(0));
    QCOMPARE(cleared.count(), 0);
    QCOMPARE(shown.display.session(), last);
    QCOMPARE(shown.display.index(), 0);
    shown.library.remove(last);
    QCOMPARE(cleared.count(), 1);
    QVERIFY(shown.display.session() == nullptr);
    QCOMPARE(shown.display.index(), -1);
    shown.display.detectMap();
    shown.display.onMapChanged({}, 0);
    QCOMPARE(shown.library.size(), 0);
}

// A write-protected card must not complain at every selection.
void TestLibrary::tellsOnce()
{
    const Folder folder({u"a.ra1"_s, u"b.ra1"_s});
    const auto other = sessionOf(ride(u"0 10"_s));
    const Session &good = *folder.library.find(folder.path(u"a.ra1"_s));
    const Session &cut = *folder.library.find(folder.path(u"b.ra1"_s));
    save(folder.path(u"b.ra1"_s), SessionBytes().head().left(20));
    InformationWriter writer;
    const QSignalSpy failed(&writer, &InformationWriter::failed);
    int written = 0;
    connect(&writer, &InformationWriter::written, this, [&written] { ++written; });
    const auto write = [&writer](const Session &session) { return writer.write(session).outcome; };
    QCOMPARE(write(cut), RewriteOutcome::NotRewritable);
    QCOMPARE(write(cut), RewriteOutcome::NotRewritable);
    QCOMPARE(write(*other), RewriteOutcome::Unreadable);
    QCOMPARE(failed.count(), 1);
    const QString message = failed[0][0].toString();
    QVERIFY2(message.startsWith(u"b.ra1 was not changed: "), qPrintable(message));
    QCOMPARE(written, 0);
    QCOMPARE(write(good), RewriteOutcome::Unchanged);
    const_cast<Session &>(good).setDriver(u"Zoe"_s);
    QCOMPARE(write(good), RewriteOutcome::Written);
    QCOMPARE(openSession(good.filePath()).session->driver(), u"Zoe"_s);
    QCOMPARE(written, 2);
    QCOMPARE(write(*other), RewriteOutcome::Unreadable);
    QCOMPARE(write(cut), RewriteOutcome::NotRewritable);
    QCOMPARE(failed.count(), 2);
}

// There is no room for the name of the file that is written first; the old one must stand.
void TestLibrary::fullNameIsTooLongToWrite()
{
    const QString name = QString(251, u'n') + u".ra1";
    const Folder folder({name});
    const QByteArray before = contents(folder.path(name));
    Session &session = *folder.library.at(0);
    session.setDriver(u"Zoe"_s);
    InformationWriter writer;
    const QSignalSpy failed(&writer, &InformationWriter::failed);
    QCOMPARE(writer.write(session).outcome, RewriteOutcome::WriteFailed);
    QCOMPARE(failed.count(), 1);
    QCOMPARE(contents(folder.path(name)), before);
    QCOMPARE(session.driver(), u"Zoe"_s);
    QCOMPARE(QDir(folder.folder.path()).entryList(QDir::Files), QStringList {name});
}

QTEST_GUILESS_MAIN(TestLibrary)
#include "tst_library.moc"
