// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/batch.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>
#include <QThread>

#include <base/jsonwriter.h>
#include <base/memory.h>
#include <cli/commands.h>
#include <cli/console.h>

namespace zuno::cli {

namespace {

// How many files for each thread may be done before the one whose turn it is: what they print waits
// in memory.
constexpr int Ahead = 4;

constexpr int MostJobs = 256;

QStringList sessionsBelow(const QString &folder)
{
    QStringList files;
    QDirIterator all(folder, {QStringLiteral("*.ra1")}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        files.append(all.next());
    files.sort();
    return files;
}

int worked(const std::function<int(qsizetype)> &work, const Batch &batch, qsizetype place)
{
    int status = FileFailed;
    if (!withinMemory([&] { status = work(place); }))
        printFileError(batch.files[place], QStringLiteral("needs more memory than there is"));
    return status;
}

// Hands the places of the files to threads, and what they come to back in order.
class Queue
{
public:
    Queue(qsizetype count, int jobs) : m_count(count), m_ahead(qsizetype {jobs} * Ahead) {}

    // The next file to work on; waits while too much is ahead. None when there is none left.
    [[nodiscard]] std::optional<qsizetype> next()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_next >= m_count || m_next < m_taken + m_ahead; });
        if (m_next >= m_count)
            return {};
        m_results.emplace_back();
        return m_next++;
    }
    void put(qsizetype place, int status, Printed printed)
    {
        const std::scoped_lock lock(m_mutex);
        m_results[static_cast<std::size_t>(place - m_taken)] = {status, std::move(printed), true};
        m_changed.notify_all();
    }
    // Waits for the result of the file whose turn it is.
    [[nodiscard]] std::pair<int, Printed> take()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_results.empty() && m_results.front().isDone; });
        Result first = std::move(m_results.front());
        m_results.pop_front();
        ++m_taken;
        m_changed.notify_all();
        return {first.status, std::move(first.printed)};
    }

private:
    struct Result
    {
        int status = Success;
        Printed printed;
        bool isDone = false;
    };
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Result> m_results;
    const qsizetype m_count;
    const qsizetype m_ahead;
    qsizetype m_next = 0;
    qsizetype m_taken = 0;
};

} // namespace

void addBatchOptions(CommandLine &line)
{
    line.addArgument(QStringLiteral("FILE..."),
                     QStringLiteral("Session files (.ra1), and folders of them."));
    line.addValue({QStringLiteral("jobs")}, QStringLiteral("N"),
                  QStringLiteral("Works on N files at a time (default: one for each processor). "
                                 "The output is in the order of the files."));
}

std::optional<Batch> batchReported(const CommandLine &line)
{
    const std::optional<QList<int>> jobs = line.numbers(QStringLiteral("jobs"));
    if (!jobs)
        return {};
    Batch batch;
    batch.jobs = std::min(jobs->isEmpty() ? QThread::idealThreadCount() : jobs->last(), MostJobs);
    const QStringList arguments = line.arguments();
    batch.isOfMany = arguments.size() > 1;
    for (const QString &argument : arguments) {
        if (!QFileInfo(argument).isDir()) {
            batch.files.append(argument);
            continue;
        }
        const QStringList files = sessionsBelow(argument);
        if (files.isEmpty()) {
            printFileError(argument, QStringLiteral("there is no session file in this folder"));
            return {};
        }
        batch.files += files;
        batch.isOfMany = true;
    }
    return batch;
}

int forEachFile(const Batch &batch, const std::function<int(qsizetype)> &work)
{
    if (batch.files.size() == 1)
        return worked(work, batch, 0);
    Queue queue(batch.files.size(), batch.jobs);
    const auto run = [&] {
        while (const std::optional<qsizetype> place = queue.next()) {
            Capture capture;
            const int status = worked(work, batch, *place);
            queue.put(*place, status, capture.take());
        }
    };
    std::vector<std::jthread> threads;
    for (int i = 0; i < std::min<qsizetype>(batch.jobs, batch.files.size()); ++i)
        threads.emplace_back(run);
    int status = Success;
    for (qsizetype i = 0; i < batch.files.size(); ++i) {
        const auto [one, printed] = queue.take();
        printAgain(printed);
        status = status == Success ? one : status;
    }
    return status;
}

QByteArray textOfOne(const QString &file, const QByteArray &text)
{
    return file.toLocal8Bit() + "\n" + text + '\n';
}

QByteArray jsonOfOne(const QString &file, const QByteArray &json)
{
    JsonWriter begin(JsonWriter::Numbers::RoundTrip);
    begin.beginObject();
    begin.member("file", file);
    begin.endObject();
    QByteArray text = begin.text();
    text.chop(1);
    return text + ',' + json.mid(1);
}

std::optional<QStringList> outputsReported(const Batch &batch, const QString &output,
                                           const QString &ending)
{
    if (!batch.isOfMany)
        return QStringList {output};
    if (!QFileInfo(output).isDir()) {
        printFileError(output, QStringLiteral("is no folder; with several files -o has to be one"));
        return {};
    }
    const QStringList paths = outputPaths(batch.files, output, ending);
    for (const QString &path : paths) {
        if (QFileInfo::exists(path)) {
            printFileError(path, QStringLiteral("is there already; nothing was written"));
            return {};
        }
    }
    return paths;
}

QStringList outputPaths(const QStringList &files, const QString &folder, const QString &ending)
{
    QStringList paths;
    QSet<QString> taken;
    for (const QString &file : files) {
        const QString name = QFileInfo(file).completeBaseName();
        QString numbered = name;
        // Without regard to case: the folder may be on a drive that has none.
        for (int number = 2; taken.contains(numbered.toLower()); ++number)
            numbered = QStringLiteral("%1 (%2)").arg(name).arg(number);
        taken.insert(numbered.toLower());
        paths.append(QDir(folder).filePath(numbered + u'.' + ending));
    }
    return paths;
}

} // namespace zuno::cli
