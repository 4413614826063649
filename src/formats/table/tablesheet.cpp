// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/table/tablesheet.h>

#include <algorithm>
#include <cmath>

#include <QBuffer>

#include <formats/text/cells.h>
#include <formats/text/datetimes.h>
#include <formats/text/linereader.h>

namespace zuno {

namespace {

constexpr std::size_t LeastCells = 3;
constexpr std::size_t RowsKept = 40;
// Names, units and sources.
constexpr std::size_t MostHeadings = 3;

bool isValue(QByteArrayView cell)
{
    return !std::isnan(toNumber(cell))
           || (cell.contains(':') && !std::isnan(findTimeOfDay(QString::fromUtf8(cell))));
}

struct Line
{
    std::vector<QByteArray> cells;
    qint64 number = 0;
    std::size_t values = 0;
};

std::vector<Line> linesOf(QByteArrayView head, char separator)
{
    QByteArray bytes = head.toByteArray();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    LineReader reader(buffer);
    std::vector<Line> lines;
    Cells cells;
    while (const auto text = reader.next()) {
        if (text->trimmed().isEmpty() || text->startsWith('#'))
            continue;
        splitCells(*text, separator, cells);
        Line line {{}, reader.number(), 0};
        for (const QByteArrayView cell : cells) {
            line.cells.push_back(cell.toByteArray());
            line.values += isValue(cell) ? 1 : 0;
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

// The first of two rows that look like those of one table. A preamble has lines of numbers, too,
// but hardly two that agree.
std::size_t firstRow(const std::vector<Line> &lines)
{
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        if (lines[i].values >= LeastCells && lines[i + 1].values >= LeastCells
            && lines[i].cells.size() == lines[i + 1].cells.size())
            return i;
    }
    return lines.size();
}

QStringList textsOf(const std::vector<QByteArray> &cells)
{
    QStringList texts;
    for (const QByteArray &cell : cells)
        texts.append(cellText(cell));
    return texts;
}

TableHeading numbered(std::size_t count)
{
    TableHeading heading;
    for (std::size_t i = 1; i <= count; ++i)
        heading.names.append(QString::number(i));
    return heading;
}

std::optional<TableSheet> sheetOf(const std::vector<Line> &lines, char separator)
{
    const std::size_t first = firstRow(lines);
    if (first == lines.size())
        return std::nullopt;
    const std::size_t columns = lines[first].cells.size();
    std::size_t top = first;
    while (top > 0 && first - top < MostHeadings && lines[top - 1].values == 0
           && lines[top - 1].cells.size() == columns)
        --top;
    TableSheet sheet;
    sheet.separator = separator;
    sheet.line = lines[top].number;
    sheet.hasNames = top < first;
    sheet.heading
        = sheet.hasNames ? TableHeading {textsOf(lines[top].cells), {}, {}} : numbered(columns);
    if (first - top > 1)
        sheet.heading.units = textsOf(lines[top + 1].cells);
    if (first - top > 2)
        sheet.heading.sources = textsOf(lines[top + 2].cells);
    for (std::size_t i = first; i < lines.size() && sheet.rows.size() < RowsKept; ++i)
        sheet.rows.push_back(lines[i].cells);
    return sheet;
}

} // namespace

std::optional<TableSheet> findSheet(QByteArrayView head)
{
    const QByteArray plain = utf8Head(head);
    // A comma may be a decimal one, so it is asked last.
    for (const char separator : {';', '\t', '|', ','}) {
        if (!plain.contains(separator))
            continue;
        if (auto sheet = sheetOf(linesOf(plain, separator), separator))
            return sheet;
    }
    return std::nullopt;
}

} // namespace zuno
