// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCheckBox>

namespace zuno {

/// One side of a switch that has two: drawn as a button, with a short label; its text is what it
/// does, as its tip and for a screen reader. A click on the side that is on leaves it on.
class SwitchBox final : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QString label READ label WRITE setLabel)

public:
    using QCheckBox::QCheckBox;

    [[nodiscard]] const QString &label() const { return m_label; }
    void setLabel(const QString &label);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    [[nodiscard]] bool hitButton(const QPoint &position) const override;
    void nextCheckState() override;

private:
    QString m_label;
};

} // namespace zuno
