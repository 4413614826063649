// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

class QWidget;

namespace zuno {

/// The texts below @p window that have less room than they need, each with the name of its part:
/// labels, buttons and boxes, tabs, menus, headers and cells of tables, titles of groups, hints in
/// empty fields. Parts that are not visible are passed over.
[[nodiscard]] QStringList cutTexts(const QWidget &window);

} // namespace zuno
