// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <optional>

#include <QByteArray>
#include <QByteArrayView>

class QIODevice;
class QStringDecoder;

namespace zuno {

/// The first bytes of a file, in UTF-8 without a byte order mark when they are text in UTF-16 or
/// begin with one; otherwise as they are.
[[nodiscard]] QByteArray utf8Head(QByteArrayView head);

/// The lines of a text file of any size, one after the other, in UTF-8 whatever the file is in.
///
/// UTF-16 is told by its byte order mark, or by its zero bytes. Lines end with LF or CRLF; in a
/// file whose first 64 KiB have no LF, with CR. A line of more than a mebibyte is given in pieces,
/// so that a file without lines costs no more memory than any other.
class LineReader
{
public:
    /// Reads the open @p device from where it stands; it must outlive the reader.
    explicit LineReader(QIODevice &device);
    ~LineReader();

    /// The next line without its end, valid until the next call; nothing at the end of the file.
    [[nodiscard]] std::optional<QByteArrayView> next();
    /// Makes next() give the line again that it gave last.
    void putBack() { m_isPutBack = true; }
    /// The number of the line that next() gave last, from 1.
    [[nodiscard]] qint64 number() const { return m_number; }
    /// Where that line begins; in a file in UTF-16, in the text as UTF-8.
    [[nodiscard]] qint64 position() const { return m_position; }

private:
    [[nodiscard]] bool fill();
    void detectEncoding();
    [[nodiscard]] QByteArrayView lineUpTo(qsizetype end, qsizetype next);

    QIODevice &m_device;
    std::unique_ptr<QStringDecoder> m_decoder;
    QByteArray m_buffer;
    QByteArrayView m_line;
    qsizetype m_begin = 0;
    qint64 m_number = 0;
    qint64 m_position = 0;
    qint64 m_consumed = 0;
    char m_lineEnd = '\n';
    bool m_isStarted = false;
    bool m_isPutBack = false;
};

} // namespace zuno
