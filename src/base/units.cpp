// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/units.h>

#include <cmath>

#include <QCoreApplication>
#include <QLocale>

#include <base/settings.h>

namespace zuno {

namespace {

// The international mile and foot, exact by definition.
constexpr double KilometresOfMile = 1.609344;
constexpr double MetresOfFoot = 0.3048;

constexpr QLatin1String Mph("mph");
constexpr QLatin1String Feet("ft");
constexpr QLatin1String Fahrenheit("F");

QString translated(const char *text)
{
    return QCoreApplication::translate("Channel", text);
}

QString withUnit(const QString &number, const QString &unit)
{
    return number + u' ' + unit;
}

} // namespace

Units Units::of(const Settings &settings)
{
    const auto is = [&settings](Setting setting, QLatin1String text) {
        return settings.value(setting).toString() == text;
    };
    Units units;
    if (is(Setting::SpeedUnit, Mph))
        units.speedUnit = Speed::MilesPerHour;
    if (is(Setting::DistanceUnit, zuno::Feet))
        units.distanceUnit = Distance::Feet;
    if (is(Setting::TemperatureUnit, zuno::Fahrenheit))
        units.temperatureUnit = Temperature::Fahrenheit;
    return units;
}

void Units::store(const Settings &settings) const
{
    const auto value = [](bool isOther, QLatin1String other, Setting setting) {
        return std::pair(setting, isOther ? QVariant(QString(other)) : Settings::standard(setting));
    };
    settings.setValues({value(speedUnit == Speed::MilesPerHour, Mph, Setting::SpeedUnit),
                        value(distanceUnit == Distance::Feet, zuno::Feet, Setting::DistanceUnit),
                        value(temperatureUnit == Temperature::Fahrenheit, zuno::Fahrenheit,
                              Setting::TemperatureUnit)});
}

double Units::speed(double kmh) const
{
    return speedUnit == Speed::MilesPerHour ? kmh / KilometresOfMile : kmh;
}

double Units::distance(double metres) const
{
    return distanceUnit == Distance::Feet ? metres / MetresOfFoot : metres;
}

double Units::temperature(double celsius) const
{
    return temperatureUnit == Temperature::Fahrenheit ? celsius * 1.8 + 32 : celsius;
}

double Units::celsius(double temperature) const
{
    return temperatureUnit == Temperature::Fahrenheit ? (temperature - 32) / 1.8 : temperature;
}

QString Units::speedName() const
{
    return speedUnit == Speed::MilesPerHour ? QString(Mph)
                                            : translated(QT_TRANSLATE_NOOP("Channel", "km/h"));
}

QString Units::distanceName() const
{
    return distanceUnit == Distance::Feet ? QString(zuno::Feet) : QStringLiteral("m");
}

QString Units::temperatureName() const
{
    return temperatureUnit == Temperature::Fahrenheit ? QStringLiteral("\u00b0F")
                                                      : QStringLiteral("\u00b0C");
}

QString Units::speedText(double kmh, int decimals, bool isDifference) const
{
    return withUnit(shownNumber(speed(kmh), decimals, isDifference), speedName());
}

QString Units::distanceText(double metres, int decimals, bool isDifference) const
{
    return withUnit(shownNumber(distance(metres), decimals, isDifference), distanceName());
}

QString Units::temperatureText(double celsius) const
{
    return withUnit(shownNumber(temperature(celsius), 0), temperatureName());
}

QString shownNumber(double value, int decimals, bool isDifference)
{
    const double power = std::pow(10.0, decimals);
    const double rounded = std::round(value * power) / power + 0.0;
    QString text = QLocale().toString(isDifference ? std::abs(rounded) : rounded, 'f', decimals);
    if (!isDifference || rounded == 0)
        return text;
    return (rounded > 0 ? u'+' : u'\u2212') + text;
}

} // namespace zuno
