// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace zuno {

/// Deletes the log of the run before, makes the log's folder and sends Qt's messages to the log
/// from now on: a line each with time, level and category. Warnings are not logged.
///
/// To be called before the application object exists, so that nothing is missed.
void startLog();

} // namespace zuno
