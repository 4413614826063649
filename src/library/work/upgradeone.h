// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QString>

#include <session/recording/sessionmerge.h>

namespace zuno {

class MapLibrary;

/// What has become of a session's file.
struct Upgraded
{
    /// What the file holds now; none when it holds no session, or could not be written.
    std::optional<StoredState> state;
    /// The map that was chosen for the session is not there any more, or there was none.
    bool isDetected = false;
};

/// Computes map, laps and times of the session in a file, as displaying it does, and rewrites the
/// file when it does not hold them yet. @p choice is the map stored for the session. Shares nothing
/// with anybody, so that it can be done on any thread.
[[nodiscard]] Upgraded upgradeOne(const QString &path, const MapLibrary &maps,
                                  const QString &choice);

} // namespace zuno
