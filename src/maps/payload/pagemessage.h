// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QGeoCoordinate>
#include <QString>

#include <maps/payload/draftpayload.h>

namespace zuno {

/// A message of the map page. What its event does not speak of is as it is here.
struct PageMessage
{
    enum class Event {
        /// Not understood; nothing is to be done.
        None,
        /// Laps stand on the screen.
        Drawn,
        /// The sample `index` of the first lap was clicked.
        Picked,
        /// The sign of the zone `index` was clicked.
        ZonePicked,
        /// A draft's point is dragged to `place`; `done` when it is let go.
        PointMoved,
        /// A draft's point was clicked or taken hold of.
        PointSelected,
        /// The draft's gates are dragged to a size of `metres`; `done` as above.
        GateResized,
        /// The map was clicked at `place`, where a pixel is `metres` wide.
        TrackClicked,
    };

    Event event = Event::None;
    /// From 0 on; the lap may have fewer samples.
    int index = -1;
    /// From StartPointNumber on; the draft may have fewer points.
    int point = NoPointNumber;
    QGeoCoordinate place = {};
    double metres = 0.0;
    bool done = false;
};

/// Understands a JSON object whose "event" is "drawn", "picked", "zonePicked", "pointMoved",
/// "pointSelected", "gateResized" or "trackClicked". Anything can run in a page: what is no such
/// object, is longer than such a message can be, or lacks what its event needs, in its range, gives
/// no event.
[[nodiscard]] PageMessage parsePageMessage(const QString &text);

} // namespace zuno
