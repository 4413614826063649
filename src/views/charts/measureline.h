// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;

namespace zuno {

class ChartState;
struct Measurement;

/// What was measured, as a line of text: "784 - 850 m: 66 m   3.353 s ...". Without a second lap
/// only what the first did.
[[nodiscard]] QString measurementText(const Measurement &measurement);

/// The line above the charts while the rider measures between two places.
class MeasureLine final : public QWidget
{
    Q_OBJECT

public:
    /// @p state must outlive the line.
    explicit MeasureLine(ChartState &state, QWidget *parent = nullptr);

    /// Shows what was measured, or what to do.
    void showMeasured();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ChartState &m_state;
    QLabel *m_text;
};

} // namespace zuno
