// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <optional>

#include <QString>
#include <QStringList>

namespace zuno::cli {

class CommandLine;

/// The files that a command works on.
struct Batch
{
    QStringList files;
    /// More than one file, or a folder, was asked for: what is printed names each file.
    bool isOfMany = false;
    int jobs = 1;
};

/// Adds the arguments FILE... and the option --jobs.
void addBatchOptions(CommandLine &line);

/// What the command line names: files as they are, of a folder all session files in and below it,
/// in the order of their paths. None, and reported, when --jobs is wrong or a folder has none.
[[nodiscard]] std::optional<Batch> batchReported(const CommandLine &line);

/// Does @p work for each file, by its place among the files, on as many threads as there are jobs;
/// what each prints comes out as a whole, in the order of the files. @p work returns an exit status
/// and must not share anything that it changes. The status of the first that fails; the others are
/// done all the same.
[[nodiscard]] int forEachFile(const Batch &batch, const std::function<int(qsizetype)> &work);

/// What one of many files has to tell, with its path: a text below it, an object of JSON that has
/// it as its first member, "file".
[[nodiscard]] QByteArray textOfOne(const QString &file, const QByteArray &text);
[[nodiscard]] QByteArray jsonOfOne(const QString &file, const QByteArray &json);

/// Where each file's output goes: without @p isOfMany to @p output, otherwise to the folder that
/// this is. None, and reported, when it is no folder, or a file is there already.
[[nodiscard]] std::optional<QStringList> outputsReported(const Batch &batch, const QString &output,
                                                         const QString &ending);

/// A path in @p folder for each file, by the file's name with another ending; of files of one name
/// the second gets "name (2)" and so on.
[[nodiscard]] QStringList outputPaths(const QStringList &files, const QString &folder,
                                      const QString &ending);

} // namespace zuno::cli
