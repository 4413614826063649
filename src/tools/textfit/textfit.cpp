// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <tools/textfit/textfit.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTableView>

namespace zuno {

namespace {

class Search
{
public:
    void look(const QWidget &part);
    [[nodiscard]] const QStringList &found() const { return m_found; }

private:
    void expect(const QWidget &part, const QString &text, QSize needed, QSize room);
    void expectWidth(const QWidget &part, const QString &text, int needed, int room)
    {
        expect(part, text, {needed, 0}, {room, 0});
    }
    void lookAt(const QLabel &label);
    void lookAt(const QComboBox &box);
    void lookAt(const QHeaderView &header);
    void lookAt(const QTableView &table);
    void lookAt(const QMenuBar &bar);
    void lookAt(const QLineEdit &edit);

    QStringList m_found;
};

void Search::expect(const QWidget &part, const QString &text, QSize needed, QSize room)
{
    if (needed.width() <= room.width() && needed.height() <= room.height())
        return;
    m_found.append(QStringLiteral("%1 \"%2\" needs %3x%4, has %5x%6")
                       .arg(part.objectName().isEmpty()
                                ? QString::fromLatin1(part.metaObject()->className())
                                : part.objectName(),
                            text)
                       .arg(needed.width())
                       .arg(needed.height())
                       .arg(room.width())
                       .arg(room.height()));
}

// A text may also be cut because what it stands in is smaller than it is.
void Search::lookAt(const QLabel &label)
{
    if (label.text().isEmpty())
        return;
    const QSize room = label.visibleRegion().boundingRect().size();
    if (label.wordWrap())
        expect(label, label.text(), {0, label.heightForWidth(label.width())}, room);
    else
        expect(label, label.text(), label.minimumSizeHint(), room);
}

void Search::lookAt(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    expectWidth(box, box.currentText(), box.fontMetrics().horizontalAdvance(box.currentText()),
                field.width());
}

void Search::lookAt(const QHeaderView &header)
{
    for (int i = 0; i < header.count(); ++i) {
        if (header.isSectionHidden(i) || header.orientation() == Qt::Vertical)
            continue;
        expectWidth(header, header.model()->headerData(i, header.orientation()).toString(),
                    header.sectionSizeHint(i), header.sectionSize(i));
    }
}

// What a delegate is content with: some shorten long texts and show them whole in a tool tip.
void Search::lookAt(const QTableView &table)
{
    class Access : public QTableView
    {
    public:
        using QTableView::sizeHintForColumn;
    };
    const QHeaderView &header = *table.horizontalHeader();
    for (int i = 0; table.model() != nullptr && i < table.model()->columnCount(); ++i) {
        // The last one may have to do with what the others leave.
        const bool isRest
            = header.stretchLastSection() && header.visualIndex(i) + 1 == header.count();
        if (table.isColumnHidden(i) || isRest)
            continue;
        expectWidth(table, QStringLiteral("column %1").arg(i),
                    (table.*(&Access::sizeHintForColumn))(i), table.columnWidth(i));
    }
}

void Search::lookAt(const QMenuBar &bar)
{
    for (QAction *action : bar.actions()) {
        const QRect place = bar.actionGeometry(action);
        expectWidth(bar, action->text(), place.right(), bar.rect().right());
        expectWidth(bar, action->text(), bar.fontMetrics().horizontalAdvance(action->text()),
                    place.width());
    }
}

void Search::lookAt(const QLineEdit &edit)
{
    const QString hint = edit.placeholderText();
    if (!hint.isEmpty() && edit.text().isEmpty())
        expectWidth(edit, hint, edit.fontMetrics().horizontalAdvance(hint),
                    edit.contentsRect().width());
}

void Search::look(const QWidget &part)
{
    const int room = part.visibleRegion().boundingRect().width();
    if (const auto *label = qobject_cast<const QLabel *>(&part))
        lookAt(*label);
    else if (const auto *button = qobject_cast<const QAbstractButton *>(&part))
        expectWidth(part, button->text(), button->text().isEmpty() ? 0 : part.sizeHint().width(),
                    room);
    else if (const auto *box = qobject_cast<const QComboBox *>(&part))
        lookAt(*box);
    else if (const auto *header = qobject_cast<const QHeaderView *>(&part))
        lookAt(*header);
    else if (const auto *table = qobject_cast<const QTableView *>(&part))
        lookAt(*table);
    else if (const auto *bar = qobject_cast<const QMenuBar *>(&part))
        lookAt(*bar);
    else if (const auto *edit = qobject_cast<const QLineEdit *>(&part))
        lookAt(*edit);
    else if (const auto *group = qobject_cast<const QGroupBox *>(&part))
        expectWidth(part, group->title(), part.minimumSizeHint().width(), room);
    else if (const auto *tabs = qobject_cast<const QTabBar *>(&part))
        expectWidth(part, tabs->tabText(0), part.sizeHint().width(), room);
    else if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(&part))
        expectWidth(part, spin->text(), part.minimumSizeHint().width(), room);
}

} // namespace

QStringList cutTexts(const QWidget &window)
{
    Search search;
    const auto parts = window.findChildren<const QWidget *>();
    for (const QWidget *part : parts) {
        if (part->isVisible() && part->window() == &window)
            search.look(*part);
    }
    return search.found();
}

} // namespace zuno
