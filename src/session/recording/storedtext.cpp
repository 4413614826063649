// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/storedtext.h>

#include <utility>

namespace zuno {

namespace {

// Letters that have a plain form, but no decomposition that would lead to it.
QString plainLetter(QChar letter)
{
    switch (letter.unicode()) {
    case 0x00DF:
        return QStringLiteral("ss"); // ß
    case 0x1E9E:
        return QStringLiteral("SS"); // ẞ
    case 0x00F8:
        return QStringLiteral("o"); // ø
    case 0x00D8:
        return QStringLiteral("O"); // Ø
    case 0x00E6:
        return QStringLiteral("ae"); // æ
    case 0x00C6:
        return QStringLiteral("AE"); // Æ
    case 0x0153:
        return QStringLiteral("oe"); // œ
    case 0x0152:
        return QStringLiteral("OE"); // Œ
    case 0x0142:
        return QStringLiteral("l"); // ł
    case 0x0141:
        return QStringLiteral("L"); // Ł
    case 0x0111:
        return QStringLiteral("d"); // đ
    case 0x0110:
        return QStringLiteral("D"); // Đ
    case 0x0131:
        return QStringLiteral("i"); // ı
    case 0x0130:
        return QStringLiteral("I"); // İ
    default:
        return letter;
    }
}

} // namespace

StoredText::StoredText(QString text) : m_text(std::move(text)) {}

StoredText StoredText::fromFile(const QByteArray &bytes)
{
    StoredText stored(QString::fromLocal8Bit(bytes));
    stored.m_bytes = bytes;
    stored.m_fromFile = true;
    return stored;
}

void StoredText::set(const QString &text)
{
    if (text != m_text)
        *this = StoredText(text);
}

QByteArray StoredText::encoded() const
{
    const QString text = m_text.left(MaximumTextLength);
    const QByteArray bytes = m_fromFile ? m_bytes : text.toLocal8Bit();
    const qsizetype length = m_fromFile ? m_bytes.size() : text.size();
    QByteArray block;
    block.reserve(bytes.size() + 1);
    block.append(static_cast<char>(static_cast<quint8>(length)));
    block.append(bytes);
    return block;
}

QString storableText(const QString &text)
{
    QString plain;
    for (const QChar letter : text)
        plain += plainLetter(letter);
    const QString decomposed = plain.normalized(QString::NormalizationForm_KD);
    QString stored;
    for (const QChar letter : decomposed) {
        if (letter.unicode() < 0x80)
            stored += letter;
    }
    return stored.left(MaximumTextLength);
}

} // namespace zuno
