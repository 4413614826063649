// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/table/tablereader.h>

#include <algorithm>
#include <cmath>

#include <QCoreApplication>

namespace zuno {

namespace {

// Preambles of 40 lines were seen, and a kilobyte of empty ones.
constexpr qint64 LastHeadingLine = 3000;
constexpr std::size_t SampleCount = 40;
// So many rows without a time of their own are put between two that have one.
constexpr std::size_t MostUntimed = 1000;

QStringList texts(const Cells &cells)
{
    QStringList texts;
    for (const QByteArrayView cell : cells)
        texts.append(cellText(cell));
    return texts;
}

bool holdsNumber(const Cells &cells)
{
    return std::any_of(cells.begin(), cells.end(),
                       [](QByteArrayView cell) { return !std::isnan(toNumber(cell)); });
}

std::vector<QByteArray> copied(const Cells &cells)
{
    std::vector<QByteArray> copies;
    for (const QByteArrayView cell : cells)
        copies.push_back(cell.toByteArray());
    return copies;
}

} // namespace

ReadEnd noTable()
{
    return {QCoreApplication::translate(
        "Formats", "there is no table with columns for time, latitude and longitude")};
}

TableReader::TableReader(QIODevice &device, RideFacts &facts) : m_lines(device), m_facts(facts) {}

void TableReader::setSheet(const TableSheet &sheet, const ColumnMapping &mapping)
{
    m_sheet = sheet;
    m_separator = sheet.separator;
    m_mapping = mapping;
}

bool TableReader::isHeading(QByteArrayView line)
{
    if (m_sheet) {
        if (m_lines.number() < m_sheet->line)
            return false;
        m_heading = m_sheet->heading;
        if (!m_sheet->hasNames)
            m_lines.putBack();
        return true;
    }
    if (m_headingMaker) {
        m_heading = m_headingMaker(line);
        return !m_heading.names.isEmpty();
    }
    // Most lines are none; this is cheaper than to cut them.
    const QByteArray small = line.toByteArray().toLower();
    if (!small.contains("lat") && !small.contains("coord"))
        return false;
    for (const char separator : {',', ';', '\t', '|'}) {
        splitCells(line, separator, m_cells);
        if (m_cells.size() < 3)
            continue;
        m_heading = {texts(m_cells), {}, {}};
        const ColumnMapping guess = guessColumns(m_heading, {});
        if (guess.has(Quantity::Latitude) && guess.has(Quantity::Longitude)) {
            m_separator = separator;
            return true;
        }
    }
    m_heading = {};
    return false;
}

bool TableReader::findHeading()
{
    while (const auto line = m_lines.next()) {
        if (line->trimmed().isEmpty())
            continue;
        if (isHeading(*line)) {
            takeSamples();
            if (!m_sheet)
                m_mapping = guessColumns(m_heading, m_samples);
            return m_mapping.isUsable();
        }
        if (m_lines.number() > LastHeadingLine)
            return false;
        if (m_preamble) {
            splitCells(*line, ',', m_cells);
            m_preamble(*line, m_cells);
        }
    }
    return false;
}

void TableReader::takeSamples()
{
    while (m_samples.size() < SampleCount) {
        const auto line = m_lines.next();
        if (!line)
            return;
        splitCells(*line, m_separator, m_cells);
        const bool isText = (!m_sheet || m_sheet->hasNames) && m_cells.size() > 1
                            && !line->startsWith('#') && !holdsNumber(m_cells);
        if (m_held.empty() && isText && m_heading.units.isEmpty()) {
            m_heading.units = texts(m_cells);
        } else if (m_held.empty() && isText && m_heading.sources.isEmpty()) {
            m_heading.sources = texts(m_cells);
        } else if (!line->trimmed().isEmpty()) {
            m_held.push_back({line->toByteArray(), m_lines.number(), m_lines.position()});
            if (!line->startsWith('#'))
                m_samples.push_back(copied(m_cells));
        }
    }
}

void TableReader::takeRow(const RawRow &row, RowSink &sink)
{
    if (std::isnan(row.time)) {
        // Before the first time nobody knows when they were.
        if (!std::isnan(m_lastTime) && m_untimed.size() < MostUntimed)
            m_untimed.push_back(row);
        return;
    }
    const double step = (row.time - m_lastTime) / static_cast<double>(m_untimed.size() + 1);
    for (RawRow &untimed : m_untimed) {
        m_lastTime += step;
        untimed.time = m_lastTime;
        sink.take(untimed);
    }
    m_untimed.clear();
    m_lastTime = row.time;
    sink.take(row);
}

void TableReader::takeLine(QByteArrayView line, qint64 number, qint64 position, RowSink &sink)
{
    if (line.startsWith('#')) {
        if (m_comments)
            m_comments(line, m_lastTime);
        return;
    }
    if (line.trimmed().isEmpty())
        return;
    splitCells(line, m_separator, m_cells);
    RawRow row;
    if (!m_builder->build(m_cells, row)) {
        m_facts.damage.add(number, position);
        return;
    }
    ++m_rows;
    takeRow(row, sink);
}

ReadEnd TableReader::run(RowSink &sink)
{
    m_facts.isSpeedUnitUnknown = m_mapping.isSpeedUnitUnknown;
    m_builder = std::make_unique<RowBuilder>(m_mapping, m_facts, m_order);
    for (const HeldLine &held : m_held)
        takeLine(held.text, held.number, held.position, sink);
    m_held.clear();
    while (!sink.isCancelled()) {
        const auto line = m_lines.next();
        if (!line)
            break;
        takeLine(*line, m_lines.number(), m_lines.position(), sink);
    }
    if (m_rows == 0 && m_facts.damage.lines > 0) {
        return {QCoreApplication::translate("Formats", "no row can be read; the first is line %1")
                    .arg(m_facts.damage.firstLine)};
    }
    return {};
}

ReadEnd readSheet(QIODevice &device, RideFacts &facts, RowSink &sink, const TableSheet &sheet,
                  const ColumnMapping &mapping)
{
    TableReader table(device, facts);
    table.setSheet(sheet, mapping);
    if (!table.findHeading())
        return noTable();
    return table.run(sink);
}

} // namespace zuno
