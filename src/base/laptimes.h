// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// A time in milliseconds as "mm:ss.zzz", from one hour on as "hh::mm:ss.zzz"; empty below 0 and
/// from 24 hours on.
[[nodiscard]] QString timeText(qint64 milliseconds);

} // namespace zuno
