// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <formats/table/columnmapping.h>

namespace zuno {

/// Adds to @p mapping what the values of @p rows suggest where names have told nothing: time is the
/// first column that only grows, latitude and longitude are two neighbours with many decimals that
/// hardly change.
void guessByValues(ColumnMapping &mapping, const std::vector<std::vector<QByteArray>> &rows);

} // namespace zuno
