// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/customfilesystemmodeldelegate.h>

#include <QApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStyle>

#include <theme/themedicon.h>

namespace zuno {

namespace {

// As in AA.BB.CC.DD.EE.FF.
constexpr qsizetype DeviceLength = 17;

constexpr int DeviceIconSize = 20;

} // namespace

CustomFileSystemModelDelegate::CustomFileSystemModelDelegate(QString monitorConfiguration,
                                                             QObject *parent)
    : QStyledItemDelegate(parent)
    , m_monitorConfiguration(std::move(monitorConfiguration))
{
}

QString CustomFileSystemModelDelegate::deviceOf(const QString &folderName)
{
    if (folderName.indexOf(u'(') <= 0)
        return {};
    QString device = folderName.mid(folderName.lastIndexOf(u'(') + 1, DeviceLength);
    device.replace(u':', u'.');
    return device.size() == DeviceLength ? device : QString();
}

void CustomFileSystemModelDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                          const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle *style = item.widget != nullptr ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
}

void CustomFileSystemModelDelegate::initStyleOption(QStyleOptionViewItem *option,
                                                    const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QString text = option->text;
    if (text.contains(u".ra1", Qt::CaseInsensitive))
        option->font.setWeight(isUnseen(text) ? QFont::Bold : QFont::Normal);
    if (text.endsWith(u".ra1"))
        option->text = QFileInfo(text).completeBaseName();
    const QString device = deviceOf(text);
    if (!device.isEmpty())
        decorateDevice(*option, device);
}

bool CustomFileSystemModelDelegate::isUnseen(const QString &text) const
{
    bool unseen = false;
    for (auto it = m_viewedStates.cbegin(); it != m_viewedStates.cend(); ++it) {
        if (text.contains(it.key()))
            unseen = it.value();
    }
    return unseen;
}

void CustomFileSystemModelDelegate::decorateDevice(QStyleOptionViewItem &option,
                                                   const QString &device) const
{
    const bool isHighlighted
        = !m_highlightedDevice.isEmpty() && option.text.contains(m_highlightedDevice);
    option.icon = themedIcon(isHighlighted ? QStringLiteral("databaseGreen.png")
                                           : QStringLiteral("database.png"));
    option.decorationSize = QSize(DeviceIconSize, DeviceIconSize);
    option.features |= QStyleOptionViewItem::HasDecoration;
    const QSettings monitor(m_monitorConfiguration, QSettings::IniFormat);
    const QString name = monitor.value(device + u"/CustomZUNOName").toString();
    if (!name.isEmpty())
        option.text += u" - " + name;
}

} // namespace zuno
