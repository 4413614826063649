// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/check/mapwarning.h>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace zuno {

namespace {

using Kind = MapWarning::Kind;

// More laps than these are only counted.
constexpr qsizetype NamedLaps = 5;

QString translated(const char *text)
{
    return QCoreApplication::translate("zuno::MapWarning", text);
}

// Riders count from 1.
QString gateName(int point)
{
    return point < 0 ? translated(QT_TRANSLATE_NOOP("zuno::MapWarning", "the line"))
                     : translated(QT_TRANSLATE_NOOP("zuno::MapWarning", "timing point %1"))
                           .arg(point + 1);
}

// " (laps 2, 3, 7)", or nothing.
QString lapsText(const QList<int> &laps)
{
    if (laps.isEmpty())
        return {};
    if (laps.size() > NamedLaps)
        return translated(QT_TRANSLATE_NOOP("zuno::MapWarning", " (%1 laps)"))
            .arg(QLocale().toString(laps.size()));
    QStringList numbers;
    for (const int lap : laps)
        numbers.append(QLocale().toString(lap));
    const char *text = laps.size() == 1 ? QT_TRANSLATE_NOOP("zuno::MapWarning", " (lap %1)")
                                        : QT_TRANSLATE_NOOP("zuno::MapWarning", " (laps %1)");
    return translated(text).arg(numbers.join(QStringLiteral(", ")));
}

// %1 is the gate, %2 the second gate, %3 the laps, %4 the sections, %5 the speed.
const char *pattern(const MapWarning &warning)
{
    switch (warning.kind) {
    case Kind::NoLine:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "There is no start/finish point, so there are no laps.");
    case Kind::NoPass:
        return QT_TRANSLATE_NOOP("zuno::MapWarning", "This session never passes the line.");
    case Kind::MissedPoint:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "Laps pass by %1 outside of its circle%3. Move the point onto "
                                 "their way or make the gate larger.");
    case Kind::PointOutOfOrder:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "Laps come to %1 before they come to %2. Number the points in "
                                 "riding order.");
    case Kind::SecondTrack:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "Another piece of the track runs through the circle of %1%3. Make "
                                 "the gate smaller or move the point.");
    case Kind::OtherWay:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "A pit lane, or a ride in the other direction, passes through the "
                                 "circle of %1%3. Make the gate smaller or move the point.");
    case Kind::GatesTouch:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "The circles of %1 and %2 touch. Move the points apart or make "
                                 "the gate smaller.");
    case Kind::CountedTwice:
        return QT_TRANSLATE_NOOP(
            "zuno::MapWarning",
            "One pass of the line counts twice%3: the rider was still inside its "
            "circle when it could count again. Make the gate smaller or move "
            "the line to where everybody is fast.");
    case Kind::NoLapComplete:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "No lap is as long as the outline, so none counts as complete.");
    case Kind::LastNotOnLine:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "The last point, %1, is not on the line: the rest of the lap "
                                 "belongs to no section.");
    case Kind::TooManyPoints:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "A lap has room for %4 sections; timing points after %1 are left "
                                 "out.");
    case Kind::NotFound:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "The map would not be found for this session by itself: the line "
                                 "is more than 1 km from where the recording begins, and the ride "
                                 "does not follow the outline. Choose the map with \"Maps\".");
    case Kind::SlowPass:
        return QT_TRANSLATE_NOOP("zuno::MapWarning",
                                 "A pass of the line below %5 km/h counts twice, as on a wet or "
                                 "slow day. Make the gate smaller or move the line to where "
                                 "everybody is fast.");
    }
    return "";
}

} // namespace

QString warningText(const MapWarning &warning)
{
    const int point = warning.kind == Kind::TooManyPoints ? warning.point - 1 : warning.point;
    QString text = translated(pattern(warning));
    text.replace(QStringLiteral("%1"), gateName(point));
    text.replace(QStringLiteral("%2"), gateName(warning.otherPoint));
    text.replace(QStringLiteral("%3"), lapsText(warning.laps));
    text.replace(QStringLiteral("%4"), QLocale().toString(warning.point));
    text.replace(QStringLiteral("%5"), QLocale().toString(warning.speed));
    return text;
}

} // namespace zuno
