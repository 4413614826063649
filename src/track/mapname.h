// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace zuno {

/// Why a map cannot have a name; the names of its folders follow the same rules.
enum class MapNameFault {
    None,
    Empty,
    Dot, ///< The name that is shown ends at the first one.
    Character, ///< One that some system does not allow in file names.
    Reserved, ///< A name that means a device on Windows.
    TooLong, ///< Longer than MaximumMapName.
};

/// Characters; with all folders it fits into what every system allows for a path.
inline constexpr qsizetype MaximumMapName = 80;

/// The ending of the map files that are written.
inline constexpr QLatin1String MapSuffix {".map"};

/// Judges a map's name, without folder and ending and without blanks around it.
[[nodiscard]] MapNameFault faultOfMapName(const QString &name);
/// Judges a folder below the maps folder, as "Spain" or "Spain/South"; empty for none.
[[nodiscard]] MapNameFault faultOfMapFolder(const QString &folder);
/// The fault as a sentence; empty for none.
[[nodiscard]] QString describe(MapNameFault fault);

/// The name of a map file below the maps folder, as Map::name(): "/Spain/Jerez.map".
[[nodiscard]] QString mapPath(const QString &folder, const QString &name);
/// The parts of what mapPath() makes: "Spain" and "Jerez".
[[nodiscard]] QString folderOfMap(const QString &path);
[[nodiscard]] QString nameOfMap(const QString &path);

/// The one of @p paths that is @p path but for upper and lower case, which some systems do not tell
/// apart; empty when there is none.
[[nodiscard]] QString sameMap(const QString &path, const QStringList &paths);
/// @p name if none of @p taken is called so in any folder, otherwise the first free one of
/// "Name 2", "Name 3" and so on.
[[nodiscard]] QString freeMapName(const QString &name, const QStringList &taken);

/// A name for the circuit of a recording: its @p circuit, else the words of its @p fileName that
/// hold no digits, else its @p event, made a name that a map can have. Never empty.
[[nodiscard]] QString proposedMapName(const QString &circuit, const QString &fileName,
                                      const QString &event);

} // namespace zuno
