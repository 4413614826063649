// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "darkstyle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <QStyleOption>
#include <QStyledItemDelegate>

#include <theme/themes.h>

namespace zuno {

namespace {

constexpr int rowAir = 6;

// The folder of the theme's pictures.
QString pictures()
{
    return theme().isDark() ? QStringLiteral(":/darkstyle/") : QStringLiteral(":/darkstyle/light/");
}

// What the style sheet draws around a widget with the keyboard focus, in a view's own cell. Filled
// edges are as wide on every side at every scale, which a pen's are not.
void drawFocusFrame(const QRect &frame, QPainter &painter)
{
    const QColor focus = theme().colour(Colour::Focus);
    painter.fillRect(frame.x(), frame.y(), frame.width(), 1, focus);
    painter.fillRect(frame.x(), frame.bottom(), frame.width(), 1, focus);
    painter.fillRect(frame.x(), frame.y(), 1, frame.height(), focus);
    painter.fillRect(frame.right(), frame.y(), 1, frame.height(), focus);
}

// Not in the style sheet: with a rule for these arrows Qt 6.4 draws the row numbers of every table
// too high.
void drawSortArrow(const QStyleOptionHeader &header, QPainter &painter)
{
    if (header.sortIndicator == QStyleOptionHeader::None) {
        return;
    }
    const bool up = header.sortIndicator == QStyleOptionHeader::SortUp;
    const QIcon arrow(pictures()
                      + (up ? QStringLiteral("arrow-up.png") : QStringLiteral("arrow-down.png")));
    arrow.paint(&painter, header.rect, Qt::AlignCenter,
                header.state & QStyle::State_Enabled ? QIcon::Normal : QIcon::Disabled);
}

} // namespace

void DarkStyle::install()
{
    QApplication::setStyle(new DarkStyle);
    Themes::instance().setStyler([] { QApplication::setStyle(new DarkStyle); });
}

DarkStyle::DarkStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    const auto *const header = qstyleoption_cast<const QStyleOptionHeader *>(option);
    if (element == PE_IndicatorHeaderArrow && header != nullptr) {
        drawSortArrow(*header, *painter);
    } else if (element == PE_FrameFocusRect && qobject_cast<const QAbstractItemView *>(widget)) {
        // In the list of a combo box the chosen row is the current one.
        if (!widget->inherits("QComboBoxListView")) {
            drawFocusFrame(option->rect, *painter);
        }
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

QSize DarkStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                  const QSize &contents, const QWidget *widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_ItemViewItem ? size + QSize(0, rowAir) : size;
}

void DarkStyle::polish(QPalette &palette)
{
    theme().fill(palette);
}

void DarkStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
    QFile file(QStringLiteral(":/darkstyle/darkstyle.qss"));
    if (!file.open(QFile::ReadOnly | QFile::Text)) {
        return;
    }
    QString sheet = theme().filled(QString::fromUtf8(file.readAll()));
    sheet.replace(QStringLiteral(":/darkstyle/"), pictures());
    // Qt answers a style sheet by laying a style over this one and polishing again through it.
    if (application->styleSheet() != sheet) {
        application->setStyleSheet(sheet);
    }
}

void DarkStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    auto *const box = qobject_cast<QComboBox *>(widget);
    if (box == nullptr) {
        return;
    }
    // Qt's own two delegates do not ask the style for the height; anybody else's stays.
    const QAbstractItemDelegate *const delegate = box->itemDelegate();
    if (delegate->inherits("QComboBoxDelegate") || delegate->inherits("QComboMenuDelegate")) {
        box->setItemDelegate(new QStyledItemDelegate(box));
    }
}

} // namespace zuno
