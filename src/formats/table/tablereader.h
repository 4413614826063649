// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <formats/ridereader.h>
#include <formats/table/columnmapping.h>
#include <formats/table/rowbuilder.h>
#include <formats/table/tablesheet.h>
#include <formats/text/linereader.h>

namespace zuno {

/// Reads a text file that is a table with a heading, with anything before it.
class TableReader
{
public:
    using LineTaker = std::function<void(QByteArrayView line, const Cells &cells)>;
    using CommentTaker = std::function<void(QByteArrayView line, double time)>;
    using HeadingMaker = std::function<TableHeading(QByteArrayView line)>;

    TableReader(QIODevice &device, RideFacts &facts);

    /// Gets the lines before the heading, cut at commas.
    void setPreamble(LineTaker preamble) { m_preamble = std::move(preamble); }
    /// Gets lines that begin with # inside the table, with the time of the row before.
    void setComments(CommentTaker comments) { m_comments = std::move(comments); }
    /// Cuts the heading's line for kinds that write it in their own way.
    void setHeadingMaker(HeadingMaker maker) { m_headingMaker = std::move(maker); }
    void setDateOrder(DateOrder order) { m_order = order; }
    /// Takes the table that stands there, with columns as somebody has matched them.
    void setSheet(const TableSheet &sheet, const ColumnMapping &mapping);

    /// Reads up to the first rows. False when there is no heading with time and place in the first
    /// lines.
    [[nodiscard]] bool findHeading();
    [[nodiscard]] const TableHeading &heading() const { return m_heading; }
    /// The first rows, as they stand in the file.
    [[nodiscard]] const std::vector<std::vector<QByteArray>> &samples() const { return m_samples; }
    /// What the columns are taken for; may be changed before run().
    [[nodiscard]] ColumnMapping &mapping() { return m_mapping; }

    /// Hands the rows to @p sink, after findHeading(). Rows without a time of their own lie evenly
    /// between those that have one.
    ReadEnd run(RowSink &sink);

private:
    struct HeldLine
    {
        QByteArray text;
        qint64 number = 0;
        qint64 position = 0;
    };
    [[nodiscard]] bool isHeading(QByteArrayView line);
    void takeSamples();
    void takeLine(QByteArrayView line, qint64 number, qint64 position, RowSink &sink);
    void takeRow(const RawRow &row, RowSink &sink);

    LineReader m_lines;
    RideFacts &m_facts;
    LineTaker m_preamble;
    CommentTaker m_comments;
    HeadingMaker m_headingMaker;
    DateOrder m_order = DateOrder::DayFirst;
    std::optional<TableSheet> m_sheet;
    TableHeading m_heading;
    ColumnMapping m_mapping;
    std::vector<std::vector<QByteArray>> m_samples;
    std::vector<HeldLine> m_held;
    std::unique_ptr<RowBuilder> m_builder;
    std::vector<RawRow> m_untimed;
    Cells m_cells;
    double m_lastTime = NoValue;
    qint64 m_rows = 0;
    char m_separator = ',';
};

/// Reads the rows of a table whose columns somebody has matched.
[[nodiscard]] ReadEnd readSheet(QIODevice &device, RideFacts &facts, RowSink &sink,
                                const TableSheet &sheet, const ColumnMapping &mapping);

/// What there is no table in, in words.
[[nodiscard]] ReadEnd noTable();

} // namespace zuno
