// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QByteArray>
#include <QString>

class QIODevice;

namespace zuno {

/// Writes a file in one step: afterwards it holds @p bytes, or what it held before. Returns why it
/// could not be written, in the words of the system; empty when it stands.
[[nodiscard]] QString writeWholeFile(const QString &path, const QByteArray &bytes);

/// The same with what @p write puts into it, for files that are too large for the memory. When
/// @p write returns false the file stays as it was.
[[nodiscard]] QString writeWholeFile(const QString &path,
                                     const std::function<bool(QIODevice &)> &write);

} // namespace zuno
