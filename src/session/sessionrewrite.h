// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <session/recording/sessionmerge.h>

namespace zuno {

class Session;

/// What became of a rewrite.
enum class RewriteOutcome {
    /// The file holds the session's information now.
    Written,
    /// It held it already, byte for byte; nothing was written.
    Unchanged,
    /// The file is no session file (any more), or none whose information can be rewritten (see
    /// Recording::isRewritable); it was left alone.
    NotRewritable,
    /// The information ends early and nobody has said anything new; it was left alone.
    LeftOut,
    /// Somebody was writing the file at the same time; it was left to him.
    BeingWritten,
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
    /// What they had typed where something was typed in the session, too.
    ReplacedTyping replaced;

    [[nodiscard]] bool ok() const
    {
        return outcome == RewriteOutcome::Written || outcome == RewriteOutcome::Unchanged;
    }
};

/// Why a file is rewritten.
enum class Occasion {
    /// Somebody has said something about the session.
    Edited,
    /// The session was displayed for the first time; that is no reason to touch half a block, the
    /// rest of which may still be on its way.
    FirstDisplay,
};

/// The information block of @p session as it stands in a file.
[[nodiscard]] QByteArray informationBlock(const Session &session);

/// @p bytes with the new-session flag and the information block of @p session; samples and lists
/// stay as they are, and so does what stands behind the block. Empty when @p bytes cannot be
/// rewritten.
[[nodiscard]] QByteArray rewritten(const QByteArray &bytes, const Session &session);

/// Rewrites the information block of the session's file, in one step: a failure leaves the file
/// as it was.
///
/// What somebody else (a second copy of the program) has changed in the file meanwhile stays, and
/// the session takes it over; only what was changed in the session goes into the file. The file
/// passes piece by piece, however large it is.
RewriteResult rewriteSessionFile(Session &session, Occasion occasion = Occasion::Edited);

/// Writes the session's file with its information block to @p target instead, replacing what is
/// there.
RewriteResult rewriteSessionFileTo(Session &session, const QString &target);

} // namespace zuno
