// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "darkstyle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QColor>
#include <QComboBox>
#include <QFile>
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

} // namespace

DarkStyle::DarkStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    if (element != PE_FrameFocusRect
        || qobject_cast<const QAbstractItemView *>(widget) == nullptr) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(focus);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
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
