// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <session/sessionrewrite.h>

namespace zuno {

class Session;

/// Writes the information of sessions into their files, and tells when that fails; but a library on
/// a write-protected card must not complain at every selection.
class InformationWriter : public QObject
{
    Q_OBJECT

public:
    enum class Cause {
        /// The rider looks at the session; only the first failure is told.
        Shown,
        /// The rider has changed the session; every failure is told, but not anew with every key.
        Edited,
    };

    using QObject::QObject;

    /// Rewrites the information block of the session's file.
    RewriteResult write(Session &session, Cause cause = Cause::Shown);

Q_SIGNALS:
    void written(const zuno::Session &session);
    /// The file had been changed by another program; the session has its changes now, and
    /// @p message is for the rider.
    void joined(zuno::Session *session, const QString &message);
    /// A failure that is to be told; @p message is for the rider.
    void failed(const QString &message);

private:
    void tell(const QString &message, Cause cause);

    // What was told last since a file was written; empty for nothing.
    QString m_told;
    QElapsedTimer m_sinceTold;
};

} // namespace zuno
