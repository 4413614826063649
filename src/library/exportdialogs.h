// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace zuno {

class Session;
struct SessionLap;

/// Asks where to, and writes copies of sessions and their samples as text.
class ExportDialogs : public QObject
{
    Q_OBJECT

public:
    /// @p window is the parent of the file dialogs.
    explicit ExportDialogs(QWidget *window);

    /// Copies the session's file. An existing file is never replaced.
    void exportSession(zuno::Session *session);
    /// Writes every sample of the session as CSV.
    void exportSessionData(zuno::Session *session);
    /// Writes the samples of one lap as CSV.
    void exportLap(const zuno::SessionLap &lap);

Q_SIGNALS:
    /// What came of it, for the status bar.
    void done(const QString &message);

private:
    void writeText(const QString &path, const QByteArray &text);
    void tellWritten(const QString &path, bool isWritten, const QString &error);

    QWidget *m_window;
};

} // namespace zuno
