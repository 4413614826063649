// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <vector>

#include <QByteArrayView>

#include <formats/table/columnmapping.h>

namespace zuno {

/// Where the table of a text file stands, whatever its columns are called, and what it looks like.
struct TableSheet
{
    /// Names, units and sources; columns without names are called by their numbers, from 1.
    TableHeading heading;
    /// The first rows, cells as they stand in the file.
    std::vector<std::vector<QByteArray>> rows;
    /// The number of the heading's first line, from 1; without a heading, of the first row.
    qint64 line = 1;
    char separator = ',';
    bool hasNames = true;
};

/// The table in a text file that begins with @p head: two or more lines of the same number of
/// cells, three at least, of which as many are numbers or times of day. Nothing without one.
[[nodiscard]] std::optional<TableSheet> findSheet(QByteArrayView head);

} // namespace zuno
