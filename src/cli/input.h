// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <session/session.h>
#include <track/mapfile.h>

namespace zuno::cli {

class CommandLine;

/// The session of a file; nothing, and the reason reported, when it gives none.
[[nodiscard]] std::unique_ptr<Session> openReported(const QString &path);
/// The same, with its samples, which the memory may have no room for.
[[nodiscard]] std::unique_ptr<Session> readReported(const QString &path);

/// The maps that the options name. Loaded once, and only looked at: threads may share them.
struct Maps
{
    QString folder;
    std::shared_ptr<const MapLibrary> library;
};
[[nodiscard]] Maps mapsOf(const CommandLine &line);

/// A session as the program displays it: smoothed, given its map, cut into laps.
struct DisplayedSession
{
    Maps maps;
    std::unique_ptr<Session> session;

    /// The file of the session's map; empty without one.
    [[nodiscard]] QString mapPath() const;
};

/// A place for people, "46.100000, 6.200000"; "none" for an invalid one.
[[nodiscard]] QString placeText(const QGeoCoordinate &place);

/// The map of a file, its name the path without @p folder (without one, the file's own); nothing,
/// and the reason reported, when it is none.
[[nodiscard]] std::unique_ptr<Map> mapReported(const QString &path, const QString &folder);

/// Adds the options --maps and --map.
void addMapOptions(CommandLine &line);

/// Opens the file and does what displaying it does, with the maps that the options name. Without
/// a session the reason has been reported.
[[nodiscard]] DisplayedSession displayReported(const QString &path, const CommandLine &line);
[[nodiscard]] DisplayedSession displayReported(const QString &path, const CommandLine &line,
                                               const Maps &maps);

/// The lap with that number; nullptr, and reported, when the session has none.
[[nodiscard]] const Lap *lapReported(const Session &session, int number);

} // namespace zuno::cli
