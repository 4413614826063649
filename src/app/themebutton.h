// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolButton>

#include <base/settings.h>

namespace zuno {

/// One click to the other theme, and Ctrl+L: in the sun the light one is read more easily. It is
/// stored as the rider's choice.
class ThemeButton final : public QToolButton
{
    Q_OBJECT

public:
    explicit ThemeButton(const Settings &settings, QWidget *parent = nullptr);

private:
    void change() const;
    void showOther();

    Settings m_settings;
    QAction *m_action;
};

} // namespace zuno
