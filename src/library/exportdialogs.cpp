// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/exportdialogs.h>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLocale>
#include <QPointer>
#include <QWidget>

#include <base/wholefile.h>
#include <session/csvexport.h>
#include <session/laps/lap.h>
#include <session/session.h>
#include <session/sessionlap.h>

namespace zuno {

namespace {

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

ExportDialogs::ExportDialogs(QWidget *window) : QObject(window), m_window(window) {}

// While a dialog is open a file may change on the disk, and its session be deleted and loaded anew:
// what is needed afterwards is taken before, or guarded.

void ExportDialogs::exportSession(Session *session)
{
    QFile source(session->filePath());
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Export Session file"), QStringLiteral("%1").arg(session->fileName()),
        tr("RA1 files (.ra1);"), nullptr, QFileDialog::DontConfirmOverwrite);
    if (path.isEmpty())
        return;
    if (QFile::exists(path)) {
        Q_EMIT done(tr("\"%1\" exists already; nothing was exported.").arg(shown(path)));
        return;
    }
    const bool isWritten = source.copy(path);
    tellWritten(path, isWritten, source.errorString());
}

void ExportDialogs::exportSessionData(Session *session)
{
    const QPointer<Session> guarded(session);
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Export Session Data file"), QStringLiteral("%1.csv").arg(session->fileName()),
        tr("CSV files (.csv);"));
    if (path.isEmpty())
        return;
    const bool isReadable
        = guarded != nullptr && (guarded->sampleCount() == 0 || !guarded->samples().empty());
    if (!isReadable) {
        tellWritten(path, false, tr("the session's file has changed or is gone"));
        return;
    }
    guarded->smooth();
    writeText(path, sessionCsv(*guarded, QLocale()));
}

void ExportDialogs::exportLap(const SessionLap &lap)
{
    const QByteArray text = lapCsv(lap, QLocale());
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Export Lap file"),
        QStringLiteral("%1_LapNum%2.csv").arg(lap.fileName()).arg(lap->lapNumber()),
        tr("CSV files (.csv);"));
    if (!path.isEmpty())
        writeText(path, text);
}

void ExportDialogs::writeText(const QString &path, const QByteArray &text)
{
    const QString problem = writeWholeFile(path, text);
    tellWritten(path, problem.isEmpty(), problem);
}

void ExportDialogs::tellWritten(const QString &path, bool isWritten, const QString &error)
{
    Q_EMIT done(isWritten ? tr("Exported to \"%1\".").arg(shown(path))
                          : tr("\"%1\" could not be written: %2").arg(shown(path), error));
}

} // namespace zuno
