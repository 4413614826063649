// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/filegates.h>

#include <track/mapdraft.h>
#include <track/trackring.h>

namespace zuno {

namespace {

constexpr double FarthestGate = 50.0; // metres

// Of two points along the course the first is on the line, the second says in which direction it is
// crossed.
QGeoCoordinate placeOf(const RideGate &gate)
{
    return gate.isAlongCourse ? gate.first : gate.middle();
}

} // namespace

FileGates gatesOn(const MapDraft &draft, const SessionOrigin &origin)
{
    const TrackRing ring(draft.outline);
    FileGates gates;
    if (ring.isEmpty())
        return gates;
    for (const RideGate &gate : origin.gates) {
        const QGeoCoordinate place = placeOf(gate);
        if (!place.isValid() || ring.nearest(place).off > FarthestGate)
            continue;
        if (!gate.isStart)
            gates.splits.append(place);
        else if (!gates.start.isValid())
            gates.start = place;
    }
    return gates;
}

} // namespace zuno
