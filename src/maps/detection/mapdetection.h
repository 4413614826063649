// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>

namespace zuno {

class Map;
class MapLibrary;
class Session;

/// The maps that @p session may have been ridden on: those whose start point lies within 1000 m
/// of its first sample with a position, but for maps more than 500 m farther away than a later
/// one. A map whose start point is less than a metre away is none of them. Keeps the order.
[[nodiscard]] QList<const Map *> findCandidates(const Session &session,
                                                const QList<const Map *> &maps);

/// Gives @p session the candidate whose length comes nearest to that of its second lap, the first
/// that starts on the line. The first candidate is tried to cut the laps; without two laps it is
/// passed over. Without candidates the session has no map. The caller's list stays as it is.
void chooseMapByLength(Session &session, QList<const Map *> candidates);

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
