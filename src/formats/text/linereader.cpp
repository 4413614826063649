// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/text/linereader.h>

#include <algorithm>

#include <QIODevice>
#include <QStringDecoder>

namespace zuno {

namespace {

constexpr qint64 PieceSize = 64 * 1024;
constexpr qsizetype LongestLine = 1024 * 1024;

std::unique_ptr<QStringDecoder> decoderFor(QByteArrayView head)
{
    const auto zeros = [head](qsizetype first) {
        int count = 0;
        for (qsizetype i = first; i < std::min<qsizetype>(head.size(), 64); i += 2)
            count += head[i] == '\0' ? 1 : 0;
        return count;
    };
    if (head.startsWith("\xFF\xFE") || (zeros(1) > 16 && zeros(0) == 0))
        return std::make_unique<QStringDecoder>(QStringDecoder::Utf16LE);
    if (head.startsWith("\xFE\xFF") || (zeros(0) > 16 && zeros(1) == 0))
        return std::make_unique<QStringDecoder>(QStringDecoder::Utf16BE);
    return {};
}

} // namespace

QByteArray utf8Head(QByteArrayView head)
{
    if (const auto decoder = decoderFor(head)) {
        const QString text = decoder->decode(head);
        return text.toUtf8();
    }
    const QByteArrayView mark("\xEF\xBB\xBF");
    return (head.startsWith(mark) ? head.sliced(mark.size()) : head).toByteArray();
}

LineReader::LineReader(QIODevice &device) : m_device(device) {}

LineReader::~LineReader() = default;

void LineReader::detectEncoding()
{
    m_isStarted = true;
    const QByteArray head = m_device.peek(PieceSize);
    m_decoder = decoderFor(head);
    if (!head.contains('\n') && head.contains('\r'))
        m_lineEnd = '\r';
}

bool LineReader::fill()
{
    if (!m_isStarted)
        detectEncoding();
    QByteArray piece = m_device.read(PieceSize);
    if (piece.isEmpty())
        return false;
    if (m_decoder) {
        const QString text = m_decoder->decode(piece);
        piece = text.toUtf8();
    }
    m_buffer.remove(0, m_begin);
    m_begin = 0;
    m_buffer.append(piece);
    if (m_consumed == 0 && m_buffer.startsWith("\xEF\xBB\xBF"))
        m_begin = m_consumed = 3;
    return true;
}

QByteArrayView LineReader::lineUpTo(qsizetype end, qsizetype next)
{
    QByteArrayView line = QByteArrayView(m_buffer).sliced(m_begin, end - m_begin);
    if (m_lineEnd == '\n' && line.endsWith('\r'))
        line.chop(1);
    m_position = m_consumed;
    m_consumed += next - m_begin;
    m_begin = next;
    ++m_number;
    return line;
}

std::optional<QByteArrayView> LineReader::next()
{
    if (m_isPutBack) {
        m_isPutBack = false;
        return m_line;
    }
    qsizetype searched = m_begin;
    while (true) {
        const qsizetype end = m_buffer.indexOf(m_lineEnd, searched);
        if (end >= 0)
            return m_line = lineUpTo(end, end + 1);
        const qsizetype waiting = m_buffer.size() - m_begin;
        if (waiting > LongestLine)
            return m_line = lineUpTo(m_buffer.size(), m_buffer.size());
        if (!fill()) {
            if (m_begin >= m_buffer.size())
                return std::nullopt;
            return m_line = lineUpTo(m_buffer.size(), m_buffer.size());
        }
        searched = m_begin + waiting;
    }
}

} // namespace zuno
