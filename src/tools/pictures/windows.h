// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QString>

class QWidget;

namespace zuno {

class Stage;

/// Calls @p look for every window of the program, and for every state of the main window that has
/// texts of its own; @p name says which. A window that does not open is a null pointer.
void forEachWindow(Stage &stage,
                   const std::function<void(const QString &name, QWidget *window)> &look);

} // namespace zuno
