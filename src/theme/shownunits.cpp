// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <theme/shownunits.h>

namespace zuno {

ShownUnits &ShownUnits::instance()
{
    static ShownUnits shown;
    return shown;
}

void ShownUnits::choose(const Units &units)
{
    if (units == m_units)
        return;
    m_units = units;
    Q_EMIT changed();
}

const Units &units()
{
    return ShownUnits::instance().units();
}

} // namespace zuno
