// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/informationnotice.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace zuno {

InformationNotice::InformationNotice(QWidget *parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_putBack(new QPushButton(tr("Put it back"), this))
    , m_keep(new QPushButton(tr("Keep mine"), this))
{
    setObjectName(QStringLiteral("informationNotice"));
    m_text->setObjectName(QStringLiteral("lb_notice"));
    m_putBack->setObjectName(QStringLiteral("pb_putBack"));
    m_keep->setObjectName(QStringLiteral("pb_keepMine"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_putBack);
    layout->addWidget(m_keep);
    connect(m_putBack, &QPushButton::clicked, this, &InformationNotice::putBackRequested);
    connect(m_keep, &QPushButton::clicked, this, &InformationNotice::dismissed);
    hide();
}

void InformationNotice::tell(const QString &text)
{
    m_text->setText(text);
    m_putBack->hide();
    m_keep->hide();
    setVisible(!text.isEmpty());
}

void InformationNotice::offer(const QString &text)
{
    tell(text);
    m_putBack->show();
    m_keep->show();
}

} // namespace zuno
