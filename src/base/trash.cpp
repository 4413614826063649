// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/trash.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace zuno {

// Where Qt 6.4 can make no folder for the trash, it moves the file to wherever the program stands,
// and says that all is well. So the folder is made before.
bool moveToTrash(const QString &path)
{
    const QString trash = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                          + QStringLiteral("/Trash");
    if (!QFileInfo(trash).isDir()) {
        if (!QDir().mkpath(trash))
            return false;
        QFile::setPermissions(trash, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    return QFile::moveToTrash(path);
}

} // namespace zuno
