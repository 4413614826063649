// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/switchbox.h>

#include <QPainter>

#include <theme/themes.h>

namespace zuno {

namespace {

constexpr int Height = 24;
constexpr int Margin = 10;

} // namespace

void SwitchBox::setLabel(const QString &label)
{
    m_label = label;
    setToolTip(text());
    updateGeometry();
    update();
}

QSize SwitchBox::sizeHint() const
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    return {metrics.horizontalAdvance(m_label) + (2 * Margin),
            std::max(Height, metrics.height() + 4)};
}

void SwitchBox::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const Theme &now = theme();
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(now.colour(Colour::Edge));
    painter.setBrush(now.colour(isChecked()    ? Colour::Chosen
                                : underMouse() ? Colour::Hover
                                               : Colour::Raised));
    painter.drawRect(frame);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(now.colour(Colour::Focus), 2));
        painter.drawRect(frame.adjusted(1, 1, -1, -1));
    }
    QFont font = painter.font();
    font.setBold(isChecked());
    painter.setFont(font);
    painter.setPen(now.colour(isChecked() ? Colour::ChosenText : Colour::Text));
    painter.drawText(rect(), Qt::AlignCenter, m_label);
}

// A check box answers within its sign and text only, which are not drawn here.
bool SwitchBox::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void SwitchBox::nextCheckState()
{
    setChecked(true);
}

} // namespace zuno
