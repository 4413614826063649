// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QComboBox>
#include <QList>
#include <QPersistentModelIndex>
#include <QString>
#include <QStringList>

class QStandardItem;
class QStandardItemModel;

namespace zuno {

/// A combo box whose entries can be checked. The list stays open while entries are checked; the
/// closed box shows the one checked entry or, for several, the placeholder text.
///
/// The first entry stands for all the others: something is always checked, either this entry or
/// any number of the others.
class CheckableComboBox final : public QComboBox
{
    Q_OBJECT

public:
    explicit CheckableComboBox(QWidget *parent = nullptr);

    /// Offers other values. Those that were checked stay checked, whatever their case.
    void setValues(const QStringList &values);
    /// Checks the entry for all values.
    void checkAll();
    [[nodiscard]] bool isAllChecked() const;
    /// The checked values, none while the entry for all of them is checked.
    [[nodiscard]] QStringList checkedValues() const;

    void showPopup() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The rider checked or unchecked entries.
    void checkedChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QStringList values() const;
    [[nodiscard]] QList<int> checkedRows() const;
    void onItemChanged(const QStandardItem *item);
    void check(const QList<int> &rows);
    void showState();
    void toggle(const QModelIndex &index);
    void handleKey(int key);
    bool handleMouse(const QMouseEvent &event);

    QStandardItemModel *m_entries;
    QAbstractItemView *m_list;
    QPersistentModelIndex m_pressed;
    bool m_isChecking = false;
};

} // namespace zuno
