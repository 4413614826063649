// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <QList>

#include <session/recording/pointacquisition.h>

namespace zuno {

class Map;
class MapLibrary;
class Session;

/// The maps that @p session may have been ridden on: those whose start point lies within 1000 m
/// of its first sample with a position, but for maps more than 500 m farther away than a later
/// one. A map whose start point is less than a metre away is none of them. Where there is none, the
/// maps whose outline the ride follows for a lap, in its direction. Keeps the order.
[[nodiscard]] QList<const Map *> findCandidates(const Session &session,
                                                const QList<const Map *> &maps);

/// Whether @p map, the only one there is, would be found for a recording.
[[nodiscard]] bool isFound(std::span<const PointAcquisition> samples, const Map &map);

/// Gives @p session the candidate whose length comes nearest to that of its second lap, the first
/// that starts on the line. The first candidate is tried to cut the laps; without two laps it is
/// passed over. Where that one gives no complete lap, another that does is taken, the one with the
/// most of them. Without candidates the session has no map.
void chooseMapByLength(Session &session, const QList<const Map *> &candidates);

/// The maps among which that of a session is chosen.
struct MapCandidates
{
    QList<const Map *> maps;
    /// The rider has chosen it.
    bool isStored = false;
};

/// The map of the name @p choice where there is one, otherwise what is found for @p session.
[[nodiscard]] MapCandidates candidatesOf(const Session &session, const MapLibrary &maps,
                                         const QString &choice);

} // namespace zuno
