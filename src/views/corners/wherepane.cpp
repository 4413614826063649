// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/corners/wherepane.h>

#include "ui_wherepane.h"

#include <base/units.h>
#include <theme/themes.h>
#include <views/comparison/comparison.h>
#include <views/corners/differencecolour.h>
#include <views/corners/lossbutton.h>
#include <views/corners/placelist.h>

namespace zuno {

namespace {

// With less room than for so many rows there is no list, only its sum.
constexpr int LeastRows = 3;

void setDifference(QLabel &label, double seconds)
{
    label.setText(WherePane::tr("%1 s", "seconds").arg(shownNumber(seconds, 3, true)));
    label.setStyleSheet(QStringLiteral("font-weight: bold; color: %1")
                            .arg(theme().colour(differenceColour(seconds)).name()));
}

} // namespace

WherePane::WherePane(const Comparison &comparison, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::WherePane>())
    , m_comparison(comparison)
    , m_list(new PlaceListModel(this))
{
    m_ui->setupUi(this);
    m_cards = {m_ui->card1, m_ui->card2, m_ui->card3};
    QFont bold = m_ui->lb_where->font();
    bold.setBold(true);
    m_ui->lb_where->setFont(bold);
    for (LossButton *card : m_cards)
        connect(card, &LossButton::clicked, this,
                [this, card] { Q_EMIT unitChosen(card->place().unit); });
    m_ui->lv_corners->setModel(m_list);
    m_ui->lv_corners->setItemDelegate(new PlaceDelegate(*m_list, this));
    const auto choose
        = [this](const QModelIndex &row) { Q_EMIT unitChosen(m_list->at(row.row()).unit); };
    connect(m_ui->lv_corners, &QListView::clicked, this, choose);
    connect(m_ui->lv_corners, &QListView::activated, this, choose);
    connect(m_ui->pb_chooseReference, &QPushButton::clicked, this, &WherePane::referenceMenuWanted);
    connect(&m_comparison, &Comparison::changed, this, &WherePane::show);
    connect(&Themes::instance(), &Themes::changed, this, &WherePane::show);
    show();
}

WherePane::~WherePane() = default;

void WherePane::show()
{
    const TimePlaces &places = m_comparison.places();
    const QString lack = describe(m_comparison);
    m_ui->lb_where->setText(places.isAgainstBest ? tr("Against the best of each corner")
                                                 : tr("Where is the time"));
    m_ui->lb_lack->setText(lack);
    m_ui->lb_lack->setVisible(!lack.isEmpty());
    m_ui->pb_chooseReference->setVisible(m_comparison.lack() == Comparison::Lack::Off
                                         || m_comparison.lack() == Comparison::Lack::NoOther);
    m_ui->lb_total->setVisible(!places.isEmpty());
    setDifference(*m_ui->lb_total, places.total);
    showCards();
    showOthers();
}

void WherePane::showCards()
{
    const TimePlaces &places = m_comparison.places();
    for (std::size_t i = 0; i < m_cards.size(); ++i) {
        const bool isThere = i < places.largest.size();
        m_cards[i]->setVisible(isThere);
        if (isThere)
            m_cards[i]->showPlace(places.places[places.largest[i]]);
    }
    markUnit(m_marked);
}

void WherePane::showOthers()
{
    const TimePlaces &places = m_comparison.places();
    m_list->setPlaces(places);
    const int count = m_list->rowCount();
    for (QLabel *label : {m_ui->lb_others, m_ui->lb_othersSum})
        label->setVisible(count > 0);
    m_ui->lb_others->setText(tr("The other %1 places").arg(count));
    setDifference(*m_ui->lb_othersSum, places.sumOfOthers());
    fitList();
    markUnit(m_marked);
}

void WherePane::markUnit(std::optional<std::size_t> unit)
{
    m_marked = unit;
    for (LossButton *card : m_cards)
        card->setChecked(unit && !card->isHidden() && card->place().unit == *unit);
    const int row = unit ? m_list->rowOf(*unit) : -1;
    const QModelIndex index = row >= 0 ? m_list->index(row) : QModelIndex();
    m_ui->lv_corners->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

// As high as its rows; where there is no room for some of them, it gives way to the cards.
void WherePane::fitList()
{
    QListView &list = *m_ui->lv_corners;
    const int row = fontMetrics().height() + 3;
    const int rows = m_list->rowCount();
    int used = m_ui->whereLayout->contentsMargins().top() + m_ui->lb_where->sizeHint().height()
               + m_ui->lb_others->sizeHint().height() + m_ui->lb_thin->sizeHint().height()
               + (8 * m_ui->whereLayout->spacing());
    for (const LossButton *card : m_cards)
        used += card->isHidden() ? 0 : card->sizeHint().height();
    const bool hasRoom = rows > 0 && height() - used >= std::min(rows, LeastRows) * row;
    list.setVisible(hasRoom);
    m_ui->lb_thin->setVisible(hasRoom);
    list.setMaximumHeight(rows * row);
}

void WherePane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitList();
}

} // namespace zuno
