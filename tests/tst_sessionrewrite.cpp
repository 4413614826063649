// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>
#include <csignal>
#include <thread>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

#include <base/wholefile.h>
#include <session/sessionfile.h>
#include <session/sessionrewrite.h>
#include <track/map.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

using Change = void (*)(Session &);
const Change Nothing = [](Session &) {};
const Change SetNotes = [](Session &session) { session.setNotes(u"dry"_s); };
const Change Open = [](Session &session) { session.setNewSession(0); };

/// What a file without an information block is given.
const InformationBytes Defaults {{}, {}, {}, {}, {}, {}, "Dry", 20, {}, {}, {}};

QByteArray withLists(const InformationBytes &information, int newSession = 1)
{
    SessionBytes file = fullSession(information);
    file.newSession = newSession;
    return file.bytes();
}

/// Without lists, a file has the block's first byte where the lists' flag was.
QByteArray withoutLists(const InformationBytes &information)
{
    return SessionBytes {.information = information.bytes()}.bytes();
}

} // namespace

class TestSessionRewrite final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
#ifdef Q_OS_UNIX
    // Files that may not grow stand for a disk without room.
    void fullDisk()
    {
        putFile(m_path, "before");
        for (const int size : {10, 16384, 16385}) {
            rlimit room {};
            QCOMPARE(getrlimit(RLIMIT_FSIZE, &room), 0);
            const auto atLimit = std::signal(SIGXFSZ, SIG_IGN);
            const rlimit none {0, room.rlim_max};
            setrlimit(RLIMIT_FSIZE, &none);
            const QString problem = writeWholeFile(m_path, QByteArray(size, 'x'));
            setrlimit(RLIMIT_FSIZE, &room);
            std::signal(SIGXFSZ, atLimit);
            QVERIFY(!problem.isEmpty());
            QCOMPARE(contents(m_path), "before");
        }
        QCOMPARE(writeWholeFile(m_path, "after"), QString());
        QCOMPARE(contents(m_path), "after");
    }
#endif

    void rewrites()
    {
        // What a change makes of a file; rewritten again, and opened again, it must stay the same.
        const auto rewritten = [this](const QByteArray &before, Change change) -> QByteArray {
            constexpr auto Shared = QFile::ReadUser | QFile::WriteUser | QFile::WriteOther;
            putFile(m_path, before);
            QFile::setPermissions(m_path, Shared);
            makeOld(m_path);
            const OpenedSession opened = openSession(m_path);
            change(*opened.session);
            const RewriteOutcome outcome = rewriteSessionFile(*opened.session).outcome;
            const QByteArray after = contents(m_path);
            const bool isKept = isOld(m_path);
            const OpenedSession again = openSession(m_path);
            const bool stable
                = (outcome == RewriteOutcome::Unchanged) == (after == before)
                  && isKept == (after == before) && QFile::permissions(m_path).testFlags(Shared)
                  && rewriteSessionFile(*opened.session).outcome == RewriteOutcome::Unchanged
                  && rewriteSessionFile(*again.session).outcome == RewriteOutcome::Unchanged
                  && again.session->samples() == opened.session->samples();
            return stable ? after : "not stable";
        };
        const Change longTexts = [](Session &session) {
            session.setCircuitName(QString(255, u'c'));
            session.setTemperature(300);
            session.setTyres(QString(256, u't'));
        };
        const InformationBytes full;
        const InformationBytes dry {.notes = "dry"};
        const InformationBytes accents {.circuit = "Le Man\xc3\xa9", .event = "F\xeate"};
        InformationBytes accentsDry = accents;
        accentsDry.notes = "dry";
        InformationBytes texts {.circuit = QByteArray(255, 'c'), .temperature = 300 - 256};
        texts.tyres = QByteArray(255, 't');
        const QByteArray onlyLists
            = SessionBytes {.listsFlag = 1, .lists = fullSession().lists}.bytes();

        QCOMPARE(rewritten(withLists(full), Nothing), withLists(full));
        QCOMPARE(rewritten(withLists(full), Open), withLists(full, 0));
        QCOMPARE(rewritten(withoutLists(full), SetNotes), withoutLists(dry));
        QCOMPARE(rewritten(onlyLists, Nothing), withLists(Defaults));
        // What stands behind the block is a newer format's, or another file's.
        QCOMPARE(rewritten(withLists(full) + "more", Nothing), withLists(full) + "more");
        QCOMPARE(rewritten(withLists(full) + withLists({}), SetNotes),
                 withLists(dry) + withLists({}));
        QCOMPARE(rewritten(withoutLists(full) + "more", longTexts), withoutLists(texts) + "more");
        QCOMPARE(rewritten(withLists(full).chopped(2), Nothing), withLists({.invalidLaps = ""}));
        QCOMPARE(rewritten(withoutLists(full), longTexts), withoutLists(texts));
        // A length that counts characters would cut what is untouched here.
        QCOMPARE(rewritten(withLists(accents), SetNotes), withLists(accentsDry));
    }

    // Half a file is still a rider's recording: a rewrite must not make it worse.
    void cutAtEveryLength()
    {
        const QByteArray whole = withLists({});
        const qsizetype informationAt
            = SessionBytes().head().size() + 2 + fullSession().lists.size();
        for (qsizetype size = 12; size <= whole.size(); ++size) {
            const QByteArray where = "cut at " + QByteArray::number(size);
            putFile(m_path, whole.left(size));
            const OpenedSession opened = openSession(m_path);
            opened.session->setNewSession(0);
            opened.session->setNotes(u"edited"_s);
            const RewriteOutcome outcome = rewriteSessionFile(*opened.session).outcome;
            if (size < informationAt) {
                QVERIFY2(outcome == RewriteOutcome::NotRewritable, where);
                QVERIFY2(contents(m_path) == whole.left(size), where);
                continue;
            }
            QVERIFY2(outcome == RewriteOutcome::Written, where);
            const OpenedSession again = openSession(m_path);
            QVERIFY2(again.session->samples() == opened.session->samples(), where);
            QVERIFY2(again.session->notes() == u"edited" && again.session->newSession() == 0,
                     where);
            QCOMPARE(rewriteSessionFile(*again.session).outcome, RewriteOutcome::Unchanged);
        }
    }

    // Files of which nobody knows where their information belongs are displayed, and that is all.
    void leftAlone()
    {
        const auto listsOf = [](const QByteArray &first, const QByteArray &second) {
            SessionBytes file = fullSession();
            file.lists = first + second;
            return file.bytes();
        };
        SessionBytes newer = fullSession({});
        newer.version = "2.0.0.0";
        SessionBytes odd = newer;
        odd.version = "10";
        const QByteArray negative = readingList({1.0, 2.0}, 0xfffffffeU);
        SessionBytes manySamples = fullSession({});
        manySamples.sampleCount = 0x80000002U;
        const QByteArray noBlock
            = SessionBytes {.listsFlag = 1, .lists = fullSession().lists}.bytes();
        const QByteArray noListsNoBlock = SessionBytes {.listsFlag = 0}.bytes();
        for (const QByteArray &bytes :
             QByteArrayList {newer.bytes(), odd.bytes(), listsOf(negative, readingList(11)),
                             listsOf(readingList(21), negative), manySamples.bytes(),
                             noBlock + withLists({}), noListsNoBlock + withLists({})}) {
            putFile(m_path, bytes);
            const OpenedSession opened = openSession(m_path);
            QVERIFY(opened.session && !opened.session->recording().isRewritable());
            SetNotes(*opened.session);
            QCOMPARE(rewriteSessionFile(*opened.session).outcome, RewriteOutcome::NotRewritable);
            QCOMPARE(contents(m_path), bytes);
        }
    }

    // The first display is no reason to make half a block whole, or to drop what is on its way.
    void firstDisplay()
    {
        const auto outcome = [this](const QByteArray &bytes) {
            putFile(m_path, bytes);
            const OpenedSession opened = openSession(m_path);
            opened.session->setNewSession(0);
            return rewriteSessionFile(*opened.session, Occasion::FirstDisplay).outcome;
        };
        const QByteArray whole = withLists({});
        const QByteArray plain = withoutLists({});
        QCOMPARE(outcome(whole), RewriteOutcome::Written);
        QCOMPARE(outcome(SessionBytes {.listsFlag = 0}.bytes()), RewriteOutcome::Written);
        QCOMPARE(outcome(whole.chopped(1)), RewriteOutcome::LeftOut);
        QCOMPARE(outcome(whole.chopped(InformationBytes().bytes().size() - 1)),
                 RewriteOutcome::LeftOut);
        QCOMPARE(outcome(plain.chopped(InformationBytes().bytes().size() - 1)),
                 RewriteOutcome::LeftOut);
    }

    // Times and thrown out laps follow the laps; without laps the file's own are kept.
    void withLaps()
    {
        const InformationBytes stored;
        const auto session = sessionOf(ride(lapRide({0, 1, 2})));
        SessionInformation information = session->information();
        information.bestLapText = StoredText::fromFile(stored.bestLap);
        information.idealTimeText = StoredText::fromFile(stored.idealTime);
        information.invalidLaps = {2, 3, 9};
        session->setInformation(information);

        InformationBytes expected = Defaults;
        expected.bestLap = stored.bestLap;
        expected.idealTime = stored.idealTime;
        expected.invalidLaps = "\x02\x03\x09";
        QCOMPARE(informationBlock(*session), expected.bytes());

        const auto sectors = lineMap(10, 680, {{u"Start"_s, 0}, {u"Time 0"_s, 100}});
        session->setMap(sectors.get());
        session->setLapValid(2, true);
        expected.bestLap = "00:03.600";
        expected.idealTime = "00:00.999";
        expected.invalidLaps = "\x02";
        QCOMPARE(informationBlock(*session), expected.bytes());

        // Another copy has thrown out lap 4 and taken lap 2 back; the times are those of them all.
        session->setStoredState(session->state());
        StoredState file = session->state();
        file.information.invalidLaps = {4};
        session->setLapValid(2, false);
        QVERIFY(session->takeOver(file));
        QVERIFY(!session->takeOver(file));
        expected.bestLap = "00:03.500";
        expected.invalidLaps = "\x03\x04";
        QCOMPARE(informationBlock(*session), expected.bytes());
    }

    // Somebody writes the file in the same moment: it is left to him, and nothing of his is lost.
    // Meanwhile other copies of the program are locked out, by a lock that is the rider's own.
    void writtenMeanwhile()
    {
        const QTemporaryDir runtime;
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
        const QByteArray before = withoutLists({}) + QByteArray(1 << 25, 'x');
        putFile(m_path, before);
        const OpenedSession opened = openSession(m_path);
        opened.session->setNotes(u"dry"_s);
        std::atomic<qint64> added = 0;
        std::atomic<bool> isOver = false;
        bool wasLocked = false;
        std::thread other([&] {
            QFile file(m_path);
            (void)file.open(QIODevice::Append | QIODevice::Unbuffered);
            while (!isOver) {
                added += file.write("y");
                wasLocked |= !QDir(runtime.path()).isEmpty();
                QThread::usleep(100);
            }
        });
        while (added == 0)
            QThread::usleep(100);
        const RewriteOutcome outcome = rewriteSessionFile(*opened.session).outcome;
        isOver = true;
        other.join();
        QCOMPARE(outcome, RewriteOutcome::BeingWritten);
        QCOMPARE(contents(m_path).size(), before.size() + added);
        QVERIFY(wasLocked);
        QVERIFY(QDir(runtime.path()).isEmpty());
    }

    // Two copies of the program on one library: neither undoes what the other has written.
    void twoCopies()
    {
        const auto both = [this](const InformationBytes &before, Change first, Change second) {
            putFile(m_path, withLists(before));
            const OpenedSession one = openSession(m_path);
            const OpenedSession other = openSession(m_path);
            first(*one.session);
            second(*other.session);
            const bool joined
                = !rewriteSessionFile(*one.session).wasChanged
                  && rewriteSessionFile(*other.session).wasChanged
                  && rewriteSessionFile(*one.session).wasChanged
                  && !rewriteSessionFile(*one.session).wasChanged
                  && informationBlock(*one.session) == informationBlock(*other.session)
                  && one.session->newSession() == other.session->newSession();
            return joined ? contents(m_path) : "not joined";
        };
        const Change driver = [](Session &session) { session.setDriver(u"Bob"_s); };
        const Change damp = [](Session &session) { session.setNotes(u"damp"_s); };
        const Change first = [](Session &session) { session.setInvalidLaps({2, 7}); };
        const Change second = [](Session &session) { session.setInvalidLaps({1, 2, 3}); };
        const InformationBytes accents {.event = "F\xeate", .notes = ""};
        InformationBytes joined = accents;
        joined.driver = "Bob";
        joined.notes = "dry";
        QCOMPARE(both(accents, driver, SetNotes), withLists(joined));
        QCOMPARE(both({}, SetNotes, damp), withLists({.notes = "damp"}));
        QCOMPARE(both({}, SetNotes, Open), withLists({.notes = "dry"}, 0));
        // Where both have typed, the later one stands, and the other's text is not lost.
        const OpenedSession late = openSession(m_path);
        late.session->setDriver(u"Eve"_s);
        late.session->setVehicle(u"R1"_s);
        const OpenedSession early = openSession(m_path);
        early.session->setDriver(u"Bob"_s);
        early.session->setTemperature(7);
        QVERIFY(rewriteSessionFile(*early.session).replaced.fields.isEmpty());
        const ReplacedTyping replaced = rewriteSessionFile(*late.session).replaced;
        QCOMPARE(replaced.fields, {TypedField::Driver});
        QCOMPARE(textOf(TypedField::Driver, replaced.theirs), u"Bob"_s);
        SessionInformation information = late.session->information();
        QCOMPARE(information.driver.text() + information.vehicle.text(), u"EveR1"_s);
        QCOMPARE(information.temperature, 7);
        replaced.putBack(information);
        QCOMPARE(information.driver.text() + information.vehicle.text(), u"BobR1"_s);
        QCOMPARE(both({}, first, second), withLists({.invalidLaps = "\x01\x02\x07"}));
    }

    // Between reading and rewriting the file becomes another one.
    void becomesAnother()
    {
        SessionBytes grown = fullSession();
        grown.samples = 5;
        SessionBytes other = fullSession();
        other.time = "12:00:00";
        const auto after = [this](const QByteArray &bytes) {
            putFile(m_path, withLists({}));
            const OpenedSession opened = openSession(m_path);
            SetNotes(*opened.session);
            putFile(m_path, bytes);
            (void)rewriteSessionFile(*opened.session);
            return contents(m_path);
        };
        const QByteArray written = after(grown.bytes());
        grown.information = InformationBytes {.notes = "dry"}.bytes();
        QCOMPARE(written, grown.bytes());
        QCOMPARE(after(other.bytes()), other.bytes());
        QCOMPARE(after(withLists({}).left(60)), withLists({}).left(60));
    }

    void failures()
    {
        using enum RewriteOutcome;
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Ride.ra1"_s);
        // What becomes of a file of such bytes; Written if the file does not stay, or not alone.
        const auto outcome = [&](const QByteArray &bytes, const QString &target = {}) {
            putFile(path, bytes);
            if (bytes.isEmpty())
                QFile::remove(path);
            const OpenedSession opened = decodeSession(withLists({}), path);
            opened.session->setNewSession(0);
            const RewriteResult result
                = target.isNull() ? rewriteSessionFile(*opened.session)
                                  : rewriteSessionFileTo(*opened.session, folder.filePath(target));
            const bool kept = contents(path) == bytes
                              && QDir(folder.path()).count() == (bytes.isEmpty() ? 2U : 3U);
            const bool explained = result.reason.isEmpty() == (result.outcome == NotRewritable);
            return kept && explained && !result.ok() ? result.outcome : Written;
        };
        QCOMPARE(outcome({}), Unreadable);
        QCOMPARE(outcome("text"), NotRewritable);
        QCOMPARE(outcome(SessionBytes {.version = "0.9", .listsFlag = 0}.bytes()), NotRewritable);
        // A damaged count: what follows the last whole sample passes for all the rest, but with
        // information behind it, it would be a sample, too.
        const QByteArray damaged
            = Bytes().text("RA1").text("1.0.0.0").u32(5000).raw(QByteArray(45, '\0'));
        QCOMPARE(outcome(damaged), NotRewritable);
        QCOMPARE(outcome(withLists({}), u"."_s), WriteFailed);
    }

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"Ride.ra1"_s);
};

QTEST_GUILESS_MAIN(TestSessionRewrite)
#include "tst_sessionrewrite.moc"
