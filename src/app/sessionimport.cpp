// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/sessionimport.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <app/acquisitionlibrary.h>

namespace zuno {

namespace {

QString destinationIn(const QString &acquisitionFolder)
{
    return QDir::cleanPath(acquisitionFolder) + u"/Imported Sessions";
}

} // namespace

QString importedPath(const QString &acquisitionFolder, const QString &fileName)
{
    return destinationIn(acquisitionFolder) + u'/' + fileName;
}

ImportResult importSessions(const QStringList &files, const QString &acquisitionFolder,
                            AcquisitionLibrary &library)
{
    ImportResult result;
    const QString destination = destinationIn(acquisitionFolder);
    if (!QDir(destination).exists())
        QDir().mkdir(destination);
    for (const QString &file : files) {
        const QString name = QFileInfo(file).fileName();
        const QString target = importedPath(acquisitionFolder, name);
        if (!QFile::copy(file, target))
            result.skipped.append(name);
        else if (library.add(target, "importSession") == nullptr)
            result.undecodable.append(name);
        else
            ++result.imported;
    }
    return result;
}

} // namespace zuno
