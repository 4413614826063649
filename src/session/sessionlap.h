// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <session/laps/lap.h>

namespace zuno {

class Map;
class Session;

/// A lap together with the session that it was ridden in; both must outlive it. Without a lap it is
/// false.
struct SessionLap
{
    const Session *session = nullptr;
    const Lap *lap = nullptr;

    [[nodiscard]] explicit operator bool() const { return lap != nullptr; }
    [[nodiscard]] const Lap *operator->() const { return lap; }
    [[nodiscard]] const Lap &operator*() const { return *lap; }
    friend bool operator==(const SessionLap &, const SessionLap &) = default;

    /// The map on which the lap was cut; nullptr without one.
    [[nodiscard]] const Map *map() const;
    /// The map's name and the file's; empty without one.
    [[nodiscard]] QString mapName() const;
    [[nodiscard]] QString fileName() const;
};

} // namespace zuno
