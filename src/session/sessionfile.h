// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QString>

#include <session/session.h>

namespace zuno {

class ByteReader;

/// No ride is longer (20 million samples are three weeks), and larger ones could take more memory
/// than there is.
inline constexpr qint64 MaximumSessionSize = 1'000'000'000; // bytes
inline constexpr qint64 MaximumSampleCount = 20'000'000;

/// Why a file gave no session.
enum class SessionFileError {
    None,
    /// The file cannot be opened or is no regular file.
    Unreadable,
    /// The file does not begin as a recording does.
    NotASession,
    /// A recording of a format version before "1.0.0.0".
    VersionTooOld,
    /// More than MaximumSessionSize or MaximumSampleCount.
    TooLarge,
};

/// A session, or why there is none.
struct OpenedSession
{
    std::unique_ptr<Session> session;
    SessionFileError error = SessionFileError::None;
};

/// @p error in words, without the file's name.
[[nodiscard]] QString describe(SessionFileError error);

/// Opens the session file at @p path by its descriptive data alone: what stands before and after
/// the samples. The samples are read from the file when they are first asked for; when it is
/// gone or no session any more by then, there are none.
///
/// A file that was cut short or damaged gives a session with fewer or zeroed samples; whatever
/// begins after its end reads as 0 or as an empty text.
[[nodiscard]] OpenedSession openSession(const QString &path);

/// Decodes a session whose bytes are in memory, samples included.
[[nodiscard]] OpenedSession decodeSession(const QByteArray &bytes, const QString &path);

/// Whether the session file at @p path begins with all samples that the one at @p other holds
/// whole, byte for byte. False when either is no session file.
[[nodiscard]] bool beginsWithSamplesOf(const QString &path, const QString &other);

/// Where the parts of a session file stand, for the rewriting of its information block.
struct SessionLayout
{
    qint64 newSessionAt = 0;
    qint64 listsFlagAt = 0;
    /// Where the information block begins. Without lists it begins at their flag: its first byte
    /// takes the flag's place.
    qint64 informationAt = 0;
    /// Where it ends. What stands behind it is unknown here, and somebody's; a block that ends
    /// early reaches to the end of the file.
    qint64 informationEnd = 0;
};

/// What a session file holds around its samples.
struct SessionFrame
{
    Recording recording;
    SessionLayout layout;
    StoredState state;
};

/// Reads all but the samples of the session file that @p reader stands at the start of. The layout
/// is of use only where Recording::isRewritable: where the file was cut short before its
/// information, what was written there would be read as a part of what is missing.
[[nodiscard]] SessionFileError readFrame(ByteReader &reader, SessionFrame &frame);

} // namespace zuno
