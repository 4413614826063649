// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <QGeoCoordinate>
#include <QList>

#include <session/recording/pointacquisition.h>

namespace zuno {

/// The way of a lap from the line around to the line: points at even distances, about @p spacing
/// metres, the first and the last at @p start. @p samples are the lap's, from the one before the
/// line to the one after it. Empty for what is no lap.
[[nodiscard]] QList<QGeoCoordinate> lapOutline(std::span<const PointAcquisition> samples,
                                               const QGeoCoordinate &start, double spacing);

} // namespace zuno
