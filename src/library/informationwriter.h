// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <base/filestamp.h>
#include <library/libraryfolder.h>
#include <session/session.h>
#include <session/sessionrewrite.h>

namespace zuno {

/// Writes the information of sessions into their files, at once or when it is time, and tells when
/// that fails; but a library on a write-protected card must not complain at every selection.
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

    explicit InformationWriter(QObject *parent = nullptr);

    /// The library outside of which no file is written; until it is given, any file is.
    void setLibrary(const LibraryFolder &library) { m_library = library; }

    /// Rewrites the information block of the session's file now.
    RewriteResult write(Session &session, Cause cause = Cause::Shown);
    /// The same for what is being typed, not with every key: the file is written before anything
    /// typed is two seconds old.
    void writeSoon(Session &session);
    /// The same for a session that was displayed for the first time, once its file has rested for
    /// two seconds: what somebody is still copying must not be replaced.
    void writeWhenRested(Session &session);
    /// Writes now what was typed and waits to be written.
    void flush();

Q_SIGNALS:
    void written(const zuno::Session &session);
    /// The file had been changed by another program; the session has its changes now, and
    /// @p message is for the rider.
    void joined(zuno::Session *session, const QString &message);
    /// What was typed here has taken the place of what another program had typed.
    void replaced(zuno::Session *session, const zuno::ReplacedTyping &typing);
    /// A failure that is to be told; @p message is for the rider.
    void failed(const QString &message);

private:
    // A file that somebody may be writing.
    struct Resting
    {
        QPointer<Session> session;
        FileStamp stamp;
        QDeadlineTimer due;
    };

    [[nodiscard]] bool isForeign(const QString &path) const;
    void forget(const Session &session);
    void writeRested();
    void handle(Session &session, const RewriteResult &result, Cause cause);
    void tell(const QString &message, Cause cause);

    LibraryFolder m_library;
    QList<QPointer<Session>> m_typed;
    QTimer m_typing;
    QList<Resting> m_resting;
    QTimer m_rest;

    // What was told last since a file was written; empty for nothing.
    QString m_told;
    QElapsedTimer m_sinceTold;
};

} // namespace zuno
