// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QAbstractScrollArea>
#include <QPixmap>
#include <QRectF>

#include <views/charts/chartaxis.h>
#include <views/charts/chartcontent.h>
#include <views/charts/chartinput.h>
#include <views/charts/curvelines.h>

namespace zuno {

class ChartState;

/// Draws one channel of the laps, and leads the state's cursor and visible stretch by mouse and
/// keys (ChartInput).
///
/// All of it is drawn here. Qt Charts, which drew the curves before, strokes the path of each line
/// anew for every axis that it is attached to and again for the mouse, and knows no pixels: another
/// lap took three times as long, and one of eight hours a hundred times.
///
/// The chart is drawn once into a picture; a move of the cursor puts the picture back in two narrow
/// strips and draws the cursor over it, whatever the length of the laps.
class LapChart final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    /// @p state must outlive the chart.
    explicit LapChart(ChartState &state, QWidget *parent = nullptr);

    void setContent(ChartContent content);
    /// Gives plot and numbers their places.
    void layOut();
    /// Shows the state's visible stretch.
    void showVisible();
    /// Shows the state's cursor.
    void showCursor();

    [[nodiscard]] const QString &title() const { return m_content.title; }
    /// The axis from the left to the right edge of the plot, in pixels of the chart.
    [[nodiscard]] PixelScale horizontalScale() const;
    /// The values from the lower to the upper edge of the plot.
    [[nodiscard]] const AxisRange &shownValues() const { return m_values; }

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
    void setTicks();
    [[nodiscard]] PixelScale verticalScale() const;
    [[nodiscard]] std::vector<double> valueTicks() const;
    void drawPicture();
    void drawCorners(QPainter &painter) const;
    void drawGrid(QPainter &painter) const;
    void drawCurves(QPainter &painter) const;
    void drawLaps(QPainter &painter) const;
    void drawGap(QPainter &painter) const;
    void drawGapGround(QPainter &painter) const;
    void drawMissing(QPainter &painter) const;
    void drawNumbers(QPainter &painter) const;
    void drawSectors(QPainter &painter) const;
    void drawActs(QPainter &painter) const;
    void drawOverlay(QPainter &painter) const;
    void drawMeasured(QPainter &painter) const;
    void drawCursor(QPainter &painter) const;
    [[nodiscard]] QRect strip(double place) const;

    ChartState &m_state;
    ChartInput m_input;
    ChartContent m_content;
    /// Of the content's curves.
    std::vector<CurveLines> m_lines;
    QRectF m_plot {0, 0, 1, 1};
    AxisRange m_values {0, 1};
    QPixmap m_picture;
    /// Between two numbers of the vertical axis.
    double m_valueStep = 1.0;
    double m_drawnCursor = 0.0;
};

} // namespace zuno
