// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <track/mapname.h>

#include <algorithm>

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <base/filename.h>

namespace zuno {

namespace {

struct MapName
{
    Q_DECLARE_TR_FUNCTIONS(zuno::MapName)
};

// The words that say something: dates, times and numbers do not tell circuits apart.
QString withoutNumbers(const QString &text)
{
    static const QRegularExpression gaps(QStringLiteral("[\\s_.-]+"));
    static const QRegularExpression digits(QStringLiteral("\\d"));
    QStringList words = text.split(gaps, Qt::SkipEmptyParts);
    words.removeIf([](const QString &word) { return digits.match(word).hasMatch(); });
    return words.join(u' ');
}

QString usable(QString text)
{
    std::replace_if(
        text.begin(), text.end(),
        [](QChar c) { return isForbiddenInFileName(c) || c == u'.' || c == u'_'; }, u' ');
    text = text.simplified().left(MaximumMapName).trimmed();
    return faultOfMapName(text) == MapNameFault::None ? text : QString();
}

} // namespace

MapNameFault faultOfMapName(const QString &name)
{
    if (name.trimmed().isEmpty())
        return MapNameFault::Empty;
    if (name.contains(u'.'))
        return MapNameFault::Dot;
    if (std::any_of(name.cbegin(), name.cend(), isForbiddenInFileName))
        return MapNameFault::Character;
    if (isDeviceName(name.trimmed()))
        return MapNameFault::Reserved;
    return name.size() > MaximumMapName ? MapNameFault::TooLong : MapNameFault::None;
}

MapNameFault faultOfMapFolder(const QString &folder)
{
    if (folder.trimmed().isEmpty())
        return MapNameFault::None;
    const QStringList parts = folder.split(u'/');
    for (const QString &part : parts) {
        // Blanks around a folder's name would be another folder on some systems, and a stroke too
        // many is no missing name of the map.
        const bool isPlain = !part.isEmpty() && part == part.trimmed();
        const MapNameFault fault = isPlain ? faultOfMapName(part) : MapNameFault::Character;
        if (fault != MapNameFault::None)
            return fault;
    }
    return folder.size() > MaximumMapName ? MapNameFault::TooLong : MapNameFault::None;
}

QString describe(MapNameFault fault)
{
    switch (fault) {
    case MapNameFault::None:
        break;
    case MapNameFault::Empty:
        return MapName::tr("Give the map a name to save it.");
    case MapNameFault::Dot:
        return MapName::tr("Dots cannot stand in a map's name or folder.");
    case MapNameFault::Character:
        return MapName::tr("These cannot stand in a map's name or folder: %1")
            .arg(u"< > : \" / \\ | ? *");
    case MapNameFault::Reserved:
        return MapName::tr("Windows keeps this name for a device; choose another one.");
    case MapNameFault::TooLong:
        return MapName::tr("This name is too long; %1 characters are the most.")
            .arg(MaximumMapName);
    }
    return {};
}

QString mapPath(const QString &folder, const QString &name)
{
    const QString file = u'/' + name.trimmed() + MapSuffix;
    return folder.trimmed().isEmpty() ? file : u'/' + folder.trimmed() + file;
}

QString folderOfMap(const QString &path)
{
    return path.section(u'/', 1, -2);
}

QString nameOfMap(const QString &path)
{
    return path.section(u'/', -1).section(u'.', 0, 0);
}

QString sameMap(const QString &path, const QStringList &paths)
{
    const auto found = std::find_if(paths.cbegin(), paths.cend(), [&path](const QString &other) {
        return other.compare(path, Qt::CaseInsensitive) == 0;
    });
    return found != paths.cend() ? *found : QString();
}

QString freeMapName(const QString &name, const QStringList &taken)
{
    const auto isTaken = [&taken](const QString &wanted) {
        return std::any_of(taken.cbegin(), taken.cend(), [&wanted](const QString &path) {
            return nameOfMap(path).compare(wanted, Qt::CaseInsensitive) == 0;
        });
    };
    QString candidate = name;
    for (int number = 2; isTaken(candidate); ++number)
        candidate = name + u' ' + QString::number(number);
    return candidate;
}

QString proposedMapName(const QString &circuit, const QString &fileName, const QString &event)
{
    const QString words = withoutNumbers(QFileInfo(fileName).completeBaseName());
    for (const QString &text : {circuit, words, event}) {
        QString name = usable(text);
        if (!name.isEmpty())
            return name;
    }
    return MapName::tr("New track");
}

} // namespace zuno
