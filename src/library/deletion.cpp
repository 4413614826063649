// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/deletion.h>

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <library/acquisitionlibrary.h>
#include <library/libraryfolder.h>

namespace zuno {

namespace {

// More would not fit on a small screen.
constexpr qsizetype NamesListed = 10;

QString listed(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths.first(qMin(NamesListed, paths.size())))
        names.append(QFileInfo(path).fileName());
    const QString text = names.join(u", ");
    return paths.size() <= NamesListed
               ? text
               : Deletion::tr("%1 and %2 more")
                     .arg(text, QLocale().toString(paths.size() - NamesListed));
}

bool isIn(const QStringList &folders, const QString &path)
{
    return std::any_of(folders.cbegin(), folders.cend(), [&path](const QString &folder) {
        return path != folder && isAtOrBelow(path, folder);
    });
}

} // namespace

Deletion::Deletion(const LibraryFolder &folder, const QStringList &chosen)
{
    for (const QString &path : chosen) {
        if (isIn(chosen, path))
            continue;
        if (folder.mayChange(path))
            take(path, false);
        else
            m_outside.append(path);
    }
}

// True when nothing of it stays.
bool Deletion::take(const QString &path, bool isHidden)
{
    if (LibraryFolder::isLoggers(path)) {
        m_loggers.append(path);
        return false;
    }
    const QFileInfo file(path);
    const bool hides = isHidden || file.fileName().startsWith(u'.');
    if (file.isDir() && !file.isSymLink())
        return takeFolder(path, hides);
    count(path, hides);
    m_goes.append(path);
    return true;
}

bool Deletion::takeFolder(const QString &path, bool isHidden)
{
    const qsizetype before = m_goes.size();
    const QStringList names = QDir(path).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    bool isWhole = true;
    for (const QString &name : names)
        isWhole = take(path + u'/' + name, isHidden) && isWhole;
    if (isWhole) {
        m_goes.resize(before);
        m_goes.append(path);
    }
    return isWhole;
}

void Deletion::count(const QString &path, bool isHidden)
{
    if (isHidden)
        ++m_hidden;
    else if (path.endsWith(AcquisitionLibrary::Suffix, Qt::CaseInsensitive))
        ++m_recordings;
    else
        ++m_others;
}

QString Deletion::description() const
{
    QStringList counts {tr("Recordings: %1").arg(QLocale().toString(m_recordings))};
    if (m_others > 0)
        counts.append(tr("other files: %1").arg(QLocale().toString(m_others)));
    if (m_hidden > 0)
        counts.append(tr("hidden files: %1").arg(QLocale().toString(m_hidden)));
    const QString text = listed(m_goes) + u"\n\n" + counts.join(u", ");
    const QString left = remainder();
    return left.isEmpty() ? text : text + u"\n\n" + left;
}

QString Deletion::remainder() const
{
    QStringList parts;
    if (!m_loggers.isEmpty())
        parts.append(tr("This stays, as the logger named it: %1").arg(listed(m_loggers)));
    if (!m_outside.isEmpty())
        parts.append(tr("This stays, as it is not in your library: %1").arg(listed(m_outside)));
    return parts.join(u'\n');
}

// Somebody may have put a link there, or a folder of the logger, since the rider was asked.
QStringList Deletion::carryOut(const LibraryFolder &folder, const Remove &remove) const
{
    QStringList failed;
    for (const QString &path : m_goes) {
        const QFileInfo file(path);
        if (!file.exists() && !file.isSymLink())
            continue;
        if (Deletion(folder, {path}).goes() != QStringList {path} || !remove(path))
            failed.append(path);
    }
    return failed;
}

bool Deletion::removeForGood(const QString &path)
{
    const QFileInfo file(path);
    return file.isDir() && !file.isSymLink() ? QDir(path).removeRecursively() : QFile::remove(path);
}

} // namespace zuno
