// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSpinBox>

namespace zuno {

/// A spin box for the track's temperature: its value is in degrees Celsius, 0 to 255 as the file
/// stores it, and shown and typed in the rider's unit. The value
/// that stands for a temperature nobody noted reads "unknown", and can be typed so.
class TemperatureBox final : public QSpinBox
{
    Q_OBJECT

public:
    explicit TemperatureBox(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    [[nodiscard]] QString textFromValue(int value) const override;
    [[nodiscard]] int valueFromText(const QString &text) const override;
    QValidator::State validate(QString &input, int &pos) const override;

private:
    [[nodiscard]] QValidator::State validateNumber(QString &input, int &pos) const;
};

} // namespace zuno
