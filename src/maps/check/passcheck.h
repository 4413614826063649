// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <utility>
#include <vector>

#include <QList>

#include <base/plane.h>
#include <maps/check/gatecrossing.h>
#include <session/laps/lapcutter.h>
#include <track/outlinepath.h>

namespace zuno {

/// Of passes of a gate, each with its metres beside the outline, the laps of those in the pit lane:
/// well beside the others and slowly.
[[nodiscard]] QList<int> pitLaneLaps(std::span<const std::pair<GateCrossing, double>> passes);

/// The laps that once more came around to the line, at @p line on an outline of @p length metres,
/// but passed it outside of its circle. Ways through a pit lane are not meant. @p plane is that of
/// the line.
[[nodiscard]] QList<int> lapsBesideLine(const LapList &laps, const Plane &plane,
                                        const OutlinePath::Spot &line, double length);

} // namespace zuno
