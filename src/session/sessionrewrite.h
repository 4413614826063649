// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace zuno {

class Session;

/// What became of a rewrite.
enum class RewriteOutcome {
    /// The file holds the session's information now.
    Written,
    /// It held it already, byte for byte; nothing was written.
    Unchanged,
    /// The file is no session file (any more), or it ends before the place of the information;
    /// it was left alone.
    NotRewritable,
    /// Another recording stands there since the session was read; it was left alone.
    OtherRecording,
    /// The file could not be read.
    Unreadable,
    /// The new file could not be written; the old one stands.
    WriteFailed,
};

struct RewriteResult
{
    RewriteOutcome outcome = RewriteOutcome::Unchanged;
    /// The system's reason when reading or writing failed.
    QString reason;
    /// Somebody else had changed the information in the file since the session last knew it.
    bool wasChanged = false;

    [[nodiscard]] bool ok() const
    {
        return outcome == RewriteOutcome::Written || outcome == RewriteOutcome::Unchanged;
    }
};

/// The information block of @p session as it stands in a file.
[[nodiscard]] QByteArray informationBlock(const Session &session);

/// @p bytes with the new-session flag and the information block of @p session; samples and lists
/// stay as they are. Empty when @p bytes cannot be rewritten.
[[nodiscard]] QByteArray rewritten(const QByteArray &bytes, const Session &session);

/// Rewrites the information block of the session's file, in one step: a failure leaves the file
/// as it was.
///
/// What somebody else (a second copy of the program) has changed in the file meanwhile stays, and
/// the session takes it over; only what was changed in the session goes into the file.
RewriteResult rewriteSessionFile(Session &session);

/// Writes the session's file with its information block to @p target instead, replacing what is
/// there.
RewriteResult rewriteSessionFileTo(Session &session, const QString &target);

} // namespace zuno
