// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QWidget>

#include <views/charts/channel.h>

class QLabel;

namespace zuno {

class ChartState;

/// Where the values at the cursor stand in a head: columns counted from the right edge, the same in
/// all charts.
struct ValueColumns
{
    /// Right edges; the difference stands in the first one from the right.
    double difference = 0.0;
    double second = 0.0;
    double first = 0.0;
    std::vector<double> others;
    /// Whether there is room for "Lap 5" before the values, and for "Difference".
    bool hasNames = true;
    bool hasWord = true;
};

/// How wide a head's texts are, pixels.
struct ColumnWidths
{
    double value = 0.0;
    double shortValue = 0.0;
    double name = 0.0;
    double word = 0.0;
    double title = 0.0;
};

/// The columns of a head of @p width pixels: what does not fit beside the title goes, the word
/// first, then the names, then laps from the last one on.
[[nodiscard]] ValueColumns valueColumns(double width, const ColumnWidths &widths, bool hasSecond,
                                        std::size_t others);

/// The line above a chart: its title, and the values at the cursor. It stays when the chart itself
/// is folded away.
class ChartHead final : public QWidget
{
    Q_OBJECT

public:
    /// The head of a channel by its index; that of the gap chart for one beyond. @p state must
    /// outlive it.
    ChartHead(std::size_t channel, const ChartState &state, QWidget *parent = nullptr);

    /// Lays out for the laps that are shown.
    void showLaps();
    void showCursor();
    /// Whether the chart below is away; @p foldable ones have an arrow, and a click asks for the
    /// other way.
    void setFolded(bool folded, bool foldable);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void foldAsked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] bool isGap() const { return m_number >= ChannelCount; }
    [[nodiscard]] const Channel &channel() const;
    [[nodiscard]] QString titleText() const;
    [[nodiscard]] QString gapText() const;
    [[nodiscard]] ValueColumns columns() const;
    void makeLabels();
    void colourLabels();
    void showValues();
    void place(QLabel *label, double right) const;
    void drawNames(QPainter &painter) const;
    void drawOthers(QPainter &painter) const;

    std::size_t m_number;
    const ChartState &m_state;
    QLabel *m_first = nullptr;
    QLabel *m_second = nullptr;
    /// The difference; in the gap chart's head what the gap is.
    QLabel *m_difference = nullptr;
    bool m_isFolded = false;
    bool m_isFoldable = false;
};

} // namespace zuno
