// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

class QLineEdit;
class QTextEdit;

namespace zuno {

/// A text that is being typed, and the position of the cursor in it.
struct EditedText
{
    QString text;
    int cursor = 0;
};

/// @p edited as storableText() gives it, with the cursor behind the same characters. Where the text
/// gets too long, what stands before the cursor is cut, for that is what was typed or pasted last.
[[nodiscard]] EditedText storableEdit(const EditedText &edited);

/// One line for the rider: what storableText() replaces and leaves out of @p text. Empty when it
/// takes the text as it is.
[[nodiscard]] QString replacementHint(const QString &text);

/// Passes what the rider types or pastes into edits through storableText(), so that they show
/// exactly what is stored.
///
/// A text that the program sets stays as it is: that of a file may hold letters that cannot be
/// stored again, and is no change until the rider makes one.
class StorableEdits : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Watches what is typed into @p edit from now on.
    void watch(QLineEdit *edit);
    /// Makes the text of @p edit storable. True when it was not, in which case the edit has told
    /// its new text already; to be called when the text was changed.
    bool makeStorable(QTextEdit *edit);

Q_SIGNALS:
    /// Something was replaced; @p hint says what, in one line.
    void replaced(const QString &hint);
};

} // namespace zuno
