// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/temperaturebox.h>

#include <algorithm>

#include <session/session.h>

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
    return value == SessionInformation::UnknownTemperature ? unknownText()
                                                           : QSpinBox::textFromValue(value);
}

int TemperatureBox::valueFromText(const QString &text) const
{
    return text.compare(unknownText(), Qt::CaseInsensitive) == 0
               ? SessionInformation::UnknownTemperature
               : QSpinBox::valueFromText(text);
}

QValidator::State TemperatureBox::validate(QString &input, int &pos) const
{
    const QString unknown = unknownText();
    if (input.isEmpty() || !unknown.startsWith(input, Qt::CaseInsensitive))
        return QSpinBox::validate(input, pos);
    return input.size() == unknown.size() ? QValidator::Acceptable : QValidator::Intermediate;
}

} // namespace zuno
