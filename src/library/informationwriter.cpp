// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/informationwriter.h>

#include <QFileInfo>

#include <session/session.h>

namespace zuno {

namespace {

constexpr qint64 StillShown = 5000; // ms

QString reasonOf(const RewriteResult &result, const QFileInfo &file)
{
    // The system's words name the whole path again, which the status bar has no room for.
    if (file.exists() && !file.isWritable())
        return InformationWriter::tr("the file is write-protected");
    switch (result.outcome) {
    case RewriteOutcome::NotRewritable:
        return InformationWriter::tr("the file is damaged, or ends too early");
    case RewriteOutcome::OtherRecording:
        return InformationWriter::tr("the file holds another recording now");
    default:
        return result.reason;
    }
}

} // namespace

RewriteResult InformationWriter::write(Session &session, Cause cause)
{
    RewriteResult result = rewriteSessionFile(session);
    const QString &path = session.filePath();
    if (result.ok()) {
        m_told.clear();
        Q_EMIT written(session);
    } else {
        tell(tr("%1 was not changed: %2. Changes are kept until the program ends.")
                 .arg(session.fileName(), reasonOf(result, QFileInfo(path))),
             cause);
    }
    if (result.wasChanged) {
        Q_EMIT joined(&session,
                      tr("%1 was changed by another program meanwhile; its changes were kept.")
                          .arg(session.fileName()));
    }
    return result;
}

// Notes are written with every key, and the status bar still shows what was told a moment ago.
void InformationWriter::tell(const QString &message, Cause cause)
{
    const bool isNews = m_told != message || m_sinceTold.hasExpired(StillShown);
    if (!m_told.isEmpty() && !(cause == Cause::Edited && isNews))
        return;
    m_told = message;
    m_sinceTold.start();
    Q_EMIT failed(message);
}

} // namespace zuno
