// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace zuno {

/// Does @p work; false when there was not enough memory for it, and it ended before it was done.
///
/// The library tells by an exception that there is no memory, and this is the only place that
/// catches one: whoever takes memory by the size of a rider's file calls it, so that only this
/// file is left out.
[[nodiscard]] bool withinMemory(const std::function<void()> &work);

} // namespace zuno
