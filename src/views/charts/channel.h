// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <span>

#include <session/recording/pointacquisition.h>
#include <views/charts/chartaxis.h>

namespace zuno {

/// A lowest and a highest value; both not a number where there is none.
struct ValueRange
{
    double low;
    double high;
};

/// What a chart shows of the samples, as data: to add a channel is to add an entry.
struct Channel
{
    /// Texts that are still to be translated, in the context "Channel".
    const char *name = nullptr;
    const char *unit = nullptr;
    /// Why a recording may not have it, for the rider.
    const char *missing = nullptr;
    int decimals = 0;
    /// The values of a chart that has none; it never shows less than so many.
    AxisRange shown;
    /// Values outside cannot have been ridden; they count as none.
    AxisRange possible;
    double (*read)(const PointAcquisition &) = nullptr;
    /// The lowest and the highest within a sample; nullptr for a channel with one value a sample.
    ValueRange (*readRange)(const PointAcquisition &) = nullptr;
    /// Whether its values are km/h, which are shown in the rider's unit.
    bool isSpeed = false;

    /// The value of a sample; not a number when it has none.
    [[nodiscard]] double value(const PointAcquisition &point) const;
    [[nodiscard]] ValueRange valueRange(const PointAcquisition &point) const;
    /// Whether there is anything to show: a logger without the sensor writes zeros or nothing.
    [[nodiscard]] bool isIn(std::span<const PointAcquisition> points) const;
    [[nodiscard]] QString nameText() const;
    [[nodiscard]] QString missingText() const;
    [[nodiscard]] QString unitText() const;
    /// With its unit, for the title of a chart.
    [[nodiscard]] QString titleText() const;
    /// A value in the unit that the rider reads.
    [[nodiscard]] double shownValue(double value) const;
    /// The same as a number with the channel's decimals; a dash for what is none.
    [[nodiscard]] QString numberText(double value) const;
    /// @p value with its decimals and the unit; a dash for what is not a number. @p isDifference
    /// writes the sign of positive values as well.
    [[nodiscard]] QString valueText(double value, bool isDifference = false) const;
};

inline constexpr std::size_t ChannelCount = 5;

/// Speed, lean angle, acceleration, front and rear suspension.
[[nodiscard]] const std::array<Channel, ChannelCount> &channels();

/// The seconds between two laps, for the same chart and texts as the channels of one lap.
[[nodiscard]] const Channel &gapChannel();

} // namespace zuno
