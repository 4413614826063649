// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/sessionrewrite.h>

#include <algorithm>
#include <functional>

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <base/bytereader.h>
#include <base/filestamp.h>
#include <base/wholefile.h>
#include <session/session.h>
#include <session/sessionfile.h>

namespace zuno {

namespace {

constexpr qint64 Piece = 1 << 20;

// Copies of the program wait for each other from reading a file to writing it. Without a lock (no
// room for it, another user's) there is still only a moment in which they could meet.
class RewriteLock
{
public:
    explicit RewriteLock(const QString &path)
        : m_lock(folder() + u"/zuno-" + QString::fromLatin1(nameOf(path)) + u".lock")
    {
        (void)m_lock.tryLock(LongestWait);
    }

private:
    static constexpr int LongestWait = 1000;

    // Not where everybody may write: another user's file in the way would cost each write a second.
    static QString folder()
    {
        const QFileInfo runtime(qEnvironmentVariable("XDG_RUNTIME_DIR"));
        return runtime.isDir() && runtime.isWritable() ? runtime.filePath() : QDir::tempPath();
    }

    // Lock files stand in no library: it may be on a card, and it is the rider's.
    static QByteArray nameOf(const QString &path)
    {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        return QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Md5).toHex();
    }

    QLockFile m_lock;
};

bool copy(QIODevice &from, qint64 begin, qint64 end, QIODevice &to)
{
    if (!from.seek(begin))
        return false;
    for (qint64 left = end - begin; left > 0;) {
        const QByteArray piece = from.read(std::min(left, Piece));
        if (piece.isEmpty() || to.write(piece) != piece.size())
            return false;
        left -= piece.size();
    }
    return true;
}

// Writes the file that @p from is, with the session's flag and block, to @p to.
bool putTogether(QIODevice &from, const SessionLayout &layout, const Session &session,
                 QIODevice &to)
{
    const QByteArray block = informationBlock(session);
    return copy(from, 0, layout.newSessionAt, to)
           && to.putChar(static_cast<char>(session.newSession()))
           && copy(from, layout.newSessionAt + 1, layout.informationAt, to)
           && to.write(block) == block.size() && copy(from, layout.informationEnd, from.size(), to);
}

bool holdsAlready(QIODevice &file, const SessionFrame &frame, const Session &session)
{
    const SessionLayout &layout = frame.layout;
    return frame.state.newSession == session.newSession() && file.seek(layout.informationAt)
           && file.read(layout.informationEnd - layout.informationAt) == informationBlock(session);
}

// Takes into the session what somebody else has put into the file since it was read.
RewriteResult readAgain(Session &session, QFile &file, SessionFrame &frame)
{
    ByteReader reader(file);
    if (readFrame(reader, frame) != SessionFileError::None || !frame.recording.isRewritable())
        return {RewriteOutcome::NotRewritable, {}, false, {}};
    if (!isStillRecording(session.recording(), frame.recording))
        return {RewriteOutcome::OtherRecording, {}, false, {}};
    RewriteResult result;
    // Half a block, or none, is nobody's change: the session's own makes it whole.
    if (frame.recording.block == InformationBlock::Whole) {
        result.replaced = replacedBy(session.storedState(), session.state(), frame.state);
        result.wasChanged = session.takeOver(frame.state);
    }
    return result;
}

// Where the file has changed since it was opened, somebody is writing it, and what he has still to
// write would be lost.
void writeTo(const QString &target, QFile &file, const FileStamp &before,
             const std::function<bool(QIODevice &)> &write, RewriteResult &result)
{
    result.outcome = RewriteOutcome::Written;
    result.reason = writeWholeFile(target, [&](QIODevice &out) {
        if (!write(out)) {
            result.outcome = RewriteOutcome::WriteFailed;
            return false;
        }
        if (FileStamp::of(file.fileName()) == before)
            return true;
        result.outcome = RewriteOutcome::BeingWritten;
        return false;
    });
    if (result.outcome == RewriteOutcome::Written && !result.reason.isEmpty())
        result.outcome = RewriteOutcome::WriteFailed;
}

// What the file at @p path holds now is what the session knows of it.
void noteStored(Session &session, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    ByteReader reader(file);
    SessionFrame frame;
    if (readFrame(reader, frame) == SessionFileError::None)
        session.setStoredState(std::move(frame.state));
}

RewriteResult rewriteTo(Session &session, const QString &target, bool inPlace, Occasion occasion)
{
    const RewriteLock lock(session.filePath());
    const FileStamp before = FileStamp::of(session.filePath());
    QFile file(session.filePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {RewriteOutcome::Unreadable, file.errorString(), false, {}};
    SessionFrame frame;
    RewriteResult result = readAgain(session, file, frame);
    if (!result.ok())
        return result;
    if (occasion == Occasion::FirstDisplay
        && frame.recording.block == InformationBlock::EndsEarly) {
        result.outcome = RewriteOutcome::LeftOut;
        return result;
    }
    if (!inPlace || !holdsAlready(file, frame, session)) {
        const auto write
            = [&](QIODevice &out) { return putTogether(file, frame.layout, session, out); };
        writeTo(target, file, before, write, result);
    }
    if (inPlace && result.ok())
        noteStored(session, target);
    return result;
}

} // namespace

QByteArray informationBlock(const Session &session)
{
    const SessionInformation &information = session.information();
    QByteArray block;
    block += information.circuitName.encoded();
    block += information.event.encoded();
    block += information.driver.encoded();
    block += session.bestLapStored().encoded();
    block += session.idealTimeStored().encoded();
    block += information.vehicle.encoded();
    block += information.condition.encoded();
    block += static_cast<char>(static_cast<quint8>(information.temperature));
    block += information.tyres.encoded();
    block += information.notes.encoded();
    const QList<quint8> invalid = session.invalidLaps().mid(0, 255);
    block += static_cast<char>(static_cast<quint8>(invalid.size()));
    for (const quint8 number : invalid)
        block += static_cast<char>(number);
    return block;
}

QByteArray rewritten(const QByteArray &bytes, const Session &session)
{
    ByteReader reader(bytes);
    SessionFrame frame;
    if (readFrame(reader, frame) != SessionFileError::None || !frame.recording.isRewritable())
        return {};
    QBuffer before;
    before.setData(bytes);
    QBuffer after;
    const bool isWhole = before.open(QIODevice::ReadOnly) && after.open(QIODevice::WriteOnly)
                         && putTogether(before, frame.layout, session, after);
    return isWhole ? after.data() : QByteArray();
}

RewriteResult rewriteSessionFile(Session &session, Occasion occasion)
{
    return rewriteTo(session, session.filePath(), true, occasion);
}

RewriteResult rewriteSessionFileTo(Session &session, const QString &target)
{
    return rewriteTo(session, target, false, Occasion::Edited);
}

} // namespace zuno
