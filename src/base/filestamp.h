// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDateTime>
#include <QFileInfo>
#include <QString>

namespace zuno {

/// Size and time of a file, which tell whether somebody has written it.
struct FileStamp
{
    qint64 size = -1;
    QDateTime modified;

    static FileStamp of(const QFileInfo &file) { return {file.size(), file.lastModified()}; }
    /// As they are at the moment.
    static FileStamp of(const QString &path) { return of(QFileInfo(path)); }
    friend bool operator==(const FileStamp &, const FileStamp &) = default;
};

} // namespace zuno
