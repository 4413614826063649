// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "rides.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include <QMap>
#include <QStringList>

#include "builders.h"

namespace zuno::test {

using namespace Qt::StringLiterals;

namespace {

// Corners, rounded by a mean over so many metres.
Places track(const Places &corners, std::size_t rounding)
{
    Places sharp;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PlaneVector way = corners[(i + 1) % corners.size()] - corners[i];
        for (double metre = 0.0; metre < way.length(); metre += 1.0)
            sharp.push_back(corners[i] + (way * (metre / way.length())));
    }
    Places places(sharp.size());
    for (std::size_t i = 0; i < sharp.size(); ++i) {
        for (std::size_t k = 0; k < rounding; ++k)
            places[i] = places[i] + (sharp[(i + k) % sharp.size()] * (1.0 / rounding));
    }
    return places;
}

// A circle with five bulges.
Places bends()
{
    Places places;
    for (int i = 0; i < 800; ++i) {
        const double angle = i * 2.0 * std::numbers::pi / 800;
        const double radius = 125.0 + (18.0 * std::cos(5 * angle));
        places.push_back({radius * std::sin(angle), radius * std::cos(angle)});
    }
    return track(places, 9);
}

// Between two counts of laps, or two parts of every lap.
struct Stretch
{
    // "2.1-2.3", "~0.1-0.3", "2.1-2.3/12"
    Stretch(const QString &name, const QString &text)
        : name(name)
        , isEach(text.startsWith(u'~'))
        , from(text.section(u'/', 0, 0).remove(u'~').section(u'-', 0, 0).toDouble())
        , to(text.section(u'/', 0, 0).section(u'-', 1).toDouble())
        , value(text.section(u'/', 1).toDouble())
    {
    }
    [[nodiscard]] double at(double laps) const { return isEach ? std::fmod(laps, 1.0) : laps; }

    QString name;
    bool isEach = false;
    double from = 0.0;
    double to = 0.0;
    double value = 0.0;
};

class Ride
{
public:
    explicit Ride(const QString &text)
    {
        QStringList words = text.split(u' ');
        QString name = words.takeFirst();
        const bool isBack = name.startsWith(u'-');
        m_track = trackOf(name.remove(u'-'));
        if (isBack)
            std::reverse(m_track.begin(), m_track.end());
        for (qsizetype i = 1; i + 1 < words.size(); i += 2) {
            m_numbers.insert(words[i], words[i + 1].toDouble());
            m_stretches.emplace_back(words[i], words[i + 1]);
        }
        const Stretch whole({}, words[0]);
        m_from = whole.from;
        m_to = whole.to;
    }

    void appendTo(Points &points, quint32 &stamp)
    {
        const auto interval = static_cast<quint32>(m_numbers.value(u"every"_s, 100));
        for (double laps = m_from; laps < m_to; stamp += 10) {
            wander();
            if (stamp % interval == 0)
                points.push_back(sample(laps, stamp));
            laps += speed(laps) * 0.01 / static_cast<double>(m_track.size());
        }
    }

private:
    [[nodiscard]] const Stretch *in(QStringView name, double laps) const
    {
        const auto found
            = std::find_if(m_stretches.begin(), m_stretches.end(), [&](const Stretch &stretch) {
                  return stretch.name == name && stretch.at(laps) >= stretch.from
                         && stretch.at(laps) < stretch.to;
              });
        return found != m_stretches.end() ? &*found : nullptr;
    }
    [[nodiscard]] PlaneVector way(std::size_t metre) const
    {
        return m_track[(metre + 1) % m_track.size()] - m_track[metre % m_track.size()];
    }
    [[nodiscard]] bool isInPit(double laps) const
    {
        const bool atEnds = laps < std::ceil(m_from) + 0.08 || laps > m_to - 0.13;
        return m_numbers.contains(u"pit"_s) && (atEnds || in(u"box", laps) != nullptr);
    }
    double shake(double most) { return most * ((m_random() % 2001) / 1000.0 - 1.0); }

    void wander()
    {
        const double most = m_numbers.value(u"drift"_s);
        const double north = shake(most);
        m_drift = (m_drift * 0.9995) + PlaneVector {shake(most), north} * 0.05;
    }

    // Metres per second: slow before bends and in them.
    [[nodiscard]] double speed(double laps) const
    {
        if (isInPit(laps))
            return 16.0;
        const auto metre = static_cast<std::size_t>(laps * static_cast<double>(m_track.size()));
        const double straight
            = std::min(way(metre) * way(metre + 30), way(metre) * way(metre + 15));
        const Stretch *slow = in(u"slow", laps);
        return (m_track.size() < 1000 ? 24 : 70) * (0.35 + (0.65 * std::max(0.0, straight)))
               * (slow != nullptr ? slow->value : 1.0);
    }

    PointAcquisition sample(double laps, quint32 stamp)
    {
        const double metres = laps * static_cast<double>(m_track.size());
        const auto metre = static_cast<std::size_t>(metres);
        double left = isInPit(laps) ? m_numbers.value(u"pit"_s)
                                    : m_numbers.value(u"off"_s, 2.0) * std::sin(metres / 170);
        if (const Stretch *wide = in(u"wide", laps))
            left += wide->value
                    * std::sin(std::numbers::pi * (wide->at(laps) - wide->from)
                               / (wide->to - wide->from));
        const Stretch *far = in(u"far", laps);
        const PlaneVector along = way(metre);
        const PlaneVector here = m_track[metre % m_track.size()] + (along * std::fmod(metres, 1.0))
                                 + (PlaneVector {-along.y, along.x} * left) + m_drift
                                 + PlaneVector {0.0, far != nullptr ? far->value : 0.0};
        const double north = here.y + shake(0.1);
        QGeoCoordinate where = place(north, here.x + shake(0.1));
        if (in(u"zero", laps) != nullptr)
            where = QGeoCoordinate(0.0, 0.0);
        const bool isLost = in(u"lost", laps) != nullptr;
        PointAcquisition point;
        point.dataTimeStamp = stamp - (in(u"clock", laps) != nullptr && stamp >= 500 ? 500 : 0);
        point.dataCoordX = isLost ? NoFixCoordinate : where.longitude();
        point.dataCoordY = isLost ? NoFixCoordinate : where.latitude();
        return point;
    }

    Places m_track;
    double m_from = 0.0;
    double m_to = 0.0;
    QMap<QString, double> m_numbers;
    std::vector<Stretch> m_stretches;
    std::mt19937 m_random {7}; // the same numbers everywhere
    PlaneVector m_drift;
};

} // namespace

const Places &trackOf(const QString &name)
{
    static const QMap<QString, Places> tracks {
        {u"kart"_s,
         track({{0, 0}, {140, 0}, {140, 15}, {40, 15}, {40, 30}, {150, 30}, {150, 90}, {-20, 90}},
               13)},
        {u"mini"_s, track({{0, 0}, {90, 0}, {100, 30}, {90, 60}, {40, 60}, {30, 30}, {0, 40}}, 9)},
        {u"oval"_s, track({{0, 0}, {300, 0}, {330, 60}, {300, 120}, {0, 120}, {-30, 60}}, 25)},
        {u"circle"_s, track({{0, 0}, {40, 0}, {40, 40}, {0, 40}}, 20)},
        {u"bends"_s, bends()},
        {u"lane"_s, track({{0, 0},
                           {500, 0},
                           {500, 300},
                           {900, 300},
                           {900, 305},
                           {490, 305},
                           {400, 500},
                           {-100, 500}},
                          15)},
        {u"twins"_s, track({{0, 0},
                            {700, 0},
                            {700, 300},
                            {-60, 300},
                            {-60, 26},
                            {500, 26},
                            {560, 160},
                            {-200, 160},
                            {-200, 0}},
                           31)},
        {u"eight"_s,
         track({{-300, -200}, {300, 200}, {500, 0}, {300, -200}, {-300, 200}, {-520, 0}}, 81)},
        {u"short"_s, track({{0, 0}, {1100, 0}, {1150, 400}, {300, 700}, {-200, 800}}, 81)},
        {u"large"_s,
         track({{0, 0}, {1100, 0}, {1150, 400}, {700, 300}, {900, 900}, {300, 700}, {-200, 800}},
               81)},
        {u"snake"_s, track({{0, 0},
                            {300, 0},
                            {300, 200},
                            {600, 200},
                            {600, 0},
                            {900, 0},
                            {900, 200},
                            {1200, 200},
                            {1200, 0},
                            {1500, 0},
                            {1500, 600},
                            {0, 600}},
                           41)},
        {u"shuttle"_s, track({{0, 0}, {600, 0}, {600, 4}, {0, 4}}, 9)}};
    const auto found = tracks.constFind(name);
    if (found == tracks.constEnd())
        qFatal("no track %s", qPrintable(name));
    return *found;
}

Points ridden(const QString &text)
{
    Points points;
    quint32 stamp = 0;
    const QStringList rides = text.split(u" then "_s);
    for (const QString &ride : rides)
        Ride(ride).appendTo(points, stamp);
    return points;
}

QString shortText(const QList<MapWarning> &warnings)
{
    using Kind = MapWarning::Kind;
    static const QMap<Kind, QString> names {
        {Kind::NoLine, u"NoLine"_s},
        {Kind::NoPass, u"NoPass"_s},
        {Kind::MissedPoint, u"Missed"_s},
        {Kind::PointOutOfOrder, u"OutOfOrder"_s},
        {Kind::SecondTrack, u"SecondTrack"_s},
        {Kind::OtherWay, u"OtherWay"_s},
        {Kind::GatesTouch, u"Touch"_s},
        {Kind::CountedTwice, u"Twice"_s},
        {Kind::NoLapComplete, u"NoneComplete"_s},
        {Kind::LastNotOnLine, u"NotOnLine"_s},
        {Kind::TooManyPoints, u"TooMany"_s},
        {Kind::NotFound, u"NotFound"_s},
        {Kind::SlowPass, u"SlowPass"_s},
    };
    QString text;
    for (const MapWarning &warning : warnings) {
        text += u"; %1 %2"_s.arg(names.value(warning.kind)).arg(warning.point);
        if (warning.otherPoint >= 0)
            text += u"+%1"_s.arg(warning.otherPoint);
        if (warning.speed != 0)
            text += u" below %1"_s.arg(warning.speed);
        for (const int lap : warning.laps)
            text += u" #%1"_s.arg(lap);
    }
    return text;
}

} // namespace zuno::test
