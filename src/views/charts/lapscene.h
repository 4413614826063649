// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace zuno {

class ChartState;

/// What the colours of the first lap's line on the map tell.
enum class LineMode { Gain, Speed, Lean, Acceleration };

inline constexpr int LineModeCount = 4;

/// The mode that is shown when @p wanted is chosen: gain and loss need a lap to compare with, lean
/// a sensor. Then it is the speed.
[[nodiscard]] LineMode shownMode(LineMode wanted, const ChartState &state);

/// The JSON text of what the map page draws of the laps of @p state, besides their samples: "mode",
/// "values" (a number from 0 to 1 for each sample of the first lap, null where nothing is known),
/// what makes the rider's unit of km/h ("speedFactor"), the colours "stops" from 0 to 1, further
/// "colours" by name, and lists of "signs" (corners with the mode's value), "gates" (line and
/// sections) and "acts" (where somebody brakes and goes on the gas, of the zone that is looked at),
/// and the texts of the "legend". A session without laps has its way as "path", a list of
/// [latitude, longitude], of every so many samples ("step"). An empty object without a lap.
[[nodiscard]] QByteArray scenePayload(const ChartState &state, LineMode wanted);

} // namespace zuno
