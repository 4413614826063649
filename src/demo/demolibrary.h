// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace zuno {

struct DemoOptions
{
    /// 0: the fixed demo of a dozen described outings. 1 .. 100000: that many sessions in folders
    /// of twenty, to try the program with a large library.
    int sessions = 0;
    /// Samples of each session of a large library, 1 .. 200000; 0: 12000, which is 20 minutes. The
    /// fixed demo does not use it.
    int samples = 0;
};

struct DemoResult
{
    QStringList sessionFiles; ///< paths below the folder that was asked for, in order of writing
    QStringList mapFiles;
    QString error; ///< empty, or what went wrong with which file

    [[nodiscard]] bool ok() const { return error.isEmpty(); }
};

/// Writes made-up circuits to \a folder /Map and rides on them to \a folder /RemoteDevice, creating
/// the folders. The same options give the same bytes at any time on any machine. Existing files are
/// never replaced: one that already holds the right bytes is left alone, any other one ends the
/// work with an error. An empty folder or options out of range give an error and no file.
[[nodiscard]] DemoResult writeDemoLibrary(const QString &folder, const DemoOptions &options = {});

} // namespace zuno
