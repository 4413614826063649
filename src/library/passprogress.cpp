// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/passprogress.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <library/upgradepass.h>

namespace zuno {

PassProgress::PassProgress(UpgradePass &pass, qsizetype sessions, QWidget *parent)
    : QWidget(parent)
    , m_bar(new QProgressBar)
{
    auto *stop = new QPushButton(tr("Stop"));
    stop->setObjectName(QStringLiteral("pb_stopPass"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(new QLabel(UpgradePass::title().trimmed()));
    layout->addWidget(m_bar, 1);
    layout->addWidget(stop);
    setToolTip(UpgradePass::description(sessions));
    connect(stop, &QPushButton::clicked, &pass, &UpgradePass::cancel);
    connect(&pass, &UpgradePass::advanced, this, &PassProgress::showProgress);
    connect(&pass, &UpgradePass::finished, this, &QObject::deleteLater);
}

void PassProgress::showProgress(qsizetype done, qsizetype all)
{
    m_bar->setMaximum(static_cast<int>(all));
    m_bar->setValue(static_cast<int>(done));
}

} // namespace zuno
