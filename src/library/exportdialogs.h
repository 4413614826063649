// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <formats/rideexport.h>

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
    /// Writes sessions in one of rideFormats(): one as a file, several into a folder, where they
    /// replace nothing.
    void exportRides(const QList<zuno::Session *> &sessions, const QString &formatId);
    /// Writes the samples of one lap as CSV, or in one of rideFormats().
    void exportLap(const zuno::SessionLap &lap);

Q_SIGNALS:
    /// What came of it, for the status bar.
    void done(const QString &message);

private:
    /// A session's file, and what is known of it.
    struct Ride
    {
        QString path;
        RideToExport known;
    };
    void exportRide(const Ride &ride, const RideFormat &format);
    void exportFolder(const QList<Ride> &rides, const RideFormat &format);
    void writeText(const QString &path, const QByteArray &text);
    void tellWritten(const QString &path, bool isWritten, const QString &error);

    QWidget *m_window;
};

} // namespace zuno
