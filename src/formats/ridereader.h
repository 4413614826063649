// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <QByteArrayView>
#include <QString>

#include <formats/rawride.h>

class QIODevice;

namespace zuno {

/// How the reading of a file ended.
struct ReadEnd
{
    /// Why nothing could be read, in words for people; empty when the file was read.
    QString error;
    [[nodiscard]] bool ok() const { return error.isEmpty(); }
};

/// A reader of one kind of file.
struct RideReader
{
    /// Short, and the same in every release: "vbo".
    const char *id;
    /// What riders call the kind: "VBO".
    const char *name;
    /// Whether a file that begins with @p head is of the kind: its first 64 KiB or all of it, text
    /// as UTF-8; it may be cut at any byte.
    bool (*looksLike)(QByteArrayView head);
    /// Hands the rows to the sink and fills the facts. A damaged line is counted and left out; a
    /// file that ends anywhere gives what stands before its end.
    ReadEnd (*read)(QIODevice &device, RideFacts &facts, RowSink &sink);
};

/// How much of a file looksLike() gets.
inline constexpr qint64 HeadSize = 64 * 1024;

/// All readers, those that look for a sure sign first; the last one takes any table with positions.
[[nodiscard]] std::span<const RideReader> rideReaders();

/// The reader of a file that begins so; nullptr when there is none.
[[nodiscard]] const RideReader *findRideReader(QByteArrayView head);

} // namespace zuno
