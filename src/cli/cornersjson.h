// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <insight/circuitcorners.h>

namespace zuno {

class JsonWriter;

namespace cli {

/// What the rider changed of the corners of a map file; nothing, and reported, when the file that
/// says so cannot be read.
[[nodiscard]] CornerEdits editsReported(const QString &mapPath);

/// A number as scripts get it: rounded to that many decimals.
[[nodiscard]] double rounded(double value, int decimals);

/// Adds what a circuit is divided into to the object that is being written: "outlineLength",
/// "corners", "segments" and "units".
void writeCircuit(JsonWriter &json, const CircuitCorners &circuit);

} // namespace cli
} // namespace zuno
