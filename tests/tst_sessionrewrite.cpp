// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <maps/map.h>
#include <session/sessionfile.h>
#include <session/sessionrewrite.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

using Change = void (*)(Session &);

const QByteArray Lists = readingList(11) + readingList(3);

/// What a file without an information block is given.
const InformationBytes Defaults {.circuit = "",
                                 .event = "",
                                 .driver = "",
                                 .bestLap = "",
                                 .idealTime = "",
                                 .vehicle = "",
                                 .condition = "Dry",
                                 .temperature = 20,
                                 .tyres = "",
                                 .notes = "",
                                 .invalidLaps = ""};

QByteArray withLists(const InformationBytes &information, int newSession = 1)
{
    return SessionBytes {.newSession = newSession,
                         .listsFlag = 1,
                         .lists = Lists,
                         .information = information.bytes()}
        .bytes();
}

/// Without lists, a file has the block's first byte where the lists' flag was.
QByteArray withoutLists(const InformationBytes &information)
{
    return SessionBytes {.information = information.bytes()}.bytes();
}

} // namespace

Q_DECLARE_METATYPE(Change)

class TestSessionRewrite final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rewrites_data();
    void rewrites();
    void cutAtEveryLength();
    void withLaps();
    void writesNothingWithoutChange();
    void keepsPermissions_data();
    void keepsPermissions();
    void toAnotherFile();
    void failures_data();
    void failures();

private:
    void write(const QByteArray &bytes) const;
    [[nodiscard]] QByteArray contents(const QString &path) const;

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"Ride.ra1"_s);
};

void TestSessionRewrite::write(const QByteArray &bytes) const
{
    // A new file each time: some file systems wait for the disk when one is written over.
    QFile::remove(m_path);
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the test's file");
}

QByteArray TestSessionRewrite::contents(const QString &path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
}

void TestSessionRewrite::rewrites_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("after");
    const auto nothing = [](Session &) {};
    const auto setNotes = [](Session &session) { session.setNotes(u"dry"_s); };
    const auto open = [](Session &session) { session.setNewSession(0); };
    const InformationBytes full;
    const InformationBytes dry {.notes = "dry"};
    const InformationBytes accents {.circuit = "Le Man\xc3\xa9", .event = "F\xeate"};

    QTest::newRow("nothing") << withLists(full) << Change(nothing) << withLists(full);
    QTest::newRow("opened") << withLists(full) << Change(open) << withLists(full, 0);
    QTest::newRow("notes") << withLists(full) << Change(setNotes) << withLists(dry);
    QTest::newRow("notes, no lists") << withoutLists(full) << Change(setNotes) << withoutLists(dry);
    QTest::newRow("no block") << SessionBytes {.listsFlag = 0}.bytes() << Change(nothing)
                              << withoutLists(Defaults);
    QTest::newRow("no block, lists") << SessionBytes {.listsFlag = 1, .lists = Lists}.bytes()
                                     << Change(nothing) << withLists(Defaults);
    QTest::newRow("an empty recording")
        << SessionBytes {.samples = 0, .listsFlag = 0}.bytes() << Change(nothing)
        << SessionBytes {.samples = 0, .information = Defaults.bytes()}.bytes();
    QTest::newRow("bytes after the block go")
        << withLists(full) + "more" << Change(nothing) << withLists(full);
    QTest::newRow("a block cut short")
        << withLists(full).chopped(2) << Change(nothing) << withLists({.invalidLaps = ""});
    QTest::newRow("every field") << withoutLists(full) << Change([](Session &session) {
        session.setCircuitName(QString(255, u'c'));
        session.setEventName(u"Trophy"_s);
        session.setDriver(u""_s);
        session.setVehicle(u"V4"_s);
        session.setCondition(u"Humid"_s);
        session.setTemperature(300);
        session.setTyres(QString(256, u't'));
        session.setNotes(u"a\nb"_s);
        session.setInvalidLaps({7});
    })
                                 << withoutLists({.circuit = QByteArray(255, 'c'),
                                                  .event = "Trophy",
                                                  .driver = "",
                                                  .vehicle = "V4",
                                                  .condition = "Humid",
                                                  .temperature = 300 - 256,
                                                  .tyres = QByteArray(255, 't'),
                                                  .notes = "a\nb",
                                                  .invalidLaps = "\7"});
    // A length that counts characters would cut what is untouched here.
    InformationBytes accentsDry = accents;
    accentsDry.notes = "dry";
    QTest::newRow("letters outside ASCII, untouched")
        << withLists(accents) << Change(setNotes) << withLists(accentsDry);
    QTest::newRow("set to the same text") << withLists(accents) << Change([](Session &session) {
        session.setEventName(session.eventName());
    }) << withLists(accents);
}

void TestSessionRewrite::rewrites()
{
    QFETCH(const QByteArray, before);
    QFETCH(const Change, change);
    QFETCH(const QByteArray, after);
    write(before);
    const OpenedSession opened = openSession(m_path);
    change(*opened.session);
    QCOMPARE(rewriteSessionFile(*opened.session).outcome,
             before == after ? RewriteOutcome::Unchanged : RewriteOutcome::Written);
    QCOMPARE(contents(m_path).toHex(' '), after.toHex(' '));
    QCOMPARE(rewriteSessionFile(*opened.session).outcome, RewriteOutcome::Unchanged);
    const OpenedSession again = openSession(m_path);
    QCOMPARE(rewriteSessionFile(*again.session).outcome, RewriteOutcome::Unchanged);
    QCOMPARE(again.session->samples(), opened.session->samples());
}

// Half a file is still a rider's recording: a rewrite must not make it worse.
void TestSessionRewrite::cutAtEveryLength()
{
    const QByteArray whole = withLists({});
    const qsizetype flagsAt = SessionBytes().head().size();
    const qsizetype textsAt = flagsAt - 2 * 11 - 1 - 4 - 8;
    const qsizetype informationAt = flagsAt + 2 + Lists.size();
    for (qsizetype size = 12; size <= whole.size(); ++size) {
        const QByteArray where = "cut at " + QByteArray::number(size);
        write(whole.left(size));
        const OpenedSession opened = openSession(m_path);
        opened.session->setNewSession(0);
        opened.session->setNotes(u"edited"_s);
        QVERIFY(!opened.session->samples().empty() || size < 16);
        const RewriteOutcome outcome = rewriteSessionFile(*opened.session).outcome;
        if (size <= textsAt || size == flagsAt || size == flagsAt + 1) {
            QVERIFY2(outcome == RewriteOutcome::NotRewritable, where);
            QVERIFY2(contents(m_path) == whole.left(size), where);
        }
        const OpenedSession again = openSession(m_path);
        QVERIFY2(std::ranges::equal(again.session->wholeSamples(), opened.session->wholeSamples(),
                                    {}, &PointAcquisition::dataTimeStamp,
                                    &PointAcquisition::dataTimeStamp),
                 where);
        if (size < informationAt)
            continue;
        QCOMPARE(outcome, RewriteOutcome::Written);
        QVERIFY2(again.session->notes() == u"edited" && again.session->newSession() == 0, where);
        QCOMPARE(rewriteSessionFile(*again.session).outcome, RewriteOutcome::Unchanged);
    }
}

// Times and thrown out laps follow the laps; without laps the file's own are kept.
void TestSessionRewrite::withLaps()
{
    const InformationBytes stored;
    const auto session = sessionOf(ride(lapRide({0, 0, 1})));
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

    const auto noSectors = lineMap(10, 680);
    session->setMap(noSectors.get());
    expected.bestLap = "00:03.600";
    expected.idealTime = "";
    expected.invalidLaps = "\x02\x03";
    QCOMPARE(informationBlock(*session), expected.bytes());

    const auto sectors = lineMap(10, 680, {{u"Start"_s, 0}, {u"Time 0"_s, 100}});
    session->setMap(sectors.get());
    session->setLapValid(2, true);
    expected.bestLap = "00:03.500";
    expected.idealTime = "00:00.999";
    expected.invalidLaps = "\x02";
    QCOMPARE(informationBlock(*session), expected.bytes());
}

void TestSessionRewrite::writesNothingWithoutChange()
{
    const QDateTime longAgo(QDate(2020, 2, 2), QTime(2, 2));
    write(withLists({}));
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    }
    const OpenedSession opened = openSession(m_path);
    QVERIFY(rewriteSessionFile(*opened.session).ok());
    QCOMPARE(QFileInfo(m_path).lastModified(), longAgo);
    opened.session->setNewSession(0);
    QVERIFY(rewriteSessionFile(*opened.session).ok());
    QVERIFY(QFileInfo(m_path).lastModified() > longAgo);
}

void TestSessionRewrite::keepsPermissions_data()
{
    QTest::addColumn<QFile::Permissions>("permissions");
    const QFile::Permissions own = QFile::ReadUser | QFile::WriteUser;
    QTest::newRow("private") << own;
    QTest::newRow("shared") << (own | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther
                                | QFile::WriteOther);
}

void TestSessionRewrite::keepsPermissions()
{
    QFETCH(const QFile::Permissions, permissions);
    write(withLists({}));
    QVERIFY(QFile::setPermissions(m_path, permissions));
    const QFile::Permissions before = QFile::permissions(m_path);
    const OpenedSession opened = openSession(m_path);
    opened.session->setNewSession(0);
    QCOMPARE(rewriteSessionFile(*opened.session).outcome, RewriteOutcome::Written);
    QCOMPARE(QFile::permissions(m_path), before);
}

void TestSessionRewrite::toAnotherFile()
{
    const QString target = m_folder.filePath(u"Copy.ra1"_s);
    write(withLists({}));
    const OpenedSession opened = openSession(m_path);
    for (const char *notes : {"rain, later", "dry"}) {
        opened.session->setNotes(QString::fromLatin1(notes));
        QCOMPARE(rewriteSessionFileTo(*opened.session, target).outcome, RewriteOutcome::Written);
        QCOMPARE(contents(target), withLists({.notes = notes}));
        QCOMPARE(contents(m_path), withLists({}));
    }
    QVERIFY(QFile::remove(target));
}

void TestSessionRewrite::failures_data()
{
    using enum RewriteOutcome;
    QTest::addColumn<QString>("name"); // of the session's file
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("target"); // null: in place
    QTest::addColumn<RewriteOutcome>("outcome");
    const QByteArray good = withLists({});
    const QString own;
    QTest::newRow("file gone") << u"Gone.ra1"_s << QByteArray() << own << Unreadable;
    QTest::newRow("no session any more")
        << u"Other.ra1"_s << QByteArray("text") << own << NotRewritable;
    QTest::newRow("too old") << u"Old.ra1"_s
                             << SessionBytes {.version = "0.9", .listsFlag = 0}.bytes() << own
                             << NotRewritable;
    QTest::newRow("target's folder missing")
        << u"A.ra1"_s << good << u"none/A.ra1"_s << WriteFailed;
    QTest::newRow("target is a folder") << u"B.ra1"_s << good << u"."_s << WriteFailed;
    // As long as a name may be: there is no room for that of the file that is to replace it.
    QTest::newRow("no room for the new file") << QString(255, u'n') << good << own << WriteFailed;
    QTest::newRow("read-only folder") << u"locked/C.ra1"_s << good << own << WriteFailed;
}

void TestSessionRewrite::failures()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, target);
    QFETCH(const RewriteOutcome, outcome);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"locked"_s));
    const QString path = folder.filePath(name);
    if (!bytes.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    if (name.startsWith(u"locked/")) {
        if (::geteuid() == 0)
            QSKIP("no folder is read-only for root");
        QVERIFY(
            QFile::setPermissions(folder.filePath(u"locked"_s), QFile::ReadUser | QFile::ExeUser));
    }
    OpenedSession opened = decodeSession(withLists({}), path);
    opened.session->setNewSession(0);
    const RewriteResult result
        = target.isNull() ? rewriteSessionFile(*opened.session)
                          : rewriteSessionFileTo(*opened.session, folder.filePath(target));
    QCOMPARE(result.outcome, outcome);
    QCOMPARE(result.ok(), false);
    QCOMPARE(result.reason.isEmpty(), outcome == RewriteOutcome::NotRewritable);
    QCOMPARE(contents(path), bytes.isEmpty() ? QByteArray("unreadable") : bytes);
    // Nothing half written lies about.
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(),
             bytes.isEmpty() || name.contains(u'/') ? 0 : 1);
    QVERIFY(QFile::setPermissions(folder.filePath(u"locked"_s), QFile::Permissions(0x7000)));
}

QTEST_GUILESS_MAIN(TestSessionRewrite)
#include "tst_sessionrewrite.moc"
