// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <base/bytereader.h>
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
    return u"%1 of %2; %3 words; "_s.arg(r.wholeSampleCount).arg(r.sampleCount).arg(r.words)
           + u"%1 %2 %3 %4; "_s.arg(r.date).arg(r.reservedByte).arg(r.time).arg(r.reservedDouble)
           + u"new %1 lists %2"_s.arg(session.newSession()).arg(r.listsFlag);
}

QString information(const Session &session)
{
    const SessionInformation &i = session.information();
    QString texts;
    for (const StoredText &text : {i.circuitName, i.event, i.driver, session.bestLapStored(),
                                   session.idealTimeStored(), i.vehicle, i.condition})
        texts += text.text() + u'|';
    texts += u"%1|%2|%3"_s.arg(i.temperature).arg(i.tyres.text(), i.notes.text());
    for (const quint8 number : session.invalidLaps())
        texts += u"|%1"_s.arg(number);
    return texts;
}

/// Everything that a file gives, as one text.
QString everything(const OpenedSession &opened)
{
    if (!opened.session)
        return describe(opened.error);
    const Session &session = *opened.session;
    QString all = frame(session) + information(session) + text(session.readingLists());
    for (const PointAcquisition &sample : session.samples())
        all += u'\n' + text(sample);
    return all;
}

const QString NoInformation = u"||||||Dry|20||"_s;
const QString FullInformation
    = u"Hill|Cup|Ann|01:02.003|01:01.001|R6|Wet|31|soft|rain, later|2|3"_s;

} // namespace

class TestSessionFile final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A recording ends where the battery did: what it holds whole must come out.
    void cutAtEveryLength()
    {
        const SessionBytes file = fullSession();
        const QByteArray whole = file.bytes();
        const qsizetype flagsAt = file.head().size();
        const QStringList samples {u"1 100 0.1 10 46 101.5 -21.25 0.25 0 -0.5"_s,
                                   u"2 200 0.2 11 47 102.5 -22.25 0.5 0 -1"_s};
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            const OpenedSession cut = decoded(whole.left(size));
            const QByteArray where = "cut at " + QByteArray::number(size);
            QVERIFY2((cut.error == SessionFileError::None) == (size > 4), where);
            if (!cut.session)
                continue;
            const Session &session = *cut.session;
            const qsizetype count = std::clamp<qsizetype>((size - SamplesAt) / SampleSize, 0, 2);
            QVERIFY2(session.recording().wholeSampleCount == count, where);
            for (qsizetype i = 0; i < count; ++i)
                QCOMPARE(text(session.samples()[static_cast<std::size_t>(i)]), samples[i]);
            QVERIFY2(session.sampleCount() == (size < SamplesAt ? 0 : 2), where);
            if (size < flagsAt)
                continue;
            QVERIFY2(session.newSession() == (size > flagsAt ? 1 : 0), where);
            QVERIFY2(session.recording().listsFlag == (size > flagsAt + 1 ? 1 : 0), where);
            // What is left over of a number, or of the last reading, passes for the block's
            // beginning.
            const qsizetype ofLists = size - flagsAt - 2;
            if (ofLists <= 0 || ofLists == file.lists.size()
                || (ofLists < file.lists.size() - 8 && ofLists % 4 == 0))
                QCOMPARE(information(session), NoInformation);
        }
    }

    void refuses()
    {
        using enum SessionFileError;
        const auto error = [this](const QByteArray &magic, const QByteArray &version) {
            return decoded(SessionBytes {.magic = magic, .version = version}.bytes()).error;
        };
        // Versions are compared as texts.
        for (const char *version : {"1.0.0.0", "1.0.0.0b", "10"})
            QVERIFY2(error("RA1", version) == None, version);
        for (const char *version : {"1.0.0", "0.9.9.9", ""})
            QVERIFY2(error("RA1", version) == VersionTooOld, version);
        for (const char *magic : {"RA2", "RA1 ", ""})
            QVERIFY2(error(magic, "1.0.0.0") == NotASession, magic);
    }

    void sampleCount()
    {
        const auto check = [this](quint32 claimed, int held, int count) {
            Bytes file;
            file.text("RA1").text("1.0.0.0").u32(claimed);
            for (int i = 1; i <= held * 7; ++i)
                file.u32(static_cast<quint32>(i));
            const auto session = decoded(file).session;
            const int whole = std::min(held, count);
            bool right = std::ssize(session->samples()) == count
                         && std::ssize(session->wholeSamples()) == whole;
            for (int i = 0; right && i < count; ++i)
                right = session->samples()[static_cast<std::size_t>(i)].dataTimeStamp
                        == static_cast<quint32>(i < whole ? (7 * i) + 1 : 0);
            return right;
        };
        QVERIFY(check(0x80000000U, 0, 0));
        QVERIFY(check(1, 2, 1));
        // Cut short, up to 1000 samples are believed, more only when half of them are there.
        QVERIFY(check(1000, 1, 1000));
        QVERIFY(check(1001, 1, 1));
        QVERIFY(check(1002, 501, 1002));
        QVERIFY(check(0x7fffffff, 3, 3));
    }

    // Refused before any memory is taken; the files have holes instead of samples.
    void tooLarge()
    {
        using enum SessionFileError;
        const auto error = [this](quint32 samples, qint64 size) {
            putFile(m_path, Bytes().text("RA1").text("1.0.0.0").u32(samples));
            return QFile::resize(m_path, size) ? openSession(m_path).error : Unreadable;
        };
        QCOMPARE(error(2, 1'000'000'000), None);
        QCOMPARE(error(2, 1'000'000'001), TooLarge);
        QCOMPARE(error(20'000'000, 600'000'000), None);
        QCOMPARE(error(20'000'001, 600'000'000), TooLarge);
        // No more than damage.
        QCOMPARE(error(20'000'001, 1000), None);
        const OpenedSession opened = openSession(m_path);
        QCOMPARE(error(20'000'001, 600'000'000), TooLarge);
        QCOMPARE(opened.session->samples().size(), 0U);
    }

    void lists()
    {
        const auto read = [this](const QByteArray &lists) {
            const SessionBytes file {.listsFlag = 1, .lists = lists};
            return text(decoded(file.bytes()).session->readingLists());
        };
        const QByteArray one = readingList(1);
        QCOMPARE(read(readingList({-0.5, 0.1, 1e40}) + one),
                 u" 100:-0.5 101:0.1 102:inf| 100:1.5|"_s);
        QCOMPARE(read(readingList({}, 0xffffffffU) + one), u"| 100:1.5|"_s);
        // A number that cannot be read is 0, and the bytes stay for the next one.
        QCOMPARE(read(readingList({1.0, 2.0}).chopped(8)), u" 100:1 101:0||"_s);
        QCOMPARE(read(readingList({1, 2}, 9).chopped(4)), u" 100:1 101:0 0:0||"_s);
    }

    void describes()
    {
        const auto read = [this](const QByteArray &bytes) {
            const auto session = decoded(bytes).session;
            return QString(frame(*session) + u'\n' + information(*session));
        };
        const QString head = u"2 of 2; 2 words; 03/05/2026 7 10:11:12 2.5; "_s;
        const QByteArray block = InformationBytes().bytes();
        const QByteArray plain = SessionBytes {.newSession = 5}.bytes();
        const InformationBytes longTexts {.circuit = QByteArray(255, 'c'), .event = "Fête \xff"};
        const SessionBytes manyWords {.wordCount = 0xffffffffU, .date = "", .time = ""};
        QCOMPARE(read(fullSession().bytes() + "more"),
                 head + u"new 1 lists 1\n"_s + FullInformation);
        QCOMPARE(read(plain), head + u"new 5 lists 0\n"_s + NoInformation);
        // Without lists the block begins in the flag's place.
        QCOMPARE(read(plain + block), head + u"new 5 lists 4\n"_s + FullInformation);
        QCOMPARE(read(plain + InformationBytes {.circuit = ""}.bytes()),
                 head + u"new 5 lists 0\n"_s + FullInformation.mid(4));
        QCOMPARE(read(plain + longTexts.bytes()), head + u"new 5 lists 255\n"_s + QString(255, u'c')
                                                      + u"|Fête \ufffd"_s + FullInformation.mid(8));
        QCOMPARE(read(plain + block.chopped(1)),
                 head + u"new 5 lists 4\n"_s + FullInformation.chopped(2));
        QCOMPARE(read(plain + block.left(6)), head + u"new 5 lists 4\nHill|"_s
                                                  + QString::fromLatin1(outOfRangeText())
                                                  + u"||||||0||"_s);
        QCOMPARE(read(manyWords.bytes()),
                 u"2 of 2; 4294967295 words;  0  0; new 0 lists 0\n"_s + NoInformation);
        // The second sample ends after its time; three bytes are no number, but texts and a byte.
        QCOMPARE(read(plain.left(SamplesAt + SampleSize + 4) + QByteArray("\0\7\0", 3)),
                 u"1 of 2; 0 words;  7  0; new 0 lists 0\n"_s + NoInformation);
    }

    void noFile()
    {
        QCOMPARE(openSession(m_folder.filePath(u"none"_s)).error, SessionFileError::Unreadable);
        QCOMPARE(openSession(m_folder.path()).error, SessionFileError::Unreadable);
        // Opening a pipe would wait for somebody to write to it.
        QCOMPARE(::mkfifo(m_folder.filePath(u"pipe"_s).toLocal8Bit(), 0600), 0);
        QCOMPARE(openSession(m_folder.filePath(u"pipe"_s)).error, SessionFileError::Unreadable);
    }

    // Samples are read late: by then the file may be another one.
    void fileGoneOrReplaced()
    {
        const OpenedSession gone = opened(fullSession().bytes());
        QVERIFY(QFile::remove(m_path));
        QCOMPARE(gone.session->samples().size(), 0U);
        QCOMPARE(information(*gone.session), FullInformation);

        const OpenedSession replaced = opened(fullSession().bytes());
        (void)opened("no session any more");
        QCOMPARE(replaced.session->wholeSamples().size(), 0U);
    }

private:
    /// Opens a file of these bytes.
    [[nodiscard]] OpenedSession opened(const QByteArray &bytes) const
    {
        putFile(m_path, bytes);
        return openSession(m_path);
    }
    /// Decodes the bytes, from memory and from a file alike.
    [[nodiscard]] OpenedSession decoded(const QByteArray &bytes) const
    {
        OpenedSession decoded = decodeSession(bytes, m_path);
        if (everything(opened(bytes)) != everything(decoded))
            qFatal("a file of %s bytes reads differently",
                   QByteArray::number(bytes.size()).constData());
        return decoded;
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"Ride.ra1"_s);
};

QTEST_GUILESS_MAIN(TestSessionFile)
#include "tst_sessionfile.moc"
