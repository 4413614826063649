// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/exportdialogs.h>

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QWidget>

#include <base/wholefile.h>
#include <formats/sessionride.h>
#include <library/libraryfolder.h>
#include <session/csvexport.h>
#include <session/laps/lap.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <session/sessionlap.h>

namespace zuno {

namespace {

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString patternOf(const RideFormat &format)
{
    return QStringLiteral("%1 (*.%2)").arg(QLatin1String(format.name), QLatin1String(format.id));
}

// The speeds in a session on display are smoothed ones, so the file is asked.
QString writeRide(const QString &source, RideToExport ride, const RideFormat &format,
                  const QString &path)
{
    const OpenedSession opened = openSession(source);
    if (!opened.session)
        return describe(opened.error);
    ride.samples = opened.session->wholeSamples();
    return writeWholeFile(path, format.write(ride));
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

void ExportDialogs::exportRides(const QList<Session *> &sessions, const QString &formatId)
{
    const RideFormat *format = findRideFormat(formatId);
    QList<Ride> rides;
    for (const Session *session : sessions)
        rides.append({session->filePath(), describedRide(*session)});
    if (format == nullptr || rides.isEmpty())
        return;
    if (rides.size() == 1)
        exportRide(rides.first(), *format);
    else
        exportFolder(rides, *format);
}

void ExportDialogs::exportRide(const Ride &ride, const RideFormat &format)
{
    const QString path = QFileDialog::getSaveFileName(
        m_window, tr("Export for other programs"),
        QStringLiteral("%1.%2").arg(ride.known.name, QLatin1String(format.id)), patternOf(format));
    if (path.isEmpty())
        return;
    const QString problem = writeRide(ride.path, ride.known, format, path);
    tellWritten(path, problem.isEmpty(), problem);
}

void ExportDialogs::exportFolder(const QList<Ride> &rides, const RideFormat &format)
{
    const QString folder
        = QFileDialog::getExistingDirectory(m_window, tr("Export for other programs"));
    if (folder.isEmpty())
        return;
    for (const Ride &ride : rides) {
        QString path
            = QStringLiteral("%1/%2.%3").arg(folder, ride.known.name, QLatin1String(format.id));
        for (int i = 2; QFileInfo::exists(path); ++i) {
            path = QStringLiteral("%1/%2 (%3).%4")
                       .arg(folder, ride.known.name, QString::number(i), QLatin1String(format.id));
        }
        const QString problem = writeRide(ride.path, ride.known, format, path);
        if (!problem.isEmpty()) {
            tellWritten(path, false, problem);
            return;
        }
    }
    Q_EMIT done(tr("%1 sessions were exported to \"%2\".")
                    .arg(QLocale().toString(rides.size()), shown(folder)));
}

void ExportDialogs::exportLap(const SessionLap &lap)
{
    const QByteArray text = lapCsv(lap, QLocale());
    const QString fileName
        = QStringLiteral("%1_LapNum%2").arg(lap.fileName()).arg(lap->lapNumber());
    // Which format it shall be is known afterwards, when the lap may be gone.
    const Points points(lap->points().begin(), lap->points().end());
    RideToExport ride = rideOf(*lap.session, *lap);
    ride.samples = points;
    QStringList patterns {tr("CSV files (.csv);")};
    for (const RideFormat &format : rideFormats())
        patterns.append(patternOf(format));
    patterns.last() = tr("CSV with units (*.csv)");
    QString chosen = patterns.first();
    const QString path
        = QFileDialog::getSaveFileName(m_window, tr("Export Lap file"), fileName + u".csv",
                                       patterns.join(QStringLiteral(";;")), &chosen);
    if (path.isEmpty())
        return;
    const auto format
        = std::find_if(rideFormats().begin(), rideFormats().end(), [&](const RideFormat &one) {
              return chosen == patternOf(one) || path.endsWith(u'.' + QLatin1String(one.id));
          });
    const bool hasUnits = chosen == patterns.last();
    const bool isPlain = format == rideFormats().end() || QLatin1String(format->id) == u"csv";
    if (isPlain && !hasUnits)
        writeText(path, text);
    else
        writeText(path, hasUnits ? rideAsCsv(ride) : format->write(ride));
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
