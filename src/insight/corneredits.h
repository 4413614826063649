// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGeoCoordinate>
#include <QList>
#include <QString>

#include <insight/circuitring.h>
#include <insight/cornerruns.h>

namespace zuno {

/// What a rider changed in the corners that were found. A place says which corner is meant: numbers
/// change when the outline or the line does.
struct CornerEdit
{
    enum class Kind {
        /// Gives the corner a name; an empty one takes it away.
        Rename,
        /// Makes one corner of it and the next.
        Join,
        /// Makes two of it, one up to the place and one from there on.
        Split,
        /// It is no corner.
        Delete,
    };

    Kind kind = Kind::Rename;
    QGeoCoordinate place;
    QString name;

    friend bool operator==(const CornerEdit &, const CornerEdit &) = default;
};

using CornerEdits = QList<CornerEdit>;

/// The corners after the edits, one after the other. An edit that means no corner (none within 60
/// metres of the track), or that would split off less than 5 degrees, changes nothing.
[[nodiscard]] CornerRuns applyEdits(CornerRuns runs, const CornerEdits &edits,
                                    const CircuitRing &ring, const CircuitShape &shape);

} // namespace zuno
