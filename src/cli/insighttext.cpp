// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/insighttext.h>

#include <base/laptimes.h>
#include <base/numbers.h>
#include <cli/console.h>

namespace zuno::cli {

namespace {

QString number(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString signedSeconds(double value)
{
    return (value < 0.0 ? QString() : QStringLiteral("+")) + number(value, 3);
}

QByteArray lapsTable(const SessionInsight &insight)
{
    QStringList header {QStringLiteral("Lap"), QStringLiteral("Lap time"), QStringLiteral("East"),
                        QStringLiteral("North")};
    for (std::size_t unit = 0; unit < insight.circuit.units.size(); ++unit)
        header.append(insight.circuit.unitLabel(unit));
    header.append(QStringLiteral("Flags"));
    TextTable table(header);
    for (std::size_t i = 0; i < insight.laps.size(); ++i) {
        const InsightLap &lap = insight.laps[i];
        const std::optional<PlaneVector> &offset = lap.path.offset();
        QStringList row {QString::number(lap.number) + (i == *insight.best ? u"*" : u""),
                         timeText(roundedToInt(1000.0 * lap.path.duration())),
                         offset ? number(offset->x, 1) : QString(),
                         offset ? number(offset->y, 1) : QString()};
        for (const qint32 time : timesIn(insight.circuit.units, lap.path))
            row.append(number(static_cast<double>(time) / 1000.0, 3));
        QStringList flags;
        if (!lap.isValid)
            flags.append(QStringLiteral("thrown out"));
        for (const LapFlag &flag : lap.flags)
            flags.append(flagText(flag));
        row.append(flags.join(QStringLiteral(", ")));
        table.add(row);
    }
    return table.text();
}

QByteArray listText(const SessionInsight &insight)
{
    if (!insight.hasEnoughLaps())
        return "Too few laps to say where the usual one loses.\n";
    if (insight.list.empty())
        return "The usual lap loses nothing above 0.15 s that was ridden better twice.\n";
    QString text;
    for (const ListedLoss &listed : insight.list) {
        text += QStringLiteral("%1: %2 s (%3 s by speed), lap %4 against %5: %6\n")
                    .arg(insight.circuit.unitLabel(listed.loss.unit), number(listed.loss.loss, 2),
                         number(listed.loss.bySpeed, 2))
                    .arg(insight.laps[listed.lap].number)
                    .arg(insight.laps[listed.against].number)
                    .arg(causeTexts(listed.loss, insight.circuit).join(QStringLiteral("; ")));
    }
    return "Where the usual lap loses:\n" + text.toLocal8Bit();
}

QString seconds(qint32 milliseconds)
{
    return signedSeconds(static_cast<double>(milliseconds) / 1000.0);
}

QByteArray comparisonText(const LapComparison &comparison)
{
    TextTable table({QStringLiteral("Unit"), QStringLiteral("Loss"), QStringLiteral("By speed")});
    QString why;
    for (const LossCard &card : comparison.losses.units) {
        table.add({card.label, seconds(card.loss), signedSeconds(card.bySpeed)});
        if (!card.causes.isEmpty())
            why += card.label + u": " + card.causes.join(QStringLiteral("; ")) + u'\n';
    }
    table.add({QStringLiteral("Lap"), seconds(comparison.losses.total), QString()});
    const QString head
        = QStringLiteral("Lap %1 against lap %2%3:\n")
              .arg(comparison.lap)
              .arg(comparison.against)
              .arg(comparison.otherFile.isEmpty() ? QString() : u" of " + comparison.otherFile);
    return head.toLocal8Bit() + table.text() + '\n' + why.toLocal8Bit();
}

} // namespace

QString lackText(InsightLack lack)
{
    switch (lack) {
    case InsightLack::None:
        return {};
    case InsightLack::NoCorners:
        return QStringLiteral("no circuit, or one without corners");
    case InsightLack::NoCompleteLap:
        return QStringLiteral("no complete lap");
    case InsightLack::OutlineOff:
        return QStringLiteral("the outline of the circuit is too rough for its corners");
    case InsightLack::RateTooLow:
        return QStringLiteral("the receiver measured speeds about once a second, or none");
    }
    return {};
}

QByteArray cornersText(const CircuitCorners &circuit)
{
    TextTable table({QStringLiteral("Corner"), QStringLiteral("Way"), QStringLiteral("Boundary"),
                     QStringLiteral("Start"), QStringLiteral("Middle"), QStringLiteral("End"),
                     QStringLiteral("Degrees"), QStringLiteral("Radius")});
    const auto place = [&](double along) { return number(circuit.ring.wrapped(along), 0); };
    for (const Corner &corner : circuit.corners) {
        table.add({corner.label(),
                   corner.isRight ? QStringLiteral("right") : QStringLiteral("left"),
                   place(corner.boundary), place(corner.start), place(corner.middle),
                   place(corner.end), number(corner.angle, 0), number(corner.radius, 0)});
    }
    QStringList units;
    for (std::size_t unit = 0; unit < circuit.units.size(); ++unit)
        units.append(circuit.unitLabel(unit));
    return table.text() + "\nRidden as one: " + units.join(QStringLiteral(", ")).toLocal8Bit()
           + '\n';
}

QByteArray insightText(const QString &map, const SessionInsight &insight,
                       const std::optional<LapComparison> &comparison)
{
    if (insight.lack != InsightLack::None)
        return "Nothing can be told: " + lackText(insight.lack).toLocal8Bit() + ".\n";
    if (comparison)
        return comparisonText(*comparison);
    TextList list;
    list.add(QStringLiteral("Map"), map);
    list.add(QStringLiteral("Corners"), QString::number(insight.circuit.corners.size()));
    list.add(QStringLiteral("Receiver"),
             QStringLiteral("about %1 Hz").arg(number(insight.rate, 0)));
    return list.text() + '\n' + lapsTable(insight) + '\n' + listText(insight);
}

} // namespace zuno::cli
