// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// A difference with its sign and so many decimals, as the rider's language writes numbers:
/// "+0.67", U+2212 for minus, and no sign where nothing but zeros would stand.
[[nodiscard]] QString signedText(double value, int decimals);

} // namespace zuno
