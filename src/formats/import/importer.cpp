// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/import/importer.h>

#include <algorithm>
#include <cmath>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <formats/convert/rideconverter.h>
#include <formats/import/lapgate.h>
#include <formats/import/ridenotes.h>
#include <formats/table/tablereader.h>
#include <session/recording/sessionwriter.h>

namespace zuno {

namespace {

/// Writes the outings of one file.
class Import
{
public:
    Import(const QString &path, const ImportOptions &options) : m_file(path), m_options(options) {}

    ImportOutcome run();

private:
    [[nodiscard]] bool prepare();
    void recognise();
    [[nodiscard]] ReadEnd readRows(RowSink &sink);
    void read();
    void takeRide(ConvertedRide &ride);
    [[nodiscard]] bool isStopped();
    [[nodiscard]] QDateTime beginOf(const ConvertedRide &ride) const;
    [[nodiscard]] QString freePath(const QDateTime &begin) const;
    [[nodiscard]] SessionInformation informationOf(const QString &notes) const;
    [[nodiscard]] QString write(const ConvertedRide &ride, const ImportedSession &session);

    QFile m_file;
    const ImportOptions &m_options;
    ImportOutcome m_outcome;
    SessionOrigin m_origin;
    std::optional<TableSheet> m_sheet;
    std::optional<ColumnMapping> m_columns;
    double m_firstBegin = 0.0;
    qint64 m_rows = 0;
    bool m_isStopped = false;
};

// What a table's columns say, its maker knows best, then the rider.
void Import::recognise()
{
    const QByteArray head = m_file.peek(HeadSize);
    m_outcome.reader = findRideReader(head);
    if (m_outcome.reader != nullptr && m_outcome.reader != &rideReaders().back())
        return;
    m_sheet = findSheet(head);
    m_outcome.isTable = m_sheet.has_value();
    if (!m_sheet || !m_options.columns)
        return;
    m_columns = m_options.columns(headingKey(m_sheet->heading));
    if (m_columns)
        m_outcome.reader = &rideReaders().back();
}

ReadEnd Import::readRows(RowSink &sink)
{
    if (m_columns)
        return readSheet(m_file, m_outcome.facts, sink, *m_sheet, *m_columns);
    return m_outcome.reader->read(m_file, m_outcome.facts, sink);
}

bool Import::prepare()
{
    // Opening a pipe would wait for somebody to write to it.
    if (!QFileInfo(m_file.fileName()).isFile() || !m_file.open(QIODevice::ReadOnly)) {
        m_outcome.error = QCoreApplication::translate("Formats", "cannot be read");
        return false;
    }
    recognise();
    if (m_outcome.reader == nullptr) {
        m_outcome.error = QCoreApplication::translate("Formats", "is of no kind that can be read");
        return false;
    }
    if (m_options.folder.isEmpty())
        return true;
    m_origin.fingerprint = fingerprintOf(m_file.fileName());
    m_outcome.presentAs = findImported(
        m_options.library.isEmpty() ? m_options.folder : m_options.library, m_origin.fingerprint);
    if (!m_outcome.presentAs.isEmpty())
        return false;
    if (!QDir().mkpath(m_options.folder))
        m_outcome.error = QCoreApplication::translate("Formats", "the folder cannot be made");
    return m_outcome.error.isEmpty();
}

ImportOutcome Import::run()
{
    if (prepare())
        read();
    return std::move(m_outcome);
}

bool Import::isStopped()
{
    if (++m_rows % 1024 != 0)
        return m_isStopped;
    if (m_options.progress && m_file.size() > 0)
        m_options.progress(static_cast<double>(m_file.pos()) / static_cast<double>(m_file.size()));
    m_isStopped = m_isStopped || (m_options.isCancelled && m_options.isCancelled());
    return m_isStopped;
}

void Import::read()
{
    RideConverter converter(m_outcome.facts, [this](ConvertedRide &&ride) { takeRide(ride); });
    converter.setCancelled([this] { return isStopped(); });
    const ReadEnd end = readRows(converter);
    if (end.ok() && !m_isStopped)
        converter.finish();
    if (m_outcome.error.isEmpty())
        m_outcome.error = end.error;
    if (m_outcome.sessions.empty() && m_outcome.error.isEmpty())
        m_outcome.error
            = QCoreApplication::translate("Formats", "there is not a second of a ride in it");
    m_outcome.isCancelled = m_isStopped;
    if (!m_isStopped)
        return;
    for (const ImportedSession &session : m_outcome.sessions)
        QFile::remove(session.path);
    m_outcome.sessions.clear();
}

QDateTime Import::beginOf(const ConvertedRide &ride) const
{
    const double seconds = ride.frame.begin();
    if (m_outcome.facts.clockZero.isValid())
        return m_outcome.facts.clockZero.addMSecs(static_cast<qint64>(std::floor(seconds * 1000)));
    const QDateTime modified = QFileInfo(m_file.fileName()).lastModified();
    // Whether the file was written during the ride or years later nobody knows; what was ridden one
    // after the other stays so.
    const QTime zero = m_outcome.facts.isTimeOfDay ? QTime(0, 0) : modified.time();
    const double since = seconds - (m_outcome.facts.isTimeOfDay ? 0.0 : m_firstBegin);
    return QDateTime(modified.date(), zero, Qt::UTC)
        .addMSecs(static_cast<qint64>(std::floor(since * 1000)));
}

QString Import::freePath(const QDateTime &begin) const
{
    const QString base = QFileInfo(m_file.fileName()).completeBaseName();
    const QDir folder(m_options.folder);
    const QString name = begin.toString(u"yyyy-MM-dd HH'h'mm ") + base;
    QString path = folder.filePath(name + QStringLiteral(".ra1"));
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = folder.filePath(QStringLiteral("%1 (%2).ra1").arg(name).arg(i));
    return path;
}

SessionInformation Import::informationOf(const QString &notes) const
{
    const RideFacts &facts = m_outcome.facts;
    SessionInformation information;
    information.circuitName.set(storableText(facts.circuit));
    information.event.set(storableText(facts.event));
    information.driver.set(storableText(facts.driver));
    information.vehicle.set(storableText(facts.vehicle));
    information.notes.set(storableText(notes));
    return information;
}

QString Import::write(const ConvertedRide &ride, const ImportedSession &session)
{
    QSaveFile file(session.path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    SessionWriter writer(file);
    writer.begin(static_cast<quint32>(ride.size()));
    for (std::size_t i = 0; i < ride.size(); ++i) {
        const RideSample sample = ride.sample(i);
        writer.addSample(sample.milliseconds, {sample.longitude, sample.latitude, sample.speed,
                                               sample.lean, sample.along, sample.across});
    }
    writer.addHeader(wordsOf(m_origin), session.begin.toString(u"dd/MM/yyyy").toLatin1(),
                     session.begin.toString(u"HH:mm:ss").toLatin1(), true);
    if (ride.report.hasSuspension) {
        for (const GridChannel *channel : {&ride.frame.front, &ride.frame.rear}) {
            writer.beginReadings(static_cast<quint32>(channel->values().size()));
            for (const float value : channel->values())
                writer.addReading(static_cast<double>(value));
        }
    }
    writer.addInformation(informationOf(session.notes));
    if (writer.finish() && file.flush() && file.commit())
        return {};
    return file.errorString();
}

void Import::takeRide(ConvertedRide &ride)
{
    if (m_isStopped || !m_outcome.error.isEmpty())
        return;
    if (m_outcome.sessions.empty())
        m_firstBegin = ride.frame.begin();
    if (m_options.inspect)
        m_options.inspect(ride);
    ImportedSession session;
    session.begin = beginOf(ride);
    session.seconds = SampleStep * static_cast<double>(ride.size());
    session.samples = std::ssize(ride.frame.places());
    session.report = ride.report;
    session.notes = importNotes(QFileInfo(m_file.fileName()).fileName(), m_outcome.reader->name,
                                m_outcome.facts, ride.report);
    if (!m_options.folder.isEmpty()) {
        session.path = freePath(session.begin);
        m_origin.part = static_cast<quint32>(m_outcome.sessions.size() + 1);
        m_origin.gates = gatesOf(m_outcome.facts, ride.frame);
        m_outcome.error = write(ride, session);
    }
    if (m_outcome.error.isEmpty())
        m_outcome.sessions.push_back(std::move(session));
}

} // namespace

QStringList ImportOutcome::oddities() const
{
    QStringList all;
    for (const ImportedSession &session : sessions) {
        for (const QString &oddity : ridesOddities(facts, session.report)) {
            if (!all.contains(oddity))
                all.append(oddity);
        }
    }
    return all;
}

ImportOutcome importRecording(const QString &path, const ImportOptions &options)
{
    return Import(path, options).run();
}

QByteArray fingerprintOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return hash.result().left(SessionOrigin::FingerprintSize);
}

QString findImported(const QString &folder, const QByteArray &fingerprint)
{
    QDirIterator files(folder, {QStringLiteral("*.ra1")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QString path = files.next();
        const auto origin = readSessionOrigin(path);
        if (origin && origin->fingerprint == fingerprint)
            return path;
    }
    return {};
}

} // namespace zuno
