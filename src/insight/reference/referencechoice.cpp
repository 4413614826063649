// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/reference/referencechoice.h>

#include <QStringList>

#include <base/settings.h>
#include <insight/reference/recordingkey.h>
#include <session/session.h>
#include <track/map.h>

namespace zuno {

namespace {

constexpr qsizetype ChosenLapTexts = 6;

QStringList textsOf(const ReferenceChoice &choice)
{
    switch (choice.kind) {
    case ReferenceKind::BestOfSession:
        break;
    case ReferenceKind::BestEver:
        return {QStringLiteral("bestEver")};
    case ReferenceKind::BestOnVehicle:
        return {QStringLiteral("bestOnVehicle")};
    case ReferenceKind::None:
        return {QStringLiteral("none")};
    case ReferenceKind::ChosenLap:
        return {QStringLiteral("lap"), QString::number(choice.lap),
                choice.filePath,       choice.recording,
                choice.date,           choice.time};
    }
    return {};
}

} // namespace

ReferenceChoice chosenLap(const Session &session, qint32 lap)
{
    return {ReferenceKind::ChosenLap, lap,
            session.filePath(),       recordingKey(session),
            session.recording().date, session.recording().time};
}

ReferenceChoice referenceChoice(const Settings &settings, const Map &map)
{
    const QStringList texts = settings.kept(SettingsGroup::References, map.name());
    const QString kind = texts.value(0);
    if (kind == u"bestEver")
        return {ReferenceKind::BestEver};
    if (kind == u"bestOnVehicle")
        return {ReferenceKind::BestOnVehicle};
    if (kind == u"none")
        return {ReferenceKind::None};
    const qint32 lap = texts.value(1).toInt();
    if (kind != u"lap" || texts.size() != ChosenLapTexts || lap < 1)
        return {};
    return {ReferenceKind::ChosenLap, lap, texts[2], texts[3], texts[4], texts[5]};
}

void keepReferenceChoice(const Settings &settings, const Map &map, const ReferenceChoice &choice)
{
    settings.keep(SettingsGroup::References, map.name(), textsOf(choice));
}

} // namespace zuno
