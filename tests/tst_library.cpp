// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <base/settings.h>
#include <library/acquisitionlibrary.h>
#include <library/informationwriter.h>
#include <library/libraryfolder.h>
#include <library/mapfolder.h>
#include <library/sessiondisplay.h>
#include <library/unsavedchanges.h>
#include <session/sessionfile.h>
#include <track/mapfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

const QString Valmora = u"/Spain/Valmora.map"_s;
const QString Haidemoor = u"/Germany/Haidemoor.map"_s;

/// A rider's library with maps, and what displays its sessions.
struct Outfit
{
    /// Sessions of the demo, or of any other name.
    explicit Outfit(const QStringList &names = {})
    {
        for (const QString &map : {Valmora, Haidemoor, u"/South Africa/Karoosberg.map"_s})
            putFile(settings.mapsFolder() + map, demoFile(map.section(u'/', 2)));
        for (const QString &name : names) {
            const bool isDemo = name.startsWith(u"2026");
            putFile(path(name), isDemo ? demoFile(name) : fullSession().bytes());
        }
        maps.loadMaps(settings.mapsFolder());
        library.load(settings.acquisitionFolder());
    }
    [[nodiscard]] QString path(const QString &name) const
    {
        return settings.acquisitionFolder() + u'/' + name;
    }
    /// The sessions' paths below the folder, in alphabetical order.
    [[nodiscard]] QString names() const
    {
        QStringList list;
        for (const Session *session : library.sessions())
            list.append(QDir(path(u""_s)).relativeFilePath(session->filePath()));
        list.sort();
        return list.join(u'|');
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

} // namespace

class TestLibrary final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What stands in a rider's folder: nested, oddly named, and not all of it recordings.
    void loads()
    {
        const QString odd = u"it's \"quoted\", fr\u00FCh & sp\u00E4t %1.ra1"_s;
        Outfit outfit({odd, u"ZUNO (00.1B)/deep/b.ra1"_s, u"folder.ra1/c.ra1"_s, u".ra1"_s,
                       u"upper.RA1"_s, u"backup.ra1.bak"_s});
        putFile(outfit.path(u"old.ra1"_s), SessionBytes {.version = "0.9"}.bytes());
        QFile::link(outfit.path(u"nowhere"_s), outfit.path(u"dangling.ra1"_s));
        outfit.library.reload(outfit.path(u"/"_s));
        QCOMPARE(outfit.names(), u"ZUNO (00.1B)/deep/b.ra1|folder.ra1/c.ra1|"_s + odd);
    }

    void addsAndReloads()
    {
        Outfit outfit({u"a.ra1"_s, u"c.ra1"_s});
        const QSignalSpy changed(&outfit.library, &AcquisitionLibrary::sessionsChanged);
        const QSignalSpy leaving(&outfit.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
        putFile(outfit.path(u"b.ra1"_s), fullSession().bytes());
        Session *added = outfit.library.add(outfit.path(u"sub/../b.ra1"_s), "test");
        QVERIFY(added != nullptr);
        QCOMPARE(outfit.library.add(outfit.path(u"/b.ra1"_s), "test"), added);
        QCOMPARE(changed.count(), 1);
        outfit.library.load(outfit.path(u"./"_s));
        QCOMPARE(outfit.names(), u"a.ra1|b.ra1|c.ra1"_s);
        QVERIFY(QFile::remove(outfit.path(u"a.ra1"_s)));
        outfit.library.reload(outfit.path(u""_s));
        QCOMPARE(leaving.count(), 3);
        QCOMPARE(outfit.names(), u"b.ra1|c.ra1"_s);
    }

    // Of a large library the folder of the last session is there at once, and nothing twice.
    void loadsSoon()
    {
        Outfit outfit({u"z/last.ra1"_s, u"z/next.ra1"_s});
        const QByteArray bytes = fullSession().bytes();
        QStringList all;
        for (int i = 0; i < 1200; ++i) {
            all << outfit.path(u"a/%1.ra1"_s.arg(i, 4, 10, QLatin1Char('0')));
            putFile(all.last(), bytes);
        }
        all << outfit.path(u"z/last.ra1"_s) << outfit.path(u"z/next.ra1"_s);
        AcquisitionLibrary library;
        QSignalSpy told(&library, &AcquisitionLibrary::loadingAdvanced);
        library.loadSoon(outfit.path(u""_s), outfit.path(u"z/next.ra1"_s));
        QVERIFY(library.isLoading());
        QCOMPARE(library.at(0)->filePath(), outfit.path(u"z/next.ra1"_s));
        QCOMPARE(library.at(1)->filePath(), outfit.path(u"z/last.ra1"_s));
        // What comes, goes and moves meanwhile.
        Session *early = library.add(all[1150], "test");
        QVERIFY(early != nullptr);
        QVERIFY(QFile::remove(all.takeAt(1151)));
        QVERIFY(QFile::rename(all[1152], outfit.path(u"a/moved.ra1"_s)));
        library.movePath(all[1152], outfit.path(u"a/moved.ra1"_s));
        all[1152] = outfit.path(u"a/moved.ra1"_s);
        QTRY_VERIFY(!library.isLoading());
        QStringList paths;
        for (const Session *session : library.sessions())
            paths << session->filePath();
        QCOMPARE(paths, all);
        QCOMPARE(library.find(all[1150]), early);
        QCOMPARE(told.last()[0], told.last()[1]);
        library.removeAt(outfit.path(u"a"_s));
        QCOMPARE(library.size(), 2);
        QVERIFY(library.find(all[5]) == nullptr);
    }

    void removesAndMoves()
    {
        Outfit outfit({u"Hill/a.ra1"_s, u"Hill/d/b.ra1"_s, u"Hill 2/c.ra1"_s, u"Hill.ra1"_s});
        const QSignalSpy leaving(&outfit.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
        outfit.library.removeAt(outfit.path(u"Hil"_s));
        outfit.library.movePath(outfit.path(u"Hill"_s), outfit.path(u"Heath"_s));
        QCOMPARE(outfit.names(), u"Heath/a.ra1|Heath/d/b.ra1|Hill 2/c.ra1|Hill.ra1"_s);
        QCOMPARE(leaving.count(), 0);
        outfit.library.removeAt(outfit.path(u"Heath"_s));
        outfit.library.removeAt(outfit.path(u"Hill"_s));
        QCOMPARE(outfit.names(), u"Hill 2/c.ra1|Hill.ra1"_s);
        QCOMPARE(leaving.count(), 2);
    }

    // Smoothed, and once only, however often it is shown.
    void displayedTwice()
    {
        Outfit outfit({AtValmora});
        const OpenedSession once = openSession(outfit.path(AtValmora));
        once.session->smooth();
        for (const QString &same : {AtValmora, QString(u"sub/../"_s + AtValmora)}) {
            QVERIFY(outfit.display.display(outfit.path(same)));
            QCOMPARE(outfit.mapName(), Valmora);
            QVERIFY(outfit.display.session()->samples() == once.session->samples());
        }
        // Noted once the rider stays with it.
        QTRY_COMPARE(outfit.settings.value(Setting::LastFileSelected).toString(),
                     outfit.path(AtValmora));
        QCOMPARE(outfit.library.size(), 1);
    }

    // With mode -1 the session is shown with its stored choice, which goes if there is no such
    // map; with the others another map is taken then.
    void mapChoice_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("map");
        QTest::addColumn<QString>("left");
        QTest::newRow("other circuit") << Haidemoor << -1 << Haidemoor << Haidemoor;
        QTest::newRow("not there") << u"/Gone.map"_s << -1 << Valmora << QString();
        QTest::newRow("none") << QString() << -1 << Valmora << QString();
        QTest::newRow("detected") << u"/x.map"_s << 0 << Haidemoor << QString();
        QTest::newRow("chosen") << u"/x.map"_s << 1 << Haidemoor << Haidemoor;
        QTest::newRow("kept") << u"/x.map"_s << 2 << Haidemoor << u"/x.map"_s;
    }
    void mapChoice()
    {
        QFETCH(const QString, stored);
        QFETCH(const int, mode);
        Outfit outfit({AtValmora});
        if (mode >= 0)
            QVERIFY(outfit.display.display(outfit.path(AtValmora)));
        if (!stored.isNull())
            outfit.settings.setMapChoice(AtValmora, stored);
        if (mode >= 0)
            outfit.display.onMapChanged({outfit.maps.find(Haidemoor)}, mode);
        else
            QVERIFY(outfit.display.display(outfit.path(AtValmora)));
        QTEST(outfit.mapName(), "map");
        QTEST(outfit.settings.mapChoice(AtValmora), "left");
    }

    // The choice stays while the maps are on a drive that is not plugged in.
    void noMap()
    {
        for (const bool hasFolder : {false, true}) {
            Outfit outfit({OnTheRoad});
            outfit.settings.setMapChoice(OnTheRoad, Haidemoor);
            outfit.maps.clear();
            if (!hasFolder)
                QVERIFY(QDir(outfit.settings.mapsFolder()).removeRecursively());
            QVERIFY(outfit.display.display(outfit.path(OnTheRoad)));
            QVERIFY(outfit.display.session()->laps().empty());
            QCOMPARE(outfit.settings.mapChoice(OnTheRoad), hasFolder ? QString() : Haidemoor);
        }
    }

    // A drive that is taken out keeps its maps; its return shows what is on it now.
    void mapsAwayAndBack()
    {
        const QTemporaryDir root;
        const QString folder = root.filePath(u"Map"_s);
        const QString other = root.filePath(u"Other"_s);
        putFile(folder + Valmora, demoFile(u"Valmora.map"_s));
        putFile(other + Haidemoor, demoFile(u"Haidemoor.map"_s));
        MapFolder maps;
        const QSignalSpy changed(&maps, &MapFolder::changed);
        QVERIFY(maps.open(folder));
        const Map *map = maps.library().find(Valmora);
        QVERIFY(QDir().rename(folder, root.filePath(u"away"_s)));
        QTest::qWait(700);
        QCOMPARE(changed.count(), 0);
        QVERIFY(!maps.open(folder));
        QCOMPARE(maps.library().find(Valmora), map);
        putFile(root.filePath(u"away"_s) + Haidemoor, demoFile(u"Haidemoor.map"_s));
        QVERIFY(QDir().rename(root.filePath(u"away"_s), folder));
        QTRY_COMPARE(changed.count(), 1);
        QVERIFY(maps.open(folder));
        QCOMPARE(maps.library().maps().size(), 2);
        // It is watched again, and so is another folder.
        QVERIFY(QFile::remove(folder + Valmora));
        QTRY_COMPARE(changed.count(), 2);
        QVERIFY(maps.open(other));
        QCOMPARE(maps.library().maps().size(), 1);
        QVERIFY(!maps.open(u"Other"_s) && maps.library().maps().isEmpty());
    }

    // Whoever only looks must not change a file; the first look is noted in it, once.
    void newSessionFlag()
    {
        Outfit outfit({NeverOpened, AtValmora});
        const QSignalSpy viewed(&outfit.display, &SessionDisplay::viewedStateChanged);
        const QSignalSpy removed(&outfit.library, &AcquisitionLibrary::sessionAboutToBeRemoved);
        for (const auto &[name, isWritten] :
             {std::pair(AtValmora, false), std::pair(NeverOpened, true),
              std::pair(NeverOpened, false)}) {
            const QString path = outfit.path(name);
            makeOld(path);
            outfit.library.noteWritten(*outfit.library.find(path));
            for (int i = 0; i < 2; ++i)
                QVERIFY(outfit.display.display(path));
            QVERIFY(isOld(path));
            if (isWritten)
                QTRY_VERIFY(!isOld(path));
            QCOMPARE(isOld(path), !isWritten);
            QCOMPARE(openSession(path).session->newSession(), 0);
            QCOMPARE(outfit.library.viewedStateMap().value(name), false);
        }
        QCOMPARE(viewed.count(), 1);
        // The program's own writing is no change from outside.
        QCOMPARE(removed.count(), 0);
    }

    // Somebody copies a recording into the library, and it is selected at once, half of it.
    void beingCopied()
    {
        const Outfit outfit({NeverOpened});
        const QByteArray whole = contents(outfit.path(NeverOpened));
        // The block ends within its texts.
        const QByteArray half = fullSession(InformationBytes {.tyres = ""}).bytes();
        for (const auto &[name, bytes, rests] : {std::tuple(u"rests.ra1"_s, whole, true),
                                                 {u"grows.ra1"_s, whole, false},
                                                 {u"half.ra1"_s, half.chopped(9), true}}) {
            Outfit other;
            const QString path = other.path(name);
            putFile(path, bytes);
            QVERIFY(other.display.display(path));
            const QSignalSpy written(&other.writer, &InformationWriter::written);
            for (int i = 0; !rests && i < 6; ++i) {
                QTest::qWait(500);
                QFile file(path);
                QVERIFY(file.open(QIODevice::Append) && file.write("more") == 4);
            }
            QCOMPARE(written.count(), 0);
            QTest::qWait(rests ? 2300 : 1000);
            QCOMPARE(written.count(), name == u"rests.ra1" ? 1 : 0);
            QVERIFY(contents(path).startsWith(name == u"half.ra1" ? bytes : bytes.left(60)));
            if (!rests) {
                QTRY_COMPARE(written.count(), 1);
                QVERIFY(contents(path).endsWith("moremoremore"));
            }
        }
    }

    // What was typed while the file was away comes back with it, and can be saved elsewhere.
    void unsaved()
    {
        Outfit outfit({AtValmora, AtHaidemoor});
        const QTemporaryDir elsewhere;
        UnsavedChanges changes(outfit.library, outfit.writer);
        const auto typeInto = [&outfit](const QString &name) {
            Session *session = outfit.library.find(outfit.path(name));
            session->setNotes(u"mine"_s);
            outfit.writer.writeSoon(*session);
        };
        QVERIFY(changes.mayClose(nullptr));
        const QString path = outfit.path(AtValmora);
        QVERIFY(QFile::rename(path, path + u".away"));
        // As the laps' table writes: at once.
        Session *away = outfit.library.find(path);
        away->setNotes(u"mine"_s);
        QVERIFY(!outfit.writer.write(*away, InformationWriter::Cause::Edited).ok());
        outfit.library.removeAt(path);
        QCOMPARE(outfit.library.unsaved().size(), 1);
        QVERIFY(QFile::rename(path + u".away", path));
        QVERIFY(changes.mayClose(nullptr));
        QCOMPARE(openSession(path).session->notes(), u"mine"_s);

        // One is gone, and one cannot be written.
        const QString other = outfit.path(AtHaidemoor);
        typeInto(AtValmora);
        typeInto(AtHaidemoor);
        QVERIFY(QFile::remove(path));
        outfit.library.removeAt(path);
        QFile::setPermissions(other, QFile::ReadOwner);
        for (const Session *session : outfit.library.sessions())
            QVERIFY(session->isUnsaved());
        putFile(elsewhere.filePath(AtHaidemoor), "taken");
        QCOMPARE(changes.saveTo(u"/dev/null"_s).size(), 2);
        QCOMPARE(changes.saveTo(elsewhere.path()), QStringList());
        QVERIFY(outfit.library.unsaved().isEmpty());
        const QString base = QFileInfo(AtHaidemoor).completeBaseName();
        QCOMPARE(openSession(elsewhere.filePath(base + u" 2.ra1")).session->notes(), u"mine"_s);
        QCOMPARE(contents(elsewhere.filePath(AtHaidemoor)), "taken");
        const QString text = elsewhere.filePath(QFileInfo(AtValmora).completeBaseName() + u".txt");
        QVERIFY(contents(text).contains("\nnotes=mine\n"));
    }

    // What could not be written is kept when another program changes the file.
    void keepsEdits()
    {
        Outfit outfit({AtValmora});
        const QString path = outfit.path(AtValmora);
        outfit.library.find(path)->setNotes(u"mine"_s);
        const OpenedSession other = openSession(path);
        other.session->setDriver(u"Bob"_s);
        QVERIFY(rewriteSessionFile(*other.session).ok());
        QVERIFY(outfit.library.refresh(path));
        // As after a change of the maps.
        outfit.library.reload(QFileInfo(path).path());
        Session *session = outfit.library.find(path);
        QCOMPARE(session->driver(), u"Bob"_s);
        QCOMPARE(session->notes(), u"mine"_s);
        QVERIFY(outfit.writer.write(*session).ok());
        QCOMPARE(openSession(path).session->notes(), u"mine"_s);
        QVERIFY(!outfit.library.refresh(path));
    }

    // What a link leads to is shown, and stays as it is.
    void writesInTheLibraryOnly()
    {
        Outfit outfit({u"a.ra1"_s});
        const QString other = outfit.root.filePath(u"else/b.ra1"_s);
        putFile(other, fullSession().bytes());
        QVERIFY(QFile::link(QFileInfo(other).path(), outfit.path(u"out"_s)));
        outfit.library.load(outfit.path(u""_s));
        outfit.writer.setLibrary(LibraryFolder(outfit.path(u""_s)));
        for (const auto &[name, outcome] : {std::pair(u"a.ra1"_s, RewriteOutcome::Written),
                                            {u"out/b.ra1"_s, RewriteOutcome::WriteFailed}}) {
            Session *session = outfit.library.find(outfit.path(name));
            session->setDriver(u"Bob"_s);
            QCOMPARE(outfit.writer.write(*session).outcome, outcome);
        }
        QCOMPARE(contents(other), fullSession().bytes());
    }

    // A write-protected card must not complain at every selection. There is no room for the name
    // of the file that would be written first, so that the old one stands.
    void tellsOnce()
    {
        const QString name = QString(251, u'n') + u".ra1";
        Outfit outfit({u"a.ra1"_s, name});
        const QByteArray before = contents(outfit.path(name));
        const QSignalSpy failed(&outfit.writer, &InformationWriter::failed);
        const auto write = [&outfit](const QString &file) {
            Session *session = outfit.library.find(outfit.path(file));
            session->setDriver(session->driver() + u'x');
            return outfit.writer.write(*session).outcome;
        };
        for (int i = 0; i < 2; ++i)
            QCOMPARE(write(name), RewriteOutcome::WriteFailed);
        QCOMPARE(failed.count(), 1);
        QCOMPARE(contents(outfit.path(name)), before);
        QCOMPARE(write(u"a.ra1"_s), RewriteOutcome::Written);
        QCOMPARE(write(name), RewriteOutcome::WriteFailed);
        QCOMPARE(failed.count(), 2);
        // What the rider has typed is another matter.
        QVERIFY(QFile::remove(outfit.path(u"a.ra1"_s)));
        for (int i = 0; i < 2; ++i) {
            outfit.writer.write(*outfit.library.find(outfit.path(u"a.ra1"_s)),
                                InformationWriter::Cause::Edited);
        }
        QCOMPARE(failed.count(), 3);
    }
};

QTEST_GUILESS_MAIN(TestLibrary)
#include "tst_library.moc"
