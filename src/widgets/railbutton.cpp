// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <widgets/railbutton.h>

#include <QPainter>
#include <QStyleOptionToolButton>

namespace zuno {

namespace {

// Above and below the text together.
constexpr int Padding = 24;

} // namespace

RailButton::RailButton(QWidget *parent) : QToolButton(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setFixedWidth(Width);
}

QSize RailButton::sizeHint() const
{
    return {Width, fontMetrics().horizontalAdvance(text()) + Padding};
}

QSize RailButton::minimumSizeHint() const
{
    return sizeHint();
}

void RailButton::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, this);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.translate(0, height());
    painter.rotate(-90);
    const QRect along(Padding / 2, 0, height() - Padding, width());
    painter.drawText(along, Qt::AlignRight | Qt::AlignVCenter, text());
}

} // namespace zuno
