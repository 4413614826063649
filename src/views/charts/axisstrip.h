// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QRectF>
#include <QWidget>

class QLabel;

namespace zuno {

class ChartState;

/// The axis below the charts: its numbers, the lap's sections, and time and place at the cursor.
class AxisStrip final : public QWidget
{
    Q_OBJECT

public:
    /// @p state must outlive the strip.
    explicit AxisStrip(const ChartState &state, QWidget *parent = nullptr);

    void showCursor();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct SectionTag
    {
        QRectF box;
        QString text;
    };

    void colourCursor();
    [[nodiscard]] std::vector<SectionTag> sectionTags() const;
    [[nodiscard]] QString numberText(double place, double step) const;

    const ChartState &m_state;
    QLabel *m_cursor;
};

} // namespace zuno
