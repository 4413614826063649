// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/lineswitch.h>

#include <QAction>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace zuno {

LineSwitch::LineSwitch(QWidget *parent)
    : QWidget(parent)
    , m_modes(new QActionGroup(this))
    , m_row(new QWidget(this))
    , m_menu(new QToolButton(this))
{
    setObjectName(QStringLiteral("lineSwitch"));
    auto *row = new QHBoxLayout(m_row);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto *menu = new QMenu(this);
    for (const QString &text : {tr("Gain/loss"), tr("Speed"), tr("Lean"), tr("Accel/Decel")}) {
        QAction *action = m_modes->addAction(text);
        action->setCheckable(true);
        action->setToolTip(tr("Colour the line by: %1 (L)").arg(text));
        auto *button = new QToolButton(m_row);
        button->setDefaultAction(action);
        row->addWidget(button);
        menu->addAction(action);
    }
    m_menu->setMenu(menu);
    m_menu->setPopupMode(QToolButton::InstantPopup);
    m_menu->setToolTip(tr("What the colours of the line tell (L)"));
    m_menu->hide();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_row);
    layout->addWidget(m_menu);
    showMode(m_wanted);
    connect(m_modes, &QActionGroup::triggered, this, [this](QAction *action) {
        choose(static_cast<int>(m_modes->actions().indexOf(action)));
    });
}

void LineSwitch::choose(int mode)
{
    m_wanted = mode;
    showMode(mode);
    Q_EMIT modeChosen(mode);
}

void LineSwitch::showMode(int mode)
{
    QAction *shown = m_modes->actions().at(mode);
    shown->setChecked(true);
    m_menu->setText(shown->text());
}

void LineSwitch::setAvailable(int mode, bool available)
{
    m_modes->actions().at(mode)->setEnabled(available);
}

void LineSwitch::showNext()
{
    const QList<QAction *> all = m_modes->actions();
    const qsizetype shown = all.indexOf(m_modes->checkedAction());
    for (qsizetype i = 1; i <= all.size(); ++i) {
        QAction *next = all.at((shown + i) % all.size());
        if (next->isEnabled()) {
            next->trigger();
            return;
        }
    }
}

void LineSwitch::fitInto(int width)
{
    const bool fits = m_row->sizeHint().width() <= width;
    m_row->setVisible(fits);
    m_menu->setVisible(!fits);
}

} // namespace zuno
