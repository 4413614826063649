// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <concepts>
#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace zuno {

/// Writes JSON with the keys in the order in which they are given. Numbers that JSON cannot say
/// (NaN, infinity) are null.
///
/// The map page and scripts that read the tool's output rely on the bytes, and no packaged library
/// writes them: Qt's sorts the keys, and those that keep the order of keys write 1.0 for the whole
/// number 1.
class JsonWriter
{
public:
    /// How a number is written: Round-tripping keeps the sign of a negative zero, which Qt's own
    /// writer drops.
    enum class Numbers { AsQt, RoundTrip };

    explicit JsonWriter(Numbers numbers) : m_numbers(numbers) {}

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }
    void key(QByteArrayView name);

    void value(double number);
    void value(const QString &text);
    template<std::integral Number>
    void value(Number number)
    {
        separate();
        if constexpr (std::same_as<Number, bool>)
            m_text += number ? "true" : "false";
        else
            m_text += QByteArray::number(number);
    }
    template<typename Value>
    void value(const std::optional<Value> &value)
    {
        if (value)
            this->value(*value);
        else
            null();
    }
    void null();

    template<typename Value>
    void member(QByteArrayView name, const Value &value)
    {
        key(name);
        this->value(value);
    }

    [[nodiscard]] const QByteArray &text() const { return m_text; }

private:
    void open(char bracket);
    void close(char bracket);
    void separate();

    QByteArray m_text;
    Numbers m_numbers;
    bool m_needsComma = false;
};

} // namespace zuno
