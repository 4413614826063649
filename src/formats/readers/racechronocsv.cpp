// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// RaceChrono's CSV, versions 2 and 3: lines of a key and a value, then up to three heading rows
// (names, units, sources), then rows on the clock of every channel there is.

#include <formats/readers/readers.h>
#include <formats/table/tablereader.h>

namespace zuno {

namespace {

void takeKey(const Cells &cells, QByteArrayView line, RideFacts &facts)
{
    static const QByteArrayView Creator("created using ");
    if (const qsizetype at = line.indexOf(Creator); at >= 0)
        facts.logger = cellText(upTo(line.sliced(at + Creator.size()), '('));
    if (cells.size() < 2)
        return;
    const QString key = cellText(cells[0]).toLower();
    const QString value = cellText(cells[1]);
    if (key == u"session title")
        facts.event = value;
    else if (key == u"track name")
        facts.circuit = value;
    else if (key == u"driver name")
        facts.driver = value;
    else if (key == u"vehicle name")
        facts.vehicle = value;
    else if (key == u"note")
        facts.notes = value;
}

} // namespace

bool looksLikeRaceChronoCsv(QByteArrayView head)
{
    return head.first(std::min<qsizetype>(head.size(), 300)).contains("RaceChrono")
           && !head.contains("[header]") && head.contains(',');
}

ReadEnd readRaceChronoCsv(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    TableReader table(device, facts);
    facts.logger = QStringLiteral("RaceChrono");
    table.setPreamble(
        [&facts](QByteArrayView line, const Cells &cells) { takeKey(cells, line, facts); });
    if (!table.findHeading())
        return noTable();
    return table.run(sink);
}

} // namespace zuno
