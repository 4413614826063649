// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <stats/checkablecombobox.h>
#include <widgets/plaintexts.h>

#include <algorithm>

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QWheelEvent>

namespace zuno {

namespace {

constexpr int ValueRole = Qt::UserRole;
constexpr int AllRow = 0;
// Width of the open list at most, in characters.
constexpr int MaximumWidth = 60;

/// Highlights the current entry: entries that can be checked only are never selected, and the
/// keyboard would move an invisible mark.
class EntryDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto *const list = qobject_cast<const QAbstractItemView *>(option->widget);
        option->state.setFlag(QStyle::State_Selected,
                              list != nullptr && list->currentIndex() == index);
        option->state.setFlag(QStyle::State_HasFocus, false);
    }
};

QStandardItem *makeEntry(const QString &text, const QString &value)
{
    auto *const item = new QStandardItem(text);
    item->setData(value, ValueRole);
    item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
    item->setCheckState(Qt::Unchecked);
    return item;
}

bool isToggleKey(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Select;
}

/// Whether the open list uses a key otherwise than Qt's own boxes do.
bool isOwnKey(int key)
{
    return isToggleKey(key) || key == Qt::Key_Return || key == Qt::Key_Enter
           || key == Qt::Key_Escape;
}

} // namespace

CheckableComboBox::CheckableComboBox(QWidget *parent)
    : QComboBox(parent)
    , m_entries(new QStandardItemModel(this))
    , m_list(view())
{
    m_entries->appendRow(makeEntry(tr("All"), {}));
    setModel(m_entries);
    setItemDelegate(new EntryDelegate(this));
    // After the box's own filters, which take the keys and the mouse for a choice of one entry.
    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
    connect(m_entries, &QStandardItemModel::itemChanged, this, &CheckableComboBox::onItemChanged);
    check({AllRow});
}

void CheckableComboBox::setValues(const QStringList &values)
{
    if (values == this->values())
        return;
    const QStringList checked = checkedValues();
    QList<int> rows;
    {
        const QScopedValueRollback guard(m_isChecking, true);
        m_entries->removeRows(AllRow + 1, m_entries->rowCount() - AllRow - 1);
        for (const QString &value : values) {
            if (checked.contains(value, Qt::CaseInsensitive))
                rows.append(m_entries->rowCount());
            m_entries->appendRow(makeEntry(value.isEmpty() ? tr("(empty)") : value, value));
        }
    }
    check(rows.isEmpty() ? QList<int> {AllRow} : rows);
}

void CheckableComboBox::checkAll()
{
    if (isAllChecked())
        return;
    check({AllRow});
    Q_EMIT checkedChanged();
}

bool CheckableComboBox::isAllChecked() const
{
    return m_entries->item(AllRow)->checkState() == Qt::Checked;
}

QStringList CheckableComboBox::checkedValues() const
{
    QStringList values;
    for (const int row : checkedRows()) {
        if (row != AllRow)
            values.append(m_entries->item(row)->data(ValueRole).toString());
    }
    return values;
}

QStringList CheckableComboBox::values() const
{
    QStringList values;
    for (int row = AllRow + 1; row < m_entries->rowCount(); ++row)
        values.append(m_entries->item(row)->data(ValueRole).toString());
    return values;
}

QList<int> CheckableComboBox::checkedRows() const
{
    QList<int> rows;
    for (int row = 0; row < m_entries->rowCount(); ++row) {
        if (m_entries->item(row)->checkState() == Qt::Checked)
            rows.append(row);
    }
    return rows;
}

void CheckableComboBox::onItemChanged(const QStandardItem *item)
{
    if (m_isChecking)
        return;
    QList<int> rows = checkedRows();
    const bool isAllChosen = item->row() == AllRow && item->checkState() == Qt::Checked;
    if (isAllChosen || rows.isEmpty())
        rows = {AllRow};
    else if (rows.size() > 1)
        rows.removeOne(AllRow);
    check(rows);
    Q_EMIT checkedChanged();
}

void CheckableComboBox::check(const QList<int> &rows)
{
    const QScopedValueRollback guard(m_isChecking, true);
    for (int row = 0; row < m_entries->rowCount(); ++row)
        m_entries->item(row)->setCheckState(rows.contains(row) ? Qt::Checked : Qt::Unchecked);
    showState();
}

void CheckableComboBox::showState()
{
    const QList<int> rows = checkedRows();
    setCurrentIndex(rows.size() == 1 ? rows.first() : -1);
    QStringList texts;
    for (const int row : rows)
        texts.append(m_entries->item(row)->text());
    setToolTip(isAllChecked() ? QString() : plainToolTip(texts.join(QStringLiteral(", "))));
    update();
}

void CheckableComboBox::showPopup()
{
    const int bar = m_list->verticalScrollBar()->sizeHint().width();
    const int frame = 2 * m_list->frameWidth();
    const int widest = MaximumWidth * fontMetrics().averageCharWidth();
    const int wanted = m_list->sizeHintForColumn(0) + bar + frame;
    m_list->setMinimumWidth(std::max(width(), std::min(wanted, widest)));
    QComboBox::showPopup();
    if (!m_list->currentIndex().isValid())
        m_list->setCurrentIndex(m_entries->index(checkedRows().value(0), 0));
}

bool CheckableComboBox::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // The box chooses the current entry even before Enter arrives as a key.
        if (watched == m_list && isOwnKey(static_cast<QKeyEvent *>(event)->key())) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (watched == m_list && isOwnKey(static_cast<QKeyEvent *>(event)->key())) {
            handleKey(static_cast<QKeyEvent *>(event)->key());
            return true;
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        if (watched == m_list->viewport() && handleMouse(*static_cast<QMouseEvent *>(event)))
            return true;
        break;
    default:
        break;
    }
    return QComboBox::eventFilter(watched, event);
}

void CheckableComboBox::handleKey(int key)
{
    if (isToggleKey(key))
        toggle(m_list->currentIndex());
    else
        hidePopup();
}

// The whole entry can be clicked, not only its small box.
bool CheckableComboBox::handleMouse(const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    const QModelIndex index = m_list->indexAt(event.position().toPoint());
    if (event.type() != QEvent::MouseButtonRelease) {
        m_pressed = index;
        if (index.isValid())
            m_list->setCurrentIndex(index);
        return true;
    }
    // The click that opened the list may end over an entry.
    if (index.isValid() && index == m_pressed)
        toggle(index);
    m_pressed = QPersistentModelIndex();
    return true;
}

void CheckableComboBox::toggle(const QModelIndex &index)
{
    QStandardItem *const item = m_entries->itemFromIndex(index);
    if (item != nullptr)
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

// The box's own keys and the wheel would show another entry without checking it.
void CheckableComboBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_F4:
    case Qt::Key_Up:
    case Qt::Key_Down:
        showPopup();
        break;
    default:
        event->ignore();
    }
}

void CheckableComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void CheckableComboBox::paintEvent([[maybe_unused]] QPaintEvent *event)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const QString text = currentIndex() < 0 ? placeholderText() : currentText();
    option.currentText = fontMetrics().elidedText(text, Qt::ElideRight, field.width() - 2);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace zuno
