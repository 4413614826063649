// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProxyStyle>

namespace zuno {

/// The program's look, dark or light as Themes says: Fusion's shapes, a palette of its own, and a
/// style sheet from the resources that draws the widgets to go with it, both in the theme's
/// colours. Without the resource the palette alone makes the theme.
class DarkStyle final : public QProxyStyle
{
    Q_OBJECT
public:
    DarkStyle();
    /// Makes it the application's style, and again whenever the theme changes.
    static void install();

    /// Draws the frame around the current cell of a view and the arrow of a sorted column, which
    /// Fusion makes too faint to be seen on a dark ground.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    /// Gives the rows of trees and lists some air: as Fusion has them, check boxes touch each
    /// other.
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption *option,
                                         const QSize &contents,
                                         const QWidget *widget) const override;

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;
    void polish(QApplication *application) override;
    /// Has the list of a combo box drawn as every other list is, with rows as high.
    void polish(QWidget *widget) override;
};

} // namespace zuno
