// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <maps/lappayload.h>
#include <maps/map.h>
#include <session/jsonwriter.h>
#include <session/session.h>

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray written(double number, JsonWriter::Numbers numbers)
{
    JsonWriter json(numbers);
    json.beginArray();
    json.value(number);
    json.endArray();
    return json.text();
}

QByteArray writtenByQt(double number)
{
    return QJsonDocument(QJsonArray {number}).toJson(QJsonDocument::Compact);
}

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
    void numbers();
    void anyNumber();
    void texts();
    void point();
    void lap();
    void landmarks();
};

void TestPayload::numbers()
{
    const QList<std::pair<double, QByteArray>> rows {
        {0, "[0]"},
        {-0.0, "[-0.0]"},
        {-42, "[-42]"},
        {0.1, "[0.1]"},
        {NoFixCoordinate, "[3.4028234663852886e+38]"},
        {9007199254740992.0, "[9007199254740992]"},
        {9007199254740994.0, "[9.007199254740994e+15]"},
        {5e-324, "[5e-324]"},
        {std::numeric_limits<double>::quiet_NaN(), "[null]"},
    };
    for (const auto &[number, roundTrip] : rows) {
        QCOMPARE(written(number, JsonWriter::Numbers::RoundTrip), roundTrip);
        QCOMPARE(written(number, JsonWriter::Numbers::AsQt), writtenByQt(number));
    }
}

void TestPayload::anyNumber()
{
    std::mt19937_64 random(11);
    for (int i = 0; i < 20000; ++i) {
        const quint64 bits = random();
        const double number = i % 2 == 0 ? std::bit_cast<double>(bits)
                                         : static_cast<double>(bits % 100000000) / 1000.0;
        if (!std::isfinite(number))
            continue;
        QCOMPARE(written(number, JsonWriter::Numbers::AsQt), writtenByQt(number));
        const QByteArray text = written(number, JsonWriter::Numbers::RoundTrip);
        QCOMPARE(std::bit_cast<quint64>(text.mid(1).chopped(1).toDouble()),
                 std::bit_cast<quint64>(number));
    }
}

void TestPayload::texts()
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginArray();
    const QStringList texts {u""_s, u"\"a\\b/\""_s, u"\b\f\n\r\t\x1f\x7f"_s + QChar(0),
                             u"Fête 鈴鹿 \U0001F3CD"_s, QChar(0xd83c) + u"a"_s + QChar(0xdfcd)};
    for (const QString &text : texts)
        json.value(text);
    json.endArray();
    const QJsonDocument read = QJsonDocument::fromJson(json.text());
    QCOMPARE(read.array().size(), texts.size());
    for (qsizetype i = 0; i < texts.size(); ++i)
        QCOMPARE(read[i].toString(), texts[i]);
}

void TestPayload::point()
{
    PointAcquisition point;
    point.acquisitionNumber = 4294967295U;
    point.dataTimeStamp = 1200;
    point.dataTimeSec = 1.2;
    point.dataCoordX = NoFixCoordinate;
    point.dataCoordY = -45.5;
    point.dataSpeed = 99.5;
    point.dataAngle = -10.25;
    point.dataAccelXPH = 0.1;
    point.dataAccelXPHComputed = std::numeric_limits<double>::quiet_NaN();
    point.dataAccelYPH = -0.0;
    QCOMPARE(pointPayload(point),
             QByteArray(R"({"acquisitionNumber":4294967295,"dataTimeStamp":1200,"dataTimeSec":1.2,)"
                        R"("dataCoordX":3.4028234663852886e+38,"dataCoordY":-45.5,)"
                        R"("dataSpeed":100,"dataAngle":-10.25,"dataAccelXPH":0.1,)"
                        R"("dataAccelXPHComputed":null,"dataAccelYPH":0})"));
}

void TestPayload::lap()
{
    Points points = ride(lapRide({0}));
    for (std::size_t i = 10; const double speed : {150, 120, 90, 110, 200, 180})
        points[i++].dataSpeed = speed;
    points[12].dataAccelXPHComputed = 1.5;
    points[13].dataAccelXPHComputed = -0.75;
    const auto session = sessionOf(points);
    const auto map = lineMap(10, 680);
    session->setMap(map.get());

    const QByteArray payload = lapPayload(*session->laps()[1]);
    const QJsonObject lap = QJsonDocument::fromJson(payload).object();
    QString numbers = u"5 "_s;
    for (int i = 6; i <= 40; ++i)
        numbers += QString::number(i) + u' ';
    QCOMPARE(numbersIn(lap[u"lapPoints"]), numbers + u'5');
    QCOMPARE(numbersIn(lap[u"maxSpeeds"]), u"11 15"_s);
    QCOMPARE(numbersIn(lap[u"minSpeeds"]), u"13"_s);
    QCOMPARE(lap[u"accelMax"].toDouble(), 1.5);
    QCOMPARE(lap[u"decelMax"].toDouble(), -0.75);
    QCOMPARE(lap[u"isComplete"], QJsonValue(true));
    qsizetype at = -1;
    for (const char *key : {"lapPoints", "maxSpeeds", "minSpeeds", "landmarks", "lat", "lng",
                            "accelMax", "decelMax", "isComplete"}) {
        const qsizetype next = payload.indexOf(QByteArray(key).prepend('"').append("\":"));
        QVERIFY2(next > at, key);
        at = next;
    }
    QVERIFY(lapPayload(*session->laps()[0]).endsWith("\"isComplete\":false}"));
}

// By name, capitals first; the start point goes under "start".
void TestPayload::landmarks()
{
    const auto session = sessionOf(ride(lapRide({0})));
    const auto map = lineMap(
        10, 680, {{u"Start"_s, 0}, {u"time 2"_s, 1}, {u"time 10"_s, 2}, {u"Time 3"_s, 3}});
    session->setMap(map.get());
    const QJsonDocument lap = QJsonDocument::fromJson(lapPayload(*session->laps()[0]));
    QList<int> found;
    const QJsonArray landmarks = lap[u"landmarks"].toArray();
    for (const auto &mark : landmarks) {
        const QGeoCoordinate where(mark[u"lat"].toDouble(), mark[u"lng"].toDouble());
        found.append(qRound(where.distanceTo(place(0))));
    }
    QCOMPARE(found, (QList<int> {3, 0, 2, 1}));
}

QTEST_GUILESS_MAIN(TestPayload)
#include "tst_payload.moc"
