// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/editor/mapcheckmodel.h>

#include <base/laptimes.h>
#include <theme/themes.h>

namespace zuno {

namespace {

constexpr qint32 NoTime = -1;

} // namespace

void MapCheckModel::setCheck(MapCheck check, int sectors)
{
    // Views keep their place while a point is dragged, which mostly changes figures only.
    const bool isSameShape
        = m_check.laps.size() == check.laps.size() && m_sectors == sectors && !check.laps.empty();
    if (!isSameShape)
        beginResetModel();
    m_check = std::move(check);
    m_sectors = sectors;
    findBestSectors();
    if (isSameShape)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    else
        endResetModel();
}

void MapCheckModel::findBestSectors()
{
    m_bestSectors.fill(-1, m_sectors);
    for (int sector = 0; sector < m_sectors; ++sector) {
        qint32 best = NoTime;
        for (std::size_t row = 0; row < m_check.laps.size(); ++row) {
            const CheckedLap &lap = m_check.laps[row];
            const qint32 time = lap.sectorTimes.value(sector, NoTime);
            if (time == NoTime || (best != NoTime && time >= best))
                continue;
            best = time;
            m_bestSectors[sector] = static_cast<int>(row);
        }
    }
}

int MapCheckModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_check.laps.size());
}

int MapCheckModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : FirstSector + m_sectors;
}

QVariant MapCheckModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignCenter);
    case Qt::BackgroundRole:
        return background(index.row(), index.column());
    default:
        return {};
    }
}

QString MapCheckModel::text(int row, int column) const
{
    const CheckedLap &lap = m_check.laps[static_cast<std::size_t>(row)];
    switch (column) {
    case Number:
        return QString::number(lap.number);
    case LapTime:
        return lap.isComplete ? timeText(lap.time) : tr("Incomplete");
    default:
        return timeText(lap.sectorTimes.value(column - FirstSector, NoTime));
    }
}

QVariant MapCheckModel::background(int row, int column) const
{
    if (column <= LapTime && row == m_check.bestLap)
        return theme().colour(Colour::BestLap);
    if (column >= FirstSector && m_bestSectors[column - FirstSector] == row)
        return theme().colour(Colour::BestSection);
    return {};
}

QVariant MapCheckModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Number:
        return tr("Lap");
    case LapTime:
        return tr("Lap time");
    default:
        return tr("Section %1").arg(section - FirstSector + 1);
    }
}

} // namespace zuno
