// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <atomic>

#include <QHash>
#include <QObject>
#include <QTemporaryDir>
#include <QThread>

#include <formats/import/importer.h>

namespace zuno {

/// Makes sessions of other loggers' files, one file after the other, in a folder for the time
/// being: what the rider wants of them is imported from there.
///
/// A file of half a gigabyte takes a while, so files are read on a thread of their own. It gets
/// copies of all that it needs and touches nothing of the window's.
class ImportReader final : public QObject
{
    Q_OBJECT

public:
    using Columns = QHash<QString, ColumnMapping>;

    /// @p library is searched for sessions that the same files have given before.
    explicit ImportReader(QString library, QObject *parent = nullptr);
    /// Stops reading, and removes all sessions that are still there.
    ~ImportReader() override;

    /// Reads a file when those before it are read; tables as @p columns match them.
    void read(const QString &path, const Columns &columns);
    /// Stops what is read and whatever waits; nothing more is told of them.
    void cancel();
    [[nodiscard]] bool isBusy() const { return m_waiting > 0; }

Q_SIGNALS:
    /// The share of a file that has been read, 0 to 100.
    void progressed(const QString &path, int percent);
    /// A file was read, or could not be.
    void finished(const QString &path, const zuno::ImportOutcome &outcome);

private:
    [[nodiscard]] ImportOutcome readNow(const QString &path, const QString &folder,
                                        const Columns &columns, int batch);

    QTemporaryDir m_folder;
    QString m_library;
    QThread m_thread;
    QObject m_worker;
    /// What was asked for before the last cancel() belongs to an earlier batch.
    std::atomic<int> m_batch = 0;
    int m_files = 0;
    int m_waiting = 0;
};

} // namespace zuno
