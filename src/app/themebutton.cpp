// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/themebutton.h>

#include <QAction>

#include <theme/themedicon.h>
#include <theme/themes.h>

namespace zuno {

ThemeButton::ThemeButton(const Settings &settings, QWidget *parent)
    : QToolButton(parent)
    , m_settings(settings)
    , m_action(new QAction(this))
{
    setObjectName(QStringLiteral("tb_theme"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_action->setIcon(themedIcon(QStringLiteral("sun.png")));
    m_action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
    setDefaultAction(m_action);
    connect(m_action, &QAction::triggered, this, &ThemeButton::change);
    connect(&Themes::instance(), &Themes::changed, this, &ThemeButton::showOther);
    showOther();
}

void ThemeButton::change() const
{
    const ThemeChoice other = theme().isDark() ? ThemeChoice::Light : ThemeChoice::Dark;
    m_settings.setValue(Setting::Theme, Themes::textOf(other));
    Themes::instance().choose(other);
}

void ThemeButton::showOther()
{
    const bool isDark = theme().isDark();
    m_action->setText(isDark ? tr("Light") : tr("Dark"));
    const QString tip = isDark ? tr("Light theme, for the sun (%1)") : tr("Dark theme (%1)");
    m_action->setToolTip(tip.arg(m_action->shortcut().toString(QKeySequence::NativeText)));
    m_action->setStatusTip(m_action->toolTip());
}

} // namespace zuno
