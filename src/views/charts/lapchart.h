// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QChartView>
#include <QPixmap>

#include <views/charts/chartaxis.h>
#include <views/charts/chartcontent.h>
#include <views/charts/chartinput.h>

class QAreaSeries;
class QLineSeries;
class QValueAxis;

namespace zuno {

class ChartState;

/// Draws one channel of the laps, and leads the state's cursor and visible stretch by mouse and
/// keys (ChartInput).
///
/// Qt Charts draws the curves. Axes and grid are drawn here: its own write "-0.0", cut numbers at
/// the edges, and leave their grid where it was when the plot gets another place.
///
/// The chart is drawn once into a picture; a move of the cursor puts the picture back in two narrow
/// strips and draws the cursor over it, whatever the length of the laps.
class LapChart final : public QChartView
{
    Q_OBJECT

public:
    /// @p state must outlive the chart.
    explicit LapChart(ChartState &state, QWidget *parent = nullptr);

    void setContent(ChartContent content);
    /// Whether the axis has its numbers below; of stacked charts the last one's are enough.
    void setAxisLabelled(bool labelled);
    /// Whether the sectors' names stand above; of stacked charts the first one's are enough.
    void setSectorsNamed(bool named);
    /// Gives plot and numbers their places.
    void layOut();
    /// Shows the state's visible stretch.
    void showVisible();
    /// Shows the state's cursor.
    void showCursor();

    [[nodiscard]] const QString &title() const { return m_content.title; }
    /// The axis from the left to the right edge of the plot, in pixels of the chart.
    [[nodiscard]] PixelScale horizontalScale() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void setUpChart();
    void addSeries();
    void addLine(const QColor &colour, const QList<QPointF> &points, double width);
    void addBand(const Curve &curve);
    void setTicks();
    [[nodiscard]] PixelScale verticalScale() const;
    void drawPicture();
    void drawGrid(QPainter &painter) const;
    void drawNumbers(QPainter &painter) const;
    void drawSectors(QPainter &painter) const;
    void drawSectorName(QPainter &painter, int sector, const QRectF &room) const;
    void drawTitle(QPainter &painter) const;
    void drawOverlay(QPainter &painter) const;
    [[nodiscard]] QRectF titleBox() const;
    [[nodiscard]] QRect strip(double place) const;

    ChartState &m_state;
    ChartInput m_input;
    ChartContent m_content;
    QValueAxis *m_horizontal;
    QValueAxis *m_vertical;
    QPixmap m_picture;
    /// Between two numbers of the axes.
    double m_step = 1.0;
    double m_valueStep = 1.0;
    double m_drawnCursor = 0.0;
    bool m_isAxisLabelled = false;
    bool m_areSectorsNamed = false;
};

} // namespace zuno
