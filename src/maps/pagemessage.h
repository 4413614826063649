// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// A message of the map page.
struct PageMessage
{
    enum class Event {
        /// Not understood; nothing is to be done.
        None,
        /// Laps stand on the screen.
        Drawn,
        /// The sample `index` of the first lap was clicked.
        Picked,
    };

    Event event = Event::None;
    /// From 0 on; the lap may have fewer samples.
    int index = -1;

    friend bool operator==(const PageMessage &, const PageMessage &) = default;
};

/// Understands a JSON object whose "event" is "drawn" or "picked". Anything can run in a page:
/// what is no such object, is larger than such a message can be, or lacks what its event needs (an
/// "index" that is an integer from 0 on) gives no event.
[[nodiscard]] PageMessage parsePageMessage(const QString &text);

} // namespace zuno
