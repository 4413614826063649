// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/informationwriter.h>

#include <session/session.h>

namespace zuno {

namespace {

QString reasonOf(const RewriteResult &result)
{
    switch (result.outcome) {
    case RewriteOutcome::NotRewritable:
        return InformationWriter::tr("the file ends too early");
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
    } else if (!isTold(path, cause)) {
        m_told.insert(path);
        Q_EMIT failed(tr("%1 was not changed: %2. Changes are kept until the program ends.")
                          .arg(session.fileName(), reasonOf(result)));
    }
    if (result.wasChanged) {
        Q_EMIT joined(&session,
                      tr("%1 was changed by another program meanwhile; its changes were kept.")
                          .arg(session.fileName()));
    }
    return result;
}

bool InformationWriter::isTold(const QString &path, Cause cause) const
{
    return cause == Cause::Edited ? m_told.contains(path) : !m_told.isEmpty();
}

} // namespace zuno
