// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QString>

#include <insight/reference/bestever.h>
#include <insight/reference/referencechoice.h>

namespace zuno {

/// What has become of a chosen reference.
enum class ReferenceState {
    Found,
    /// No lap serves: nobody has ridden one here, or on that vehicle.
    NoLap,
    /// The chosen lap's file is gone.
    FileGone,
    /// Its file is there, but has no such lap of this circuit any more.
    LapGone,
    /// The session says no vehicle.
    NoVehicle,
};

struct Reference
{
    ReferenceState state = ReferenceState::NoLap;
    /// Only when found.
    std::optional<ReferenceLap> lap;
};

/// The lap that the choice means at the moment, for a session that tells where its time is. The
/// chosen lap is found again when its file has another name.
[[nodiscard]] Reference findReference(const ReferenceChoice &choice,
                                      const ReferenceSources &sources,
                                      const SessionOnCircuit &asked,
                                      BestLapMemory *memory = nullptr);

/// The state as a sentence in the language of the program; empty when it was found.
[[nodiscard]] QString describe(ReferenceState state, const ReferenceChoice &choice);

} // namespace zuno
