// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/lapstablemodel.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <QColor>
#include <QItemSelectionModel>
#include <QLocale>

#include <base/laptimes.h>
#include <session/session.h>
#include <track/map.h>

namespace zuno {

namespace {

// No motorcycle leans further, and no reading of a suspension is larger.
constexpr qint32 LargestAngle = 180;
constexpr double LargestReading = 1e6;

// For a figure that damaged samples have spoilt.
constexpr QChar NoFigure(0x2013);

// Times, numbers and units are the same in every language; only separators are the rider's.
QString decimals(double value)
{
    if (!(std::fabs(value) <= LargestReading))
        return QString(NoFigure);
    return QLocale().toString(value, 'f', 2);
}

QString decimals(std::optional<float> value)
{
    return value ? decimals(static_cast<double>(*value)) : QString();
}

QString angleText(qint32 angle)
{
    const bool isPossible = angle >= -LargestAngle && angle <= LargestAngle;
    return isPossible ? QStringLiteral("%1 d").arg(angle) : QString(NoFigure);
}

int columnOf(Mark mark)
{
    switch (mark) {
    case Mark::MaximumSpeed:
        return LapsTableModel::MaxSpeed;
    case Mark::LeftAngle:
        return LapsTableModel::LeftAngle;
    case Mark::RightAngle:
        return LapsTableModel::RightAngle;
    case Mark::Acceleration:
        return LapsTableModel::Accel;
    case Mark::Deceleration:
        return LapsTableModel::Decel;
    case Mark::FrontSuspensionMinimum:
        return LapsTableModel::MinFrontSusp;
    case Mark::FrontSuspensionMaximum:
        return LapsTableModel::MaxFrontSusp;
    case Mark::RearSuspensionMinimum:
        return LapsTableModel::MinRearSusp;
    case Mark::RearSuspensionMaximum:
        return LapsTableModel::MaxRearSusp;
    }
    return -1;
}

bool isMarked(const Lap &lap, int column)
{
    return std::any_of(lap.marks().begin(), lap.marks().end(),
                       [column](Mark mark) { return columnOf(mark) == column; });
}

} // namespace

LapsTableModel::LapsTableModel(QObject *parent) : QAbstractTableModel(parent) {}

void LapsTableModel::setLaps(const LapList *laps, int sections)
{
    beginResetModel();
    m_laps = laps;
    m_sections = sections;
    endResetModel();
}

void LapsTableModel::refresh()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void LapsTableModel::setSelection(QItemSelectionModel *selection)
{
    m_selection = selection;
}

std::optional<Setting> LapsTableModel::settingOf(int column)
{
    switch (column) {
    case Number:
    case LapTime:
        return std::nullopt;
    case Type:
        return Setting::ShowLapType;
    case CumulatedTime:
        return Setting::ShowCumulatedTime;
    case MaxSpeed:
        return Setting::ShowMaxSpeed;
    case MinSpeed:
        return Setting::ShowMinSpeed;
    case LeftAngle:
        return Setting::ShowAngleLeft;
    case RightAngle:
        return Setting::ShowAngleRight;
    case Accel:
        return Setting::ShowAccel;
    case Decel:
        return Setting::ShowDecel;
    case MinFrontSusp:
        return Setting::ShowMinFrontSusp;
    case MaxFrontSusp:
        return Setting::ShowMaxFrontSusp;
    case MinRearSusp:
        return Setting::ShowMinRearSusp;
    case MaxRearSusp:
        return Setting::ShowMaxRearSusp;
    default:
        return Setting::ShowPartiels;
    }
}

int LapsTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || m_laps == nullptr ? 0 : static_cast<int>(m_laps->size());
}

int LapsTableModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return FirstSection + (rowCount() > 0 ? m_sections : 0);
}

const Lap &LapsTableModel::lapAt(const QModelIndex &index) const
{
    return *(*m_laps)[static_cast<std::size_t>(index.row())];
}

QVariant LapsTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Lap &lap = lapAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return text(lap, index.column());
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignCenter);
    case SelectedRecordRole:
        if (isRowSelected(index) && distinctionOf(lap, index.column()) == Distinction::Record)
            return true;
        break;
    case SelectedSectionRole:
        if (isRowSelected(index) && distinctionOf(lap, index.column()) == Distinction::BestSection)
            return true;
        break;
    case Qt::BackgroundRole:
        break;
    default:
        return {};
    }
    return background(lap, index.column());
}

QString LapsTableModel::text(const Lap &lap, int column) const
{
    switch (column) {
    case Number:
        return QString::number(lap.lapNumber());
    case Type:
        return typeText(lap);
    case CumulatedTime:
        return timeText(lap.cumulatedTime());
    case LapTime:
        return lap.isComplete() ? lap.timeText() : QString();
    case MaxSpeed:
        return QStringLiteral("%1 km/h").arg(lap.maxSpeed());
    case MinSpeed:
        return QStringLiteral("%1 km/h").arg(lap.minSpeed());
    case LeftAngle:
        return angleText(lap.minAngle());
    case RightAngle:
        return angleText(lap.maxAngle());
    case Accel:
        return decimals(lap.accelMax());
    case Decel:
        return decimals(lap.decelMax());
    case MinFrontSusp:
        return decimals(lap.suspension1().min);
    case MaxFrontSusp:
        return decimals(lap.suspension1().max);
    case MinRearSusp:
        return decimals(lap.suspension2().min);
    case MaxRearSusp:
        return decimals(lap.suspension2().max);
    default:
        return timeText(lap.sectorTime(column - FirstSection));
    }
}

QString LapsTableModel::typeText(const Lap &lap)
{
    if (lap.isCountedTwice())
        return tr("Counted twice");
    return lap.isComplete() ? tr("Complete") : tr("Incomplete");
}

LapsTableModel::Distinction LapsTableModel::distinctionOf(const Lap &lap, int column) const
{
    if (!lap.isValid())
        return Distinction::Invalid;
    if (lap.isCountedTwice())
        return Distinction::None;
    if (isMarked(lap, column) || (column == LapTime && lap.isBest()))
        return Distinction::Record;
    if (column >= FirstSection && lap.isBestSector(column - FirstSection))
        return Distinction::BestSection;
    return Distinction::None;
}

QVariant LapsTableModel::background(const Lap &lap, int column) const
{
    switch (distinctionOf(lap, column)) {
    case Distinction::Invalid:
        return QColor(Qt::red);
    case Distinction::Record:
        return QColor(Qt::darkGreen);
    case Distinction::BestSection:
        return QColor(Qt::darkMagenta);
    case Distinction::None:
        break;
    }
    return {};
}

bool LapsTableModel::isRowSelected(const QModelIndex &index) const
{
    return m_selection != nullptr && m_selection->isRowSelected(index.row(), index.parent());
}

QVariant LapsTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0
        || section >= HeaderCount)
        return {};
    const std::array<QString, FirstSection> texts {
        tr("Lap"),
        tr("Type"),
        tr("Cumulated time"),
        tr("Lap time"),
        tr("Max speed"),
        tr("Min speed"),
        tr("Left Angle"),
        tr("Right Angle"),
        tr("Accel"),
        tr("Decel"),
        tr("Min front susp."),
        tr("Max front susp."),
        tr("Min rear susp."),
        tr("Max rear susp."),
    };
    if (section < FirstSection)
        return texts[static_cast<std::size_t>(section)];
    return tr("Section %1").arg(section - FirstSection + 1);
}

} // namespace zuno
