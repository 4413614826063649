// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/reference/reference.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <base/numbers.h>
#include <base/settings.h>
#include <insight/reference/recordingkey.h>

namespace zuno {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("zuno::Reference", text);
}

// Lap @p number of @p insight; no session when it is the one that is looked at.
Reference lapOf(const SessionInsight &insight, qint32 number, const Session &session,
                std::shared_ptr<const Session> copy)
{
    const InsightLap *lap = insight.lap(number);
    if (lap == nullptr)
        return {ReferenceState::LapGone, {}};
    return {ReferenceState::Found,
            ReferenceLap {roundedToInt(1000.0 * lap->path.duration()), *lap, session.filePath(),
                          session.driver(), session.vehicle(), std::move(copy)}};
}

Reference bestOfSession(const SessionOnCircuit &asked)
{
    const SessionInsight &insight = asked.insight;
    if (!insight.best)
        return {};
    return lapOf(insight, insight.laps[*insight.best].number, asked.session, nullptr);
}

Reference bestEver(const ReferenceSources &sources, const SessionOnCircuit &asked,
                   const QString &vehicle, BestLapMemory *memory)
{
    std::optional<ReferenceLap> best = findBestEver(sources, asked, vehicle, memory);
    if (!best)
        return {};
    return {ReferenceState::Found, std::move(best)};
}

bool isRecording(const Session &session, const ReferenceChoice &choice)
{
    return choice.recording.isEmpty() || recordingKey(session) == choice.recording;
}

Reference lapIn(const Session &session, const ReferenceChoice &choice,
                const ReferenceSources &sources, const SessionOnCircuit &asked)
{
    SessionInformation information = session.information();
    information.invalidLaps = session.invalidLaps();
    const QString map = session.map() != nullptr ? session.map()->name()
                                                 : sources.settings.mapChoice(session.fileName());
    const std::shared_ptr<const Session> copy
        = cutCopy(session.filePath(), information, map, sources, asked.session.map());
    if (!copy || !isRecording(*copy, choice))
        return {ReferenceState::LapGone, {}};
    return lapOf(insightOnCircuit(*copy, asked), choice.lap, *copy, copy);
}

// Of the same day and moment; its file may have another name now.
bool mayBe(const Session &session, const ReferenceChoice &choice)
{
    return session.recording().date == choice.date && session.recording().time == choice.time;
}

Reference chosenLap(const ReferenceChoice &choice, const ReferenceSources &sources,
                    const SessionOnCircuit &asked)
{
    if (mayBe(asked.session, choice) && isRecording(asked.session, choice))
        return lapOf(asked.insight, choice.lap, asked.session, nullptr);
    Reference last {ReferenceState::FileGone, {}};
    for (const bool isNamed : {true, false}) {
        for (const Session *session : sources.sessions) {
            if ((session->filePath() == choice.filePath) != isNamed || !mayBe(*session, choice))
                continue;
            Reference found = lapIn(*session, choice, sources, asked);
            if (found.state == ReferenceState::Found)
                return found;
            if (isNamed && QFileInfo::exists(session->filePath()))
                last.state = found.state;
        }
    }
    return last;
}

} // namespace

Reference findReference(const ReferenceChoice &choice, const ReferenceSources &sources,
                        const SessionOnCircuit &asked, BestLapMemory *memory)
{
    if (asked.session.map() == nullptr || asked.insight.lack != InsightLack::None)
        return {};
    const QString vehicle = asked.session.vehicle().simplified();
    switch (choice.kind) {
    case ReferenceKind::BestOfSession:
        return bestOfSession(asked);
    case ReferenceKind::BestEver:
        return bestEver(sources, asked, {}, memory);
    case ReferenceKind::BestOnVehicle:
        if (vehicle.isEmpty())
            return {ReferenceState::NoVehicle, {}};
        return bestEver(sources, asked, vehicle, memory);
    case ReferenceKind::ChosenLap:
        return chosenLap(choice, sources, asked);
    case ReferenceKind::None:
        break;
    }
    return {};
}

QString describe(ReferenceState state, const ReferenceChoice &choice)
{
    const QString file = QFileInfo(choice.filePath).completeBaseName();
    switch (state) {
    case ReferenceState::Found:
        return {};
    case ReferenceState::NoLap:
        return translated(QT_TRANSLATE_NOOP("zuno::Reference", "No lap serves as reference yet."));
    case ReferenceState::FileGone:
        return translated(QT_TRANSLATE_NOOP("zuno::Reference",
                                            "The file of the reference, \"%1\", is gone."))
            .arg(file);
    case ReferenceState::LapGone:
        return translated(QT_TRANSLATE_NOOP("zuno::Reference",
                                            "\"%1\" has no lap %2 on this circuit any more."))
            .arg(file, QString::number(choice.lap));
    case ReferenceState::NoVehicle:
        return translated(
            QT_TRANSLATE_NOOP("zuno::Reference", "The session does not say which vehicle it was."));
    }
    return {};
}

} // namespace zuno
