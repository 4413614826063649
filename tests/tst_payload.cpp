// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <limits>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTest>

#include <maps/payload/lappayload.h>
#include <session/csvexport.h>
#include <session/session.h>
#include <track/map.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

QString numbersIn(const QJsonValue &points)
{
    QStringList numbers;
    const QJsonArray array = points.toArray();
    for (const auto &point : array)
        numbers.append(QString::number(point[u"acquisitionNumber"].toInt()));
    return numbers.join(u' ');
}

} // namespace

class TestPayload final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void point()
    {
        PointAcquisition point;
        point.acquisitionNumber = 4294967295U;
        point.dataTimeStamp = 1200;
        point.dataTimeSec = 1.2;
        point.dataCoordX = NoFixCoordinate;
        point.dataCoordY = -45.5;
        point.dataSpeed = 99.5;
        point.dataAngle = -1.25e-7;
        point.dataAccelXPH = 0.1;
        point.dataAccelXPHComputed = std::numeric_limits<double>::quiet_NaN();
        point.dataAccelYPH = -0.0;
        QCOMPARE(
            pointPayload(point),
            QByteArray(R"({"acquisitionNumber":4294967295,"dataTimeStamp":1200,"dataTimeSec":1.2,)"
                       R"("dataCoordX":null,"dataCoordY":-45.5,)"
                       R"("dataSpeed":100,"dataAngle":-1.25e-07,"dataAccelXPH":0.1,)"
                       R"("dataAccelXPHComputed":null,"dataAccelYPH":0})"));
    }

    // The page draws a line through all positions: it must not get one that nobody can have ridden.
    void misplacedPoint()
    {
        const auto session = sessionOf(ride(u"0 10 900 30..150/10"_s));
        QVERIFY(
            pointPayload(session->samples()[2]).contains(R"("dataCoordX":null,"dataCoordY":nu)"));
        QVERIFY(!pointPayload(session->samples()[1]).contains("null"));
    }

    void lap()
    {
        Points points = ride(lapRide({0}));
        for (std::size_t i = 10; const double speed : {150, 120, 90, 110, 200, 180})
            points[i++].dataSpeed = speed;
        points[12].dataAccelXPHComputed = 1.5;
        points[13].dataAccelXPHComputed = -0.75;
        const auto session = sessionOf(points);
        const auto map = lineMap(10, 680);
        session->setMap(map.get());

        const QByteArray payload = lapPayload(*session->laps()[1], session->map());
        const QJsonObject lap = QJsonDocument::fromJson(payload).object();
        QString numbers = u"5 "_s;
        for (int i = 6; i <= 40; ++i)
            numbers += QString::number(i) + u' ';
        QCOMPARE(numbersIn(lap[u"lapPoints"]), numbers + u'5');
        QCOMPARE(numbersIn(lap[u"maxSpeeds"]), u"11 15"_s);
        QCOMPARE(numbersIn(lap[u"minSpeeds"]), u"13"_s);
        QVERIFY(payload.contains(R"("accelMax":1.5,"decelMax":-0.75,"isComplete":true})"));
        QVERIFY(lapPayload(*session->laps()[0], session->map()).endsWith("\"isComplete\":false}"));
    }

    // A wrong number, wherever it stands, costs no lap, and neither the page nor a spreadsheet.
    void wrongNumbers()
    {
        constexpr double Infinite = std::numeric_limits<double>::infinity();
        constexpr double Huge = std::numeric_limits<float>::max();
        const auto map = lineMap(10, 680, {{u"Start"_s, 0}, {u"Time 0"_s, 100}});
        const auto isUsable = [&map](auto field, auto value) {
            Points points = ride(lapRide({0, 0}));
            points[60].*field = value;
            const auto session = sessionOf(points);
            session->smooth();
            session->setMap(map.get());
            bool usable = session->laps().size() == 4
                          && sessionCsv(*session, QLocale::c()).count('\n') == std::ssize(points);
            for (const PointAcquisition &point : session->samples())
                usable = usable && point.dataSpeed >= 0 && point.dataSpeed <= 399;
            for (const auto &lap : session->laps())
                usable = usable
                         && QJsonDocument::fromJson(lapPayload(*lap, session->map())).isObject();
            return usable;
        };
        using P = PointAcquisition;
        for (const auto field : {&P::dataCoordX, &P::dataCoordY, &P::dataSpeed, &P::dataAngle,
                                 &P::dataAccelXPH, &P::dataAccelYPH}) {
            for (const double value :
                 {std::nan(""), Infinite, -Infinite, Huge, -Huge, 1e-45, 200.0})
                QVERIFY2(isUsable(field, value), QByteArray::number(value));
        }
        for (const quint32 stamp : {0U, 3600000U, 2147483648U, 4294967295U})
            QVERIFY2(isUsable(&P::dataTimeStamp, stamp), QByteArray::number(stamp));
    }

    // By name, capitals first; the start point goes under "start".
    void landmarks()
    {
        const auto session = sessionOf(ride(lapRide({0})));
        const auto map = lineMap(
            10, 680, {{u"Start"_s, 0}, {u"time 2"_s, 1}, {u"time 10"_s, 2}, {u"Time 3"_s, 3}});
        session->setMap(map.get());
        const QJsonDocument lap
            = QJsonDocument::fromJson(lapPayload(*session->laps()[0], session->map()));
        QList<int> found;
        const QJsonArray landmarks = lap[u"landmarks"].toArray();
        for (const auto &mark : landmarks) {
            const QGeoCoordinate where(mark[u"lat"].toDouble(), mark[u"lng"].toDouble());
            found.append(qRound(where.distanceTo(place(0))));
        }
        QCOMPARE(found, (QList<int> {3, 0, 2, 1}));
    }
};

QTEST_GUILESS_MAIN(TestPayload)
#include "tst_payload.moc"
