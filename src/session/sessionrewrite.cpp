// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/sessionrewrite.h>

#include <QFile>
#include <QSaveFile>

#include <session/session.h>
#include <session/sessionbuffer.h>
#include <session/sessionfile.h>

namespace zuno {

namespace {

RewriteResult writeWhole(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return {RewriteOutcome::WriteFailed, file.errorString()};
    return {RewriteOutcome::Written, {}};
}

RewriteResult rewriteTo(const Session &session, const QString &target, bool inPlace)
{
    QFile file(session.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {RewriteOutcome::Unreadable, file.errorString()};
    const QByteArray before = file.readAll();
    file.close();
    const QByteArray after = rewritten(before, session);
    if (after.isEmpty())
        return {RewriteOutcome::NotRewritable, {}};
    if (inPlace && after == before)
        return {RewriteOutcome::Unchanged, {}};
    return writeWhole(target, after);
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

RewriteResult rewriteSessionFile(const Session &session)
{
    return rewriteTo(session, session.filePath(), true);
}

RewriteResult rewriteSessionFileTo(const Session &session, const QString &target)
{
    return rewriteTo(session, target, false);
}

} // namespace zuno
