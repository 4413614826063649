// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>

#include <QByteArray>
#include <QList>

namespace zuno {

class PointAcquisition;
struct MapDraft;

/// A draft's points as the map page numbers them: 0 and up are its timing points.
inline constexpr int StartPointNumber = -1;
inline constexpr int NoPointNumber = -2;

/// The way of a whole session as the map page draws it behind a draft: {"path": [[latitude,
/// longitude], ...]} in degrees. Samples without a position are left out, and those that stand
/// where the one before them stands.
[[nodiscard]] QByteArray pathPayload(std::span<const PointAcquisition> samples);

/// What of a draft the page has already.
enum class OutlineForm { Sent, AsBefore };

/// The JSON text of a draft as the map page draws it: "outline" and "timingPoints" as lists of
/// [latitude, longitude], "start" as one such pair or null, "gateSize" in metres, and the numbers
/// "selected" and "warned" of the points to be marked. An outline that is as before is left out;
/// a timing point without a position is null, so that the others keep their numbers.
[[nodiscard]] QByteArray draftPayload(const MapDraft &draft, int selected, const QList<int> &warned,
                                      OutlineForm outline);

} // namespace zuno
