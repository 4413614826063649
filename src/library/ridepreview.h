// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QWidget>

namespace zuno {

/// A recording at a glance: its path as seen from above, and its speed over time.
class RidePreview final : public QWidget
{
    Q_OBJECT

public:
    struct Point
    {
        /// Seconds.
        double time = 0.0;
        /// Degrees; NaN where nobody knows.
        double latitude = 0.0;
        double longitude = 0.0;
        double speed = 0.0; ///< km/h
    };

    explicit RidePreview(QWidget *parent = nullptr);

    void setPoints(std::vector<Point> points);
    [[nodiscard]] const std::vector<Point> &points() const { return m_points; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawPath(QPainter &painter, const QRectF &area) const;
    void drawSpeed(QPainter &painter, const QRectF &area) const;

    std::vector<Point> m_points;
};

} // namespace zuno
