// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/exportdialogs.h>

#include <QFile>
#include <QFileDialog>
#include <QLocale>
#include <QSaveFile>
#include <QWidget>

#include <session/csvexport.h>
#include <session/lap.h>
#include <session/session.h>

namespace zuno {

ExportDialogs::ExportDialogs(QWidget *window) : QObject(window), m_window(window) {}

void ExportDialogs::exportSession(Session *session)
{
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Export Session file"), QStringLiteral("%1").arg(session->fileName()),
        tr("RA1 files (.ra1);"), nullptr, QFileDialog::DontConfirmOverwrite);
    if (path.isEmpty())
        return;
    if (QFile::exists(path))
        Q_EMIT done(tr("\"%1\" exists already; nothing was exported.").arg(path));
    else if (QFile::copy(session->filePath(), path))
        Q_EMIT done(tr("Exported to \"%1\".").arg(path));
    else
        Q_EMIT done(tr("\"%1\" could not be written.").arg(path));
}

void ExportDialogs::exportSessionData(Session *session)
{
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Export Session Data file"), QStringLiteral("%1.csv").arg(session->fileName()),
        tr("CSV files (.csv);"));
    if (path.isEmpty())
        return;
    session->smooth();
    writeText(path, sessionCsv(*session, QLocale()));
}

void ExportDialogs::exportLap(const Lap *lap)
{
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Export Lap file"),
        QStringLiteral("%1_LapNum%2.csv").arg(lap->session().fileName()).arg(lap->lapNumber()),
        tr("CSV files (.csv);"));
    if (!path.isEmpty())
        writeText(path, lapCsv(*lap, QLocale()));
}

void ExportDialogs::writeText(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        Q_EMIT done(tr("Exported to \"%1\".").arg(path));
    else
        Q_EMIT done(tr("\"%1\" could not be written: %2").arg(path, file.errorString()));
}

} // namespace zuno
