// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/sessionsummary.h>

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTableWidget>

#include <base/laptimes.h>
#include <base/numbers.h>
#include <session/idealtimetext.h>
#include <session/recording/gpsquality.h>
#include <session/session.h>
#include <session/sessionlap.h>
#include <track/map.h>

namespace zuno {

QString SessionSummary::gpsText(const Session &session)
{
    const qint64 count = gpsQuality(session.wholeSamples()).total();
    if (count == 0)
        return {};
    return count == 1 ? tr("1 sample without GPS")
                      : tr("%1 samples without GPS").arg(QLocale().toString(count));
}

QString SessionSummary::laplessText(const Session &session, const QString &mapsFolder)
{
    const QString gps = gpsText(session);
    const QString reason = reasonForNoLaps(session, mapsFolder);
    return gps.isEmpty() ? reason : reason + u"\n\n" + gps + u'.';
}

QString SessionSummary::reasonForNoLaps(const Session &session, const QString &mapsFolder)
{
    const Map *map = session.map();
    if (map == nullptr) {
        return tr("No map is known for the place where this session was recorded, so it cannot be "
                  "cut into laps.\n\nMake a new map from it, choose a map with \"Maps\" (Ctrl+M), "
                  "or "
                  "copy the circuit's map file to\n%1")
            .arg(QDir::toNativeSeparators(mapsFolder));
    }
    if (!map->isUsable()) {
        return tr("The map \"%1\" has no start point, so laps cannot be cut.\n\nChoose another map "
                  "with \"Maps\" (Ctrl+M).")
            .arg(map->displayName());
    }
    return tr("This session never passes the start/finish line of the map \"%1\".\n\nIf it was "
              "ridden on another circuit, choose its map with \"Maps\" (Ctrl+M).")
        .arg(map->displayName());
}

void SessionSummary::showSession(const Session *session)
{
    showLabels(session);
    showSections(session);
}

void SessionSummary::showLabels(const Session *session)
{
    const Map *map = session != nullptr ? session->map() : nullptr;
    const bool hasMap = map != nullptr;
    m_w.map->setVisible(hasMap);
    m_w.mapLength->setVisible(hasMap);
    m_w.idealTime->setVisible(hasMap);
    m_w.distance->setVisible(hasMap);
    m_w.mapError->setVisible(session != nullptr && !hasMap);
    m_w.newMap->setVisible(session != nullptr && !hasMap && session->sampleCount() > 0);
    m_w.mapError->setText(
        tr("No map found, please try to select one from the Map configuraton panel"));
    if (session == nullptr || !hasMap)
        return;
    m_w.map->setText(tr("Map : %1").arg(map->displayName()));
    m_w.mapLength->setText(
        tr("Map length : %1 m").arg(QLocale().toString(truncatedToInt(map->length()))));
    m_w.idealTime->setText(tr("Ideal Time : %1").arg(explainedIdealTime(*session)));
    const QString distance
        = tr("Traveled distance : %1 m").arg(QLocale().toString(session->results().distance));
    const QString gps = gpsText(*session);
    m_w.distance->setText(gps.isEmpty() ? distance : distance + u"   (" + gps + u')');
}

void SessionSummary::showSections(const Session *session)
{
    QTableWidget *table = m_w.sections;
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
        m_w.laps->verticalHeader()->defaultSectionSize());
    const int head = table->horizontalHeader()->sizeHint().height() + (2 * table->frameWidth());
    // As high as its rows where there is room; in a low pane it scrolls, the laps need it more.
    table->setMinimumHeight(head + table->verticalHeader()->defaultSectionSize());
    table->setMaximumHeight(head + table->verticalHeader()->length());
}

// The best time of each section, and the lap that holds it.
void SessionSummary::fillSections(const Session &session, int sectors)
{
    QTableWidget *table = m_w.sections;
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

void SessionSummary::showFirstLap(const SessionLap &lap)
{
    m_w.firstLap->setVisible(static_cast<bool>(lap));
    if (!lap)
        return;
    const Map *map = lap.map();
    m_w.firstLap->setText(
        tr("Infos of first lap selected : Map : %1 --- Session : %2 --- Lap num : %3 --- Lap time "
           ": %4 --- max speed : %5 km/h")
            .arg(map != nullptr ? map->displayName() : QString(), lap.fileName(),
                 QString::number(lap->lapNumber()), lap->timeText(),
                 QString::number(lap->maxSpeed())));
}

} // namespace zuno
