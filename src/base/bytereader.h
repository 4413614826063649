// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QByteArrayView>

class QIODevice;

namespace zuno {

/// The text that a string reads as when its length points past the end of the data.
[[nodiscard]] QByteArray outOfRangeText();

/// A little-endian cursor over bytes that nobody vouches for; every read is checked.
///
/// A read that finds too few bytes gives 0 and leaves the position where it was, so a file that
/// was cut short reads as zeros to its end instead of failing.
///
/// The bytes are either in memory or a file that is read piecewise: then only what is asked for
/// is fetched (a few kilobytes at a time), which lets a library of thousands open quickly.
class ByteReader
{
public:
    /// What is fetched at least from a file: the descriptive data at either end of a recording
    /// usually fit, and a disk reads no less.
    static constexpr qint64 SmallChunk = 4096;

    /// Reads @p bytes, which must outlive the reader.
    explicit ByteReader(QByteArrayView bytes);
    /// Reads the open, seekable @p device, which must outlive the reader, at least @p chunk bytes
    /// at a time.
    explicit ByteReader(QIODevice &device, qint64 chunk = SmallChunk);

    [[nodiscard]] qint64 size() const { return m_size; }
    [[nodiscard]] qint64 position() const { return m_position; }
    [[nodiscard]] qint64 left() const { return m_size - m_position; }
    [[nodiscard]] bool atEnd() const { return m_position >= m_size; }
    /// Whether a read has found too few bytes.
    [[nodiscard]] bool ranShort() const { return m_ranShort; }

    [[nodiscard]] quint8 u8();
    [[nodiscard]] quint32 u32();
    [[nodiscard]] qint32 i32();
    [[nodiscard]] float f32();
    [[nodiscard]] double f64();

    /// A string of @p count bytes; outOfRangeText() with the position unchanged when so many are
    /// not left.
    [[nodiscard]] QByteArray bytes(quint8 count);
    /// A length byte and the string of that length; empty at the end of the data.
    [[nodiscard]] QByteArray countedBytes();

    /// The next @p count bytes, or as many as are left, without copying them. Valid until the
    /// next read. Shorter only when the data end or the device fails.
    [[nodiscard]] QByteArrayView take(qint64 count);
    /// Moves over @p count bytes, at most to the end.
    void skip(qint64 count);
    /// Moves to @p position, at most to the end.
    void seek(qint64 position);

protected:
    /// Continues on other bytes at the same position, for an owner whose bytes have changed.
    void setBytes(QByteArrayView bytes);

private:
    /// The bytes at the position when @p count of them are there; nullptr otherwise.
    const char *fetch(qint64 count);
    bool fillWindow(qint64 count);

    QIODevice *m_device = nullptr;
    QByteArray m_chunk;
    qint64 m_chunkSize = SmallChunk;
    QByteArrayView m_window;
    qint64 m_windowStart = 0;
    qint64 m_size = 0;
    qint64 m_position = 0;
    bool m_ranShort = false;
};

} // namespace zuno
