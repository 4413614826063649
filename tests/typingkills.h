// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno::test {

/// Types numbers into the notes of the session at @p path, one after the other, and prints each
/// with the time at which it stood there. Never ends by itself.
int typeForEver(const QString &path);

/// Has this program type into copies of @p recording in @p folder, and kills it @p kills times, at
/// any moment. Prints what became of the copies; 0 when each is whole and holds all that had been
/// typed two seconds before its end.
int killWhileTyping(const QString &recording, const QString &folder, int kills);

} // namespace zuno::test
