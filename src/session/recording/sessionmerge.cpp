// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/sessionmerge.h>

#include <algorithm>

namespace zuno {

namespace {

template<typename Field>
const Field &mergedField(const Field &base, const Field &mine, const Field &theirs)
{
    return mine == base ? theirs : mine;
}

QList<quint8> mergedLaps(const QList<quint8> &base, const QList<quint8> &mine,
                         const QList<quint8> &theirs)
{
    if (mine == base || theirs == base)
        return mergedField(base, mine, theirs);
    QList<quint8> laps;
    for (const quint8 number : theirs) {
        if (mine.contains(number) || !base.contains(number))
            laps.append(number);
    }
    for (const quint8 number : mine) {
        if (!base.contains(number) && !laps.contains(number))
            laps.append(number);
    }
    std::sort(laps.begin(), laps.end());
    return laps;
}

} // namespace

StoredState merged(const StoredState &base, const StoredState &mine, const StoredState &theirs)
{
    const SessionInformation &b = base.information;
    const SessionInformation &m = mine.information;
    const SessionInformation &t = theirs.information;
    StoredState state;
    SessionInformation &s = state.information;
    state.newSession = mergedField(base.newSession, mine.newSession, theirs.newSession);
    for (const auto text :
         {&SessionInformation::circuitName, &SessionInformation::event, &SessionInformation::driver,
          &SessionInformation::bestLapText, &SessionInformation::idealTimeText,
          &SessionInformation::vehicle, &SessionInformation::condition, &SessionInformation::tyres,
          &SessionInformation::notes})
        s.*text = mergedField(b.*text, m.*text, t.*text);
    s.temperature = mergedField(b.temperature, m.temperature, t.temperature);
    s.invalidLaps = mergedLaps(b.invalidLaps, m.invalidLaps, t.invalidLaps);
    return state;
}

bool SessionInformation::isTouched() const
{
    const SessionInformation none;
    return !(event == none.event && driver == none.driver && vehicle == none.vehicle
             && condition == none.condition && temperature == none.temperature
             && tyres == none.tyres && notes == none.notes);
}

} // namespace zuno
