// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/help.h>

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QUrl>

namespace zuno {

QString Help::file(const QString &folder, const QString &language)
{
    for (const QString &name : {language, language.section(u'_', 0, 0), QStringLiteral("en")}) {
        QString path = folder + QStringLiteral("ZUNOAnalyzerMUL_%1.pdf").arg(name);
        if (QFile::exists(path))
            return path;
    }
    return {};
}

QString Help::open(const QString &folder, const QString &language)
{
    const QString path = file(folder, language);
    if (path.isEmpty())
        return tr("The manual is not there; it belongs to %1")
            .arg(QDir::toNativeSeparators(folder));
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return tr("No program opens the manual: %1").arg(QDir::toNativeSeparators(path));
    return {};
}

} // namespace zuno
