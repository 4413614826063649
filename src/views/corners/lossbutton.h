// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>

#include <views/comparison/timeplaces.h>

namespace zuno {

/// One of the largest losses: what it cost where, and why. A button that shows the place.
class LossButton final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit LossButton(QWidget *parent = nullptr);

    void showPlace(const TimePlace &place);
    [[nodiscard]] const TimePlace &place() const { return m_place; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void nextCheckState() override {}

private:
    void paintGround(QPainter &painter) const;
    void paintHead(QPainter &painter) const;
    void paintCauses(QPainter &painter) const;
    [[nodiscard]] QFont lossFont() const;
    [[nodiscard]] int headHeight() const;

    TimePlace m_place;
};

} // namespace zuno
