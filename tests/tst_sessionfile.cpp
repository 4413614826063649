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
    return u"%1 of %2; %3 words; %4 %5 %6 %7; new %8 lists %9"_s.arg(r.wholeSampleCount)
        .arg(r.sampleCount)
        .arg(r.words)
        .arg(r.date)
        .arg(r.reservedByte)
        .arg(r.time)
        .arg(r.reservedDouble)
        .arg(session.newSession())
        .arg(r.listsFlag);
}

QString information(const Session &session)
{
    QStringList texts {session.circuitName(),   session.eventName(),
                       session.driver(),        session.bestLapText(),
                       session.idealTimeText(), session.vehicle(),
                       session.condition(),     QString::number(session.temperature()),
                       session.tyres(),         session.notes()};
    for (const quint8 number : session.invalidLaps())
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
    void refuses_data();
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
    // A new file each time: some file systems wait for the disk when one is written over.
    QFile::remove(m_path);
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the test's file");
    file.close();
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

void TestSessionFile::refuses_data()
{
    using enum SessionFileError;
    QTest::addColumn<QByteArray>("magic");
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<SessionFileError>("error");
    const QByteArray good = "RA1";
    const QByteArray first = "1.0.0.0";
    QTest::newRow("the first version") << good << first << None;
    QTest::newRow("a later version") << good << QByteArray("1.4.0.0") << None;
    QTest::newRow("a longer version") << good << QByteArray("1.0.0.0b") << None;
    QTest::newRow("compared as text") << good << QByteArray("10") << None;
    QTest::newRow("a shorter version") << good << QByteArray("1.0.0") << VersionTooOld;
    QTest::newRow("an older version") << good << QByteArray("0.9.9.9") << VersionTooOld;
    QTest::newRow("no version") << good << QByteArray() << VersionTooOld;
    QTest::newRow("bytes, not signs") << good << QByteArray("\xff") << None;
    QTest::newRow("other magic") << QByteArray("RA2") << first << NotASession;
    QTest::newRow("longer magic") << QByteArray("RA1 ") << first << NotASession;
    QTest::newRow("no magic") << QByteArray() << first << NotASession;
}

void TestSessionFile::refuses()
{
    QFETCH(const QByteArray, magic);
    QFETCH(const QByteArray, version);
    QFETCH(const SessionFileError, error);
    const OpenedSession decoded
        = decodeSession(SessionBytes {.magic = magic, .version = version}.bytes(), m_path);
    QCOMPARE(decoded.error, error);
    QCOMPARE(decoded.session != nullptr, error == SessionFileError::None);
    QCOMPARE(describe(error).isEmpty(), error == SessionFileError::None);
}

void TestSessionFile::sampleCount_data()
{
    QTest::addColumn<quint32>("claimed");
    QTest::addColumn<int>("held");
    QTest::addColumn<int>("count");
    QTest::newRow("none") << 0U << 0 << 0;
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
    for (int i = 0; i < count; ++i) {
        const PointAcquisition &sample = decoded.session->samples()[static_cast<std::size_t>(i)];
        QCOMPARE(sample.acquisitionNumber, static_cast<quint32>(i + 1));
        QCOMPARE(sample.dataTimeStamp, static_cast<quint32>(i < whole ? (7 * i) + 1 : 0));
    }
    QCOMPARE(everything(opened(file)), everything(decoded));
}

void TestSessionFile::lists_data()
{
    QTest::addColumn<QByteArray>("lists");
    QTest::addColumn<QString>("read");
    const QByteArray one = readingList(1);
    const QByteArray three = readingList({-0.5, 0.1, 1e40});
    QTest::newRow("both") << three + one << u" 100:-0.5 101:0.1 102:inf| 100:1.5|"_s;
    QTest::newRow("first empty") << readingList(0) + one << u"| 100:1.5|"_s;
    QTest::newRow("first count negative") << readingList({}, 0xffffffffU) + one << u"| 100:1.5|"_s;
    QTest::newRow("no second") << one << u" 100:1.5||"_s;
    QTest::newRow("count cut") << QByteArray("\x01\0\0", 3) << u"||"_s;
    QTest::newRow("more claimed than there is") << readingList({1.0}, 3) << u" 100:1||"_s;
    QTest::newRow("a huge count") << readingList({1.0}, 0x7fffffffU) << u" 100:1||"_s;
    // A number that cannot be read is 0, and the bytes stay for the next one.
    QTest::newRow("cut after the number")
        << readingList({1.0, 2.0}, 2).chopped(8) << u" 100:1 101:0||"_s;
    QTest::newRow("cut within the value")
        << readingList({1.0, 2.0}, 9).chopped(4) << u" 100:1 101:0 0:0||"_s;
    QTest::newRow("cut within the number")
        << readingList({1.0, 2.0}, 9).chopped(9) << u" 100:1||"_s;
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
    const QString head = u"2 of 2; 2 words; 03/05/2026 7 10:11:12 2.5; "_s;
    const QByteArray block = InformationBytes().bytes();
    const QString out = QString::fromLatin1(outOfRangeText());
    QTest::newRow("everything") << fullFile().bytes() << head + u"new 1 lists 1" << FullInformation;
    QTest::newRow("no flags") << SessionBytes().head() << head + u"new 0 lists 0" << NoInformation;
    QTest::newRow("no lists' flag")
        << SessionBytes {.newSession = 5}.bytes() << head + u"new 5 lists 0" << NoInformation;
    QTest::newRow("no block") << SessionBytes {.newSession = 0, .listsFlag = 0}.bytes()
                              << head + u"new 0 lists 0" << NoInformation;
    QTest::newRow("lists, no block")
        << SessionBytes {.listsFlag = 1, .lists = readingList(1) + readingList(0)}.bytes()
        << head + u"new 1 lists 1" << NoInformation;
    QTest::newRow("block in the flag's place") << SessionBytes {.information = block}.bytes()
                                               << head + u"new 1 lists 4" << FullInformation;
    QTest::newRow("no circuit in the flag's place")
        << SessionBytes {.information = InformationBytes {.circuit = ""}.bytes()}.bytes()
        << head + u"new 1 lists 0" << FullInformation.mid(4);
    QTest::newRow("empty texts, no defaults")
        << SessionBytes {.listsFlag = 0, .information = QByteArray(10, '\0')}.bytes()
        << head + u"new 1 lists 0" << u"|||||||0||"_s;
    QTest::newRow("255 bytes, and outside ASCII")
        << SessionBytes {.information = InformationBytes {.circuit = QByteArray(255, 'c'),
                                                          .event = "Fête \xff",
                                                          .notes = QByteArray(255, 'n')}
                                            .bytes()}
               .bytes()
        << head + u"new 1 lists 255"
        << QString(255, u'c') + u"|Fête \ufffd|Ann|01:02.003|01:01.001|R6|Wet|31|soft|"_s
               + QString(255, u'n') + u"|2|3"_s;
    QTest::newRow("fewer lap numbers than counted")
        << SessionBytes {.information = block.chopped(1)}.bytes() << head + u"new 1 lists 4"
        << FullInformation.chopped(2);
    QTest::newRow("bytes after the block")
        << fullFile().bytes() + "more" << head + u"new 1 lists 1" << FullInformation;
    QTest::newRow("block cut within a text")
        << SessionBytes {.information = block.left(6)}.bytes() << head + u"new 1 lists 4"
        << u"Hill|"_s + out + u"||||||0||";
    QTest::newRow("more words than there are")
        << SessionBytes {.wordCount = 0xffffffffU, .date = "", .time = ""}.bytes()
        << u"2 of 2; 4294967295 words;  0  0; new 0 lists 0"_s << NoInformation;
    QTest::newRow("no words") << SessionBytes {.words = {}, .listsFlag = 0}.bytes()
                              << u"2 of 2; 0 words; 03/05/2026 7 10:11:12 2.5; new 1 lists 0"_s
                              << NoInformation;
    // The second sample ends after its time; three bytes are no number, but texts and a byte.
    QTest::newRow("cut within a number")
        << SessionBytes().bytes().left(SamplesAt + SampleSize + 4) + QByteArray("\0\7\0", 3)
        << u"1 of 2; 0 words;  7  0; new 0 lists 0"_s << NoInformation;
    QTest::newRow("nothing behind the count")
        << SessionBytes {.samples = 0}.bytes().left(SamplesAt)
        << u"0 of 0; 0 words;  0  0; new 0 lists 0"_s << NoInformation;
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
