// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <insight/circuitcorners.h>

namespace zuno {

/// Gives a corner of the map at @p mapPath a name, or takes it away with an empty one, in the file
/// of corners beside the map. Returns why it could not be written; empty when it stands.
[[nodiscard]] QString nameCorner(const QString &mapPath, const CircuitCorners &circuit,
                                 std::size_t corner, const QString &name);

} // namespace zuno
