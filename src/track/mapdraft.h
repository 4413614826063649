// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QByteArray>
#include <QGeoCoordinate>
#include <QList>
#include <QString>

namespace zuno {

class Map;

/// A map that is being made: what a map file says, as plain values that can be compared and kept.
struct MapDraft
{
    /// The map number of the maps that are made with the program: "ZUNO" as ASCII. What else is in
    /// the maps folder came from somebody else.
    static constexpr qint32 OwnMapNumber = 0x5A554E4F;

    /// The file's path below the maps folder, with a leading "/", as Map::name(); may be empty.
    QString name;
    /// Once around the circuit in riding order, from the line to the line.
    QList<QGeoCoordinate> outline;
    /// Invalid while there is none.
    QGeoCoordinate start;
    /// The ends of the sectors in riding order, the last one on the line as a rule. A map has room
    /// for MaximumSectors.
    QList<QGeoCoordinate> timingPoints;
    /// Metres.
    double gateSize = 0.0;
    qint32 mapNumber = OwnMapNumber;

    friend bool operator==(const MapDraft &, const MapDraft &) = default;

    /// What @p map says; its timing points in the order of its sectors.
    [[nodiscard]] static MapDraft of(const Map &map);
    /// The map that a file written from this draft gives, with its name.
    [[nodiscard]] std::unique_ptr<Map> toMap() const;
    /// The bytes of the map file: the points are named "Start", "Time 0", "Time 1" and so on, and
    /// the corners are the south-west and the north-east one of all points. Timing points beyond
    /// MaximumSectors and points without a position are left out.
    [[nodiscard]] QByteArray toFile() const;
};

/// Writes the map file at @p path, whole or not at all, and the folders that lead to it. Returns
/// what went wrong in the system's words; empty when the file stands.
[[nodiscard]] QString writeMapFile(const MapDraft &draft, const QString &path);

} // namespace zuno
