// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <session/bytereader.h>
#include <session/sessionfile.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype SampleSize = 28;

/// Where the samples of a file begin: after two texts and the count.
constexpr qsizetype SamplesAt = 4 + 8 + 4;

QString text(const ReadingLists &lists)
{
    QString text;
    for (const auto &list : {lists.list1, lists.list2}) {
        for (const Reading &reading : list)
            text += u" %1:%2"_s.arg(reading.number).arg(static_cast<double>(reading.value));
        text += u'|';
    }
    return text;
}

QString text(const PointAcquisition &sample)
{
    QString text = u"%1 %2"_s.arg(sample.acquisitionNumber).arg(sample.dataTimeStamp);
    for (const double value :
         {sample.dataTimeSec, sample.dataCoordX, sample.dataCoordY, sample.dataSpeed,
          sample.dataAngle, sample.dataAccelXPH, sample.dataAccelXPHComputed, sample.dataAccelYPH})
        text += u' ' + QString::number(value);
    return text;
}

/// What stands around the samples, but for the information block.
QString frame(const Session &session)
{
    const Recording &r = session.recording();
    const QStringList texts {r.date, QString::number(r.reservedByte), r.time,
                             QString::number(r.reservedDouble)};
    return u"%1 of %2; %3 words; "_s.arg(r.wholeSampleCount).arg(r.sampleCount).arg(r.words)
           + texts.join(u' ') + u"; new %1 lists %2"_s.arg(session.newSession()).arg(r.listsFlag);
}

QString information(const Session &s)
{
    QStringList texts {
        s.circuitName(),   s.eventName(), s.driver(),    s.bestLapText(),
        s.idealTimeText(), s.vehicle(),   s.condition(), QString::number(s.temperature()),
        s.tyres(),         s.notes()};
    for (const quint8 number : s.invalidLaps())
        texts.append(QString::number(number));
    return texts.join(u'|');
}

/// Everything that a file gives, as one text.
QString everything(const OpenedSession &opened)
{
    if (!opened.session)
        return describe(opened.error);
    const Session &session = *opened.session;
    QString all = frame(session) + u'\n' + information(session) + u'\n'
                  + QString::fromLatin1(session.recording().version);
    for (const PointAcquisition &sample : session.samples())
        all += u'\n' + text(sample);
    return all + u'\n' + text(session.readingLists());
}

const QString NoInformation = u"||||||Dry|20||"_s;
const QString FullInformation
    = u"Hill|Cup|Ann|01:02.003|01:01.001|R6|Wet|31|soft|rain, later|2|3"_s;

SessionBytes fullFile()
{
    return {.listsFlag = 1,
            .lists = readingList(21) + readingList(11),
            .information = InformationBytes().bytes()};
}

} // namespace

class TestSessionFile final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutAtEveryLength();
    void flippedBytes();
    void refuses();
    void sampleCount_data();
    void sampleCount();
    void lists_data();
    void lists();
    void describes_data();
    void describes();
    void samples();
    void noFile();
    void fileGoneOrReplaced();

private:
    /// Writes the bytes to a file and opens that.
    [[nodiscard]] OpenedSession opened(const QByteArray &bytes) const;

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"Ride.ra1"_s);
};

OpenedSession TestSessionFile::opened(const QByteArray &bytes) const
{
    putFile(m_path, bytes);
    return openSession(m_path);
}

// A recording ends where the battery did: what it holds whole must come out.
void TestSessionFile::cutAtEveryLength()
{
    const SessionBytes file = fullFile();
    const QByteArray whole = file.bytes();
    const qsizetype flagsAt = file.head().size();
    const QStringList samples = everything(decodeSession(whole, m_path)).split(u'\n').mid(3, 2);
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const QByteArray cut = whole.left(size);
        const OpenedSession decoded = decodeSession(cut, m_path);
        const QByteArray where = "cut at " + QByteArray::number(size);
        QVERIFY2(everything(opened(cut)) == everything(decoded), where);
        const auto error = size < 4    ? SessionFileError::NotASession
                           : size == 4 ? SessionFileError::VersionTooOld
                                       : SessionFileError::None;
        QVERIFY2(decoded.error == error, where);
        if (!decoded.session)
            continue;
        const Session &session = *decoded.session;
        const qsizetype count = std::clamp<qsizetype>((size - SamplesAt) / SampleSize, 0, 2);
        QVERIFY2(session.recording().wholeSampleCount == count, where);
        QVERIFY2(std::ssize(session.wholeSamples()) == count, where);
        for (qsizetype i = 0; i < count; ++i)
            QCOMPARE(text(session.samples()[static_cast<std::size_t>(i)]), samples[i]);
        QVERIFY2(session.sampleCount() == (size < SamplesAt ? 0 : 2), where);
        QVERIFY2(std::ssize(session.samples()) == session.sampleCount(), where);
        if (size < flagsAt)
            continue;
        QVERIFY2(session.newSession() == (size > flagsAt ? 1 : 0), where);
        QVERIFY2(session.recording().listsFlag == (size > flagsAt + 1 ? 1 : 0), where);
        // What is left over of a number, or of the last reading, passes for the block's beginning.
        const qsizetype ofLists = size - flagsAt - 2;
        if (ofLists <= 0 || ofLists == file.lists.size()
            || (ofLists < file.lists.size() - 8 && ofLists % 4 == 0))
            QCOMPARE(information(session), NoInformation);
    }
}

void TestSessionFile::flippedBytes()
{
    const QByteArray whole = fullFile().bytes();
    for (const int change : {0x01, 0x80, 0xff}) {
        for (qsizetype at = 0; at < whole.size(); ++at) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ change);
            QCOMPARE(everything(opened(damaged)), everything(decodeSession(damaged, m_path)));
        }
    }
}

void TestSessionFile::refuses()
{
    using enum SessionFileError;
    const auto error = [this](const QByteArray &magic, const QByteArray &version) {
        const SessionBytes file {.magic = magic, .version = version};
        const OpenedSession decoded = decodeSession(file.bytes(), m_path);
        return (decoded.session != nullptr) == (decoded.error == None) ? decoded.error : Unreadable;
    };
    // Versions are compared as texts.
    for (const char *version : {"1.0.0.0", "1.4.0.0", "1.0.0.0b", "10", "\xff"})
        QVERIFY2(error("RA1", version) == None, version);
    for (const char *version : {"1.0.0", "0.9.9.9", ""})
        QVERIFY2(error("RA1", version) == VersionTooOld, version);
    for (const char *magic : {"RA2", "RA1 ", ""})
        QVERIFY2(error(magic, "1.0.0.0") == NotASession, magic);
}

void TestSessionFile::sampleCount_data()
{
    QTest::addColumn<quint32>("claimed");
    QTest::addColumn<int>("held");
    QTest::addColumn<int>("count");
    QTest::newRow("negative") << 0x80000000U << 0 << 0;
    QTest::newRow("fewer than held") << 1U << 2 << 1;
    QTest::newRow("a short recording cut") << 1000U << 1 << 1000;
    QTest::newRow("a long one cut to a bit") << 1001U << 1 << 1;
    QTest::newRow("not quite half left") << 1001U << 500 << 500;
    QTest::newRow("half left") << 1002U << 501 << 1002;
    QTest::newRow("more than half left") << 1001U << 501 << 1001;
    QTest::newRow("nothing that memory could hold") << 0x7fffffffU << 3 << 3;
}

void TestSessionFile::sampleCount()
{
    QFETCH(const quint32, claimed);
    QFETCH(const int, held);
    QFETCH(const int, count);
    Bytes file;
    file.text("RA1").text("1.0.0.0").u32(claimed);
    for (int i = 1; i <= held * 7; ++i)
        file.u32(static_cast<quint32>(i));
    const OpenedSession decoded = decodeSession(file, m_path);
    QVERIFY(decoded.session);
    const int whole = std::min(held, count);
    QCOMPARE(decoded.session->sampleCount(), count);
    QCOMPARE(std::ssize(decoded.session->samples()), count);
    QCOMPARE(std::ssize(decoded.session->wholeSamples()), whole);
    for (int i = 0; i < count; ++i)
        QCOMPARE(decoded.session->samples()[static_cast<std::size_t>(i)].dataTimeStamp,
                 static_cast<quint32>(i < whole ? (7 * i) + 1 : 0));
    QCOMPARE(everything(opened(file)), everything(decoded));
}

void TestSessionFile::lists_data()
{
    QTest::addColumn<QByteArray>("lists");
    QTest::addColumn<QString>("read");
    const auto row = [](const char *name, const QByteArray &lists, const char *read) {
        QTest::newRow(name) << lists << QString::fromLatin1(read);
    };
    const QByteArray one = readingList(1);
    row("both", readingList({-0.5, 0.1, 1e40}) + one, " 100:-0.5 101:0.1 102:inf| 100:1.5|");
    row("first empty", readingList(0) + one, "| 100:1.5|");
    row("first count negative", readingList({}, 0xffffffffU) + one, "| 100:1.5|");
    row("no second", one, " 100:1.5||");
    row("count cut", QByteArray("\x01\0\0", 3), "||");
    row("a huge count", readingList({1.0}, 0x7fffffffU), " 100:1||");
    // A number that cannot be read is 0, and the bytes stay for the next one.
    row("cut after the number", readingList({1.0, 2.0}).chopped(8), " 100:1 101:0||");
    row("cut within the value", readingList({1, 2}, 9).chopped(4), " 100:1 101:0 0:0||");
    row("cut within the number", readingList({1, 2}, 9).chopped(9), " 100:1||");
}

void TestSessionFile::lists()
{
    QFETCH(const QByteArray, lists);
    QFETCH(const QString, read);
    const QByteArray bytes = SessionBytes {.listsFlag = 1, .lists = lists}.bytes();
    const OpenedSession decoded = decodeSession(bytes, m_path);
    QCOMPARE(text(decoded.session->readingLists()), read);
    QCOMPARE(everything(opened(bytes)), everything(decoded));
}

void TestSessionFile::describes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("around");
    QTest::addColumn<QString>("block");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &around,
                        const QString &block) { QTest::newRow(name) << bytes << around << block; };
    const QString head = u"2 of 2; 2 words; 03/05/2026 7 10:11:12 2.5; "_s;
    const QByteArray block = InformationBytes().bytes();
    const auto withBlock
        = [](const QByteArray &bytes) { return SessionBytes {.information = bytes}.bytes(); };
    const auto noLists = [](int newSession) {
        return SessionBytes {.newSession = newSession, .listsFlag = 0}.bytes();
    };
    const InformationBytes longTexts {.circuit = QByteArray(255, 'c'), .event = "Fête \xff"};
    const SessionBytes manyWords {.wordCount = 0xffffffffU, .date = "", .time = ""};
    row("everything", fullFile().bytes(), head + u"new 1 lists 1", FullInformation);
    row("no flags", SessionBytes().head(), head + u"new 0 lists 0", NoInformation);
    row("no lists' flag", noLists(5).chopped(1), head + u"new 5 lists 0", NoInformation);
    row("no block", noLists(0), head + u"new 0 lists 0", NoInformation);
    row("block in the flag's place", withBlock(block), head + u"new 1 lists 4", FullInformation);
    row("no circuit in the flag's place", withBlock(InformationBytes {.circuit = ""}.bytes()),
        head + u"new 1 lists 0", FullInformation.mid(4));
    row("empty texts, no defaults", withBlock(QByteArray(11, '\0')), head + u"new 1 lists 0",
        u"|||||||0||"_s);
    row("255 bytes, and outside ASCII", withBlock(longTexts.bytes()), head + u"new 1 lists 255",
        QString(255, u'c') + u"|Fête \ufffd"_s + FullInformation.mid(8));
    row("fewer lap numbers than counted", withBlock(block.chopped(1)), head + u"new 1 lists 4",
        FullInformation.chopped(2));
    row("bytes after the block", fullFile().bytes() + "more", head + u"new 1 lists 1",
        FullInformation);
    row("block cut within a text", withBlock(block.left(6)), head + u"new 1 lists 4",
        u"Hill|"_s + QString::fromLatin1(outOfRangeText()) + u"||||||0||");
    row("more words than there are", manyWords.bytes(),
        u"2 of 2; 4294967295 words;  0  0; new 0 lists 0"_s, NoInformation);
    // The second sample ends after its time; three bytes are no number, but texts and a byte.
    row("cut within a number",
        SessionBytes().bytes().left(SamplesAt + SampleSize + 4) + QByteArray("\0\7\0", 3),
        u"1 of 2; 0 words;  7  0; new 0 lists 0"_s, NoInformation);
}

void TestSessionFile::describes()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, around);
    QFETCH(const QString, block);
    const OpenedSession decoded = decodeSession(bytes, m_path);
    QVERIFY(decoded.session);
    QCOMPARE(frame(*decoded.session), around);
    QCOMPARE(information(*decoded.session), block);
    QCOMPARE(everything(opened(bytes)), everything(decoded));
}

void TestSessionFile::samples()
{
    const OpenedSession decoded = decodeSession(SessionBytes().bytes(), m_path);
    const Points &samples = decoded.session->samples();
    QCOMPARE(samples.size(), 2U);
    QCOMPARE(text(samples[0]), u"1 100 0.1 10 46 101.5 -21.25 0.25 0 -0.5"_s);
    QCOMPARE(text(samples[1]), u"2 200 0.2 11 47 102.5 -22.25 0.5 0 -1"_s);
    QCOMPARE(decoded.session->fileName(), u"Ride.ra1"_s);
}

void TestSessionFile::noFile()
{
    QCOMPARE(openSession(m_folder.filePath(u"none"_s)).error, SessionFileError::Unreadable);
    QCOMPARE(openSession(m_folder.path()).error, SessionFileError::Unreadable);
    QCOMPARE(opened({}).error, SessionFileError::NotASession);
    // Opening a pipe would wait for somebody to write to it.
    QCOMPARE(::mkfifo(m_folder.filePath(u"pipe"_s).toLocal8Bit(), 0600), 0);
    QCOMPARE(openSession(m_folder.filePath(u"pipe"_s)).error, SessionFileError::Unreadable);
}

// Samples are read late: by then the file may be another one.
void TestSessionFile::fileGoneOrReplaced()
{
    const OpenedSession gone = opened(fullFile().bytes());
    QVERIFY(QFile::remove(m_path));
    QCOMPARE(gone.session->samples().size(), 0U);
    QCOMPARE(gone.session->wholeSamples().size(), 0U);
    QCOMPARE(information(*gone.session), FullInformation);

    const OpenedSession replaced = opened(fullFile().bytes());
    (void)opened("no session any more");
    QCOMPARE(replaced.session->wholeSamples().size(), 0U);

    const OpenedSession read = opened(fullFile().bytes());
    QCOMPARE(read.session->samples().size(), 2U);
    QVERIFY(QFile::remove(m_path));
    QCOMPARE(read.session->samples().size(), 2U);
}

QTEST_GUILESS_MAIN(TestSessionFile)
#include "tst_sessionfile.moc"
