// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QString>

namespace zuno {

/// A picture of the program's resources, "export.png", as the theme of the moment has it; an action
/// or a button that has it shows the other one as soon as the theme changes. The light theme's
/// pictures are in a folder of their own.
[[nodiscard]] QIcon themedIcon(const QString &file);

} // namespace zuno
