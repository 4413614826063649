// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "darkstyle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QColor>
#include <QComboBox>
#include <QFile>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QStyleFactory>
#include <QStyleOption>
#include <QStyledItemDelegate>

namespace zuno {

namespace {

constexpr QColor ground(25, 35, 45);
constexpr QColor highlight(20, 100, 161);
constexpr QColor disabledText(127, 127, 127);
constexpr QColor disabledHighlight(80, 80, 80);
// What the style sheet draws around a widget with the keyboard focus.
constexpr QColor focus(255, 180, 84);
constexpr int rowAir = 6;

// Filled edges are as wide on every side at every scale, which a pen's are not.
void drawFocusFrame(const QRect &frame, QPainter &painter)
{
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
    const QIcon arrow(up ? QStringLiteral(":/darkstyle/arrow-up.png")
                         : QStringLiteral(":/darkstyle/arrow-down.png"));
    arrow.paint(&painter, header.rect, Qt::AlignCenter,
                header.state & QStyle::State_Enabled ? QIcon::Normal : QIcon::Disabled);
}

} // namespace

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
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, disabledText);
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::AlternateBase, QColor(51, 65, 76));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, QColor(53, 53, 53));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Text, disabledText);
    palette.setColor(QPalette::Dark, QColor(35, 35, 35));
    palette.setColor(QPalette::Shadow, QColor(20, 20, 20));
    palette.setColor(QPalette::Button, QColor(53, 53, 53));
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, disabledText);
    palette.setColor(QPalette::BrightText, Qt::red);
    palette.setColor(QPalette::Link, QColor(42, 130, 218));
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, disabledHighlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, disabledText);
}

void DarkStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
    QFile file(QStringLiteral(":/darkstyle/darkstyle.qss"));
    if (!file.open(QFile::ReadOnly | QFile::Text)) {
        return;
    }
    const QString sheet = QString::fromUtf8(file.readAll());
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
