// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/circuitcorners.h>

#include <base/processorstate.h>
#include <insight/modelspeed.h>

namespace zuno {

namespace {

// How much longer than the best lap the model rider may take.
constexpr double MostModelTime = 1.5;

} // namespace

CircuitCorners findCorners(const Map &map, const CornerEdits &edits, CircuitRing::Way way)
{
    clearVectorRegisters();
    CircuitCorners circuit;
    circuit.ring = CircuitRing(map, way);
    if (circuit.ring.isEmpty())
        return circuit;
    circuit.shape = shapeOf(circuit.ring);
    circuit.modelTime = modelTime(circuit.shape.hardSpeed);
    const CornerRuns runs = applyEdits(findRuns(circuit.shape), edits, circuit.ring, circuit.shape);
    circuit.corners = cornersOf(runs, circuit.shape);
    circuit.segments = segmentsOf(circuit.corners, circuit.ring.length());
    circuit.units = unitsOf(circuit.segments, circuit.shape.softSpeed);
    return circuit;
}

bool isCredible(const CircuitCorners &circuit, double bestLap)
{
    return circuit.modelTime <= MostModelTime * bestLap;
}

} // namespace zuno
