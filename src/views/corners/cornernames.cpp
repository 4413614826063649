// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/corners/cornernames.h>

#include <QCoreApplication>

#include <insight/cornerfile.h>

namespace zuno {

QString nameCorner(const QString &mapPath, const CircuitCorners &circuit, std::size_t corner,
                   const QString &name)
{
    const QString path = cornerFilePath(mapPath);
    CornerFile file = readCornerFile(path);
    if (file.state == CornerFile::State::Damaged || file.state == CornerFile::State::Newer) {
        return QCoreApplication::translate(
            "zuno::CornerNames", "The file of corners beside the map is damaged, or a later "
                                 "program wrote it; it is left alone.");
    }
    const QGeoCoordinate place = circuit.ring.coordinate(circuit.corners[corner].middle);
    // An earlier name of the same corner is of no use any more.
    constexpr double SamePlace = 1.0; // metres
    file.edits.removeIf([&](const CornerEdit &edit) {
        return edit.kind == CornerEdit::Kind::Rename && edit.place.distanceTo(place) < SamePlace;
    });
    file.edits.append({CornerEdit::Kind::Rename, place, name.simplified()});
    return writeCornerFile(path, file.edits);
}

} // namespace zuno
