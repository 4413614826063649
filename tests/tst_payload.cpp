// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
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

/// The keys of a JSON text in the order in which they stand.
QString keysOf(const QByteArray &json)
{
    QStringList keys;
    static const QRegularExpression key(u"\"(\\w+)\":"_s);
    auto matches = key.globalMatch(QString::fromUtf8(json));
    while (matches.hasNext())
        keys.append(matches.next().captured(1));
    return keys.join(u' ');
}

const QString PointKeys = u"acquisitionNumber dataTimeStamp dataTimeSec dataCoordX dataCoordY "
                          "dataSpeed dataAngle dataAccelXPH dataAccelXPHComputed dataAccelYPH"_s;

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
    void numbers_data();
    void numbers();
    void anyNumber();
    void texts_data();
    void texts();
    void structure();
    void point();
    void lap();
    void landmarks_data();
    void landmarks();
};

void TestPayload::numbers_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("roundTrip");
    QTest::newRow("0") << 0.0 << QByteArray("[0]");
    QTest::newRow("-0") << -0.0 << QByteArray("[-0.0]");
    QTest::newRow("whole") << -42.0 << QByteArray("[-42]");
    QTest::newRow("shortest") << 0.1 << QByteArray("[0.1]");
    QTest::newRow("no position") << NoFixCoordinate << QByteArray("[3.4028234663852886e+38]");
    QTest::newRow("2^53") << 9007199254740992.0 << QByteArray("[9007199254740992]");
    QTest::newRow("beyond 2^53") << 9007199254740994.0 << QByteArray("[9.007199254740994e+15]");
    QTest::newRow("smallest") << 5e-324 << QByteArray("[5e-324]");
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN() << QByteArray("[null]");
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << QByteArray("[null]");
}

void TestPayload::numbers()
{
    QFETCH(const double, number);
    QTEST(written(number, JsonWriter::Numbers::RoundTrip), "roundTrip");
    QCOMPARE(written(number, JsonWriter::Numbers::AsQt), writtenByQt(number));
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

void TestPayload::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("quotes") << u"\"a\\b/\""_s;
    QTest::newRow("control characters") << QString(u"\b\f\n\r\t\x1f\x7f"_s + QChar(0));
    QTest::newRow("outside ASCII") << u"Fête 鈴鹿 \U0001F3CD"_s;
    QTest::newRow("half a pair") << QString(QChar(0xd83c)) + u'a' + QChar(0xdfcd);
}

void TestPayload::texts()
{
    QFETCH(const QString, text);
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginArray();
    json.value(text);
    json.endArray();
    QJsonParseError error;
    const QJsonDocument read = QJsonDocument::fromJson(json.text(), &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(read[0].toString(), text);
}

void TestPayload::structure()
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginObject();
    json.member("z", 1U);
    json.key("a");
    json.beginArray();
    json.beginArray();
    json.endArray();
    json.value(true);
    json.null();
    json.endArray();
    json.member("none", std::optional<float>());
    json.member("some", std::optional<double>(1.5));
    json.key("empty");
    json.beginObject();
    json.endObject();
    json.endObject();
    QCOMPARE(json.text(),
             QByteArray(R"({"z":1,"a":[[],true,null],"none":null,"some":1.5,"empty":{}})"));
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
    const QByteArray payload = pointPayload(point);
    QCOMPARE(payload,
             QByteArray(R"({"acquisitionNumber":4294967295,"dataTimeStamp":1200,"dataTimeSec":1.2,)"
                        R"("dataCoordX":3.4028234663852886e+38,"dataCoordY":-45.5,)"
                        R"("dataSpeed":100,"dataAngle":-10.25,"dataAccelXPH":0.1,)"
                        R"("dataAccelXPHComputed":null,"dataAccelYPH":0})"));
    QCOMPARE(keysOf(payload), PointKeys);
}

void TestPayload::lap()
{
    Points points = ride(lapRide({0}));
    const QList<double> speeds {150, 120, 90, 110, 200, 180};
    for (std::size_t i = 0; i < 6; ++i)
        points[i + 10].dataSpeed = speeds[static_cast<qsizetype>(i)];
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
    QCOMPARE(lap[u"lapPoints"][8][u"dataSpeed"].toInt(), 90);
    const QString outer = keysOf(payload).remove(PointKeys + u' ').simplified();
    QCOMPARE(outer, u"lapPoints maxSpeeds minSpeeds landmarks lat lng accelMax decelMax "
                    "isComplete"_s);
    QVERIFY(lapPayload(*session->laps()[0]).endsWith("\"isComplete\":false}"));
}

void TestPayload::landmarks_data()
{
    QTest::addColumn<QStringList>("names"); // of timing points at 1, 2 ... metres
    QTest::addColumn<QList<int>>("order"); // 0 for the start point
    QTest::newRow("start point only") << QStringList() << QList {0};
    QTest::newRow("by name, capitals first")
        << QStringList {u"time 2"_s, u"time 10"_s, u"Time 3"_s} << QList {3, 0, 2, 1};
    QTest::newRow("a timing point that is the start point")
        << QStringList {u"start time"_s} << QList {1, 1};
}

void TestPayload::landmarks()
{
    QFETCH(const QStringList, names);
    QFETCH(const QList<int>, order);
    QList<NamedPlace> places {{u"Start"_s, 0}};
    for (qsizetype i = 0; i < names.size(); ++i)
        places.append({names[i], static_cast<double>(i + 1)});
    const auto session = sessionOf(ride(lapRide({0})));
    const auto map = lineMap(10, 680, places);
    session->setMap(map.get());
    const QJsonObject lap = QJsonDocument::fromJson(lapPayload(*session->laps()[0])).object();
    QList<int> found;
    const QJsonArray landmarks = lap[u"landmarks"].toArray();
    for (const auto &mark : landmarks) {
        const QGeoCoordinate where(mark[u"lat"].toDouble(), mark[u"lng"].toDouble());
        found.append(qRound(where.distanceTo(place(0))));
    }
    QCOMPARE(found, order);
}

QTEST_GUILESS_MAIN(TestPayload)
#include "tst_payload.moc"
