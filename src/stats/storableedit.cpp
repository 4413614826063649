// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/storableedit.h>

#include <algorithm>

#include <QLineEdit>
#include <QStringList>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextEdit>

#include <session/recording/storedtext.h>

namespace zuno {

namespace {

// Letters that a hint names of each kind.
constexpr qsizetype NamedLetters = 5;

QString listOf(const QStringList &letters)
{
    QString list = letters.mid(0, NamedLetters).join(QStringLiteral(", "));
    if (letters.size() > NamedLetters)
        list += QStringLiteral(", ...");
    return list;
}

void addOnce(QStringList &letters, const QString &letter)
{
    if (!letters.contains(letter))
        letters.append(letter);
}

/// Puts @p after in the place of @p before, and touches only what differs.
void replaceText(QTextEdit &edit, const QString &before, const QString &after)
{
    const auto same = [](auto a, auto aEnd, auto b, auto bEnd) {
        return static_cast<int>(std::mismatch(a, aEnd, b, bEnd).first - a);
    };
    const int start = same(before.begin(), before.end(), after.begin(), after.end());
    const int rest
        = same(before.rbegin(), before.rend() - start, after.rbegin(), after.rend() - start);
    QTextCursor change(edit.document());
    change.setPosition(start);
    change.setPosition(static_cast<int>(before.size()) - rest, QTextCursor::KeepAnchor);
    change.insertText(after.mid(start, after.size() - start - rest));
}

} // namespace

EditedText storableEdit(const EditedText &edited)
{
    const QString tail = storableText(edited.text.mid(edited.cursor));
    const QString head
        = storableText(edited.text.left(edited.cursor)).left(MaximumTextLength - tail.size());
    return {head + tail, static_cast<int>(head.size())};
}

QString replacementHint(const QString &text)
{
    QStringList replaced;
    QStringList leftOut;
    qsizetype length = 0;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype start = 0; letters.toNextBoundary() >= 0; start = letters.position()) {
        const QString letter = text.mid(start, letters.position() - start);
        const QString stored = storableText(letter);
        length += stored.size();
        if (stored.isEmpty())
            addOnce(leftOut, letter);
        else if (stored != letter)
            addOnce(replaced, letter + QStringLiteral(" \u2192 ") + stored);
    }
    QStringList hints;
    if (!replaced.isEmpty())
        hints.append(StorableEdits::tr("Replaced: %1").arg(listOf(replaced)));
    if (!leftOut.isEmpty())
        hints.append(StorableEdits::tr("Left out: %1").arg(listOf(leftOut)));
    if (length > MaximumTextLength)
        hints.append(StorableEdits::tr("Cut at %1 characters").arg(MaximumTextLength));
    return hints.join(QStringLiteral("   "));
}

void StorableEdits::watch(QLineEdit *edit)
{
    connect(edit, &QLineEdit::textEdited, this, [this, edit](const QString &typed) {
        const EditedText storable = storableEdit({typed, edit->cursorPosition()});
        if (storable.text == typed)
            return;
        edit->setText(storable.text);
        edit->setCursorPosition(storable.cursor);
        Q_EMIT replaced(replacementHint(typed));
    });
}

bool StorableEdits::makeStorable(QTextEdit *edit)
{
    const QString typed = edit->toPlainText();
    const EditedText storable = storableEdit({typed, edit->textCursor().position()});
    if (storable.text == typed)
        return false;
    // Only undoing leads to what can be done again: what was replaced once would be replaced once
    // more, and nothing before it could be undone.
    if (edit->document()->isRedoAvailable() && edit->document()->isUndoAvailable()) {
        QMetaObject::invokeMethod(edit, &QTextEdit::undo, Qt::QueuedConnection);
        return true;
    }
    replaceText(*edit, typed, storable.text);
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(storable.cursor);
    edit->setTextCursor(cursor);
    Q_EMIT replaced(replacementHint(typed));
    return true;
}

} // namespace zuno
