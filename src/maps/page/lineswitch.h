// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QAction;
class QActionGroup;
class QToolButton;

namespace zuno {

/// Chooses what the colours of the line on the map tell: a row of buttons, or where there is little
/// room one button with a menu.
class LineSwitch final : public QWidget
{
    Q_OBJECT

public:
    explicit LineSwitch(QWidget *parent = nullptr);

    /// What the rider has chosen: 0 gain and loss, 1 speed, 2 lean, 3 acceleration.
    [[nodiscard]] int mode() const { return m_wanted; }
    /// Which one is shown, since there may be nothing to show of what was chosen.
    void showMode(int mode);
    /// Which modes there is something to show of.
    void setAvailable(int mode, bool available);
    /// The next one there is, and after the last the first.
    void showNext();
    /// Buttons for so many pixels.
    void fitInto(int width);

Q_SIGNALS:
    void modeChosen(int mode);

private:
    void choose(int mode);

    int m_wanted = 0;
    QActionGroup *m_modes;
    QWidget *m_row;
    QToolButton *m_menu;
};

} // namespace zuno
