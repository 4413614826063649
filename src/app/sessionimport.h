// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace zuno {

class AcquisitionLibrary;

/// What became of the files of an import.
struct ImportResult
{
    int imported = 0;
    /// Files that the library's folder holds already, or that could not be copied.
    QStringList skipped;
    /// Files that were copied but hold no session.
    QStringList undecodable;
};

/// Where a file of that name stands once it is imported.
[[nodiscard]] QString importedPath(const QString &acquisitionFolder, const QString &fileName);

/// Copies session files into the folder "Imported Sessions" of the acquisition folder, which is
/// made when it is missing, and loads them. An existing file is never overwritten.
ImportResult importSessions(const QStringList &files, const QString &acquisitionFolder,
                            AcquisitionLibrary &library);

} // namespace zuno
