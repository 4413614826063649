// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QToolButton>

namespace zuno {

/// A narrow button with its text from bottom to top: what is left of a pane that has no room.
class RailButton final : public QToolButton
{
    Q_OBJECT

public:
    static constexpr int Width = 24;

    explicit RailButton(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace zuno
