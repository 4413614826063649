// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace zuno {

/// Characters that a text of the information block has at most: a byte counts them.
constexpr qsizetype MaximumTextLength = 255;

/// A text of the information block, with what the file holds for it.
///
/// The block counts a text's characters but stores its bytes, so a text with letters outside
/// ASCII would destroy what follows it. A text that has not been changed since it was read is
/// therefore written back byte for byte, whatever it holds.
class StoredText
{
public:
    StoredText() = default;
    /// A text that comes from no file.
    explicit StoredText(QString text);
    /// A text as it was read: the bytes that followed its length byte.
    [[nodiscard]] static StoredText fromFile(const QByteArray &bytes);

    [[nodiscard]] const QString &text() const { return m_text; }
    /// Sets another text; the same text is no change.
    void set(const QString &text);
    /// The length byte and the bytes, as they stand in the block. The length counts characters;
    /// a text ends at 255 characters.
    [[nodiscard]] QByteArray encoded() const;

    /// Whether both are the same in the file.
    friend bool operator==(const StoredText &a, const StoredText &b)
    {
        return a.encoded() == b.encoded();
    }

private:
    QString m_text;
    QByteArray m_bytes;
    bool m_fromFile = false;
};

/// @p text as it can be stored without harm: in ASCII, 255 characters at most. Letters with a
/// plain form take it (ß ss, ø o, é e); every other character outside ASCII is left out.
/// Whoever sets a text of a session passes it through this function first.
[[nodiscard]] QString storableText(const QString &text);

} // namespace zuno
