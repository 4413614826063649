// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/payload/pagemessage.h>

#include <cmath>

#include <QJsonDocument>
#include <QJsonObject>

namespace zuno {

namespace {

using Event = PageMessage::Event;

// Characters; many times the longest message of the page.
constexpr qsizetype LongestMessage = 4096;

// Wider than any gate or any map on a screen; what is more is an error of the page.
constexpr double LargestGate = 1000.0;
constexpr double LargestPixel = 100000.0;

// Invalid unless both numbers are there and in range.
QGeoCoordinate placeOf(const QJsonObject &message)
{
    return QGeoCoordinate(message.value(u"lat").toDouble(qQNaN()),
                          message.value(u"lng").toDouble(qQNaN()));
}

bool isUpTo(double value, double largest)
{
    return std::isfinite(value) && value > 0.0 && value <= largest;
}

PageMessage only(bool isWhole, const PageMessage &message)
{
    return isWhole ? message : PageMessage();
}

} // namespace

PageMessage parsePageMessage(const QString &text)
{
    if (text.size() > LongestMessage)
        return {};
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    const QString event = object.value(u"event").toString();
    const int index = object.value(u"index").toInt(-1);
    const int point = object.value(u"point").toInt(NoPointNumber);
    const double metres = object.value(u"metres").toDouble();
    const double pixel = object.value(u"metresPerPixel").toDouble();
    const QGeoCoordinate place = placeOf(object);
    const bool done = object.value(u"done").toBool();
    const bool hasPoint = point >= StartPointNumber;
    if (event == u"drawn")
        return {.event = Event::Drawn};
    if (event == u"picked")
        return only(index >= 0, {.event = Event::Picked, .index = index});
    if (event == u"zonePicked")
        return only(index >= 0, {.event = Event::ZonePicked, .index = index});
    if (event == u"pointMoved") {
        return only(hasPoint && place.isValid(),
                    {.event = Event::PointMoved, .point = point, .place = place, .done = done});
    }
    if (event == u"pointSelected")
        return only(hasPoint, {.event = Event::PointSelected, .point = point});
    if (event == u"gateResized") {
        return only(isUpTo(metres, LargestGate),
                    {.event = Event::GateResized, .metres = metres, .done = done});
    }
    if (event == u"trackClicked") {
        return only(place.isValid() && isUpTo(pixel, LargestPixel),
                    {.event = Event::TrackClicked, .place = place, .metres = pixel});
    }
    return {};
}

} // namespace zuno
