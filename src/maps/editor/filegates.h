// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGeoCoordinate>
#include <QList>

#include <session/recording/sessionorigin.h>

namespace zuno {

struct MapDraft;

/// The line and the ends of sectors that another logger's file names, as far as they are on a
/// circuit.
struct FileGates
{
    /// Invalid when the file names none that is near the circuit.
    QGeoCoordinate start;
    QList<QGeoCoordinate> splits;
};

/// What of the gates that an imported session's file named lies on the outline of @p draft. Gates
/// farther than 50 m from it are those of another circuit.
[[nodiscard]] FileGates gatesOn(const MapDraft &draft, const SessionOrigin &origin);

} // namespace zuno
