// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// RaceCapture's log: a heading of "Name"|"unit"|..., and an empty cell for whatever was not sampled
// in a row. Older ones have a time only where the receiver gave one, as hhmmss.sss.

#include <algorithm>

#include <formats/readers/readers.h>
#include <formats/table/tablereader.h>

namespace zuno {

namespace {

TableHeading makeHeading(QByteArrayView line)
{
    TableHeading heading;
    if (line.startsWith('#'))
        line = line.sliced(1);
    Cells channels;
    Cells parts;
    splitCells(line, ',', channels);
    for (const QByteArrayView channel : channels) {
        splitCells(channel, '|', parts);
        heading.names.append(cellText(parts[0]));
        heading.units.append(parts.size() > 1 ? cellText(parts[1]) : QString());
    }
    return heading;
}

// Of its three clocks, the world's time is right, the interval loses some, and the time of day is
// there when nothing else is.
void chooseClock(const TableReader &table, ColumnMapping &mapping)
{
    const auto column = [&table](QLatin1String name) {
        return static_cast<int>(table.heading().names.indexOf(name));
    };
    const auto isFilled = [&table](int i) {
        return i >= 0
               && std::any_of(table.samples().begin(), table.samples().end(), [i](const auto &row) {
                      return static_cast<std::size_t>(i) < row.size()
                             && toNumber(row[static_cast<std::size_t>(i)]) > 0;
                  });
    };
    const int utc = column(QLatin1String("Utc"));
    const int interval = column(QLatin1String("Interval"));
    const int time = column(QLatin1String("Time"));
    if (isFilled(utc)) {
        mapping.use(Quantity::Time).column = utc;
        mapping.clock = ClockForm::UnixMilliseconds;
    } else if (isFilled(interval)) {
        mapping.use(Quantity::Time).column = interval;
        mapping.clock = ClockForm::Milliseconds;
    } else if (time >= 0) {
        mapping.use(Quantity::Time).column = time;
        mapping.clock = ClockForm::ClockNumber;
    }
}

} // namespace

bool looksLikeRaceCapture(QByteArrayView head)
{
    const QByteArrayView line = upTo(head, '\n');
    return (line.startsWith('"') || line.startsWith("#\"")) && line.contains("\"|\"");
}

ReadEnd readRaceCapture(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    TableReader table(device, facts);
    facts.logger = QStringLiteral("RaceCapture");
    table.setHeadingMaker(makeHeading);
    const bool isUsable = table.findHeading();
    chooseClock(table, table.mapping());
    if (!isUsable && !table.mapping().isUsable())
        return noTable();
    return table.run(sink);
}

} // namespace zuno
