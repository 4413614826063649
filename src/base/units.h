// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace zuno {

class Settings;

/// In which units speeds, distances and temperatures are shown and typed. Files, results and
/// thresholds stay in km/h, metres and degrees Celsius; only what is shown passes here. Numbers are
/// written as the default QLocale writes them.
struct Units
{
    enum class Speed { KilometresPerHour, MilesPerHour };
    enum class Distance { Metres, Feet };
    enum class Temperature { Celsius, Fahrenheit };

    Speed speedUnit = Speed::KilometresPerHour;
    Distance distanceUnit = Distance::Metres;
    Temperature temperatureUnit = Temperature::Celsius;

    /// Those of the settings; what is none of the units there are the metric ones.
    [[nodiscard]] static Units of(const Settings &settings);
    void store(const Settings &settings) const;

    /// @p kmh in km/h, or a difference of speeds.
    [[nodiscard]] double speed(double kmh) const;
    [[nodiscard]] double distance(double metres) const;
    [[nodiscard]] double temperature(double celsius) const;
    /// What was typed, in degrees Celsius.
    [[nodiscard]] double celsius(double temperature) const;

    [[nodiscard]] QString speedName() const;
    [[nodiscard]] QString distanceName() const;
    [[nodiscard]] QString temperatureName() const;

    /// "212.4 km/h". With @p isDifference a positive one has its sign, and minus is U+2212.
    [[nodiscard]] QString speedText(double kmh, int decimals = 0, bool isDifference = false) const;
    /// "1881 m"
    [[nodiscard]] QString distanceText(double metres, int decimals = 0,
                                       bool isDifference = false) const;
    /// "23 °C"
    [[nodiscard]] QString temperatureText(double celsius) const;

    friend bool operator==(const Units &, const Units &) = default;
};

/// A number as it is shown: rounded before it gets its sign, so that zero has none. A difference
/// has a plus, or U+2212.
[[nodiscard]] QString shownNumber(double value, int decimals, bool isDifference = false);

} // namespace zuno
