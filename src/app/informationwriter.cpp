// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/informationwriter.h>

#include <session/session.h>

namespace zuno {

namespace {

QString reasonOf(const RewriteResult &result)
{
    if (result.outcome == RewriteOutcome::NotRewritable)
        return InformationWriter::tr("the file ends too early");
    return result.reason;
}

} // namespace

RewriteResult InformationWriter::write(const Session &session)
{
    RewriteResult result = rewriteSessionFile(session);
    if (result.ok()) {
        m_told = false;
        Q_EMIT written(session);
    } else if (!m_told) {
        m_told = true;
        Q_EMIT failed(tr("%1 was not changed: %2. Changes are kept until the program ends.")
                          .arg(session.fileName(), reasonOf(result)));
    }
    return result;
}

} // namespace zuno
