// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/keysheet.h>

#include <algorithm>
#include <array>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <library/librarytree.h>
#include <views/laps/lapsview.h>

namespace zuno {

namespace {

// Of two lines of a group, and between its two columns; pixels.
constexpr int LineGap = 3;
constexpr int ColumnGap = 16;
// Beside the sheet, so that it stays a sheet over the window.
constexpr int ScreenMargin = 40;

QString titleOf(const QAction &action)
{
    for (const QObject *object = &action; object != nullptr; object = object->parent()) {
        if (qobject_cast<const LibraryTree *>(object) != nullptr)
            return KeySheet::tr("In the list of sessions");
        if (qobject_cast<const LapsView *>(object) != nullptr)
            return KeySheet::tr("In the laps table");
    }
    return KeySheet::tr("Everywhere");
}

/// Without the key that a menu marks, its dots, and the spaces that hold entries apart.
QString plainText(const QAction &action)
{
    // The about box is named by a sign, which says nothing in a list.
    QString text = action.text().trimmed();
    if (text == u"?")
        return KeySheet::tr("About ZUNO Analyzer");
    text.remove(u'&');
    return text;
}

void add(QList<KeyGroup> &groups, const QString &title, const KeyHelp &help)
{
    const auto group = std::find_if(groups.begin(), groups.end(),
                                    [&title](const KeyGroup &one) { return one.title == title; });
    if (group == groups.end())
        groups.append({title, {help}});
    else
        group->keys.append(help);
}

QLabel *label(const QString &text, bool isBold)
{
    auto *const made = new QLabel(text);
    made->setTextFormat(Qt::PlainText);
    QFont font = made->font();
    font.setBold(isBold);
    made->setFont(font);
    return made;
}

void addLines(QGridLayout &grid, const KeyGroup &group)
{
    grid.addWidget(label(group.title, true), grid.rowCount(), 0, 1, 2);
    for (const KeyHelp &help : group.keys) {
        const int row = grid.rowCount();
        auto *const keys = label(help.keyText(), false);
        keys->setObjectName(QStringLiteral("keys"));
        grid.addWidget(keys, row, 0);
        grid.addWidget(label(help.text, false), row, 1);
    }
    grid.setRowMinimumHeight(grid.rowCount(), 2 * LineGap);
}

} // namespace

QString KeyHelp::keyText() const
{
    QStringList texts;
    for (const QKeySequence &key : keys)
        texts.append(key.toString(QKeySequence::NativeText));
    return texts.join(QStringLiteral(", "));
}

QList<KeyGroup> keysOf(const QWidget &window)
{
    QList<KeyGroup> groups;
    const auto actions = window.findChildren<QAction *>();
    for (const QAction *action : actions) {
        // What dialogs that are open at the moment can do is theirs.
        const auto *const owner = qobject_cast<const QWidget *>(action->parent());
        const bool isOthers = owner != nullptr && owner->window() != &window;
        if (!action->shortcuts().isEmpty() && !plainText(*action).isEmpty() && !isOthers)
            add(groups, titleOf(*action), {action->shortcuts(), plainText(*action)});
    }
    groups.append({KeySheet::tr("In the charts"), chartKeys()});
    return groups;
}

QList<KeyHelp> chartKeys()
{
    return {
        {{Qt::Key_Left, Qt::Key_Right}, KeySheet::tr("Cursor to the sample before or after")},
        {{Qt::Key_Home, Qt::Key_End}, KeySheet::tr("Cursor to the begin or end")},
        {{Qt::Key_Plus, Qt::Key_Minus}, KeySheet::tr("Zoom in or out around the cursor")},
        {{Qt::Key_PageUp, Qt::Key_PageDown}, KeySheet::tr("A page back or on")},
        {{Qt::Key_1, Qt::Key_2, Qt::Key_3}, KeySheet::tr("The biggest losses")},
        {{Qt::Key_Comma, Qt::Key_Period}, KeySheet::tr("The corner before or after")},
        {{Qt::Key_Escape}, KeySheet::tr("The whole lap")},
        {{Qt::Key_D, Qt::Key_T}, KeySheet::tr("Over the distance or the time")},
        {{Qt::Key_M}, KeySheet::tr("Measure between two places")},
    };
}

KeySheet::KeySheet(const QList<KeyGroup> &groups, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Keys"));
    auto *const sheet = new QWidget;
    auto *const columns = new QHBoxLayout(sheet);
    columns->setSpacing(2 * ColumnGap);
    std::array<QGridLayout *, 2> grids {};
    for (QGridLayout *&grid : grids) {
        grid = new QGridLayout;
        grid->setHorizontalSpacing(ColumnGap);
        grid->setVerticalSpacing(LineGap);
        grid->setColumnStretch(1, 1);
        columns->addLayout(grid);
    }
    // Each where there is more room, so that the whole sheet is seen at once.
    for (const KeyGroup &group : groups)
        addLines(*grids[grids[0]->rowCount() <= grids[1]->rowCount() ? 0 : 1], group);
    for (QGridLayout *grid : grids)
        grid->setRowStretch(grid->rowCount(), 1);
    auto *const area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("keySheet"));
    area->setAccessibleName(windowTitle());
    area->setWidget(sheet);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(area);
    layout->addWidget(buttons);
    buttons->button(QDialogButtonBox::Close)->setFocus();
    const QSize wanted = sheet->sizeHint() + QSize(4 * ColumnGap, 4 * ColumnGap);
    const QSize room = screen()->availableSize() - QSize(ScreenMargin, ScreenMargin);
    resize(wanted.boundedTo(room));
}

} // namespace zuno
