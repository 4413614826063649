// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cli/insighttext.h>

namespace zuno::cli {

/// What a session tells, and a comparison if there is one, for scripts.
[[nodiscard]] QByteArray insightJson(const QString &map, const SessionInsight &insight,
                                     const std::optional<LapComparison> &comparison);

} // namespace zuno::cli
