// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/jsonwriter.h>

#include <cmath>

#include <QLocale>

namespace zuno {

namespace {

// Up to here every integer has a double of its own; Qt writes these without an exponent.
constexpr double LargestInteger = 9007199254740992.0;

void appendEscape(QByteArray &text, ushort unit)
{
    constexpr char Digits[] = "0123456789abcdef";
    text += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        text += Digits[(unit >> shift) & 0xF];
}

bool isLoneSurrogate(const QString &text, qsizetype i)
{
    const QChar unit = text.at(i);
    if (unit.isHighSurrogate())
        return i + 1 == text.size() || !text.at(i + 1).isLowSurrogate();
    return unit.isLowSurrogate() && (i == 0 || !text.at(i - 1).isHighSurrogate());
}

QByteArray escaped(const QString &text)
{
    QByteArray result = "\"";
    qsizetype begin = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const ushort unit = text.at(i).unicode();
        if (unit >= 0x20 && unit != '"' && unit != '\\' && !isLoneSurrogate(text, i))
            continue;
        result += QStringView(text).mid(begin, i - begin).toUtf8();
        begin = i + 1;
        if (unit == '"' || unit == '\\') {
            result += '\\';
            result += static_cast<char>(unit);
        } else {
            appendEscape(result, unit);
        }
    }
    result += QStringView(text).mid(begin).toUtf8();
    return result + '"';
}

} // namespace

void JsonWriter::separate()
{
    if (m_needsComma)
        m_text += ',';
    m_needsComma = true;
}

void JsonWriter::open(char bracket)
{
    separate();
    m_text += bracket;
    m_needsComma = false;
}

void JsonWriter::close(char bracket)
{
    m_text += bracket;
    m_needsComma = true;
}

void JsonWriter::key(QByteArrayView name)
{
    separate();
    m_text += '"';
    m_text += name;
    m_text += "\":";
    m_needsComma = false;
}

void JsonWriter::null()
{
    separate();
    m_text += "null";
}

void JsonWriter::value(double number)
{
    if (!std::isfinite(number)) {
        null();
        return;
    }
    separate();
    const bool isQt = m_numbers == Numbers::AsQt;
    // Without an exponent, many readers would take a large number for an integer of all its digits.
    const char format = isQt || std::fabs(number) <= LargestInteger ? 'g' : 'e';
    if (number == 0.0 && std::signbit(number) && !isQt)
        m_text += "-0.0";
    else if (std::fabs(number) <= LargestInteger && std::trunc(number) == number)
        m_text += QByteArray::number(static_cast<qint64>(number));
    else
        m_text += QByteArray::number(number, format, QLocale::FloatingPointShortest);
}

void JsonWriter::value(const QString &text)
{
    separate();
    m_text += escaped(text);
}

} // namespace zuno
