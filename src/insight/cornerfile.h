// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <insight/corneredits.h>

namespace zuno {

/// The rider's changes to the corners of a map, kept in a file of its own beside it ("Name.corners"
/// of "Name.map"): the map file stays what other programs read.
///
/// The file is JSON: "format" ("zuno corners"), "version" (1) and "edits", a list of objects with
/// "edit" ("rename", "join", "split", "delete"), "latitude" and "longitude" in degrees, and "name".
struct CornerFile
{
    enum class State {
        /// There is none; no corner was changed.
        Missing,
        Good,
        /// It cannot be read, or is none of ours; it should be left alone.
        Damaged,
        /// A later program wrote it; it should be left alone.
        Newer,
    };
    State state = State::Missing;
    CornerEdits edits;
};

/// The path of the file that belongs to a map file.
[[nodiscard]] QString cornerFilePath(const QString &mapPath);

/// Reads a file; one that is larger than a megabyte is damaged. Edits that make no sense are left
/// out.
[[nodiscard]] CornerFile readCornerFile(const QString &path);
[[nodiscard]] CornerFile parseCorners(const QByteArray &bytes);

/// Writes the file whole or not at all. Returns why it could not be written; empty when it stands.
[[nodiscard]] QString writeCornerFile(const QString &path, const CornerEdits &edits);

} // namespace zuno
