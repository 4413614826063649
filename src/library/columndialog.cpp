// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/columndialog.h>

#include <QBuffer>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <formats/convert/rideconverter.h>
#include <formats/ridereader.h>
#include <formats/table/tablereader.h>
#include <formats/table/valueguess.h>
#include <library/columnmemory.h>
#include <library/columnunits.h>

namespace zuno {

namespace {

enum Cell { Name, Value, QuantityCell, UnitCell, CellCount };

constexpr int Unused = -1;
// What is enough for a few laps, and is read at once.
constexpr qint64 PreviewSize = 2 * 1024 * 1024;
constexpr int Width = 125; // characters
constexpr int Height = 36; // lines

std::vector<RidePreview::Point> pointsOf(const ConvertedRide &ride)
{
    std::vector<RidePreview::Point> points;
    points.reserve(ride.size());
    for (std::size_t i = 0; i < ride.size(); ++i) {
        const Place &place = ride.frame.places()[i];
        points.push_back({0.1 * static_cast<double>(i), place.latitude, place.longitude,
                          3.6 * static_cast<double>(place.speed)});
    }
    return points;
}

} // namespace

ColumnDialog::ColumnDialog(const QString &path, const ColumnMemory &memory, QWidget *parent)
    : QDialog(parent)
    , m_table(new QTableWidget)
    , m_preview(new RidePreview)
    , m_state(new QLabel)
{
    setObjectName(QStringLiteral("ColumnDialog"));
    setWindowTitle(tr("Columns of %1").arg(QFileInfo(path).fileName()));
    setWindowIcon(QIcon(QStringLiteral(":/Resources/Logos/logo.ico")));
    m_state->setTextFormat(Qt::PlainText);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_accept = buttons->button(QDialogButtonBox::Ok);
    m_table->setObjectName(QStringLiteral("tw_columns"));
    m_state->setObjectName(QStringLiteral("lb_columns"));
    m_state->setTextFormat(Qt::PlainText);
    m_state->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 3);
    layout->addWidget(m_preview, 2);
    layout->addWidget(m_state);
    layout->addWidget(buttons);
    resize(Width * fontMetrics().averageCharWidth(), Height * fontMetrics().lineSpacing());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    load(path);
    ColumnMapping guess = guessColumns(m_sheet.heading, m_sheet.rows);
    guessByValues(guess, m_sheet.rows);
    fillTable(memory.find(key()).value_or(guess));
    preview();
}

void ColumnDialog::load(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
        m_bytes = file.read(PreviewSize);
    m_sheet
        = findSheet(QByteArrayView(m_bytes).first(std::min<qsizetype>(HeadSize, m_bytes.size())))
              .value_or(TableSheet());
}

QString ColumnDialog::key() const
{
    return headingKey(m_sheet.heading);
}

void ColumnDialog::fillTable(const ColumnMapping &mapping)
{
    m_table->setColumnCount(CellCount);
    m_table->setHorizontalHeaderLabels({tr("Column"), tr("Value"), tr("Quantity"), tr("Unit")});
    m_table->verticalHeader()->hide();
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setRowCount(static_cast<int>(m_sheet.heading.names.size()));
    for (int column = 0; column < m_table->rowCount(); ++column)
        addRow(column, mapping);
    m_table->setWordWrap(false);
    // Boxes are as wide as their texts, which change with the quantity.
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(Value, QHeaderView::Stretch);
}

void ColumnDialog::addRow(int column, const ColumnMapping &mapping)
{
    const QString unit = m_sheet.heading.units.value(column);
    const QString name = m_sheet.heading.names[column];
    m_table->setItem(
        column, Name,
        new QTableWidgetItem(unit.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, unit)));
    QString value;
    for (const auto &row : m_sheet.rows) {
        const auto i = static_cast<std::size_t>(column);
        if (value.isEmpty() && i < row.size())
            value = QString::fromUtf8(row[i].trimmed());
    }
    m_table->setItem(column, Value, new QTableWidgetItem(value));
    auto *quantities = new QComboBox;
    auto *units = new QComboBox;
    units->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    quantities->addItem(tr("not used"), Unused);
    for (int i = 0; i < static_cast<int>(QuantityCount); ++i) {
        quantities->addItem(nameOfQuantity(static_cast<Quantity>(i)), i);
        if (mapping.uses[static_cast<std::size_t>(i)].column == column)
            quantities->setCurrentIndex(i + 1);
    }
    m_table->setCellWidget(column, QuantityCell, quantities);
    m_table->setCellWidget(column, UnitCell, units);
    const int chosen = quantityAt(column);
    fillUnits(column, chosen == Unused ? 0 : unitIndex(static_cast<Quantity>(chosen), mapping));
    connect(quantities, &QComboBox::activated, this, [this, column] { chooseQuantity(column); });
    connect(units, &QComboBox::activated, this, &ColumnDialog::preview);
}

QComboBox *ColumnDialog::box(int column, int cell) const
{
    return qobject_cast<QComboBox *>(m_table->cellWidget(column, cell));
}

int ColumnDialog::quantityAt(int column) const
{
    return box(column, QuantityCell)->currentData().toInt();
}

void ColumnDialog::fillUnits(int column, int unit)
{
    QComboBox *units = box(column, UnitCell);
    units->clear();
    const int quantity = quantityAt(column);
    if (quantity != Unused) {
        for (const ColumnUnit &choice : unitsOf(static_cast<Quantity>(quantity)))
            units->addItem(choice.name);
        units->setCurrentIndex(unit);
    }
    units->setEnabled(units->count() > 1);
}

// A quantity stands in one column only.
void ColumnDialog::chooseQuantity(int column)
{
    const int chosen = quantityAt(column);
    for (int other = 0; other < m_table->rowCount(); ++other) {
        if (other == column || chosen == Unused || quantityAt(other) != chosen)
            continue;
        box(other, QuantityCell)->setCurrentIndex(0);
        fillUnits(other, 0);
    }
    fillUnits(column, 0);
    preview();
}

ColumnMapping ColumnDialog::mapping() const
{
    ColumnMapping mapping;
    for (int column = 0; column < m_table->rowCount(); ++column) {
        const int chosen = quantityAt(column);
        if (chosen == Unused)
            continue;
        const auto quantity = static_cast<Quantity>(chosen);
        const int unit = std::max(box(column, UnitCell)->currentIndex(), 0);
        useColumn(mapping, quantity, column, unitsOf(quantity)[unit]);
    }
    if (!mapping.has(Quantity::Time) && mapping.has(Quantity::Hour))
        mapping.clock = ClockForm::Parts;
    return mapping;
}

void ColumnDialog::preview()
{
    std::vector<RidePreview::Point> points;
    const ColumnMapping chosen = mapping();
    RideFacts facts;
    if (chosen.isUsable()) {
        RideConverter converter(facts, [&points](ConvertedRide &&ride) {
            if (ride.size() > points.size())
                points = pointsOf(ride);
        });
        QBuffer buffer(&m_bytes);
        buffer.open(QIODevice::ReadOnly);
        if (readSheet(buffer, facts, converter, m_sheet, chosen).ok())
            converter.finish();
    }
    m_accept->setEnabled(!points.empty());
    if (!chosen.isUsable())
        m_state->setText(tr("Time, latitude and longitude are needed."));
    else if (points.empty())
        m_state->setText(tr("These columns give no ride of a second."));
    else
        m_state->setText(
            tr("%1 s of a ride from the begin of the file; lines that cannot be read: %2")
                .arg(QLocale().toString(points.back().time, 'f', 1),
                     QLocale().toString(facts.damage.lines)));
    m_preview->setPoints(std::move(points));
}

} // namespace zuno
