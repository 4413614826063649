// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The CSV that AiM's Race Studio exports: lines of keys and values, padded with commas, then names
// and units, then rows at the sample rate.

#include <cmath>

#include <formats/readers/readers.h>
#include <formats/table/tablereader.h>

namespace zuno {

namespace {

class Keys
{
public:
    explicit Keys(RideFacts &facts) : m_facts(facts) {}

    void take(const Cells &cells)
    {
        if (cells.size() < 2)
            return;
        const QString key = cellText(cells[0]).toLower();
        const QString value = cellText(cells[1]);
        if (key == u"session")
            m_facts.circuit = value;
        else if (key == u"vehicle")
            m_facts.vehicle = value;
        else if (key == u"racer")
            m_facts.driver = value;
        else if (key == u"championship")
            m_facts.event = value;
        else if (key == u"comment")
            m_facts.notes = value;
        else if (key == u"date")
            m_date = findDate(value, DateOrder::MonthFirst);
        else if (key == u"time")
            m_time = findTimeOfDay(value);
        else if (key == u"beacon markers")
            takeBeacons(cells);
    }

    // Rows count seconds from the time in the keys.
    void finish()
    {
        if (!m_date.isValid())
            return;
        const double seconds = std::isnan(m_time) ? 0.0 : m_time;
        m_facts.clockZero = QDateTime(m_date, QTime(0, 0), Qt::UTC)
                                .addMSecs(static_cast<qint64>(std::llround(seconds * 1000)));
    }

private:
    void takeBeacons(const Cells &cells)
    {
        for (std::size_t i = 1; i < cells.size(); ++i) {
            for (const QString &text : cellText(cells[i]).split(u' ', Qt::SkipEmptyParts)) {
                if (const double time = toNumber(text.toUtf8()); time >= 0)
                    m_facts.lapMarks.push_back(time);
            }
        }
    }

    RideFacts &m_facts;
    QDate m_date;
    double m_time = NoValue;
};

} // namespace

bool looksLikeAimCsv(QByteArrayView head)
{
    const QByteArrayView begin = head.first(std::min<qsizetype>(head.size(), 200));
    return begin.contains("AIM CSV File") || begin.contains("AiM CSV File");
}

ReadEnd readAimCsv(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    TableReader table(device, facts);
    facts.logger = QStringLiteral("AiM");
    Keys keys(facts);
    table.setPreamble([&keys](QByteArrayView /*line*/, const Cells &cells) { keys.take(cells); });
    if (!table.findHeading())
        return noTable();
    keys.finish();
    return table.run(sink);
}

} // namespace zuno
