// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <widgets/plaintexts.h>

#include <QLabel>
#include <QTextDocument>

namespace zuno {

QString plainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

void showPlainTexts(QWidget &window)
{
    const auto labels = window.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->textFormat() == Qt::AutoText)
            label->setTextFormat(Qt::PlainText);
    }
}

MessageBox::MessageBox(Icon icon, const QString &title, const QString &text, QWidget *parent,
                       StandardButtons buttons)
    : QMessageBox(icon, title, text, buttons, parent)
{
    showPlainTexts(*this);
}

QMessageBox::StandardButton MessageBox::run(Icon icon, QWidget *parent, const QString &title,
                                            const QString &text, StandardButtons buttons,
                                            StandardButton standard)
{
    MessageBox box(icon, title, text, parent, buttons);
    box.setDefaultButton(standard);
    return static_cast<StandardButton>(box.exec());
}

// The label of what was added to the text is there only now.
void MessageBox::showEvent(QShowEvent *event)
{
    showPlainTexts(*this);
    QMessageBox::showEvent(event);
}

} // namespace zuno
