// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/emptypage.h>

#include <QDir>

#include <theme/themedicon.h>
#include <theme/themes.h>

#include "ui_emptypage.h"

namespace zuno {

EmptyPage::EmptyPage(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui::EmptyPage>())
{
    m_ui->setupUi(this);
    const auto showSign = [this] {
        const QSize size(80, 66);
        m_ui->lb_sign->setPixmap(
            themedIcon(QStringLiteral("import.png")).pixmap(size, devicePixelRatioF()));
    };
    showSign();
    connect(&Themes::instance(), &Themes::changed, this, showSign);
    connect(m_ui->pb_import, &QPushButton::clicked, this, &EmptyPage::importWanted);
    connect(m_ui->pb_demo, &QPushButton::clicked, this, &EmptyPage::demoWanted);
}

EmptyPage::~EmptyPage() = default;

void EmptyPage::showFolder(const QString &folder)
{
    m_ui->lb_folder->setText(
        tr("Files can also be copied to %1").arg(QDir::toNativeSeparators(folder)));
}

} // namespace zuno
