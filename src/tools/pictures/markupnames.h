// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

/// Puts markup into the name of every session and map below @p root, and into all that riders have
/// said about the sessions. What cannot be written ends the program with a message.
void putMarkupIntoNames(const QString &root);

} // namespace zuno
