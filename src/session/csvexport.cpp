// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/csvexport.h>

#include <algorithm>
#include <span>

#include <QLocale>

#include <base/processorstate.h>
#include <session/laps/lap.h>
#include <session/session.h>
#include <session/sessionlap.h>

namespace zuno {

namespace {

constexpr int CoordinateDecimals = 7;

class CsvWriter
{
public:
    explicit CsvWriter(const QLocale &locale) : m_locale(locale)
    {
        const QString separator = m_locale.groupSeparator();
        const bool plain = std::all_of(separator.begin(), separator.end(),
                                       [](QChar c) { return c.unicode() < 0x80; });
        if (!plain)
            m_locale.setNumberOptions(m_locale.numberOptions() | QLocale::OmitGroupSeparator);
    }

    void line(const QString &text) { m_text += text + u'\n'; }

    void table(std::span<const PointAcquisition> samples)
    {
        m_text += u"TimeSec;CoordX;CoordY;Vitesse;Accel;Angle;Accel Lat.";
        if (!samples.empty() && hasReadings(samples.front()))
            m_text += u";Front Susp.; Rear Susp.";
        for (const PointAcquisition &sample : samples)
            rows(sample);
    }

    [[nodiscard]] QByteArray bytes() const { return m_text.toUtf8(); }

private:
    static bool hasReadings(const PointAcquisition &sample)
    {
        return !sample.suspension1().readings.empty() || !sample.suspension2().readings.empty();
    }

    [[nodiscard]] QString number(double value) const
    {
        return m_locale.toString(value, 'g', 6).replace(u'.', u',');
    }

    // Empty without a position.
    [[nodiscard]] QString coordinate(double value) const
    {
        if (value == NoFixCoordinate)
            return {};
        return m_locale.toString(value, 'f', CoordinateDecimals).replace(u'.', u',');
    }

    [[nodiscard]] QString reading(const std::vector<Reading> &readings, std::size_t k) const
    {
        return k < readings.size() ? number(static_cast<double>(readings[k].value)) : QString();
    }

    void rows(const PointAcquisition &sample)
    {
        const QString channels
            = QStringList {coordinate(sample.dataCoordX), coordinate(sample.dataCoordY),
                           number(sample.dataSpeed),      number(sample.dataAccelXPHComputed),
                           number(sample.dataAngle),      number(sample.dataAccelYPH)}
                  .join(u';');
        if (!hasReadings(sample)) {
            m_text += u'\n' + number(sample.dataTimeSec) + u';' + channels;
            return;
        }
        const std::vector<Reading> &front = sample.suspension1().readings;
        const std::vector<Reading> &rear = sample.suspension2().readings;
        for (std::size_t k = 0; k < std::max(front.size(), rear.size()); ++k) {
            const float offset = static_cast<float>(k) / 100.0F;
            m_text += u'\n' + number(sample.dataTimeSec + static_cast<double>(offset)) + u';'
                      + channels + u';' + reading(front, k) + u';' + reading(rear, k);
        }
    }

    QLocale m_locale;
    QString m_text;
};

} // namespace

QByteArray sessionCsv(const Session &session, const QLocale &locale)
{
    clearVectorRegisters();
    CsvWriter csv(locale);
    csv.table(session.wholeSamples());
    return csv.bytes();
}

QByteArray lapCsv(const SessionLap &lap, const QLocale &locale)
{
    CsvWriter csv(locale);
    csv.line(QStringLiteral("Session : %1 ").arg(lap.fileName()));
    csv.line(QStringLiteral("Lap number : %1 ").arg(lap->lapNumber()));
    csv.table(lap->points());
    return csv.bytes();
}

} // namespace zuno
