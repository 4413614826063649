// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/input.h>

#include <QDir>
#include <QFileInfo>

#include <base/settings.h>
#include <cli/console.h>
#include <maps/detection/mapdetection.h>
#include <session/sessionfile.h>

namespace zuno::cli {

namespace {

// An absolute path: what is left of a map's path without the folder is the map's name.
QString mapsFolder(const CommandLine &line)
{
    const QString folder = line.isSet(QStringLiteral("maps"))
                               ? line.value(QStringLiteral("maps"))
                               : Settings(Settings::defaultRoot()).mapsFolder();
    return QDir(folder).absolutePath();
}

// Lets go of a session that the memory has no room for.
void reportMemory(std::unique_ptr<Session> &session)
{
    if (!session || !session->lacksMemory())
        return;
    printFileError(session->filePath(), QStringLiteral("needs more memory than there is"));
    session.reset();
}

} // namespace

QString DisplayedSession::mapPath() const
{
    const Map *map = session ? session->map() : nullptr;
    return map != nullptr ? maps.folder + map->name() : QString();
}

QString placeText(const QGeoCoordinate &place)
{
    return place.isValid() ? QStringLiteral("%1, %2")
                                 .arg(place.latitude(), 0, 'f', 6)
                                 .arg(place.longitude(), 0, 'f', 6)
                           : QStringLiteral("none");
}

std::unique_ptr<Session> openReported(const QString &path)
{
    OpenedSession opened = openSession(path);
    if (!opened.session)
        printFileError(path, describe(opened.error));
    return std::move(opened.session);
}

std::unique_ptr<Session> readReported(const QString &path)
{
    std::unique_ptr<Session> session = openReported(path);
    if (session)
        (void)session->samples();
    reportMemory(session);
    return session;
}

std::unique_ptr<Map> mapReported(const QString &path, const QString &folder)
{
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) {
        printFileError(path, QStringLiteral("cannot be read"));
        return {};
    }
    const QString root = folder.isEmpty() ? file.absolutePath() : QDir(folder).absolutePath();
    std::unique_ptr<Map> map = readMapFile(file.absoluteFilePath(), root);
    if (!map)
        printFileError(path, QStringLiteral("is no map file"));
    return map;
}

void addMapOptions(CommandLine &line)
{
    line.addValue({QStringLiteral("maps")}, QStringLiteral("DIR"),
                  QStringLiteral("The folder of map files (default: the program's)."));
    line.addValue({QStringLiteral("map")}, QStringLiteral("NAME"),
                  QStringLiteral("The map chosen for the session, by its path below the maps "
                                 "folder (\"/Country/Circuit.map\"); without it, or when there "
                                 "is no such map, it is detected."));
}

Maps mapsOf(const CommandLine &line)
{
    auto library = std::make_shared<MapLibrary>();
    const QString folder = mapsFolder(line);
    library->loadMaps(folder);
    return {folder, std::move(library)};
}

DisplayedSession displayReported(const QString &path, const CommandLine &line)
{
    return displayReported(path, line, mapsOf(line));
}

DisplayedSession displayReported(const QString &path, const CommandLine &line, const Maps &maps)
{
    DisplayedSession displayed;
    displayed.maps = maps;
    displayed.session = openReported(path);
    if (!displayed.session)
        return displayed;
    displayed.session->smooth();
    const QString name = line.value(QStringLiteral("map"));
    const MapCandidates candidates = candidatesOf(*displayed.session, *maps.library, name);
    if (!candidates.isStored && !name.isEmpty())
        printError(QStringLiteral("there is no map \"%1\"; the map is detected").arg(name));
    chooseMapByLength(*displayed.session, candidates.maps);
    reportMemory(displayed.session);
    return displayed;
}

const Lap *lapReported(const Session &session, int number)
{
    const LapList &laps = session.laps();
    if (number >= 1 && static_cast<std::size_t>(number) <= laps.size())
        return laps[static_cast<std::size_t>(number) - 1].get();
    printFileError(session.filePath(),
                   QStringLiteral("has no lap %1 (laps: %2)").arg(number).arg(laps.size()));
    return nullptr;
}

} // namespace zuno::cli
