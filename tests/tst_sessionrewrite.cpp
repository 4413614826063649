// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

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
const InformationBytes Defaults {{}, {}, {}, {}, {}, {}, "Dry", 20, {}, {}, {}};

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
    void toAnotherFile();
    void failures_data();
    void failures();

private:
    [[nodiscard]] static QByteArray contents(const QString &path);

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"Ride.ra1"_s);
};

QByteArray TestSessionRewrite::contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "unreadable";
}

void TestSessionRewrite::rewrites_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("after");
    const auto row
        = [](const char *name, const QByteArray &before, Change change, const QByteArray &after) {
              QTest::newRow(name) << before << change << after;
          };
    const Change nothing = [](Session &) {};
    const Change setNotes = [](Session &session) { session.setNotes(u"dry"_s); };
    const Change open = [](Session &session) { session.setNewSession(0); };
    const Change sameEvent = [](Session &session) { session.setEventName(session.eventName()); };
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
    const SessionBytes noBlock {.listsFlag = 0};
    const SessionBytes onlyLists {.listsFlag = 1, .lists = Lists};

    row("nothing", withLists(full), nothing, withLists(full));
    row("opened", withLists(full), open, withLists(full, 0));
    row("notes", withLists(full), setNotes, withLists(dry));
    row("notes, no lists", withoutLists(full), setNotes, withoutLists(dry));
    row("no block", noBlock.bytes(), nothing, withoutLists(Defaults));
    row("no block, lists", onlyLists.bytes(), nothing, withLists(Defaults));
    row("bytes after the block go", withLists(full) + "more", nothing, withLists(full));
    row("a block cut short", withLists(full).chopped(2), nothing, withLists({.invalidLaps = ""}));
    row("as long as may be, and longer", withoutLists(full), longTexts, withoutLists(texts));
    // A length that counts characters would cut what is untouched here.
    row("letters outside ASCII", withLists(accents), setNotes, withLists(accentsDry));
    row("set to the same text", withLists(accents), sameEvent, withLists(accents));
}

void TestSessionRewrite::rewrites()
{
    QFETCH(const QByteArray, before);
    QFETCH(const Change, change);
    QFETCH(const QByteArray, after);
    putFile(m_path, before);
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
    const qsizetype informationAt = SessionBytes().head().size() + 2 + Lists.size();
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
    const QFile::Permissions own = QFile::ReadUser | QFile::WriteUser;
    for (const auto &permissions : {own, own | QFile::ReadGroup | QFile::WriteOther}) {
        putFile(m_path, withLists({}));
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setPermissions(permissions));
        QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
        file.close();
        const QFile::Permissions before = QFile::permissions(m_path);
        const OpenedSession opened = openSession(m_path);
        QVERIFY(rewriteSessionFile(*opened.session).ok());
        QCOMPARE(QFileInfo(m_path).lastModified(), longAgo);
        opened.session->setNewSession(0);
        QVERIFY(rewriteSessionFile(*opened.session).ok());
        QVERIFY(QFileInfo(m_path).lastModified() > longAgo);
        QCOMPARE(QFile::permissions(m_path), before);
    }
}

void TestSessionRewrite::toAnotherFile()
{
    const QString target = m_folder.filePath(u"Copy.ra1"_s);
    putFile(m_path, withLists({}));
    const OpenedSession opened = openSession(m_path);
    for (const char *notes : {"rain, later", "dry"}) {
        opened.session->setNotes(QString::fromLatin1(notes));
        QCOMPARE(rewriteSessionFileTo(*opened.session, target).outcome, RewriteOutcome::Written);
        QCOMPARE(contents(target), withLists({.notes = notes}));
        QCOMPARE(contents(m_path), withLists({}));
    }
}

void TestSessionRewrite::failures_data()
{
    using enum RewriteOutcome;
    QTest::addColumn<QString>("name"); // of the session's file
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("target"); // null: in place
    QTest::addColumn<RewriteOutcome>("outcome");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &target,
                        RewriteOutcome outcome, const QString &path = u"Ride.ra1"_s) {
        QTest::newRow(name) << path << bytes << target << outcome;
    };
    const QByteArray good = withLists({});
    row("file gone", {}, {}, Unreadable);
    row("no session any more", "text", {}, NotRewritable);
    row("too old", SessionBytes {.version = "0.9", .listsFlag = 0}.bytes(), {}, NotRewritable);
    row("target's folder missing", good, u"none/A.ra1"_s, WriteFailed);
    row("target is a folder", good, u"."_s, WriteFailed);
    row("read-only folder", good, {}, WriteFailed, u"locked/C.ra1"_s);
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
    if (!bytes.isEmpty())
        putFile(path, bytes);
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
