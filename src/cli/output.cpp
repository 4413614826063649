// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/output.h>

#include <QFileInfo>

#include <cli/console.h>
#include <session/sessionfile.h>
#include <track/mapfile.h>

namespace zuno::cli {

namespace {

bool isOfKind(const QString &path, FileKind kind)
{
    if (kind == FileKind::Session)
        return openSession(path).session != nullptr;
    return readMapFile(path, QFileInfo(path).path()) != nullptr;
}

QString fault(const QString &path, FileKind kind, bool force)
{
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink())
        return {};
    if (!file.isFile())
        return QStringLiteral("is no file that could be replaced; nothing was written");
    if (!force)
        return QStringLiteral("is there already; --force writes over it");
    if (isOfKind(path, kind))
        return {};
    return kind == FileKind::Session
               ? QStringLiteral("is there already, and is no session file; nothing was written")
               : QStringLiteral("is there already, and is no map file; nothing was written");
}

} // namespace

void addForceOption(CommandLine &line)
{
    line.addFlag(QStringLiteral("force"),
                 QStringLiteral("Writes over a file of the same kind that is there."));
}

bool mayWriteReported(const QString &path, FileKind kind, const CommandLine &line)
{
    const QString problem = fault(path, kind, line.isSet(QStringLiteral("force")));
    if (!problem.isEmpty())
        printFileError(path, problem);
    return problem.isEmpty();
}

} // namespace zuno::cli
