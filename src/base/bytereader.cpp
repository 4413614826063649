// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/bytereader.h>

#include <algorithm>
#include <bit>

#include <QIODevice>
#include <QtEndian>

namespace zuno {

QByteArray outOfRangeText()
{
    return QByteArrayLiteral("Buffer out of range (provided length greater than buffer size)");
}

ByteReader::ByteReader(QByteArrayView bytes) : m_window(bytes), m_size(bytes.size()) {}

ByteReader::ByteReader(QIODevice &device, qint64 chunk)
    : m_device(&device)
    , m_chunkSize(chunk)
    , m_size(device.size())
{
}

void ByteReader::setBytes(QByteArrayView bytes)
{
    m_window = bytes;
    m_size = bytes.size();
    m_position = std::min(m_position, m_size);
}

const char *ByteReader::fetch(qint64 count)
{
    const qint64 windowEnd = m_windowStart + m_window.size();
    const bool inWindow = m_position >= m_windowStart && m_position + count <= windowEnd;
    if (count > left() || (!inWindow && !fillWindow(count))) {
        m_ranShort = true;
        return nullptr;
    }
    return m_window.data() + (m_position - m_windowStart);
}

bool ByteReader::fillWindow(qint64 count)
{
    if (m_device == nullptr)
        return false;
    const qint64 wanted = std::min(std::max(count, m_chunkSize), left());
    const qint64 passed = m_position - m_windowStart;
    const bool isInside = passed >= 0 && passed < m_window.size();
    // What is there already is not read again.
    m_chunk.resize(isInside ? m_window.size() : 0);
    if (isInside)
        m_chunk.remove(0, passed);
    const qint64 kept = m_chunk.size();
    m_chunk.resize(wanted);
    qint64 got = 0;
    if (m_device->seek(m_position + kept))
        got = m_device->read(m_chunk.data() + kept, wanted - kept);
    m_window = QByteArrayView(m_chunk).first(kept + std::max<qint64>(got, 0));
    m_windowStart = m_position;
    if (m_window.size() >= count)
        return true;
    // The file is shorter than it said (somebody is writing it): it ends here.
    m_size = m_position + m_window.size();
    return false;
}

quint8 ByteReader::u8()
{
    const char *at = fetch(1);
    if (at == nullptr)
        return 0;
    m_position += 1;
    return static_cast<quint8>(*at);
}

quint32 ByteReader::u32()
{
    const char *at = fetch(4);
    if (at == nullptr)
        return 0;
    m_position += 4;
    return qFromLittleEndian<quint32>(at);
}

qint32 ByteReader::i32()
{
    return static_cast<qint32>(u32());
}

float ByteReader::f32()
{
    return std::bit_cast<float>(u32());
}

double ByteReader::f64()
{
    const char *at = fetch(8);
    if (at == nullptr)
        return 0.0;
    m_position += 8;
    return std::bit_cast<double>(qFromLittleEndian<quint64>(at));
}

QByteArray ByteReader::bytes(quint8 count)
{
    const char *at = fetch(count);
    if (at == nullptr)
        return outOfRangeText();
    m_position += count;
    return {at, count};
}

QByteArray ByteReader::countedBytes()
{
    const quint8 count = u8();
    return count == 0 ? QByteArray() : bytes(count);
}

QByteArrayView ByteReader::take(qint64 count)
{
    const qint64 wanted = std::clamp<qint64>(count, 0, left());
    const char *at = fetch(wanted);
    if (at == nullptr)
        return {};
    m_position += wanted;
    return {at, wanted};
}

void ByteReader::skip(qint64 count)
{
    seek(m_position + std::clamp<qint64>(count, 0, left()));
}

void ByteReader::seek(qint64 position)
{
    m_position = std::clamp<qint64>(position, 0, m_size);
}

} // namespace zuno
