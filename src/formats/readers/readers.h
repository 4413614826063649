// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <formats/ridereader.h>

// The functions of the readers, one pair for each file of this folder; the table in
// formats/ridereader.cpp lists them. See RideReader for what they do.

namespace zuno {

[[nodiscard]] bool looksLikeVbo(QByteArrayView head);
ReadEnd readVbo(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeRaceChronoCsv(QByteArrayView head);
ReadEnd readRaceChronoCsv(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeRaceChronoArchive(QByteArrayView head);
ReadEnd readRaceChronoArchive(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeAimXrk(QByteArrayView head);
ReadEnd readAimXrk(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeAimCsv(QByteArrayView head);
ReadEnd readAimCsv(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeRaceCapture(QByteArrayView head);
ReadEnd readRaceCapture(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeTrackAddict(QByteArrayView head);
ReadEnd readTrackAddict(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeNmea(QByteArrayView head);
ReadEnd readNmea(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeGpx(QByteArrayView head);
ReadEnd readGpx(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeSpeedAngle(QByteArrayView head);
ReadEnd readSpeedAngle(QIODevice &device, RideFacts &facts, RowSink &sink);

[[nodiscard]] bool looksLikeTable(QByteArrayView head);
ReadEnd readTable(QIODevice &device, RideFacts &facts, RowSink &sink);

} // namespace zuno
