// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/laps/lapstablemodel.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <QItemSelectionModel>
#include <QLocale>

#include <base/laptimes.h>
#include <session/session.h>
#include <theme/shownunits.h>
#include <theme/themes.h>
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

QString speedText(qint32 speed)
{
    return units().speedText(speed);
}

QString angleText(qint32 angle)
{
    const bool isPossible = angle >= -LargestAngle && angle <= LargestAngle;
    return isPossible ? QStringLiteral("%1 d").arg(angle) : QString(NoFigure);
}

template<Mark mark>
bool hasMark(const Lap &lap)
{
    return std::ranges::find(lap.marks(), mark) != lap.marks().end();
}

// Tracks with more sections have nameless columns.
constexpr int NamedSections = 6;

} // namespace

std::span<const LapsTableModel::Column> LapsTableModel::columns()
{
    static constexpr std::array Table {
        Column {
            QT_TR_NOOP("Lap"), [](const Lap &lap) { return QString::number(lap.lapNumber()); }, {}},
        Column {QT_TR_NOOP("Type"), typeText, Setting::ShowLapType},
        Column {QT_TR_NOOP("Cumulated time"),
                [](const Lap &lap) { return timeText(lap.cumulatedTime()); },
                Setting::ShowCumulatedTime},
        Column {QT_TR_NOOP("Lap time"),
                [](const Lap &lap) { return lap.isComplete() ? lap.timeText() : QString(); },
                {},
                [](const Lap &lap) { return lap.isBest(); }},
        Column {QT_TR_NOOP("Max speed"), [](const Lap &lap) { return speedText(lap.maxSpeed()); },
                Setting::ShowMaxSpeed, hasMark<Mark::MaximumSpeed>},
        Column {QT_TR_NOOP("Min speed"), [](const Lap &lap) { return speedText(lap.minSpeed()); },
                Setting::ShowMinSpeed},
        Column {QT_TR_NOOP("Left Angle"), [](const Lap &lap) { return angleText(lap.minAngle()); },
                Setting::ShowAngleLeft, hasMark<Mark::LeftAngle>},
        Column {QT_TR_NOOP("Right Angle"), [](const Lap &lap) { return angleText(lap.maxAngle()); },
                Setting::ShowAngleRight, hasMark<Mark::RightAngle>},
        Column {QT_TR_NOOP("Accel"), [](const Lap &lap) { return decimals(lap.accelMax()); },
                Setting::ShowAccel, hasMark<Mark::Acceleration>},
        Column {QT_TR_NOOP("Decel"), [](const Lap &lap) { return decimals(lap.decelMax()); },
                Setting::ShowDecel, hasMark<Mark::Deceleration>},
        Column {QT_TR_NOOP("Min front susp."),
                [](const Lap &lap) { return decimals(lap.suspension1().min); },
                Setting::ShowMinFrontSusp, hasMark<Mark::FrontSuspensionMinimum>},
        Column {QT_TR_NOOP("Max front susp."),
                [](const Lap &lap) { return decimals(lap.suspension1().max); },
                Setting::ShowMaxFrontSusp, hasMark<Mark::FrontSuspensionMaximum>},
        Column {QT_TR_NOOP("Min rear susp."),
                [](const Lap &lap) { return decimals(lap.suspension2().min); },
                Setting::ShowMinRearSusp, hasMark<Mark::RearSuspensionMinimum>},
        Column {QT_TR_NOOP("Max rear susp."),
                [](const Lap &lap) { return decimals(lap.suspension2().max); },
                Setting::ShowMaxRearSusp, hasMark<Mark::RearSuspensionMaximum>},
    };
    return Table;
}

const LapsTableModel::Column *LapsTableModel::columnAt(int column)
{
    return sectionOf(column) < 0 ? &columns()[static_cast<std::size_t>(column)] : nullptr;
}

int LapsTableModel::sectionOf(int column)
{
    return column - static_cast<int>(columns().size());
}

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
    const Column *figure = columnAt(column);
    return figure != nullptr ? figure->setting : Setting::ShowPartiels;
}

int LapsTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || m_laps == nullptr ? 0 : static_cast<int>(m_laps->size());
}

int LapsTableModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return static_cast<int>(columns().size()) + (rowCount() > 0 ? m_sections : 0);
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
    const Column *figure = columnAt(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text(lap, index.column());
    case Qt::TextAlignmentRole:
        return QVariant(figure != nullptr ? figure->alignment : Qt::AlignCenter);
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

QString LapsTableModel::text(const Lap &lap, int column)
{
    const Column *figure = columnAt(column);
    return figure != nullptr ? figure->text(lap) : timeText(lap.sectorTime(sectionOf(column)));
}

QString LapsTableModel::typeText(const Lap &lap)
{
    if (lap.isCountedTwice())
        return tr("Counted twice");
    return lap.isComplete() ? tr("Complete") : tr("Incomplete");
}

LapsTableModel::Distinction LapsTableModel::distinctionOf(const Lap &lap, int column)
{
    if (!lap.isValid())
        return Distinction::Invalid;
    if (lap.isCountedTwice())
        return Distinction::None;
    const Column *figure = columnAt(column);
    if (figure == nullptr)
        return lap.isBestSector(sectionOf(column)) ? Distinction::BestSection : Distinction::None;
    const bool isRecord = figure->isRecord != nullptr && figure->isRecord(lap);
    return isRecord ? Distinction::Record : Distinction::None;
}

QVariant LapsTableModel::background(const Lap &lap, int column)
{
    switch (distinctionOf(lap, column)) {
    case Distinction::Invalid:
        return theme().colour(Colour::ThrownOut);
    case Distinction::Record:
        return theme().colour(Colour::BestLap);
    case Distinction::BestSection:
        return theme().colour(Colour::BestSection);
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
        || sectionOf(section) >= NamedSections)
        return {};
    if (const Column *figure = columnAt(section))
        return tr(figure->header);
    return tr("Section %1").arg(sectionOf(section) + 1);
}

} // namespace zuno
