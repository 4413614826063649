// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace zuno {

class DraftLaps;
struct MapCheck;

/// Puts the laps, the best one, the ideal time and the length of the outline into @p check.
void describeLaps(const DraftLaps &cut, MapCheck &check);

} // namespace zuno
