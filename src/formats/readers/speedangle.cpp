// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// SpeedAngle's trace: sections between <name> and </name>, a row every 100 ms without a time.

#include <cmath>

#include <QCoreApplication>

#include <formats/readers/readers.h>
#include <formats/table/columnmapping.h>
#include <formats/text/datetimes.h>
#include <formats/text/linereader.h>

namespace zuno {

namespace {

constexpr double RowStep = 0.1;
// G for each unit of the accelerations, from what the speed says in recordings.
constexpr double AccelerationUnit = 0.019;
enum Column : std::size_t {
    Latitude,
    Longitude,
    Lean,
    SmoothLean,
    Acceleration,
    SmoothAcceleration,
    Speed
};
constexpr std::size_t LeastColumns = Speed + 1;

class SpeedAngle
{
public:
    SpeedAngle(QIODevice &device, RideFacts &facts, RowSink &sink)
        : m_lines(device)
        , m_facts(facts)
        , m_sink(sink)
    {
    }

    ReadEnd read()
    {
        m_facts.logger = QStringLiteral("SpeedAngle");
        while (!m_sink.isCancelled()) {
            const auto line = m_lines.next();
            if (!line)
                break;
            takeLine(line->trimmed());
        }
        if (!m_facts.gates.empty())
            m_facts.gates.back().isStart = true;
        if (m_rows > 0)
            return {};
        return {QCoreApplication::translate("Formats", "there is no row of a trace")};
    }

private:
    void takeLine(QByteArrayView line)
    {
        if (line.isEmpty() || line.startsWith(';'))
            return;
        if (line.startsWith('<'))
            enterSection(line);
        else if (m_section == "trace")
            takeRow(line);
        else if (m_section == "trackplan")
            takeGate(line);
        else if (m_section == "timer")
            takeTime(line);
        else if (line.startsWith('#'))
            takeKey(QString::fromLatin1(line.sliced(1)));
    }

    void enterSection(QByteArrayView line)
    {
        m_section.clear();
        if (line.startsWith("</"))
            return;
        m_section = upTo(line.sliced(1), ' ').toByteArray().replace('>', "").toLower();
        const qsizetype unit = line.indexOf("#unit=");
        if (unit >= 0) {
            const QByteArray name = line.sliced(unit + 6).toByteArray().replace('>', "");
            if (const double factor = speedFactor(QString::fromLatin1(name.trimmed())); factor > 0)
                m_speedFactor = factor;
        }
    }

    void takeKey(const QString &key)
    {
        const QString value = key.section(u'=', 1, 1).trimmed();
        if (key.startsWith(u"D=")) {
            const QDate date = findDate(value, DateOrder::MonthFirst);
            const double time = findTimeOfDay(value.section(u' ', 1));
            if (date.isValid())
                m_facts.clockZero = QDateTime(date, QTime(0, 0), Qt::UTC)
                                        .addSecs(std::isnan(time) ? 0 : std::llround(time));
        } else if (key.startsWith(u"S=")) {
            m_facts.circuit = value;
        } else if (key.startsWith(u"N=")) {
            m_facts.driver = value;
        }
    }

    void takeGate(QByteArrayView line)
    {
        splitCells(line, ',', m_cells);
        if (m_cells.size() < 5)
            return;
        const QGeoCoordinate first(toNumber(m_cells[1]), toNumber(m_cells[2]));
        const QGeoCoordinate second(toNumber(m_cells[3]), toNumber(m_cells[4]));
        if (first.isValid() && second.isValid())
            m_facts.gates.push_back({cellText(m_cells[0]), first, second, false, false});
    }

    // "#2,0:32.787": when gate 2 was passed; the last gate is the line.
    void takeTime(QByteArrayView line)
    {
        if (!line.startsWith('#') || m_facts.gates.empty())
            return;
        splitCells(line.sliced(1), ',', m_cells);
        if (m_cells.size() < 2 || cellText(m_cells[0]) != m_facts.gates.back().name)
            return;
        const QString text = cellText(m_cells[1]);
        const double seconds
            = 60 * text.section(u':', 0, 0).toDouble() + text.section(u':', 1, 1).toDouble();
        m_facts.lapMarks.push_back(seconds);
    }

    void takeRow(QByteArrayView line)
    {
        splitCells(line, ',', m_cells);
        const double time = RowStep * static_cast<double>(m_rows);
        // A spoiled row was a tenth of a second all the same.
        ++m_rows;
        RawRow row;
        row.time = time;
        if (m_cells.size() >= LeastColumns) {
            row.latitude = toNumber(m_cells[Latitude]);
            row.longitude = toNumber(m_cells[Longitude]);
            row.lean = toNumber(m_cells[Lean]);
            row.along = toNumber(m_cells[Acceleration]) * AccelerationUnit;
            row.speed = toNumber(m_cells[Speed]) * m_speedFactor;
        }
        if (std::isnan(row.latitude) || std::isnan(row.longitude) || std::isnan(row.speed))
            m_facts.damage.add(m_lines.number(), m_lines.position());
        else
            m_sink.take(row);
    }

    LineReader m_lines;
    RideFacts &m_facts;
    RowSink &m_sink;
    QByteArray m_section;
    Cells m_cells;
    double m_speedFactor = 0.44704;
    qint64 m_rows = 0;
};

} // namespace

bool looksLikeSpeedAngle(QByteArrayView head)
{
    return head.contains("<trackplan") || (head.contains("SpeedAngle") && head.contains("<trace"));
}

ReadEnd readSpeedAngle(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    return SpeedAngle(device, facts, sink).read();
}

} // namespace zuno
