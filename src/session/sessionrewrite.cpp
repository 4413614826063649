// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/sessionrewrite.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <base/bytereader.h>
#include <base/wholefile.h>
#include <session/recording/sessionbuffer.h>
#include <session/session.h>
#include <session/sessionfile.h>

namespace zuno {

namespace {

void writeWhole(const QString &path, const QByteArray &bytes, RewriteResult &result)
{
    result.reason = writeWholeFile(path, bytes);
    result.outcome
        = result.reason.isEmpty() ? RewriteOutcome::Written : RewriteOutcome::WriteFailed;
}

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
        const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
        return runtime.isEmpty() ? QDir::tempPath() : runtime;
    }

    // Lock files stand in no library: it may be on a card, and it is the rider's.
    static QByteArray nameOf(const QString &path)
    {
        const QString canonical = QFileInfo(path).canonicalFilePath();
        return QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Md5).toHex();
    }

    QLockFile m_lock;
};

// Takes into the session what somebody else has put into the file since it was read.
RewriteResult readAgain(Session &session, const QByteArray &bytes)
{
    ByteReader reader(bytes);
    const OpenedSession now = decodeSession(bytes, session.filePath());
    if (!now.session || !findLayout(reader))
        return {RewriteOutcome::NotRewritable, {}};
    if (!isStillRecording(session.recording(), now.session->recording()))
        return {RewriteOutcome::OtherRecording, {}};
    RewriteResult result;
    // Half a block, or none, is nobody's change: the session's own makes it whole.
    if (now.session->recording().hasWholeInformation)
        result.wasChanged = session.takeOver(now.session->state());
    return result;
}

RewriteResult rewriteTo(Session &session, const QString &target, bool inPlace)
{
    const RewriteLock lock(session.filePath());
    QFile file(session.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {RewriteOutcome::Unreadable, file.errorString()};
    const QByteArray before = file.readAll();
    file.close();
    RewriteResult result = readAgain(session, before);
    if (!result.ok())
        return result;
    const QByteArray after = rewritten(before, session);
    if (after.isEmpty())
        return {RewriteOutcome::NotRewritable, {}};
    if (!inPlace || after != before)
        writeWhole(target, after, result);
    const OpenedSession stored = decodeSession(after, target);
    if (inPlace && result.ok() && stored.session)
        session.setStoredState(stored.session->state());
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
    SessionBuffer buffer(bytes);
    const std::optional<SessionLayout> layout = findLayout(buffer);
    if (!layout)
        return {};
    buffer.setWritePosition(layout->newSessionAt);
    buffer.replace(session.newSession());
    buffer.setWritePosition(layout->informationAt);
    buffer.truncate();
    buffer.append(informationBlock(session));
    return buffer.data();
}

RewriteResult rewriteSessionFile(Session &session)
{
    return rewriteTo(session, session.filePath(), true);
}

RewriteResult rewriteSessionFileTo(Session &session, const QString &target)
{
    return rewriteTo(session, target, false);
}

} // namespace zuno
