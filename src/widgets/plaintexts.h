// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMessageBox>
#include <QString>

namespace zuno {

// Qt takes a text that looks like markup for markup. Names of files, maps and riders, and what a
// rider types, are texts: they are shown as they stand, and load no picture.

/// What to give a tool tip so that it shows @p text as it stands; empty for an empty text.
[[nodiscard]] QString plainToolTip(const QString &text);

/// Lets every label below @p window that would guess show its text as it stands.
void showPlainTexts(QWidget &window);

/// A message box that shows its texts as they stand.
class MessageBox final : public QMessageBox
{
public:
    MessageBox(Icon icon, const QString &title, const QString &text, QWidget *parent,
               StandardButtons buttons = NoButton);

    /// Opens one and waits for the answer; Escape gives the one that is no or cancel.
    static StandardButton run(Icon icon, QWidget *parent, const QString &title, const QString &text,
                              StandardButtons buttons = Ok, StandardButton standard = NoButton);

protected:
    void showEvent(QShowEvent *event) override;
};

} // namespace zuno
