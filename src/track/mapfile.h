// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <vector>

#include <QList>
#include <QString>

#include <track/map.h>

namespace zuno {

class ByteReader;

/// Parses a map file's bytes. Nothing when they are no map or one of a version before "1.0";
/// otherwise a map without a name, its geometry computed. What a file cut short lacks is zero.
[[nodiscard]] std::unique_ptr<Map> parseMap(ByteReader &reader);

/// Reads the map file at @p path; its name is the path with the maps folder @p folder removed.
/// Nothing when the file cannot be read, is no map, or is larger than 16 MB.
[[nodiscard]] std::unique_ptr<Map> readMapFile(const QString &path, const QString &folder);

/// The maps of a folder, owned.
class MapLibrary
{
public:
    /// Replaces the maps by those of @p folder and all folders below it, in the order of their
    /// paths. Files that are no maps, and a folder that does not exist, give none.
    void loadMaps(const QString &folder);
    void clear() { m_owned.clear(); }

    [[nodiscard]] QList<const Map *> maps() const;
    /// The map of that name (the last of several); nullptr without one.
    [[nodiscard]] const Map *find(const QString &name) const;

private:
    std::vector<std::unique_ptr<Map>> m_owned;
};

} // namespace zuno
