// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/memory.h>

#include <new>

namespace zuno {

bool withinMemory(const std::function<void()> &work)
{
    try {
        work();
    } catch (const std::bad_alloc &) {
        return false;
    }
    return true;
}

} // namespace zuno
