// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <views/charts/chartlayout.h>

namespace zuno {

class ChartState;
struct TrackZone;

/// What stands in a cell of the strip.
struct CellTexts
{
    QString name;
    /// Empty where there is no room for it, or nothing to be said.
    QString loss;

    friend bool operator==(const CellTexts &, const CellTexts &) = default;
};

/// A difference of a zone as it is written everywhere: two decimals with a sign, "0.00" for what
/// rounds to nothing. Minus is the typographic one, as wide as a plus.
[[nodiscard]] QString lossText(double loss);

/// The texts for a cell of @p width pixels: name and difference, or the number alone where it is
/// narrow.
[[nodiscard]] CellTexts cellTexts(const TrackZone &zone, double width, bool hasTwoLines,
                                  const QFontMetrics &metrics);

/// The circuit's units above the charts, each over its stretch of the axis, with what was won or
/// lost there. A click zooms to one, a second click back.
class CornerStrip final : public QWidget
{
    Q_OBJECT

public:
    /// @p state must outlive the strip.
    explicit CornerStrip(ChartState &state, QWidget *parent = nullptr);

    /// Two lines of text or one.
    void setTall(bool tall);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// The cell of a zone; empty when it is out of sight.
    [[nodiscard]] QRectF cell(std::size_t zone) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool event(QEvent *event) override;

private:
    void drawCell(QPainter &painter, std::size_t zone) const;
    [[nodiscard]] int zoneAt(const QPointF &position) const;
    [[nodiscard]] QString tipOf(const TrackZone &zone) const;

    ChartState &m_state;
    bool m_isTall = true;
};

} // namespace zuno
