// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/temperaturebox.h>

#include <algorithm>

#include <QLineEdit>

#include <session/session.h>
#include <theme/shownunits.h>

namespace zuno {

namespace {

QString unknownText()
{
    //: A track temperature that nobody noted.
    return TemperatureBox::tr("unknown");
}

/// @p hint with room for that text, where a spin box makes room for its greatest number.
QSize withUnknown(const QSize &hint, const QSpinBox &box)
{
    const QFontMetrics metrics = box.fontMetrics();
    const int more = metrics.horizontalAdvance(unknownText())
                     - metrics.horizontalAdvance(QString::number(box.maximum()));
    return hint + QSize(std::max(more, 0), 0);
}

} // namespace

TemperatureBox::TemperatureBox(QWidget *parent) : QSpinBox(parent)
{
    setRange(0, SessionInformation::MaximumTemperature);
    // The same value in the other unit.
    connect(&ShownUnits::instance(), &ShownUnits::changed, this,
            [this] { lineEdit()->setText(textFromValue(value())); });
}

QSize TemperatureBox::sizeHint() const
{
    return withUnknown(QSpinBox::sizeHint(), *this);
}

QSize TemperatureBox::minimumSizeHint() const
{
    return withUnknown(QSpinBox::minimumSizeHint(), *this);
}

QString TemperatureBox::textFromValue(int value) const
{
    return value == SessionInformation::UnknownTemperature
               ? unknownText()
               : QSpinBox::textFromValue(qRound(units().temperature(value)));
}

int TemperatureBox::valueFromText(const QString &text) const
{
    if (text.compare(unknownText(), Qt::CaseInsensitive) == 0)
        return SessionInformation::UnknownTemperature;
    // The box would hold a number in another unit against its range.
    return units().temperatureUnit == Units::Temperature::Celsius
               ? QSpinBox::valueFromText(text)
               : qRound(units().celsius(locale().toInt(text)));
}

QValidator::State TemperatureBox::validate(QString &input, int &pos) const
{
    const QString unknown = unknownText();
    if (input.isEmpty() || !unknown.startsWith(input, Qt::CaseInsensitive))
        return validateNumber(input, pos);
    return input.size() == unknown.size() ? QValidator::Acceptable : QValidator::Intermediate;
}

// The range of the box is in degrees Celsius, as the file stores it.
QValidator::State TemperatureBox::validateNumber(QString &input, int &pos) const
{
    if (units().temperatureUnit == Units::Temperature::Celsius)
        return QSpinBox::validate(input, pos);
    bool isNumber = false;
    const int typed = locale().toInt(input, &isNumber);
    if (!isNumber)
        return input.isEmpty() ? QValidator::Intermediate : QValidator::Invalid;
    const int celsius = qRound(units().celsius(typed));
    if (celsius >= minimum() && celsius <= maximum())
        return QValidator::Acceptable;
    // A digit more may bring it into the range.
    return celsius < minimum() && typed >= 0 ? QValidator::Intermediate : QValidator::Invalid;
}

} // namespace zuno
