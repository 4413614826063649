// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <formats/convert/convertedride.h>

namespace zuno {

/// Gives every place of the frame a speed; see completeRide().
[[nodiscard]] ChannelSource completeSpeed(std::deque<Place> &places, bool isUnitUnknown);

/// Gives every place of the frame a course, also those where nobody moves: from the receiver, or
/// from the positions when it does not say one or contradicts them.
void completeCourse(std::deque<Place> &places);

} // namespace zuno
