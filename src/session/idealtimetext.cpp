// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/idealtimetext.h>

#include <QCoreApplication>
#include <QLocale>

#include <session/session.h>
#include <track/map.h>

namespace zuno {

namespace {

struct IdealTimeText
{
    Q_DECLARE_TR_FUNCTIONS(zuno::IdealTimeText)
};

} // namespace

QString missingSectionText(const Session &session)
{
    const LapResults &results = session.results();
    if (session.map() == nullptr || results.idealTime < 0)
        return {};
    const QLocale locale;
    const int sectors = session.map()->sectorCount();
    for (int sector = 0; sector < sectors; ++sector) {
        if (results.bestSectorLaps[static_cast<std::size_t>(sector)] < 0)
            return IdealTimeText::tr("without section %1: no lap passed timing point %1 in its "
                                     "circle")
                .arg(locale.toString(sector + 1));
    }
    const Lap &best = *results.laps[static_cast<std::size_t>(results.bestLap)];
    const int crossed = best.crossedSectors();
    if (!best.isComplete() || crossed >= sectors)
        return {};
    return IdealTimeText::tr("without those of lap %1, the best, from section %2 on: it passed "
                             "timing point %2 outside of its circle")
        .arg(locale.toString(best.lapNumber()), locale.toString(crossed + 1));
}

QString explainedIdealTime(const Session &session)
{
    const QString missing = missingSectionText(session);
    const QString time = session.idealTimeText();
    return missing.isEmpty() ? time : time + u" (" + missing + u')';
}

} // namespace zuno
