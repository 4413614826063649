// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/sessionlap.h>

#include <session/session.h>
#include <track/map.h>

namespace zuno {

const Map *SessionLap::map() const
{
    return session != nullptr ? session->map() : nullptr;
}

QString SessionLap::mapName() const
{
    const Map *known = map();
    return known != nullptr ? known->name() : QString();
}

QString SessionLap::fileName() const
{
    return session != nullptr ? session->fileName() : QString();
}

} // namespace zuno
