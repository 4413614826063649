// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/import/ridenotes.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <QCoreApplication>

namespace zuno {

namespace {

QStringList channelsWith(const ConversionReport &report,
                         std::initializer_list<ChannelSource> sources)
{
    const std::array<std::pair<ChannelSource, const char *>, 4> channels {
        {{report.speed, "speed"},
         {report.lean, "lean angle"},
         {report.along, "longitudinal acceleration"},
         {report.across, "lateral acceleration"}}};
    QStringList names;
    for (const auto &[source, name] : channels) {
        if (std::find(sources.begin(), sources.end(), source) != sources.end())
            names.append(QString::fromLatin1(name));
    }
    return names;
}

QString rateText(double rate)
{
    return QString::number(rate, 'f', rate < 9.95 && rate != std::floor(rate) ? 1 : 0);
}

} // namespace

double measuredRate(const RideFacts &facts, const ConversionReport &report)
{
    // Some apps interpolate what they write and say separately how often they measured.
    const bool saysLess = facts.positionRate > 0 && facts.positionRate < report.rate;
    return saysLess ? facts.positionRate : report.rate;
}

QString importNotes(const QString &fileName, const char *kind, const RideFacts &facts,
                    const ConversionReport &report)
{
    const bool namesLogger = !facts.logger.isEmpty() && facts.logger != QLatin1String(kind);
    QString notes = QStringLiteral("From %1 (%2%3, %4 Hz).")
                        .arg(fileName, QLatin1String(kind),
                             namesLogger ? QStringLiteral(", ") + facts.logger : QString(),
                             rateText(measuredRate(facts, report)));
    const QStringList computed
        = channelsWith(report, {ChannelSource::Computed, ChannelSource::Replaced});
    if (!computed.isEmpty())
        notes += QStringLiteral(" Computed: %1.").arg(computed.join(QStringLiteral(", ")));
    const QStringList turned = channelsWith(report, {ChannelSource::Turned});
    if (!turned.isEmpty())
        notes += QStringLiteral(" Sign turned: %1.").arg(turned.join(QStringLiteral(", ")));
    if (facts.damage.lines > 0)
        notes += QStringLiteral(" Damaged lines: %1.").arg(facts.damage.lines);
    if (!facts.notes.isEmpty())
        notes += u' ' + facts.notes;
    return notes;
}

QStringList ridesOddities(const RideFacts &facts, const ConversionReport &report)
{
    QStringList oddities;
    const double rate = measuredRate(facts, report);
    if (rate > 0 && rate < 4.5) {
        oddities.append(
            QCoreApplication::translate("Formats", "%1 Hz: lap times may be off by %2 s")
                .arg(rateText(rate), QString::number(rate < 1.5 ? 0.3 : 0.1)));
    }
    if (facts.damage.lines > 0) {
        oddities.append(QCoreApplication::translate(
                            "Formats", "%1 damaged lines left out, the first is line %2")
                            .arg(facts.damage.lines)
                            .arg(facts.damage.firstLine));
    }
    if (report.positions.jumps > 0)
        oddities.append(QCoreApplication::translate("Formats", "%1 impossible positions left out")
                            .arg(report.positions.jumps));
    if (report.gaps > 0)
        oddities.append(
            QCoreApplication::translate("Formats", "%1 gaps without a position").arg(report.gaps));
    if (report.speed != ChannelSource::Recorded)
        oddities.append(
            QCoreApplication::translate("Formats", "no speed: computed from positions"));
    if (!facts.clockZero.isValid())
        oddities.append(
            QCoreApplication::translate("Formats", "no date: that of the file is taken"));
    return oddities;
}

} // namespace zuno
