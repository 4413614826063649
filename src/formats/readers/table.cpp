// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any other table with time and place, as far as its columns can be told.

#include <QBuffer>

#include <formats/readers/readers.h>
#include <formats/table/tablereader.h>

namespace zuno {

bool looksLikeTable(QByteArrayView head)
{
    QByteArray bytes = head.toByteArray();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    RideFacts facts;
    TableReader table(buffer, facts);
    return table.findHeading();
}

ReadEnd readTable(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    TableReader table(device, facts);
    if (!table.findHeading())
        return noTable();
    return table.run(sink);
}

} // namespace zuno
