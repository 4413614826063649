// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/idealtime/idealtimemodel.h>

#include <utility>

#include <QFileInfo>
#include <QFont>
#include <QLocale>
#include <QStringList>

#include <base/laptimes.h>

namespace zuno {

namespace {

QString textOf(std::optional<qint32> time)
{
    return time ? timeText(*time) : QString();
}

// In seconds with a sign.
QString differenceText(std::optional<qint32> difference)
{
    if (!difference)
        return {};
    const QString number = QLocale().toString(*difference / 1000.0, 'f', 3);
    return *difference > 0 ? QLocale().positiveSign() + number : number;
}

// What divides cells and rows cannot stand in a cell.
QString cellText(QString text)
{
    return text.replace(u'\t', u' ').replace(u'\n', u' ');
}

} // namespace

void IdealTimeModel::setIdealTime(IdealTime idealTime)
{
    beginResetModel();
    m_idealTime = std::move(idealTime);
    endResetModel();
}

int IdealTimeModel::sectorCount() const
{
    return static_cast<int>(m_idealTime.sectors().size());
}

IdealTimeModel::Kind IdealTimeModel::kindOf(int row) const
{
    return row < sectorCount() ? Kind::Sector : static_cast<Kind>(row - sectorCount() + 1);
}

int IdealTimeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : sectorCount() + FurtherRows;
}

int IdealTimeModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

std::optional<RiddenTime> IdealTimeModel::riddenTime(int row) const
{
    switch (kindOf(row)) {
    case Kind::Sector:
        return m_idealTime.sectors().at(static_cast<std::size_t>(row));
    case Kind::Total:
        return {};
    case Kind::BestLap:
        return m_idealTime.bestLap();
    case Kind::ContinuousLap:
        break;
    }
    const auto &lap = m_idealTime.bestContinuousLap();
    return lap ? std::optional(lap->ridden) : std::nullopt;
}

std::optional<qint32> IdealTimeModel::time(int row) const
{
    if (kindOf(row) == Kind::Total)
        return m_idealTime.total();
    const std::optional<RiddenTime> ridden = riddenTime(row);
    return ridden ? std::optional(ridden->time) : std::nullopt;
}

std::optional<qint32> IdealTimeModel::timeInBestLap(int row) const
{
    const Kind kind = kindOf(row);
    if (kind == Kind::Total && m_idealTime.bestLap())
        return m_idealTime.bestLap()->time;
    const qint32 time = kind == Kind::Sector ? m_idealTime.bestLapSector(row) : -1;
    return time >= 0 ? std::optional(time) : std::nullopt;
}

// What the best lap lost in a sector and altogether; of a lap what it lost on the total.
std::optional<qint32> IdealTimeModel::difference(int row) const
{
    const Kind kind = kindOf(row);
    const bool ofBestLap = kind == Kind::Sector || kind == Kind::Total;
    const std::optional<qint32> ridden = ofBestLap ? timeInBestLap(row) : time(row);
    const std::optional<qint32> ideal = ofBestLap ? time(row) : m_idealTime.total();
    return ridden && ideal ? std::optional(*ridden - *ideal) : std::nullopt;
}

QString IdealTimeModel::title(int row) const
{
    switch (kindOf(row)) {
    case Kind::Sector:
        return tr("Section %1").arg(row + 1);
    case Kind::Total:
        return tr("Ideal time");
    case Kind::BestLap:
        return tr("Best lap");
    case Kind::ContinuousLap:
        break;
    }
    const auto &lap = m_idealTime.bestContinuousLap();
    return !lap || lap->afterSector == 0
               ? tr("Best continuous lap")
               : tr("Best continuous lap, from the end of section %1").arg(lap->afterSector);
}

QString IdealTimeModel::lapText(int row) const
{
    const std::optional<RiddenTime> ridden = riddenTime(row);
    if (!ridden)
        return {};
    const auto &lap = m_idealTime.bestContinuousLap();
    if (kindOf(row) == Kind::ContinuousLap && lap->afterSector > 0)
        return tr("%1 to %2", "laps").arg(ridden->lapNumber).arg(ridden->lapNumber + 1);
    return QString::number(ridden->lapNumber);
}

QString IdealTimeModel::text(int row, int column) const
{
    const std::optional<RiddenTime> ridden = riddenTime(row);
    switch (column) {
    case Section:
        return title(row);
    case BestTime:
        return textOf(time(row));
    case SessionName:
        return ridden ? QFileInfo(ridden->filePath).completeBaseName() : QString();
    case Driver:
        return ridden ? ridden->driver : QString();
    case LapNumber:
        return lapText(row);
    case InBestLap:
        return textOf(timeInBestLap(row));
    case Difference:
        return differenceText(difference(row));
    default:
        return {};
    }
}

QVariant IdealTimeModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::TextAlignmentRole: {
        const bool isText = index.column() == Section || index.column() == SessionName
                            || index.column() == Driver;
        return QVariant((isText ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter);
    }
    case Qt::FontRole: {
        QFont font;
        font.setBold(kindOf(index.row()) == Kind::Total);
        return font.bold() ? font : QVariant();
    }
    default:
        return {};
    }
}

QVariant IdealTimeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::ToolTipRole && section == Difference) {
        return tr("What the best lap lost in a section; what a lap lost on the ideal time "
                  "(seconds)");
    }
    if (role != Qt::DisplayRole)
        return {};
    const QStringList texts {tr("Section"), tr("Best time"),   tr("Session"),   tr("Driver"),
                             tr("Lap"),     tr("In best lap"), tr("Difference")};
    return texts.value(section);
}

QString IdealTimeModel::toText() const
{
    QString table;
    for (int row = -1; row < rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column) {
            cells.append(
                cellText(row < 0 ? headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()
                                 : text(row, column)));
        }
        table += cells.join(u'\t') + u'\n';
    }
    return table;
}

} // namespace zuno
