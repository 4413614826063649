// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// GPX 1.0 and 1.1. Speed and course are elements of 1.0; in 1.1 they stand in the extensions of
// several makers under these names.

#include <cmath>

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <formats/readers/readers.h>

namespace zuno {

namespace {

class Gpx
{
public:
    Gpx(QIODevice &device, RideFacts &facts, RowSink &sink)
        : m_xml(&device)
        , m_facts(facts)
        , m_sink(sink)
    {
    }

    ReadEnd read();

private:
    void begin();
    void end();
    void takeText(QStringView element, const QString &text);
    [[nodiscard]] double placeValue(const char *name) const;

    QXmlStreamReader m_xml;
    RideFacts &m_facts;
    RowSink &m_sink;
    RawRow m_point;
    QString m_text;
    QString m_name;
    bool m_isInPoint = false;
    bool m_isWaypoint = false;
    qint64 m_points = 0;
    qint64 m_rows = 0;
};

double Gpx::placeValue(const char *name) const
{
    return toNumber(m_xml.attributes().value(QLatin1String(name)).toUtf8());
}

void Gpx::begin()
{
    m_text.clear();
    const QStringView element = m_xml.name();
    if (element == u"gpx") {
        m_facts.logger = m_xml.attributes().value(QLatin1String("creator")).toString();
        m_facts.clockZero = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    }
    m_isWaypoint = m_isWaypoint || element == u"wpt";
    if (element != u"trkpt" && element != u"wpt")
        return;
    m_isInPoint = true;
    m_name.clear();
    m_point = {};
    m_point.latitude = placeValue("lat");
    m_point.longitude = placeValue("lon");
}

void Gpx::takeText(QStringView element, const QString &text)
{
    if (!m_isInPoint) {
        if (element == u"name" && m_facts.event.isEmpty())
            m_facts.event = text;
        return;
    }
    if (element == u"time") {
        const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
        // A time without a zone is in UTC, too.
        if (time.isValid())
            m_point.time
                = static_cast<double>(QDateTime(time.date(), time.time(), Qt::UTC)
                                          .addSecs(-time.offsetFromUtc()
                                                   * (time.timeSpec() == Qt::LocalTime ? 0 : 1))
                                          .toMSecsSinceEpoch())
                  / 1000.0;
    } else if (element == u"speed") {
        m_point.speed = toNumber(text.toUtf8());
    } else if (element == u"course" || element == u"heading") {
        m_point.course = toNumber(text.toUtf8());
    } else if (element == u"name") {
        m_name = text;
    }
}

void Gpx::end()
{
    const QStringView element = m_xml.name();
    if (element == u"wpt" && m_name.contains(u"start", Qt::CaseInsensitive)) {
        const QGeoCoordinate place(m_point.latitude, m_point.longitude);
        if (place.isValid())
            m_facts.gates.push_back({m_name, place, place, true, false});
    }
    if (element == u"trkpt") {
        ++m_points;
        const bool isRow = !std::isnan(m_point.time) && !std::isnan(m_point.latitude);
        if (isRow) {
            ++m_rows;
            m_sink.take(m_point);
        } else {
            m_facts.damage.add(m_xml.lineNumber(), m_xml.characterOffset());
        }
    }
    if (element == u"trkpt" || element == u"wpt")
        m_isInPoint = m_isWaypoint = false;
    else
        takeText(element, m_text.trimmed());
    m_text.clear();
}

ReadEnd Gpx::read()
{
    while (!m_xml.atEnd() && !m_sink.isCancelled()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            begin();
            break;
        case QXmlStreamReader::EndElement:
            end();
            break;
        case QXmlStreamReader::Characters:
            // No text that is wanted is longer; a damaged file may be all text.
            if (m_text.size() < 1000)
                m_text += m_xml.text().left(1000);
            break;
        default:
            break;
        }
    }
    if (m_xml.hasError())
        m_facts.damage.add(m_xml.lineNumber(), m_xml.characterOffset());
    if (m_rows > 0)
        return {};
    if (m_points > 0)
        return {QCoreApplication::translate("Formats", "its points have no times")};
    if (m_xml.hasError())
        return {QCoreApplication::translate("Formats", "line %1: %2")
                    .arg(m_xml.lineNumber())
                    .arg(m_xml.errorString())};
    return {QCoreApplication::translate("Formats", "there is no track in it")};
}

} // namespace

bool looksLikeGpx(QByteArrayView head)
{
    if (head.contains("<gpx"))
        return true;
    // In UTF-16.
    return head.contains(QByteArrayView("<\0g\0p\0x", 7));
}

ReadEnd readGpx(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    return Gpx(device, facts, sink).read();
}

} // namespace zuno
