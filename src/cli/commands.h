// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>

namespace zuno::cli {

/// What the tool's exit status says.
enum ExitStatus : int { Success = 0, FileFailed = 1, WrongUse = 2 };

/// One command: its name, what it does, and the function that gets the arguments, the command's
/// name first, and returns the exit status.
struct Command
{
    const char *name;
    const char *summary;
    int (*run)(const QStringList &arguments);
};

int decode(const QStringList &arguments);
int laps(const QStringList &arguments);
/// Also the way to the two commands of two words, "map new" and "map check".
int map(const QStringList &arguments);
int mapNew(const QStringList &arguments);
int mapCheck(const QStringList &arguments);
int corners(const QStringList &arguments);
int insight(const QStringList &arguments);
int csv(const QStringList &arguments);
int payload(const QStringList &arguments);
int set(const QStringList &arguments);
int exportRide(const QStringList &arguments);
int importFiles(const QStringList &arguments);
int demo(const QStringList &arguments);

} // namespace zuno::cli
