// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/lapspane.h>

#include "ui_lapspane.h"

#include <QHeaderView>

#include <base/laptimes.h>
#include <session/session.h>
#include <theme/shownunits.h>
#include <track/map.h>
#include <views/laps/lapselection.h>
#include <views/laps/lapsview.h>
#include <views/laps/sessionsummary.h>

namespace zuno {

LapsPane::LapsPane(LapSelection &selection, const Settings &settings, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::LapsPane>())
    , m_selection(selection)
{
    m_ui->setupUi(this);
    m_table = new LapsView(*m_ui->tw_tours, selection, settings);
    connect(m_table, &LapsView::validityChanged, this, &LapsPane::showFigures);
    connect(m_ui->pb_newMap, &QPushButton::clicked, this, &LapsPane::newMapRequested);
    connect(m_ui->pb_chooseFolder, &QPushButton::clicked, this, &LapsPane::folderWanted);
    connect(&ShownUnits::instance(), &ShownUnits::changed, this, [this] {
        showFigures();
        m_ui->tw_tours->viewport()->update();
    });
    connect(m_ui->pb_corners, &QToolButton::toggled, this, &LapsPane::showPage);
    m_ui->pb_corners->hide();
    m_ui->pb_laps->hide();
}

// The view goes before the table that it works with.
LapsPane::~LapsPane()
{
    delete m_table;
}

void LapsPane::showSession()
{
    const Session *session = m_selection.session();
    m_table->showLaps();
    showFigures();
    m_hasLaps = session != nullptr && !session->laps().empty();
    if (m_hasLaps)
        showPage();
}

void LapsPane::showState(const QString &text, bool canMakeMap, bool canChooseFolder)
{
    m_ui->lb_state->setText(text);
    m_ui->pb_newMap->setVisible(canMakeMap);
    m_ui->pb_chooseFolder->setVisible(canChooseFolder);
    m_hasLaps = false;
    showPage();
}

void LapsPane::showFigures()
{
    const Session *session = m_selection.session();
    const bool hasMap = session != nullptr && session->map() != nullptr;
    m_ui->lb_idealTime->setVisible(hasMap);
    m_ui->lb_traveledDistance->setVisible(hasMap);
    if (hasMap) {
        m_ui->lb_idealTime->setText(SessionSummary::idealTimeText(*session));
        m_ui->lb_traveledDistance->setText(SessionSummary::distanceText(*session));
    }
    showSections(session);
}

void LapsPane::showSections(const Session *session)
{
    QTableWidget *table = m_ui->tableWidget;
    table->clear();
    if (session == nullptr || session->map() == nullptr || session->laps().empty()) {
        table->hide();
        return;
    }
    const int sectors = session->map()->sectorCount();
    table->setVisible(sectors > 0);
    fillSections(*session, sectors);
    table->horizontalHeader()->ensurePolished();
    table->resizeColumnsToContents();
    table->verticalHeader()->setDefaultSectionSize(
        m_ui->tw_tours->verticalHeader()->defaultSectionSize());
    const int head = table->horizontalHeader()->sizeHint().height() + (2 * table->frameWidth());
    // As high as its rows where there is room; in a low pane it scrolls, the laps need it more.
    table->setMinimumHeight(head + table->verticalHeader()->defaultSectionSize());
    table->setMaximumHeight(head + table->verticalHeader()->length());
}

// The best time of each section, and the lap that holds it.
void LapsPane::fillSections(const Session &session, int sectors)
{
    QTableWidget *table = m_ui->tableWidget;
    table->setRowCount(sectors);
    table->setColumnCount(3);
    table->setHorizontalHeaderLabels({tr("Section"), tr("Best time"), tr("Lap")});
    table->verticalHeader()->hide();
    for (int sector = 0; sector < sectors; ++sector) {
        const auto s = static_cast<std::size_t>(sector);
        const qint32 lap = session.results().bestSectorLaps[s];
        const QStringList texts {
            QString::number(sector + 1),
            lap < 0 ? QString() : timeText(session.results().bestSectorTimes[s]),
            lap < 0 ? QString() : QString::number(lap + 1),
        };
        for (int column = 0; column < texts.size(); ++column) {
            auto *item = new QTableWidgetItem(texts[column]);
            item->setTextAlignment(Qt::AlignCenter);
            table->setItem(sector, column, item);
        }
    }
}

void LapsPane::addCorners(QWidget *corners)
{
    m_corners = corners;
    m_ui->lapsStack->addWidget(corners);
    m_ui->pb_laps->show();
    m_ui->pb_corners->show();
}

void LapsPane::showPage()
{
    QWidget *page = m_ui->statePage;
    if (m_hasLaps)
        page = m_corners != nullptr && m_ui->pb_corners->isChecked() ? m_corners : m_ui->lapsPage;
    m_ui->lapsStack->setCurrentWidget(page);
}

} // namespace zuno
