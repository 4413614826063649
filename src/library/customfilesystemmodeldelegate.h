// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QStyledItemDelegate>

namespace zuno {

/// Paints the file tree: sessions that were never opened are bold, session files lose their
/// ending, and the folder of a logger shows an icon and the name that its owner gave it.
class CustomFileSystemModelDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// @p monitorConfiguration is the path of the settings file with the loggers' names; it is
    /// only read.
    explicit CustomFileSystemModelDelegate(QString monitorConfiguration, QObject *parent = nullptr);

    /// For each session file's name whether the session has never been opened.
    void setViewedStates(const QMap<QString, bool> &states) { m_viewedStates = states; }

    /// The device identifier that a folder's name ends with, in brackets; empty without one.
    [[nodiscard]] static QString deviceOf(const QString &folderName);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    [[nodiscard]] bool isUnseen(const QString &text) const;
    void decorateDevice(QStyleOptionViewItem &option, const QString &device) const;

    QMap<QString, bool> m_viewedStates;
    /// A logger whose folder is shown in green.
    QString m_highlightedDevice;
    QString m_monitorConfiguration;
};

} // namespace zuno
