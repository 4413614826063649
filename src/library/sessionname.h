// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// Whether the name of a file or folder of the library is kept for those of the loggers, which can
/// be neither renamed nor deleted there.
[[nodiscard]] bool isLoggersName(const QString &name);

/// Why a file or folder of the library cannot get the name @p name, in the rider's words; empty
/// when it can.
[[nodiscard]] QString faultOfSessionName(const QString &name);

} // namespace zuno
