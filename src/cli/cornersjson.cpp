// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/cornersjson.h>

#include <cmath>

#include <base/jsonwriter.h>
#include <cli/console.h>
#include <insight/cornerfile.h>

namespace zuno::cli {

namespace {

void writeCorner(JsonWriter &json, const Corner &corner, const CircuitRing &ring)
{
    const auto place = [&](double along) { return rounded(ring.wrapped(along), 1); };
    json.beginObject();
    json.member("number", corner.number);
    if (!corner.name.isEmpty())
        json.member("name", corner.name);
    json.member("direction", corner.isRight ? QStringLiteral("right") : QStringLiteral("left"));
    json.member("start", place(corner.start));
    json.member("middle", place(corner.middle));
    json.member("end", place(corner.end));
    json.member("angle", rounded(corner.angle, 1));
    json.member("radius", rounded(corner.radius, 0));
    json.member("boundary", place(corner.boundary));
    json.endObject();
}

void writeParts(JsonWriter &json, QByteArrayView key, const TrackParts &parts,
                const Corners &corners)
{
    json.key(key);
    json.beginArray();
    for (const TrackPart &part : parts) {
        json.beginObject();
        json.member("label", labelOf(part, corners));
        json.member("from", rounded(part.from, 1));
        json.member("to", rounded(part.to, 1));
        json.endObject();
    }
    json.endArray();
}

} // namespace

CornerEdits editsReported(const QString &mapPath)
{
    const QString path = cornerFilePath(mapPath);
    const CornerFile file = readCornerFile(path);
    if (file.state == CornerFile::State::Damaged)
        printFileError(path, QStringLiteral("is no file of corners; it is left alone"));
    if (file.state == CornerFile::State::Newer)
        printFileError(path, QStringLiteral("was written by a later program; it is left alone"));
    return file.edits;
}

double rounded(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    // No negative zero.
    return (std::round(value * scale) / scale) + 0.0;
}

void writeCircuit(JsonWriter &json, const CircuitCorners &circuit)
{
    json.member("outlineLength", rounded(circuit.ring.length(), 1));
    json.key("corners");
    json.beginArray();
    for (const Corner &corner : circuit.corners)
        writeCorner(json, corner, circuit.ring);
    json.endArray();
    writeParts(json, "segments", circuit.segments, circuit.corners);
    writeParts(json, "units", circuit.units, circuit.corners);
}

} // namespace zuno::cli
