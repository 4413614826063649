// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/table/columnmapping.h>

#include <algorithm>

#include <QCryptographicHash>

namespace zuno {

const ColumnUse &ColumnMapping::use(Quantity quantity) const
{
    return uses[static_cast<std::size_t>(quantity)];
}

ColumnUse &ColumnMapping::use(Quantity quantity)
{
    return uses[static_cast<std::size_t>(quantity)];
}

bool ColumnMapping::isUsable() const
{
    const bool hasTime = clock == ClockForm::Parts ? has(Quantity::Hour) : has(Quantity::Time);
    return hasTime && has(Quantity::Latitude) && has(Quantity::Longitude);
}

int ColumnMapping::lastColumn() const
{
    const auto last
        = std::max_element(uses.begin(), uses.end(), [](const ColumnUse &a, const ColumnUse &b) {
              return a.column < b.column;
          });
    return last->column;
}

QString headingKey(const TableHeading &heading)
{
    const QString text = heading.names.join(u'\n') + u'\f' + heading.units.join(u'\n') + u'\f'
                         + heading.sources.join(u'\n');
    return QString::fromLatin1(
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex().left(32));
}

} // namespace zuno
