// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// TrackAddict's CSV: lines of remarks before and inside the table. A row every 50 ms, but a
// position only where GPS_Update is 1.

#include <formats/readers/readers.h>
#include <formats/table/tablereader.h>

namespace zuno {

namespace {

void takeRemark(QByteArrayView line, RideFacts &facts)
{
    static const QByteArrayView Maker("RaceRender Data:");
    static const QByteArrayView Vehicle("# Vehicle:");
    if (const qsizetype at = line.indexOf(Maker); at >= 0)
        facts.logger
            = cellText(line.sliced(at + Maker.size())).section(QStringLiteral(" on "), 0, 0);
    else if (line.startsWith(Vehicle))
        facts.vehicle = cellText(line.sliced(Vehicle.size()));
}

} // namespace

bool looksLikeTrackAddict(QByteArrayView head)
{
    return head.startsWith('#')
           && (head.contains("TrackAddict") || head.contains("RaceRender Data"));
}

ReadEnd readTrackAddict(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    TableReader table(device, facts);
    facts.logger = QStringLiteral("TrackAddict");
    table.setPreamble(
        [&facts](QByteArrayView line, const Cells & /*cells*/) { takeRemark(line, facts); });
    table.setComments([&facts](QByteArrayView line, double time) {
        if (line.startsWith("# Lap ") && time == time)
            facts.lapMarks.push_back(time);
    });
    if (!table.findHeading())
        return noTable();
    return table.run(sink);
}

} // namespace zuno
