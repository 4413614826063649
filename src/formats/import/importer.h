// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <formats/convert/convertedride.h>
#include <formats/ridereader.h>
#include <formats/table/columnmapping.h>

namespace zuno {

/// One session that a file gives.
struct ImportedSession
{
    /// Where it was written; empty when nothing was.
    QString path;
    QDateTime begin;
    double seconds = 0.0;
    qint64 samples = 0;
    ConversionReport report;
    QString notes;
};

/// What became of a file.
struct ImportOutcome
{
    /// Why it gives nothing, in words; empty when it gives sessions.
    QString error;
    /// What kind it is; nullptr when nobody knows.
    const RideReader *reader = nullptr;
    RideFacts facts;
    std::vector<ImportedSession> sessions;
    /// It is a table of no known maker, whose columns can be matched.
    bool isTable = false;
    /// A session of the folder that the same file has given before; then nothing is written.
    QString presentAs;
    bool isCancelled = false;

    /// What a rider should know, a sentence each: a slow receiver, damaged lines, gaps.
    [[nodiscard]] QStringList oddities() const;
};

/// How a file is imported.
struct ImportOptions
{
    /// The folder that sessions are written to, which is made; empty to write none and only look.
    QString folder;
    /// The folder that is searched for sessions which the same file has given before; empty for the
    /// one that is written to.
    QString library;
    /// How somebody has matched the columns of tables with that headingKey(); nothing for those
    /// that nobody has.
    std::function<std::optional<ColumnMapping>(const QString &key)> columns;
    /// Whether to stop; what was written is removed again then.
    std::function<bool()> isCancelled;
    /// Gets the share of the file that has been read, 0 to 1.
    std::function<void(double)> progress;
    /// Sees each outing before it is written, to find its circuit and laps.
    std::function<void(const ConvertedRide &)> inspect;
};

/// Reads another logger's file, whose kind is told by what it holds, and writes the sessions that
/// it gives. The file is not changed; no existing file is written over, and each session is written
/// whole or not at all. A file that the folder has sessions of already gives none.
[[nodiscard]] ImportOutcome importRecording(const QString &path, const ImportOptions &options);

/// What tells two originals apart (see SessionOrigin); empty when the file cannot be read.
[[nodiscard]] QByteArray fingerprintOf(const QString &path);

/// The first session in @p folder, at any depth, that was made of the file with @p fingerprint;
/// empty without one.
[[nodiscard]] QString findImported(const QString &folder, const QByteArray &fingerprint);

} // namespace zuno
