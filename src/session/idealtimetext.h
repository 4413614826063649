// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

class Session;

/// Why the ideal time of a session is not what it could be, in the rider's language: a section that
/// no lap has a time for, or one that the best lap has none for, so that the ideal time may even be
/// worse than that lap. Empty when nothing is missing.
[[nodiscard]] QString missingSectionText(const Session &session);

/// The ideal time and, in brackets, why it is not what it could be.
[[nodiscard]] QString explainedIdealTime(const Session &session);

} // namespace zuno
