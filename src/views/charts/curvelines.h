// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <QLineF>
#include <QList>
#include <QPolygonF>

#include <views/charts/chartaxis.h>
#include <views/charts/chartcontent.h>

namespace zuno {

/// Knows where the lowest and the highest of any run of values stand without looking at each, from
/// the extremes of blocks of 8 values, of 64, and so on. Values that are not a number are left out.
class Extremes
{
public:
    Extremes() = default;
    /// @p values must outlive it, where they are.
    explicit Extremes(std::span<const double> values);

    static constexpr std::uint32_t None = 0xffffffff;
    /// Indexes of the values, of equal ones the first; None without a number.
    struct Pair
    {
        std::uint32_t low = None;
        std::uint32_t high = None;
    };
    /// The extremes of the values from @p first to the one before @p end.
    [[nodiscard]] Pair of(std::size_t first, std::size_t end) const;

private:
    [[nodiscard]] Pair joined(Pair a, Pair b) const;

    std::span<const double> m_values;
    std::vector<std::vector<Pair>> m_levels;
};

/// The strokes of a line with dashes (dash and gap in turn, pixels; none for a solid line), which
/// run on over its corners. Qt itself outlines a whole line before it fills it, which takes ten
/// times as long, and more the longer it is; drawn piece by piece it begins each dash anew.
[[nodiscard]] QList<QLineF> strokes(const QPolygonF &line, std::span<const double> dashes);

/// The lines of a curve on the screen.
///
/// Of samples that fall into one column of pixels only the first, the extremes and the last are
/// drawn, which gives the same picture: a lap of eight hours costs what one of a minute does.
class CurveLines
{
public:
    /// @p curve must outlive it, where it is.
    explicit CurveLines(const Curve &curve);

    /// The unbroken pieces within the stretch of @p horizontal, one sample beyond at each end. A
    /// lone value is no line.
    [[nodiscard]] std::vector<QPolygonF> lines(const PixelScale &horizontal,
                                               const PixelScale &vertical) const;
    /// What lies between the lowest and the highest values, in small polygons side by side; none
    /// for a curve without.
    [[nodiscard]] std::vector<QPolygonF> bands(const PixelScale &horizontal,
                                               const PixelScale &vertical) const;
    /// From the lowest to the highest value in a stretch of the axis; none without a value there.
    [[nodiscard]] std::optional<AxisRange> extremesIn(const AxisRange &stretch) const;

private:
    const Curve *m_curve;
    Extremes m_values;
    Extremes m_lows;
    Extremes m_highs;
};

} // namespace zuno
