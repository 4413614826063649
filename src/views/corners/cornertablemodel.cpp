// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/corners/cornertablemodel.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <QLocale>

#include <base/units.h>
#include <theme/shownunits.h>
#include <views/comparison/comparison.h>
#include <views/corners/differencecolour.h>

namespace zuno {

namespace {

constexpr QChar NoFigure(0x2013);

/// A figure of a corner, as data: how it is read and shown, and whether more of it is slower.
struct Figure
{
    std::optional<double> (*value)(const CornerFigures &figures, const Corner &corner) = nullptr;
    enum class Kind { Place, Speed, Angle };
    Kind kind = Kind::Speed;
    /// 1 where more is slower, -1 where less is, 0 where neither can be said.
    int slower = 0;
};

// In the order of the columns from BrakesAt to OnTheGas.
constexpr std::array Figures {
    Figure {[](const CornerFigures &f, const Corner &c) -> std::optional<double> {
                if (!f.brakingPoint)
                    return {};
                return c.start - *f.brakingPoint;
            },
            Figure::Kind::Place, -1},
    Figure {[](const CornerFigures &f, const Corner & /*c*/) -> std::optional<double> {
                return f.entrySpeed;
            },
            Figure::Kind::Speed, -1},
    Figure {[](const CornerFigures &f, const Corner & /*c*/) -> std::optional<double> {
                return f.lowestSpeed;
            },
            Figure::Kind::Speed, -1},
    Figure {[](const CornerFigures &f, const Corner & /*c*/) -> std::optional<double> {
                return f.exitSpeed;
            },
            Figure::Kind::Speed, -1},
    Figure {[](const CornerFigures &f, const Corner & /*c*/) { return f.lean; },
            Figure::Kind::Angle, 0},
    Figure {[](const CornerFigures &f, const Corner & /*c*/) { return f.gasPoint; },
            Figure::Kind::Place, 1},
};

QString figureText(double value, Figure::Kind kind)
{
    switch (kind) {
    case Figure::Kind::Place:
        return units().distanceText(value);
    case Figure::Kind::Speed:
        return shownNumber(units().speed(value), 0);
    case Figure::Kind::Angle:
        break;
    }
    return shownNumber(value, 0) + QChar(0x00b0);
}

// In the units of the figure.
double shownDifference(double value, Figure::Kind kind)
{
    if (kind == Figure::Kind::Angle)
        return value;
    return kind == Figure::Kind::Place ? units().distance(value) : units().speed(value);
}

} // namespace

double CornerSpread::least() const
{
    return times.empty() ? 0.0 : *std::ranges::min_element(times);
}

double CornerSpread::most() const
{
    return times.empty() ? 0.0 : *std::ranges::max_element(times);
}

CornerTableModel::CornerTableModel(const Comparison &comparison, QObject *parent)
    : QAbstractTableModel(parent)
    , m_comparison(comparison)
{
    connect(&m_comparison, &Comparison::changed, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

int CornerTableModel::rowCount(const QModelIndex &parent) const
{
    const bool hasLap = m_comparison.selected() != nullptr;
    return parent.isValid() || !hasLap
               ? 0
               : static_cast<int>(m_comparison.insight().circuit.corners.size());
}

int CornerTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Spread + 1;
}

std::size_t CornerTableModel::unitOf(int row) const
{
    const TrackParts &units = m_comparison.insight().circuit.units;
    const auto corner = static_cast<std::size_t>(row);
    for (std::size_t unit = 0; unit < units.size(); ++unit) {
        const TrackPart &part = units[unit];
        if (corner >= part.firstCorner && corner < part.firstCorner + part.cornerCount)
            return unit;
    }
    return 0;
}

double CornerTableModel::timeIn(const InsightLap &lap, int row) const
{
    const TrackPart &part = m_comparison.insight().circuit.segmentOf(static_cast<std::size_t>(row));
    return lap.path.timeAt(part.to) - lap.path.timeAt(part.from);
}

const CornerFigures *CornerTableModel::figures(const InsightLap *lap, int row) const
{
    const auto corner = static_cast<std::size_t>(row);
    if (lap == nullptr || corner >= lap->figures.size() || !lap->figures[corner])
        return nullptr;
    return &*lap->figures[corner];
}

CornerSpread CornerTableModel::spreadOf(int row) const
{
    CornerSpread spread;
    const SessionInsight &insight = m_comparison.insight();
    for (const std::size_t i : insight.used)
        spread.times.push_back(timeIn(insight.laps[i], row));
    if (const InsightLap *lap = m_comparison.selected())
        spread.selected = timeIn(*lap, row);
    if (const InsightLap *lap = m_comparison.reference())
        spread.reference = timeIn(*lap, row);
    return spread;
}

CornerTableModel::Cell CornerTableModel::nameCell(int row) const
{
    const Corner &corner = m_comparison.insight().circuit.corners[static_cast<std::size_t>(row)];
    const QString side = corner.isRight ? tr("right") : tr("left");
    const QString label
        = corner.name.isEmpty() ? tr("T%1", "a corner's number").arg(corner.number) : corner.name;
    return {label + u' ' + side};
}

CornerTableModel::Cell CornerTableModel::timeCell(int row, bool isDifference) const
{
    const double time = timeIn(*m_comparison.selected(), row);
    if (!isDifference)
        return {QLocale().toString(time, 'f', 2)};
    if (m_comparison.reference() == nullptr)
        return {};
    const double difference = time - timeIn(*m_comparison.reference(), row);
    return {{}, shownNumber(difference, 3, true), difference};
}

CornerTableModel::Cell CornerTableModel::cell(int row, int column) const
{
    if (column == Name)
        return nameCell(row);
    if (column == Time || column == Difference)
        return timeCell(row, column == Difference);
    if (column == Spread) {
        const CornerSpread spread = spreadOf(row);
        return {QLocale().toString(spread.most() - spread.least(), 'f', 2)};
    }
    const Figure &figure = Figures[static_cast<std::size_t>(column - BrakesAt)];
    const Corner &corner = m_comparison.insight().circuit.corners[static_cast<std::size_t>(row)];
    const CornerFigures *own = figures(m_comparison.selected(), row);
    const std::optional<double> value = own != nullptr ? figure.value(*own, corner) : std::nullopt;
    if (!value)
        return {QString(NoFigure)};
    Cell cell {figureText(*value, figure.kind)};
    const CornerFigures *other = figures(m_comparison.reference(), row);
    if (const auto against = other != nullptr ? figure.value(*other, corner) : std::nullopt) {
        const double difference = shownDifference(*value - *against, figure.kind);
        cell.difference = shownNumber(difference, 0, true);
        cell.slower = std::fabs(difference) < 0.5 ? 0.0 : difference * figure.slower;
    }
    return cell;
}

QVariant CornerTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || index.row() >= rowCount())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return cell(index.row(), index.column()).text;
    case DifferenceRole:
        return cell(index.row(), index.column()).difference;
    case ColourRole:
        return static_cast<int>(differenceColour(cell(index.row(), index.column()).slower));
    case Qt::AccessibleTextRole: {
        const Cell shown = cell(index.row(), index.column());
        return QString(shown.text + u' ' + shown.difference).trimmed();
    }
    case Qt::TextAlignmentRole:
        return QVariant(index.column() == Name ? Qt::AlignLeft | Qt::AlignVCenter
                                               : Qt::AlignRight | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant CornerTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section > Spread)
        return {};
    const std::array texts {tr("Corner"),  tr("Time"), tr("Diff."), tr("Brakes at"),  tr("Entry"),
                            tr("Minimum"), tr("Exit"), tr("Lean"),  tr("On the gas"), tr("Spread")};
    const QString text = texts[static_cast<std::size_t>(section)];
    if (section != Spread)
        return text;
    return tr("Spread, %1 laps").arg(m_comparison.insight().used.size());
}

} // namespace zuno
