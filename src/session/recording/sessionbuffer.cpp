// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/sessionbuffer.h>

#include <algorithm>
#include <utility>

namespace zuno {

SessionBuffer::SessionBuffer(QByteArray data)
    : ByteReader(QByteArrayView())
    , m_data(std::move(data))
{
    setBytes(m_data);
}

void SessionBuffer::setWritePosition(qint64 position)
{
    m_writePosition = std::clamp<qint64>(position, 0, m_data.size());
}

void SessionBuffer::replace(quint8 byte)
{
    if (m_writePosition == m_data.size()) {
        append(byte);
        return;
    }
    m_data[m_writePosition] = static_cast<char>(byte);
    m_writePosition += 1;
    setBytes(m_data);
}

void SessionBuffer::truncate()
{
    m_data.truncate(m_writePosition);
    setBytes(m_data);
}

void SessionBuffer::append(quint8 byte)
{
    m_data.append(static_cast<char>(byte));
    m_writePosition += 1;
    setBytes(m_data);
}

void SessionBuffer::append(QByteArrayView bytes)
{
    m_data.append(bytes);
    m_writePosition += bytes.size();
    setBytes(m_data);
}

} // namespace zuno
