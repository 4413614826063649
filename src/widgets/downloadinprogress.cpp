// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <widgets/downloadinprogress.h>

#include <algorithm>

#include <QIcon>

#include "ui_downloadinprogress.h"

namespace zuno {

DownloadInProgress::DownloadInProgress(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::DownloadInProgress>())
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    // Closing the main window ends the program, a download under way or not.
    setAttribute(Qt::WA_QuitOnClose, false);
    connect(m_ui->pb_cancel, &QPushButton::clicked, this, &DownloadInProgress::cancel);
}

DownloadInProgress::~DownloadInProgress() = default;

void DownloadInProgress::setLabelText(const QString &text)
{
    m_ui->lb_nbToConvert->setText(text);
}

void DownloadInProgress::setProgress(int percent)
{
    // A progress bar ignores a value outside its range and would stand still.
    m_ui->progressBar->setValue(std::clamp(percent, 0, 100));
}

void DownloadInProgress::cancel()
{
    Q_EMIT cancelUpdate(true);
}

void DownloadInProgress::reject()
{
    // Hidden first: whoever hears of the cancel may delete the window.
    QDialog::reject();
    cancel();
}

} // namespace zuno
