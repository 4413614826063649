// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/importreader.h>

#include <utility>

namespace zuno {

ImportReader::ImportReader(QString library, QObject *parent)
    : QObject(parent)
    , m_library(std::move(library))
{
    m_worker.moveToThread(&m_thread);
    m_thread.start();
}

ImportReader::~ImportReader()
{
    cancel();
    m_thread.quit();
    m_thread.wait();
}

void ImportReader::read(const QString &path, const Columns &columns)
{
    // Sessions of two files may have one name.
    const QString folder = m_folder.filePath(QString::number(++m_files));
    ++m_waiting;
    const int batch = m_batch;
    QMetaObject::invokeMethod(&m_worker, [this, path, folder, columns, batch] {
        const ImportOutcome outcome = readNow(path, folder, columns, batch);
        QMetaObject::invokeMethod(this, [this, path, outcome, batch] {
            if (batch != m_batch)
                return;
            --m_waiting;
            Q_EMIT finished(path, outcome);
        });
    });
}

void ImportReader::cancel()
{
    ++m_batch;
    m_waiting = 0;
}

// On the thread.
ImportOutcome ImportReader::readNow(const QString &path, const QString &folder,
                                    const Columns &columns, int batch)
{
    ImportOptions options;
    options.folder = folder;
    options.library = m_library;
    options.columns = [&columns](const QString &key) {
        const auto found = columns.constFind(key);
        return found != columns.cend() ? std::optional(*found) : std::nullopt;
    };
    options.isCancelled = [this, batch] { return batch != m_batch; };
    int told = -1;
    options.progress = [&](double share) {
        const int percent = static_cast<int>(100 * share);
        if (std::exchange(told, percent) != percent)
            Q_EMIT progressed(path, percent);
    };
    if (options.isCancelled())
        return {};
    return importRecording(path, options);
}

} // namespace zuno
