// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mapcheckpane.h>

#include "ui_mapcheckpane.h"

#include <algorithm>

#include <QSignalBlocker>

#include <base/laptimes.h>
#include <maps/editor/metrestext.h>
#include <track/mapdraft.h>

namespace zuno {

namespace {

// Lines of text that a warning takes, and that are seen without scrolling; pixels around them.
constexpr int WarningLines = 3;
constexpr int MostWarningLines = 6;
constexpr int LowWarningLines = 4;
constexpr int WarningMargin = 8;

} // namespace

MapCheckPane::MapCheckPane(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::MapCheckPane>())
{
    m_ui->setupUi(this);
    m_ui->tv_laps->setModel(&m_laps);
    m_ui->tv_laps->verticalHeader()->hide();
    const auto selectWarned = [this](const QListWidgetItem *item) {
        if (item != nullptr)
            Q_EMIT pointSelected(item->data(Qt::UserRole).toInt());
    };
    connect(m_ui->lw_warnings, &QListWidget::itemClicked, this, selectWarned);
    connect(m_ui->lw_warnings, &QListWidget::currentItemChanged, this, selectWarned);
}

// The table goes before its model.
MapCheckPane::~MapCheckPane()
{
    m_ui->tv_laps->setModel(nullptr);
}

void MapCheckPane::check(const Points &samples, const MapDraft &draft, bool isLow)
{
    const QList<MapWarning> before = warnings();
    const qsizetype columns = m_laps.columnCount();
    MapCheck check = checkMap(samples, draft);
    if (samples.empty()) {
        check.warnings.removeIf(
            [](const MapWarning &warning) { return warning.kind == MapWarning::Kind::NoPass; });
    }
    m_laps.setCheck(std::move(check), static_cast<int>(draft.timingPoints.size()));
    if (m_laps.columnCount() != columns || m_ui->tv_laps->columnWidth(0) == 0)
        m_ui->tv_laps->resizeColumnsToContents();
    m_ui->lb_summary->setText(summary(!samples.empty()));
    if (before != warnings() || m_ui->lw_warnings->count() == 0) {
        showWarnings(!samples.empty(), isLow);
        Q_EMIT warningsChanged();
    }
}

QString MapCheckPane::summary(bool hasSamples) const
{
    const MapCheck &check = m_laps.check();
    if (!hasSamples)
        return tr("Choose a session to see the laps that the map gives.");
    if (check.bestLap < 0)
        return tr("No complete lap. Length: %1").arg(metresText(check.length));
    const CheckedLap &best = check.laps[static_cast<std::size_t>(check.bestLap)];
    const auto complete = std::count_if(check.laps.begin(), check.laps.end(),
                                        [](const CheckedLap &lap) { return lap.isComplete; });
    return tr("Complete laps: %1. Best: %2 (lap %3). Ideal: %4. Length: %5")
        .arg(QString::number(complete), timeText(best.time), QString::number(best.number),
             timeText(check.idealTime), metresText(check.length));
}

void MapCheckPane::showWarnings(bool hasSamples, bool isLow)
{
    QListWidget &list = *m_ui->lw_warnings;
    const QSignalBlocker blocker(list);
    list.clear();
    for (const MapWarning &warning : warnings()) {
        auto *item = new QListWidgetItem(warningText(warning), &list);
        item->setData(Qt::UserRole, warning.point);
        item->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    }
    if (list.count() == 0 && hasSamples) {
        auto *item = new QListWidgetItem(tr("No problems found."), &list);
        item->setFlags(Qt::NoItemFlags);
    }
    const int most = isLow ? LowWarningLines : MostWarningLines;
    const int lines = warnings().isEmpty() ? 1 : std::min(WarningLines * list.count(), most);
    list.setFixedHeight((lines * list.fontMetrics().lineSpacing()) + (2 * list.frameWidth())
                        + WarningMargin);
}

} // namespace zuno
