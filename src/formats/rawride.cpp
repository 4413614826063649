// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/rawride.h>

namespace zuno {

void Damage::add(qint64 line, qint64 byte)
{
    if (lines++ == 0) {
        firstLine = line;
        firstByte = byte;
    }
}

} // namespace zuno
