// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <base/units.h>

namespace zuno {

/// The units of the whole program at the moment.
class ShownUnits final : public QObject
{
    Q_OBJECT

public:
    /// The program has them once, as it has one theme.
    [[nodiscard]] static ShownUnits &instance();

    [[nodiscard]] const Units &units() const { return m_units; }
    void choose(const Units &units);

Q_SIGNALS:
    /// units() are others: every text with a speed, distance or temperature is another.
    void changed();

private:
    ShownUnits() = default;

    Units m_units;
};

/// The units of the whole program at the moment.
[[nodiscard]] const Units &units();

} // namespace zuno
