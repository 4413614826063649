// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <base/bytereader.h>

namespace zuno {

/// A whole session file in memory, with a read and a write position.
class SessionBuffer : public ByteReader
{
public:
    explicit SessionBuffer(QByteArray data);

    [[nodiscard]] const QByteArray &data() const { return m_data; }
    [[nodiscard]] qint64 writePosition() const { return m_writePosition; }

    /// Sets the write position, at most to the end.
    void setWritePosition(qint64 position);
    /// Replaces the byte at the write position and advances by one; appends it at the end.
    void replace(quint8 byte);
    /// Drops everything from the write position on.
    void truncate();
    /// Adds one byte at the end.
    void append(quint8 byte);
    /// Adds @p bytes at the end, one by one.
    void append(QByteArrayView bytes);

private:
    QByteArray m_data;
    qint64 m_writePosition = 0;
};

} // namespace zuno
