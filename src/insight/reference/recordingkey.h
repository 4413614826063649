// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

class Session;

/// What tells a recording from all others, whatever its file is called and wherever it lies: a hash
/// of its date and time and of its first samples as recorded. Decodes the samples when they are
/// not; empty when there are none.
[[nodiscard]] QString recordingKey(const Session &session);

} // namespace zuno
