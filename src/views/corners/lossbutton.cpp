// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/corners/lossbutton.h>

#include <QFontInfo>
#include <QPainter>

#include <base/units.h>
#include <theme/themes.h>

namespace zuno {

namespace {

constexpr int Padding = 6;
constexpr int BarWidth = 8;
constexpr int Radius = 3;
constexpr int FocusWidth = 2;
constexpr int MostCauses = 2;
constexpr double LossScale = 1.23;

QFont scaled(QFont font, double factor, bool bold)
{
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * factor));
    font.setBold(bold);
    return font;
}

} // namespace

LossButton::LossButton(QWidget *parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void LossButton::showPlace(const TimePlace &place)
{
    m_place = place;
    setAccessibleName(place.spoken());
    setToolTip(QStringLiteral("<qt>%1</qt>").arg(place.spoken().toHtmlEscaped()));
    update();
}

QFont LossButton::lossFont() const
{
    return scaled(font(), LossScale, true);
}

int LossButton::headHeight() const
{
    return QFontMetrics(lossFont()).height();
}

QSize LossButton::sizeHint() const
{
    const int height = (2 * Padding) + headHeight() + (MostCauses * fontMetrics().height());
    return {fontMetrics().averageCharWidth() * 30, height};
}

QSize LossButton::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void LossButton::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    paintHead(painter);
    paintCauses(painter);
}

void LossButton::paintGround(QPainter &painter) const
{
    const bool isMarked = hasFocus() || isChecked();
    const double width = isMarked ? FocusWidth : 1.0;
    const Colour ground = isChecked()    ? Colour::Raised
                          : underMouse() ? Colour::Hover
                                         : Colour::Card;
    painter.setPen(QPen(theme().colour(isMarked ? Colour::Focus : Colour::PaneEdge), width));
    painter.setBrush(theme().colour(ground));
    const QRectF frame = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter.drawRoundedRect(frame, Radius, Radius);
    const QRectF bar(width, width, BarWidth, height() - (2 * width));
    // What the speeds do not confirm has an empty bar.
    painter.setPen(theme().colour(Colour::Loss));
    painter.setBrush(m_place.isConfirmed ? QBrush(theme().colour(Colour::Loss)) : QBrush());
    painter.drawRect(bar.adjusted(0.5, 0.5, -0.5, -0.5));
}

void LossButton::paintHead(QPainter &painter) const
{
    const QRect line(BarWidth + (2 * Padding), Padding, width() - BarWidth - (3 * Padding),
                     headHeight());
    painter.setFont(lossFont());
    painter.setPen(theme().colour(Colour::Loss));
    const QString loss = tr("%1 s", "seconds").arg(shownNumber(m_place.loss, 2, true));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, loss);
    const int room = line.width() - painter.fontMetrics().horizontalAdvance(loss) - Padding;
    const QFont bold = scaled(font(), 1.0, true);
    const QString title
        = QFontMetrics(bold).elidedText(m_place.title(), Qt::ElideRight, std::max(room, 0));
    painter.setFont(bold);
    painter.setPen(theme().colour(Colour::Text));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, title);
    const int used = QFontMetrics(bold).horizontalAdvance(title) + Padding;
    painter.setFont(font());
    painter.setPen(theme().colour(Colour::SecondText));
    if (used + fontMetrics().horizontalAdvance(m_place.side()) <= room)
        painter.drawText(line.adjusted(used, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         m_place.side());
}

void LossButton::paintCauses(QPainter &painter) const
{
    QStringList causes = m_place.causes.mid(0, MostCauses);
    if (!m_place.isConfirmed)
        causes = {tr("The speeds do not confirm it")};
    else if (causes.isEmpty())
        causes = {tr("Within 2 km/h everywhere")};
    QRect line(BarWidth + (2 * Padding), Padding + headHeight(), width() - BarWidth - (3 * Padding),
               fontMetrics().height());
    painter.setFont(font());
    for (const QString &cause : std::as_const(causes)) {
        if (line.bottom() > height())
            return;
        const bool isFirst = &cause == &causes.first();
        painter.setPen(theme().colour(isFirst ? Colour::Text : Colour::SecondText));
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(cause, Qt::ElideRight, line.width()));
        line.translate(0, line.height());
    }
}

} // namespace zuno
