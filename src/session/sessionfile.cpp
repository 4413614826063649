// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/sessionfile.h>

#include <algorithm>
#include <bit>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#endif

#include <base/bytereader.h>

namespace zuno {

namespace {

constexpr qint64 SampleSize = 28;
constexpr qint64 ReadingSize = 12;
constexpr qint64 WordSize = 4;

// Up to this many missing samples are taken for a recording cut short by a flat battery.
constexpr qint64 PlausibleCount = 1000;

// Samples are fetched from the file in pieces of this many.
constexpr qint64 SamplesAtOnce = 2048;

// A sample's block of readings in either list.
constexpr std::size_t ReadingsPerSample = 10;

// A file with a buffer of its own would read more than was asked for.
constexpr QIODevice::OpenMode ReadPiecewise = QIODevice::ReadOnly | QIODevice::Unbuffered;

constexpr quint8 ListsFollow = 1;

constexpr const char *Magic = "RA1";
// Of other formats only so much is known that their samples can be shown.
constexpr const char *KnownFormats = "1.";

// The samples as the file has them.
struct SampleExtent
{
    qint64 count = 0;
    qint64 whole = 0;
    /// The file has as many as it says.
    bool isComplete = false;
};

SessionFileError readVersion(ByteReader &reader, QByteArray &version)
{
    if (reader.countedBytes() != Magic)
        return SessionFileError::NotASession;
    version = reader.countedBytes();
    return version < "1.0.0.0" ? SessionFileError::VersionTooOld : SessionFileError::None;
}

SampleExtent readExtent(ByteReader &reader)
{
    SampleExtent extent;
    const qint32 declared = reader.i32();
    extent.count = std::max(declared, 0);
    extent.whole = std::min(extent.count, reader.left() / SampleSize);
    extent.isComplete = extent.whole == declared;
    // A count that nothing in the file supports is damage, not a recording cut short.
    if (extent.count > PlausibleCount && extent.count * SampleSize > 2 * reader.left())
        extent.count = extent.whole;
    return extent;
}

// A sample cut short reads as zeros from the first number that is not there; less than a number
// is left over and belongs to what follows.
void skipSamples(ByteReader &reader, const SampleExtent &extent)
{
    reader.skip(extent.whole * SampleSize);
    if (extent.count > extent.whole)
        reader.skip(reader.left() / WordSize * WordSize);
}

double toDouble(const char *bytes)
{
    return static_cast<double>(std::bit_cast<float>(qFromLittleEndian<quint32>(bytes)));
}

void readSample(const char *bytes, PointAcquisition &sample)
{
    sample.dataTimeStamp = qFromLittleEndian<quint32>(bytes);
    sample.dataTimeSec = sample.dataTimeStamp / 1000.0;
    sample.dataCoordX = toDouble(bytes + 4);
    sample.dataCoordY = toDouble(bytes + 8);
    sample.dataSpeed = toDouble(bytes + 12);
    sample.dataAngle = toDouble(bytes + 16);
    sample.dataAccelXPH = toDouble(bytes + 20);
    sample.dataAccelYPH = toDouble(bytes + 24);
}

// The sample at which the file ends, from the whole numbers that are left of it.
void readCutSample(ByteReader &reader, PointAcquisition &sample)
{
    QByteArray bytes = reader.take(reader.left() / WordSize * WordSize).toByteArray();
    bytes.resize(SampleSize, '\0');
    readSample(bytes.constData(), sample);
}

Points readSamples(ByteReader &reader, const SampleExtent &extent)
{
    // Not made before they are read: a megabyte would pass the processor's caches twice.
    Points samples;
    samples.reserve(static_cast<std::size_t>(extent.count));
    quint32 number = 0;
    for (qint64 done = 0; done < extent.whole;) {
        const qint64 piece = std::min(SamplesAtOnce, extent.whole - done);
        const QByteArrayView bytes = reader.take(piece * SampleSize);
        if (bytes.size() < piece * SampleSize)
            break;
        for (qint64 k = 0; k < piece; ++k) {
            PointAcquisition &sample = samples.emplace_back();
            readSample(bytes.data() + (k * SampleSize), sample);
            sample.acquisitionNumber = ++number;
        }
        done += piece;
    }
    const std::size_t read = samples.size();
    samples.resize(static_cast<std::size_t>(extent.count));
    if (read < samples.size() && extent.count > extent.whole)
        readCutSample(reader, samples[read]);
    for (std::size_t i = read; i < samples.size(); ++i)
        samples[i].acquisitionNumber = ++number;
    return samples;
}

std::vector<Reading> readReadings(ByteReader &reader)
{
    const qint64 count = reader.i32();
    std::vector<Reading> readings;
    if (count < 1)
        return readings;
    readings.reserve(static_cast<std::size_t>(std::min(count, (reader.left() / ReadingSize) + 2)));
    for (qint64 i = 0; i < count && reader.left() >= WordSize; ++i) {
        const qint32 number = reader.i32();
        readings.push_back({number, static_cast<float>(reader.f64())});
    }
    return readings;
}

// Leaves the reader where readReadings would. Less than a whole reading is left at the end: each
// number of it reads as a reading of its own. False when readings are missing, or their number
// cannot be true.
bool skipReadings(ByteReader &reader)
{
    const qint64 count = reader.i32();
    if (count < 1)
        return count == 0;
    const qint64 whole = std::min(count, reader.left() / ReadingSize);
    reader.skip(whole * ReadingSize);
    reader.skip(std::min(count - whole, reader.left() / WordSize) * WordSize);
    return whole == count;
}

// False when words are missing.
bool skipWords(ByteReader &reader, quint32 count)
{
    const qint64 there = std::min<qint64>(count, reader.left() / WordSize);
    reader.skip(there * WordSize);
    return there == count;
}

using AddReadings = void (PointAcquisition::*)(const Reading *, std::size_t);

// A sample gets its block whole or not at all, and only when the list goes on after it: a block
// that ends the list may have been cut short.
void attachReadings(Points &samples, const std::vector<Reading> &list, AddReadings add)
{
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const std::size_t begin = ReadingsPerSample * i;
        if (list.size() <= begin + ReadingsPerSample)
            return;
        (samples[i].*add)(&list[begin], ReadingsPerSample);
    }
}

StoredText readStored(ByteReader &reader)
{
    return StoredText::fromFile(reader.countedBytes());
}

QString readText(ByteReader &reader)
{
    return QString::fromLocal8Bit(reader.countedBytes());
}

// The block's first byte, the length of the circuit's name, has been read when it stands in the
// place of the lists' flag. False when something of the block is missing.
bool readInformation(ByteReader &reader, quint8 listsFlag, SessionInformation &information)
{
    information.circuitName = listsFlag == ListsFollow
                                  ? readStored(reader)
                                  : StoredText::fromFile(reader.bytes(listsFlag));
    information.event = readStored(reader);
    information.driver = readStored(reader);
    information.bestLapText = readStored(reader);
    information.idealTimeText = readStored(reader);
    information.vehicle = readStored(reader);
    information.condition = readStored(reader);
    information.temperature = reader.u8();
    information.tyres = readStored(reader);
    information.notes = readStored(reader);
    const int invalidCount = reader.u8();
    for (int i = 0; i < invalidCount && !reader.atEnd(); ++i)
        information.invalidLaps.append(reader.u8());
    return !reader.ranShort() && information.invalidLaps.size() == invalidCount;
}

// What stands between the samples and the lists.
struct Header
{
    SessionLayout layout;
    quint8 newSession = 0;
    /// Nothing of it is missing.
    bool isWhole = false;
};

Header readHeader(ByteReader &reader, Recording &recording)
{
    Header header;
    recording.words = reader.u32();
    const bool hasWords = skipWords(reader, recording.words);
    recording.date = readText(reader);
    recording.reservedByte = reader.u8();
    recording.time = readText(reader);
    recording.reservedDouble = reader.f64();
    header.layout.newSessionAt = reader.position();
    header.newSession = reader.u8();
    header.layout.listsFlagAt = reader.position();
    recording.listsFlag = reader.u8();
    header.isWhole = hasWords && !reader.ranShort();
    return header;
}

// False when readings are missing.
bool skipLists(ByteReader &reader, const Recording &recording)
{
    if (recording.listsFlag != ListsFollow)
        return true;
    const bool hasFirst = skipReadings(reader);
    const bool hasSecond = skipReadings(reader);
    return hasFirst && hasSecond && !reader.ranShort();
}

// Two files in one, the first of which has no block: the second one's beginning reads as one.
bool isOtherRecording(const SessionInformation &information)
{
    const auto begins = [](const StoredText &magic, const StoredText &version) {
        return magic.text() == QLatin1String(Magic)
               && version.text().startsWith(QLatin1String(KnownFormats));
    };
    return begins(information.circuitName, information.event)
           || (information.circuitName.text().isEmpty()
               && begins(information.event, information.driver));
}

// Reads the block, if there is one, and finds its end.
InformationBlock readBlock(ByteReader &reader, SessionFrame &frame)
{
    const quint8 listsFlag = frame.recording.listsFlag;
    frame.layout.informationEnd = reader.size();
    if (reader.atEnd()) {
        const bool hasBegun = listsFlag > ListsFollow;
        return hasBegun ? InformationBlock::EndsEarly : InformationBlock::Missing;
    }
    SessionInformation &information = frame.state.information;
    const bool isWhole = readInformation(reader, listsFlag, information);
    if (isOtherRecording(information))
        return InformationBlock::Unreachable;
    if (!isWhole)
        return InformationBlock::EndsEarly;
    frame.layout.informationEnd = reader.position();
    return InformationBlock::Whole;
}

// Reads everything around the samples into the session.
SessionFileError describeSession(ByteReader &reader, Session &session)
{
    SessionFrame frame;
    if (const auto error = readFrame(reader, frame); error != SessionFileError::None)
        return error;
    session.setNewSession(frame.state.newSession);
    session.setInformation(frame.state.information);
    session.setStoredState(std::move(frame.state));
    session.setRecording(std::move(frame.recording));
    return SessionFileError::None;
}

Session::Samples fetchSamples(ByteReader &reader)
{
    Session::Samples fetched;
    QByteArray version;
    if (readVersion(reader, version) != SessionFileError::None)
        return fetched;
    const SampleExtent extent = readExtent(reader);
    // It may be another file by now.
    if (extent.count > MaximumSampleCount)
        return fetched;
    fetched.points = readSamples(reader, extent);
    Recording recording;
    readHeader(reader, recording);
    if (recording.listsFlag == ListsFollow) {
        fetched.lists.list1 = readReadings(reader);
        fetched.lists.list2 = readReadings(reader);
        attachReadings(fetched.points, fetched.lists.list1, &PointAcquisition::addSuspension1);
        attachReadings(fetched.points, fetched.lists.list2, &PointAcquisition::addSuspension2);
    }
    return fetched;
}

Session::Samples fetchSamplesFrom(const QString &path)
{
    QFile file(path);
    if (!file.open(ReadPiecewise))
        return {};
    ByteReader reader(file, SamplesAtOnce * SampleSize);
    return fetchSamples(reader);
}

// The system would fetch more than is read, expecting the rest to be wanted, too.
void expectLittle([[maybe_unused]] const QFile &file)
{
#ifdef Q_OS_LINUX
    posix_fadvise(file.handle(), 0, 0, POSIX_FADV_RANDOM);
#endif
}

OpenedSession openWith(ByteReader &reader, const QString &path)
{
    OpenedSession opened;
    auto session = std::make_unique<Session>(path);
    opened.error = describeSession(reader, *session);
    if (opened.error == SessionFileError::None)
        opened.session = std::move(session);
    return opened;
}

} // namespace

QString describe(SessionFileError error)
{
    switch (error) {
    case SessionFileError::Unreadable:
        return QCoreApplication::translate("SessionFile", "cannot be read");
    case SessionFileError::NotASession:
        return QCoreApplication::translate("SessionFile", "is no session file");
    case SessionFileError::VersionTooOld:
        return QCoreApplication::translate("SessionFile", "has a format that is too old");
    case SessionFileError::TooLarge:
        return QCoreApplication::translate(
            "SessionFile", "is too large: a session has 1 GB and 20 million samples at most");
    case SessionFileError::None:
        break;
    }
    return {};
}

OpenedSession openSession(const QString &path)
{
    QFile file(path);
    // Only regular files: opening a pipe would wait for somebody to write to it.
    if (!QFileInfo(path).isFile() || !file.open(ReadPiecewise))
        return {nullptr, SessionFileError::Unreadable};
    expectLittle(file);
    ByteReader reader(file);
    OpenedSession opened = openWith(reader, path);
    if (Session *session = opened.session.get())
        session->setSampleSource([session] { return fetchSamplesFrom(session->filePath()); });
    return opened;
}

OpenedSession decodeSession(const QByteArray &bytes, const QString &path)
{
    ByteReader reader(bytes);
    OpenedSession opened = openWith(reader, path);
    if (opened.session) {
        opened.session->setSampleSource([bytes] {
            ByteReader again(bytes);
            return fetchSamples(again);
        });
    }
    return opened;
}

bool beginsWithSamplesOf(const QString &path, const QString &other)
{
    QFile files[] = {QFile(path), QFile(other)};
    for (QFile &file : files) {
        if (!QFileInfo(file.fileName()).isFile() || !file.open(ReadPiecewise))
            return false;
    }
    ByteReader mine(files[0], SamplesAtOnce * SampleSize);
    ByteReader theirs(files[1], SamplesAtOnce * SampleSize);
    QByteArray version;
    for (ByteReader *reader : {&mine, &theirs}) {
        if (readVersion(*reader, version) != SessionFileError::None)
            return false;
    }
    const qint64 count = readExtent(theirs).whole;
    if (readExtent(mine).whole < count)
        return false;
    for (qint64 done = 0; done < count; done += SamplesAtOnce) {
        const qint64 piece = std::min(SamplesAtOnce, count - done) * SampleSize;
        if (mine.take(piece) != theirs.take(piece))
            return false;
    }
    return true;
}

SessionFileError readFrame(ByteReader &reader, SessionFrame &frame)
{
    Recording &recording = frame.recording;
    if (const auto error = readVersion(reader, recording.version); error != SessionFileError::None)
        return error;
    const SampleExtent extent = readExtent(reader);
    if (reader.size() > MaximumSessionSize || extent.count > MaximumSampleCount)
        return SessionFileError::TooLarge;
    recording.sampleCount = extent.count;
    recording.wholeSampleCount = extent.whole;
    skipSamples(reader, extent);
    const Header header = readHeader(reader, recording);
    frame.state.newSession = header.newSession;
    frame.layout = header.layout;
    // Where samples are missing, the information would be read as one.
    const bool hasLists = skipLists(reader, recording);
    const bool isReached = extent.isComplete && header.isWhole && hasLists;
    frame.layout.informationAt
        = recording.listsFlag == ListsFollow ? reader.position() : frame.layout.listsFlagAt;
    recording.block = readBlock(reader, frame);
    if (!isReached)
        recording.block = InformationBlock::Unreachable;
    if (!recording.version.startsWith(KnownFormats))
        recording.block = InformationBlock::OtherFormat;
    return SessionFileError::None;
}

} // namespace zuno
