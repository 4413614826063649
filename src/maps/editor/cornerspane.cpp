// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/cornerspane.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>

#include <maps/editor/mapedit.h>
#include <maps/editor/metrestext.h>
#include <track/map.h>

namespace zuno {

namespace {

// Columns.
constexpr int Name = 0;
constexpr int Place = 2;
constexpr int Angle = 3;
constexpr int Columns = 4;

// The rest scrolls where there is no room.
constexpr int LeastRows = 3;

// Metres before and after a corner that are shown with it, and between the places of that way.
constexpr double Around = 80.0;
constexpr double Step = 10.0;

} // namespace

CornersPane::CornersPane(QWidget *parent)
    : QWidget(parent)
    , m_table(new QTableWidget(0, Columns))
    , m_note(new QLabel)
{
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    auto *layout = new QHBoxLayout;
    whole->addLayout(layout);
    whole->addWidget(m_note);
    layout->addWidget(m_table);
    auto *buttons = new QVBoxLayout;
    layout->addLayout(buttons);
    m_join = addButton(tr("Join"), tr("Makes one corner of the selected one and the next"));
    m_split = addButton(tr("Split"), tr("Makes two corners of the selected one"));
    m_delete = addButton(tr("Delete"), tr("The selected one counts as no corner"));
    m_reset = addButton(tr("As found"), tr("Takes back all changes of the corners"));
    for (QPushButton *button : {m_join, m_split, m_delete, m_reset})
        buttons->addWidget(button);
    buttons->addStretch();

    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->hide();
    m_table->setObjectName(QStringLiteral("tw_corners"));
    m_table->setHorizontalHeaderLabels({tr("Corner"), tr("Way"), tr("From the line"), tr("Turns")});
    m_table->setToolTip(tr("A double click on a corner gives it a name"));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(Name, QHeaderView::Stretch);
    const int head = m_table->horizontalHeader()->sizeHint().height() + (2 * m_table->frameWidth());
    m_table->setMinimumHeight(head + (LeastRows * m_table->verticalHeader()->defaultSectionSize()));

    connect(m_table, &QTableWidget::cellChanged, this, [this](int row, int column) {
        if (column == Name)
            rename(row, m_table->item(row, Name)->text());
    });
    connect(m_table, &QTableWidget::currentCellChanged, this, &CornersPane::tellSelected);
    connect(m_join, &QPushButton::clicked, this, [this] { request(CornerEdit::Kind::Join); });
    connect(m_split, &QPushButton::clicked, this, [this] { request(CornerEdit::Kind::Split); });
    connect(m_delete, &QPushButton::clicked, this, [this] { request(CornerEdit::Kind::Delete); });
    connect(m_reset, &QPushButton::clicked, this, &CornersPane::resetRequested);
}

QPushButton *CornersPane::addButton(const QString &text, const QString &toolTip)
{
    auto *button = new QPushButton(text);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

void CornersPane::refuse(const QString &reason)
{
    m_isRefused = !reason.isEmpty();
    m_note->setText(reason);
    m_note->setVisible(m_isRefused);
    m_table->setEditTriggers(m_isRefused ? QAbstractItemView::NoEditTriggers
                                         : QAbstractItemView::DoubleClicked
                                               | QAbstractItemView::EditKeyPressed);
    enableButtons();
}

void CornersPane::showCorners(const MapEdit &edit)
{
    const MapDraft &draft = edit.draft();
    const bool isSameWay
        = m_draft && m_draft->outline == draft.outline && m_draft->start == draft.start;
    if (isSameWay && m_edits == edit.corners())
        return;
    m_draft = draft;
    m_edits = edit.corners();
    m_circuit = findCorners(*draft.toMap(), m_edits);
    fillTable();
    enableButtons();
}

void CornersPane::fillTable()
{
    const QSignalBlocker blocker(m_table);
    const int selected = m_table->currentRow();
    const auto rows = static_cast<int>(m_circuit.corners.size());
    m_table->setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        const Corner &corner = m_circuit.corners[static_cast<std::size_t>(row)];
        const QStringList texts {corner.label(), corner.isRight ? tr("right") : tr("left"),
                                 metresText(corner.middle),
                                 tr("%1°").arg(QLocale().toString(qRound(corner.angle)))};
        for (int column = 0; column < Columns; ++column) {
            auto *item = new QTableWidgetItem(texts[column]);
            if (column != Name)
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            if (column == Place || column == Angle)
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_table->setItem(row, column, item);
        }
    }
    m_table->setCurrentCell(std::min(selected, rows - 1), 0);
}

void CornersPane::enableButtons()
{
    const bool canEdit = !m_isRefused && m_table->currentRow() >= 0;
    m_join->setEnabled(canEdit && m_circuit.corners.size() > 1);
    m_split->setEnabled(canEdit);
    m_delete->setEnabled(canEdit);
    m_reset->setEnabled(!m_isRefused && !m_edits.isEmpty());
}

// An empty name, or its number, takes a corner's name away.
void CornersPane::rename(int row, const QString &name)
{
    const Corner &corner = m_circuit.corners[static_cast<std::size_t>(row)];
    const QString typed = name.simplified();
    const QString wanted = typed == QString::number(corner.number) ? QString() : typed;
    if (wanted == corner.name)
        m_table->item(row, Name)->setText(corner.label());
    else
        Q_EMIT editRequested(
            {CornerEdit::Kind::Rename, m_circuit.ring.coordinate(corner.middle), wanted});
}

void CornersPane::request(CornerEdit::Kind kind)
{
    const int row = m_table->currentRow();
    if (row < 0)
        return;
    const Corner &corner = m_circuit.corners[static_cast<std::size_t>(row)];
    Q_EMIT editRequested({kind, m_circuit.ring.coordinate(corner.middle), {}});
}

void CornersPane::tellSelected(int row)
{
    enableButtons();
    if (row < 0)
        return;
    const Corner &corner = m_circuit.corners[static_cast<std::size_t>(row)];
    QList<QGeoCoordinate> way;
    for (double place = corner.start - Around; place <= corner.end + Around; place += Step)
        way.append(m_circuit.ring.coordinate(place));
    Q_EMIT cornerSelected(way);
}

} // namespace zuno
