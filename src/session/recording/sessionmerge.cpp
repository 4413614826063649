// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/sessionmerge.h>

#include <algorithm>
#include <array>

namespace zuno {

namespace {

struct TypedText
{
    TypedField field;
    StoredText SessionInformation::*text;
};

// All but the temperature.
constexpr std::array TypedTexts {TypedText {TypedField::Event, &SessionInformation::event},
                                 TypedText {TypedField::Driver, &SessionInformation::driver},
                                 TypedText {TypedField::Vehicle, &SessionInformation::vehicle},
                                 TypedText {TypedField::Tyres, &SessionInformation::tyres},
                                 TypedText {TypedField::Condition, &SessionInformation::condition},
                                 TypedText {TypedField::Notes, &SessionInformation::notes}};

template<typename Field>
bool isReplaced(const Field &base, const Field &mine, const Field &theirs)
{
    return !(theirs == base) && !(mine == base) && !(mine == theirs);
}

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

QString textOf(TypedField field, const SessionInformation &information)
{
    for (const TypedText &typed : TypedTexts) {
        if (typed.field == field)
            return (information.*typed.text).text();
    }
    return QString::number(information.temperature);
}

void ReplacedTyping::putBack(SessionInformation &information) const
{
    for (const TypedText &typed : TypedTexts) {
        if (fields.contains(typed.field))
            information.*typed.text = theirs.*typed.text;
    }
    if (fields.contains(TypedField::Temperature))
        information.temperature = theirs.temperature;
}

ReplacedTyping replacedBy(const StoredState &base, const StoredState &mine,
                          const StoredState &theirs)
{
    const SessionInformation &b = base.information;
    const SessionInformation &m = mine.information;
    const SessionInformation &t = theirs.information;
    ReplacedTyping replaced {{}, t};
    for (const TypedText &typed : TypedTexts) {
        if (isReplaced(b.*typed.text, m.*typed.text, t.*typed.text))
            replaced.fields.append(typed.field);
    }
    if (isReplaced(b.temperature, m.temperature, t.temperature))
        replaced.fields.append(TypedField::Temperature);
    return replaced;
}

bool SessionInformation::isTouched() const
{
    const SessionInformation none;
    return !(event == none.event && driver == none.driver && vehicle == none.vehicle
             && condition == none.condition && temperature == none.temperature
             && tyres == none.tyres && notes == none.notes);
}

} // namespace zuno
