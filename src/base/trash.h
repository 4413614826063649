// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// Moves a file, a link or a whole folder to the desktop's trash, from where the rider can get it
/// back. False, and it stands where it was, when there is no trash for it.
[[nodiscard]] bool moveToTrash(const QString &path);

} // namespace zuno
