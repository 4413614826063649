// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace zuno {

/// Writes a file in one step: afterwards it holds @p bytes, or what it held before. Returns why it
/// could not be written, in the words of the system; empty when it stands.
[[nodiscard]] QString writeWholeFile(const QString &path, const QByteArray &bytes);

} // namespace zuno
