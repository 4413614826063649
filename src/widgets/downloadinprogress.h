// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

namespace zuno {

namespace Ui {
class DownloadInProgress;
}

/// How far a long task has come, and the wish to stop it.
///
/// The task's owner ends the window with hide(): close() is what the rider does and means cancel,
/// as Escape does.
class DownloadInProgress final : public QDialog
{
    Q_OBJECT

public:
    explicit DownloadInProgress(QWidget *parent = nullptr);
    ~DownloadInProgress() override;

    /// Shown as it stands, never as markup.
    void setLabelText(const QString &text);
    /// From 0 to 100; what lies outside is brought to the nearer end.
    void setProgress(int percent);

public Q_SLOTS:
    void cancel();
    /// Cancels, and hides the window.
    void reject() override;

Q_SIGNALS:
    void cancelUpdate(bool isCancelled);

private:
    std::unique_ptr<Ui::DownloadInProgress> m_ui;
};

} // namespace zuno
