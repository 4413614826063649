// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include <insight/losscards.h>
#include <insight/sessioninsight.h>

namespace zuno::cli {

/// A lap against another.
struct LapComparison
{
    int lap = 0;
    int against = 0;
    /// Where the other lap was ridden; empty when in the same session.
    QString otherFile;
    LossCards losses;
};

/// Why a session tells nothing, for people.
[[nodiscard]] QString lackText(InsightLack lack);

/// The corners of a circuit as a table.
[[nodiscard]] QByteArray cornersText(const CircuitCorners &circuit);
/// What a session tells, and a comparison if there is one, for people.
[[nodiscard]] QByteArray insightText(const QString &map, const SessionInsight &insight,
                                     const std::optional<LapComparison> &comparison);

} // namespace zuno::cli
