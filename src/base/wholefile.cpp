// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/wholefile.h>

#include <QSaveFile>

namespace zuno {

QString writeWholeFile(const QString &path, const QByteArray &bytes)
{
    return writeWholeFile(path,
                          [&bytes](QIODevice &file) { return file.write(bytes) == bytes.size(); });
}

QString writeWholeFile(const QString &path, const std::function<bool(QIODevice &)> &write)
{
    QSaveFile file(path);
    // A file of less than 16 KiB waits in memory until it is flushed, and Qt 6.4 does not look
    // whether there was room for it when it commits: a full disk would leave an empty file.
    if (file.open(QIODevice::WriteOnly) && write(file) && file.flush() && file.commit())
        return {};
    return file.errorString();
}

} // namespace zuno
