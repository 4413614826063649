// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/aboutwidget.h>

#include <QIcon>
#include <QPixmap>

#include <theme/themedicon.h>
#include <widgets/makerlinks.h>

#include "ui_aboutwidget.h"

namespace zuno {

namespace {

constexpr int LogoWidth = 300;

} // namespace

AboutWidget::AboutWidget(const QString &language, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::AboutWidget>())
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    showLogo();
    m_ui->lb_webSite->setText(webSiteLink(language));
    m_ui->lb_mail->setText(mailLink());
    connect(m_ui->pb_close, &QPushButton::clicked, this, &QDialog::accept);
    // The links come first in the tab order; a rider who only looks closes with Enter.
    m_ui->pb_close->setFocus();
}

AboutWidget::~AboutWidget() = default;

void AboutWidget::showLogo()
{
    // Through an icon, which takes the picture that is made for the screen's resolution.
    const QIcon icon = themedIcon(QStringLiteral("Logo_blanc_Norvale_2020.png"));
    const QPixmap logo = icon.pixmap(QSize(LogoWidth, LogoWidth), devicePixelRatioF());
    m_ui->lb_logo->setVisible(!logo.isNull());
    m_ui->lb_logo->setPixmap(logo);
}

} // namespace zuno
