// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// Whether some system does not take @p c in the name of a file.
[[nodiscard]] bool isForbiddenInFileName(QChar c);

/// Whether @p name, without a suffix, is one that Windows keeps for a device, such as "con".
[[nodiscard]] bool isDeviceName(const QString &name);

} // namespace zuno
