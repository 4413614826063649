// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/work/upgradeone.h>

#include <maps/detection/mapdetection.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <session/sessionrewrite.h>
#include <track/mapfile.h>

namespace zuno {

Upgraded upgradeOne(const QString &path, const MapLibrary &maps, const QString &choice)
{
    const OpenedSession opened = openSession(path);
    Session *session = opened.session.get();
    if (session == nullptr || session->sampleCount() == 0)
        return {};
    session->smooth();
    const MapCandidates candidates = candidatesOf(*session, maps, choice);
    chooseMapByLength(*session, candidates.maps);
    if (session->lacksMemory())
        return {};
    session->setNewSession(0);
    Upgraded upgraded {{}, !candidates.isStored};
    if (rewriteSessionFile(*session, Occasion::FirstDisplay).ok())
        upgraded.state = session->storedState();
    return upgraded;
}

} // namespace zuno
