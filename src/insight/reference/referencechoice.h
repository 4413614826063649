// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QtGlobal>

namespace zuno {

class Map;
class Session;
class Settings;

/// What laps are held against.
enum class ReferenceKind {
    BestOfSession,
    /// The best ever ridden on this circuit, by anyone; a new record takes its place.
    BestEver,
    /// The same on the vehicle of the session that is looked at.
    BestOnVehicle,
    /// A lap that the rider named.
    ChosenLap,
    /// Nothing; each lap stands for itself.
    None,
};

/// The rider's choice, made once and kept for each circuit.
struct ReferenceChoice
{
    ReferenceKind kind = ReferenceKind::BestOfSession;
    /// Of a chosen lap: its number, its file, and what tells the recording when the file has
    /// another name (recordingKey()) or is to be looked for (its date and time).
    qint32 lap = 0;
    QString filePath = {};
    QString recording = {};
    QString date = {};
    QString time = {};

    friend bool operator==(const ReferenceChoice &, const ReferenceChoice &) = default;
};

/// A lap of a session as choice.
[[nodiscard]] ReferenceChoice chosenLap(const Session &session, qint32 lap);

/// What was chosen for a circuit; the best of the session when nothing was, or when what is kept
/// makes no sense.
[[nodiscard]] ReferenceChoice referenceChoice(const Settings &settings, const Map &map);
/// Keeps the choice; it follows the map when that is renamed.
void keepReferenceChoice(const Settings &settings, const Map &map, const ReferenceChoice &choice);

} // namespace zuno
