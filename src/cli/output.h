// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno::cli {

class CommandLine;

/// The kinds of files that the tool writes where it is told to.
enum class FileKind { Session, Map };

/// Adds the option --force.
void addForceOption(CommandLine &line);

/// Whether a file of @p kind may be written to @p path: nothing is there or, with --force, a file
/// of that kind. Anything else that stands there is somebody's, or a device; the reason is
/// reported.
[[nodiscard]] bool mayWriteReported(const QString &path, FileKind kind, const CommandLine &line);

} // namespace zuno::cli
