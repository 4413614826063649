// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// NMEA 0183, in log files of a receiver. Qt's own reader parses the sentences and holds them
// against their checksums; it is asked sentence by sentence, since its source delivers by timers
// and signals, which need an event loop, and would bring all sentences of a second together.

#include <cmath>

#include <QCoreApplication>
#include <QGeoPositionInfo>
#include <QNmeaPositionInfoSource>

#include <formats/readers/readers.h>
#include <formats/text/datetimes.h>
#include <formats/text/linereader.h>

namespace zuno {

namespace {

/// Opens Qt's parser of single sentences.
class SentenceParser final : public QNmeaPositionInfoSource
{
public:
    SentenceParser() : QNmeaPositionInfoSource(SimulationMode) {}

    [[nodiscard]] bool parse(QByteArrayView sentence, QGeoPositionInfo &info, bool &hasFix)
    {
        return parsePosInfoFromNmeaData(sentence.data(), static_cast<int>(sentence.size()), &info,
                                        &hasFix);
    }
};

class Nmea
{
public:
    Nmea(QIODevice &device, RideFacts &facts, RowSink &sink)
        : m_lines(device)
        , m_facts(facts)
        , m_sink(sink)
    {
    }

    ReadEnd read();

private:
    void takeLine(QByteArrayView line);
    [[nodiscard]] bool takeSentence(QByteArrayView sentence);
    void takeInfo(const QGeoPositionInfo &info, bool hasFix);
    void takeTime(QTime time);
    void takeDate(QDate date);
    void giveRow();

    LineReader m_lines;
    RideFacts &m_facts;
    RowSink &m_sink;
    SentenceParser m_parser;
    DayClock m_days;
    QTime m_time;
    QDate m_firstDate;
    RawRow m_row;
    qint64 m_rows = 0;
};

ReadEnd Nmea::read()
{
    m_facts.logger = QStringLiteral("NMEA");
    m_facts.isTimeOfDay = true;
    while (!m_sink.isCancelled()) {
        const auto line = m_lines.next();
        if (!line)
            break;
        takeLine(*line);
    }
    giveRow();
    if (m_rows > 0)
        return {};
    return {QCoreApplication::translate("Formats", "no sentence has a time and a position")};
}

// Loggers put a time or a name before a sentence, or several sentences on a line; and a sentence
// that was cut short runs into the next one.
void Nmea::takeLine(QByteArrayView line)
{
    bool isWhole = true;
    qsizetype begin = line.indexOf('$');
    while (begin >= 0) {
        const qsizetype next = line.indexOf('$', begin + 1);
        const qsizetype end = next < 0 ? line.size() : next;
        isWhole = takeSentence(line.sliced(begin, end - begin).trimmed()) && isWhole;
        begin = next;
    }
    if (!isWhole)
        m_facts.damage.add(m_lines.number(), m_lines.position());
}

// Whether it was understood, or is none that is wanted.
bool Nmea::takeSentence(QByteArrayView sentence)
{
    QGeoPositionInfo info;
    bool hasFix = false;
    if (sentence.lastIndexOf('*') < 0 || !m_parser.parse(sentence, info, hasFix)) {
        // Most sentences are about other things than positions.
        const bool isOurs = sentence.size() < 7 || sentence.sliced(3, 3) == "RMC"
                            || sentence.sliced(3, 3) == "GGA" || sentence.sliced(3, 3) == "VTG";
        return !isOurs;
    }
    takeInfo(info, hasFix);
    return true;
}

void Nmea::takeTime(QTime time)
{
    if (time == m_time && !std::isnan(m_row.time))
        return;
    giveRow();
    m_time = time;
    m_row.time = m_days.count(time.msecsSinceStartOfDay() / 1000.0);
}

// The first date tells on which day the clock began; not every sentence has one.
void Nmea::takeDate(QDate date)
{
    if (m_firstDate.isValid() || !date.isValid() || std::isnan(m_row.time))
        return;
    m_firstDate = date;
    const double days = std::floor(m_row.time / 86400);
    m_facts.clockZero = QDateTime(date, QTime(0, 0), Qt::UTC).addDays(-static_cast<qint64>(days));
}

void Nmea::takeInfo(const QGeoPositionInfo &info, bool hasFix)
{
    const QDateTime stamp = info.timestamp();
    if (stamp.time().isValid())
        takeTime(stamp.time());
    takeDate(stamp.date());
    if (hasFix && info.coordinate().isValid()) {
        m_row.latitude = info.coordinate().latitude();
        m_row.longitude = info.coordinate().longitude();
    }
    if (info.hasAttribute(QGeoPositionInfo::GroundSpeed))
        m_row.speed = info.attribute(QGeoPositionInfo::GroundSpeed);
    if (info.hasAttribute(QGeoPositionInfo::Direction))
        m_row.course = info.attribute(QGeoPositionInfo::Direction);
}

void Nmea::giveRow()
{
    if (!std::isnan(m_row.time) && !std::isnan(m_row.latitude)) {
        ++m_rows;
        m_sink.take(m_row);
    }
    m_row = {};
}

} // namespace

bool looksLikeNmea(QByteArrayView head)
{
    qsizetype at = -1;
    while ((at = head.indexOf('$', at + 1)) >= 0) {
        const QByteArrayView rest = head.sliced(at + 1);
        if (rest.size() < 7 || rest[5] != ',')
            continue;
        const QByteArrayView kind = rest.sliced(2, 3);
        if (kind == "RMC" || kind == "GGA" || kind == "GLL")
            return true;
    }
    return false;
}

ReadEnd readNmea(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    return Nmea(device, facts, sink).read();
}

} // namespace zuno
