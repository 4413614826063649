// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFrame>
#include <QString>

class QLabel;
class QPushButton;

namespace zuno {

/// What there is to know about the information of a session, above the fields in which it is typed:
/// that it cannot be stored, or what another program had typed. Hidden while there is nothing.
class InformationNotice final : public QFrame
{
    Q_OBJECT

public:
    explicit InformationNotice(QWidget *parent = nullptr);

    /// Shows @p text alone; hides the notice when it is empty.
    void tell(const QString &text);
    /// Shows @p text, and offers to put back what it speaks of.
    void offer(const QString &text);

Q_SIGNALS:
    /// The rider wants back what was offered.
    void putBackRequested();
    /// The rider does not want it.
    void dismissed();

private:
    QLabel *m_text;
    QPushButton *m_putBack;
    QPushButton *m_keep;
};

} // namespace zuno
