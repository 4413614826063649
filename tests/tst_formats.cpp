// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Other loggers' files: rides made up in every format, whole and damaged, on their way to samples.

#include <cmath>

#include <QBuffer>
#include <QStringEncoder>
#include <QTest>

#include <formats/convert/rideconverter.h>
#include <formats/import/lapgate.h>
#include <formats/ridereader.h>
#include <formats/table/columnmapping.h>
#include <formats/text/datetimes.h>
#include <formats/text/linereader.h>

#include "madeuprides.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

struct Reading
{
    QByteArray kind;
    RideFacts facts;
    QString error;
    std::vector<ConvertedRide> rides;

    [[nodiscard]] std::size_t samples() const
    {
        std::size_t count = 0;
        for (const ConvertedRide &ride : rides)
            count += ride.size();
        return count;
    }
};

Reading read(QByteArray bytes)
{
    Reading reading;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const RideReader *reader = findRideReader(buffer.peek(HeadSize));
    if (reader == nullptr)
        return reading;
    reading.kind = reader->id;
    RideConverter converter(reading.facts, [&reading](ConvertedRide &&ride) {
        reading.rides.push_back(std::move(ride));
    });
    reading.error = reader->read(buffer, reading.facts, converter).error;
    converter.finish();
    return reading;
}

Reading convert(const std::vector<RawRow> &rows)
{
    Reading reading;
    RideConverter converter(reading.facts, [&reading](ConvertedRide &&ride) {
        reading.rides.push_back(std::move(ride));
    });
    for (const RawRow &row : rows)
        converter.take(row);
    converter.finish();
    return reading;
}

double metresOff(const RideSample &sample, const Moment &moment)
{
    const QGeoCoordinate is(static_cast<double>(sample.latitude),
                            static_cast<double>(sample.longitude));
    return is.distanceTo({moment.latitude, moment.longitude});
}

// Straight north at 10 m/s, so many rows a second.
std::vector<RawRow> straight(double from, double to, double rate = 10)
{
    std::vector<RawRow> rows;
    for (int i = 0; from + i / rate <= to; ++i) {
        RawRow row;
        row.time = from + i / rate;
        row.latitude = 45 + 10 * row.time / 111195;
        row.longitude = 9;
        row.speed = 10;
        rows.push_back(row);
    }
    return rows;
}

// A letter for each second: o a position, . none.
QString pattern(const ConvertedRide &ride)
{
    QString text;
    for (std::size_t i = 0; i < ride.size(); i += 10)
        text += ride.frame.places()[i].isKnown() ? u'o' : u'.';
    return text;
}

} // namespace

class TestFormats final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers()
    {
        const QList<std::pair<QByteArray, QString>> cells {
            {" +0012.50 ", u"12.5"_s},   {"-1,25", u"-1.25"_s}, {"1.5e+02", u"150"_s},
            {"10.120 km/h", u"10.12"_s}, {".5", u"0.5"_s},      {"", u"nan"_s},
            {"1,2,3", u"nan"_s},         {"inf", u"nan"_s},     {"nan", u"nan"_s},
            {"1e400", u"nan"_s},         {"9e99", u"nan"_s},    {"12a", u"nan"_s},
            {"0x10", u"nan"_s},          {"--5", u"nan"_s},     {"1.2,3", u"nan"_s}};
        for (const auto &[cell, value] : cells)
            QCOMPARE(QString::number(toNumber(cell), 'g', 10), value);
    }

    void dates()
    {
        const auto month = [](const char *text, DateOrder order = DateOrder::DayFirst) {
            return findDate(QString::fromUtf8(text), order).toString(Qt::ISODate);
        };
        QCOMPARE(month("File created on 11/04/2026 @ 10:11"), u"2026-04-11"_s);
        QCOMPARE(month("11/04/2026", DateOrder::MonthFirst), u"2026-11-04"_s);
        QCOMPARE(month("01/23/2016"), u"2016-01-23"_s);
        QCOMPARE(month("2008/06/03"), u"2008-06-03"_s);
        QCOMPARE(month("29.02.24 x"), u"2024-02-29"_s);
        QCOMPARE(month("29/02/2023"), QString());
        QCOMPARE(month("Sunday, December 15, 2024"), u"2024-12-15"_s);
        QCOMPARE(month("no date 12"), QString());
        QCOMPARE(findTimeOfDay(u"1:34 PM"_s), 48840.0);
        QCOMPARE(findTimeOfDay(u"12:00:01.5 am"_s), 1.5);
        QVERIFY(std::isnan(findTimeOfDay(u"25:00"_s)));
        QCOMPARE(timeOfDayFromNumber(50726.301), 18446.301);
        QVERIFY(std::isnan(timeOfDayFromNumber(126199)));
        DayClock clock;
        for (const auto &[time, counted] :
             {std::pair(86399.9, 86399.9), {0.1, 86400.1}, {86399.95, 86399.95}, {1.0, 86401.0}})
            QCOMPARE(clock.count(time), counted);
    }

    void lines_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QString text = u"a,\u00e9\n\nlast"_s;
        const QByteArray plain = text.toUtf8();
        QTest::newRow("LF") << plain;
        QTest::newRow("CRLF") << QByteArray(plain).replace("\n", "\r\n");
        QTest::newRow("CR") << QByteArray(plain).replace("\n", "\r");
        QTest::newRow("BOM") << "\xEF\xBB\xBF" + plain;
        QTest::newRow("UTF-16") << "\xFF\xFE"
                                       + QByteArray(reinterpret_cast<const char *>(text.utf16()),
                                                    2 * text.size());
    }

    void lines()
    {
        QFETCH(QByteArray, text);
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        LineReader reader(buffer);
        QStringList lines;
        while (const auto line = reader.next())
            lines.append(QString::fromUtf8(*line));
        QCOMPARE(lines, (QStringList {u"a,\u00e9"_s, QString(), u"last"_s}));
        QCOMPARE(reader.number(), 3);
    }

    // A line that never ends is given in pieces.
    void longLine()
    {
        QByteArray text(5000000, 'x');
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        LineReader reader(buffer);
        qsizetype size = 0;
        qsizetype longest = 0;
        while (const auto line = reader.next()) {
            size += line->size();
            longest = std::max(longest, line->size());
        }
        QCOMPARE(size, text.size());
        QVERIFY(longest < 1200000);
    }

    void formats_data()
    {
        QTest::addColumn<QString>("name");
        for (const Format &format : zuno::test::formats())
            QTest::newRow(format.name) << QString::fromLatin1(format.name);
    }

    // Every format says the same ride, on every side of the world.
    void formats()
    {
        QFETCH(QString, name);
        const QByteArray format = name.toLatin1();
        const Scene here;
        const Reading first = read(madeUp(format, here));
        QVERIFY(format.startsWith(first.kind));
        for (const auto &[latitude, longitude] :
             {std::pair(45.0, 9.0), {-38.7, 176.1}, {28.4, -81.4}, {-22.9, -43.2}, {51.0, 180.0}}) {
            Scene scene;
            scene.latitude = latitude;
            scene.longitude = longitude;
            const Reading reading = read(madeUp(format, scene));
            QCOMPARE(reading.error, QString());
            QCOMPARE(reading.rides.size(), std::size_t(1));
            const ConvertedRide &ride = reading.rides[0];
            const QList<Moment> all = moments(scene);
            QVERIFY(std::abs(std::ssize(ride.frame.places()) - all.size()) <= 1);
            const double coarse = std::abs(longitude) > 128 ? 1.0 : 0.6;
            for (qsizetype i = 5; i < all.size() - 5; ++i) {
                const RideSample sample = ride.sample(static_cast<std::size_t>(i));
                const auto near = [&](float value, double expected, double tolerance) {
                    return std::abs(static_cast<double>(value) - expected) < tolerance;
                };
                QCOMPARE(sample.milliseconds, quint32(100 * i));
                QVERIFY2(metresOff(sample, all[i]) < coarse, qPrintable(QString::number(i)));
                QVERIFY(near(sample.speed, all[i].speed * 3.6, 0.2));
                QVERIFY(near(sample.along, all[i].along, 0.06));
                // From positions alone, in six decimals, turns are rough.
                QVERIFY(near(sample.across, all[i].across, format == "speedangle" ? 0.3 : 0.06));
                QVERIFY(near(sample.lean, all[i].lean, 2.5));
            }
        }
        if (first.facts.clockZero.isValid()) {
            const double begin = first.rides[0].frame.begin() * 1000;
            QCOMPARE(first.facts.clockZero.addMSecs(std::llround(begin)).date(), here.begin.date());
        }
    }

    // What stands in front of the rows and between them.
    void facts()
    {
        const Reading csv = read(madeUp("racechrono-csv"));
        QCOMPARE(csv.facts.logger, u"RaceChrono Pro v9.1.3"_s);
        QCOMPARE(csv.facts.circuit, u"Oval"_s);
        QCOMPARE(csv.facts.event, u"Lap, \"one\""_s);
        QCOMPARE(csv.facts.positionRate, 10.0);
        QCOMPARE(csv.rides[0].report.across, ChannelSource::Turned);
        for (const char *name : {"vbo-racechrono", "vbo-racebox"}) {
            const Reading vbo = read(madeUp(name));
            QCOMPARE(vbo.facts.gates.size(), std::size_t(1));
            const RideGate gate = vbo.facts.gates[0];
            QVERIFY(gate.isStart && gate.name == u"Line");
            QVERIFY(gate.middle().distanceTo({45, 9}) < 0.1);
        }
        QCOMPARE(read(madeUp("vbo-racebox")).rides[0].report.along, ChannelSource::Replaced);
        const Reading aim = read(madeUp("aim-csv"));
        QCOMPARE(aim.facts.lapMarks, (std::vector<double> {5.5, 15.25}));
        QCOMPARE(aim.facts.clockZero.toString(Qt::ISODate), u"2024-05-06T10:20:30Z"_s);
        QCOMPARE(read(madeUp("nmea")).facts.clockZero.date(), QDate(2024, 5, 6));
        QCOMPARE(read(madeUp("xrk")).facts.driver, u"Ann"_s);
        // A lap's end becomes a place to start a map from.
        const Reading marked = read(madeUp("trackaddict"));
        const auto gates = gatesOf(marked.facts, marked.rides[0].frame);
        QCOMPARE(gates.size(), std::size_t(1));
        const Moment at8 = moments({})[80];
        QVERIFY(gates[0].middle().distanceTo({at8.latitude, at8.longitude}) < 2);
    }

    void midnightAndLeapDay()
    {
        Scene scene;
        scene.begin = QDateTime(QDate(2024, 2, 28), QTime(23, 59, 50), Qt::UTC);
        for (const char *name : {"vbo-racechrono", "nmea", "table-mtk", "racecapture-old", "gpx"}) {
            const Reading reading = read(madeUp(name, scene));
            QCOMPARE(reading.rides.size(), std::size_t(1));
            QVERIFY(std::abs(std::ssize(reading.rides[0].frame.places()) - 200) <= 1);
        }
        scene.begin = QDateTime(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC);
        const Reading nmea = read(madeUp("nmea", scene));
        QCOMPARE(nmea.facts.clockZero.date(), QDate(2024, 2, 29));
    }

    // Cut anywhere, a file gives what stands before; with changed bytes, nothing breaks.
    void damaged_data() { formats_data(); }
    void damaged()
    {
        QFETCH(QString, name);
        Scene scene;
        scene.count = 60;
        const QByteArray whole = madeUp(name.toLatin1(), scene);
        const std::size_t count = read(whole).samples();
        for (qsizetype size = 0; size < whole.size(); size += 1 + whole.size() / 300) {
            const Reading cut = read(whole.left(size));
            QVERIFY(cut.samples() <= count);
            QVERIFY(size < whole.size() * 9 / 10 || cut.kind == "rcz" || cut.samples() > count / 2);
        }
        quint32 random = 1;
        for (int i = 0; i < 200; ++i) {
            QByteArray changed = whole;
            for (int k = 0; k < 3; ++k) {
                random = random * 1664525 + 1013904223;
                changed[static_cast<qsizetype>(random >> 8) % whole.size()]
                    = static_cast<char>(random >> 3);
            }
            const Reading reading = read(changed);
            for (const ConvertedRide &ride : reading.rides) {
                for (std::size_t s = 0; s < ride.size(); ++s)
                    QVERIFY(std::isfinite(ride.sample(s).lean)
                            && std::isfinite(ride.sample(s).speed));
            }
        }
    }

    // Whatever program has passed the file on.
    void passedOn_data()
    {
        QTest::addColumn<QString>("name");
        for (const Format &format : zuno::test::formats()) {
            if (QByteArray(format.name) != "rcz" && QByteArray(format.name) != "xrk")
                QTest::newRow(format.name) << QString::fromLatin1(format.name);
        }
    }
    void passedOn()
    {
        QFETCH(QString, name);
        const QByteArray crlf = madeUp(name.toLatin1()).replace("\r\n", "\n").replace("\n", "\r\n");
        const QByteArray plain = QByteArray(crlf).replace("\r\n", "\n");
        const Reading as = read(crlf);
        QVERIFY(as.samples() > 150);
        QStringEncoder little(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
        QStringEncoder big(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
        const QByteArray littleBytes = little(QString::fromUtf8(plain));
        const QByteArray bigBytes = big(QString::fromUtf8(crlf));
        QList<QByteArray> versions {plain,
                                    QByteArray(plain).replace("\n", "\r"),
                                    "\xEF\xBB\xBF" + crlf,
                                    plain + "\n\n\n",
                                    littleBytes,
                                    bigBytes};
        for (qsizetype i = 0; i < versions.size(); ++i) {
            const Reading reading = read(versions[i]);
            QVERIFY2(reading.kind == as.kind, qPrintable(QString::number(i)));
            QVERIFY2(reading.samples() == as.samples(), qPrintable(QString::number(i)));
            QCOMPARE(reading.facts.clockZero, as.facts.clockZero);
            const auto last = static_cast<std::size_t>(as.rides[0].size() - 1);
            QCOMPARE(reading.rides[0].sample(last).longitude, as.rides[0].sample(last).longitude);
        }
    }

    // Columns that a logger names and never fills are missing ones.
    void emptyColumns()
    {
        QByteArray text = "time,latitude,longitude,speed (m/s),bearing,lean,lateral_acc\n";
        for (const Moment &m : moments({}))
            text += QByteArray::number(m.time, 'f', 2) + ','
                    + QByteArray::number(m.latitude, 'f', 7) + ','
                    + QByteArray::number(m.longitude, 'f', 7) + ",,,,\n";
        const Reading reading = read(text);
        QCOMPARE(reading.samples(), std::size_t(moments({}).size()));
        QCOMPARE(reading.rides[0].report.speed, ChannelSource::Computed);
        QCOMPARE(reading.rides[0].report.lean, ChannelSource::Computed);
        QVERIFY(reading.rides[0].sample(100).speed > 1);
    }

    // One bad line costs that line, and is named.
    void badLines_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("bad");
        QTest::addColumn<qint64>("counted");
        QTest::newRow("short") << QByteArray("racechrono-csv") << QByteArray("1714990840.5,,10.0")
                               << qint64(1);
        QTest::newRow("letters") << QByteArray("racechrono-csv")
                                 << QByteArray("1714990840.5,,10.0,4x5.0,9.0,1,1,1,1,1,1,1")
                                 << qint64(1);
        QTest::newRow("separators")
            << QByteArray("racechrono-csv")
            << QByteArray("1714990840.5;;10.0;45.0;9.0;1;1;1;1;1;1;1") << qint64(1);
        QTest::newRow("huge") << QByteArray("racechrono-csv")
                              << QByteArray("1714990840.5,,10.0,1e300,9.0,1,1,1,1,1,1,1")
                              << qint64(1);
        QTest::newRow("VBO") << QByteArray("vbo-racechrono") << QByteArray("012 102040.0 +2700.0")
                             << qint64(1);
        QTest::newRow("NMEA") << QByteArray(
            "nmea") << QByteArray("$GPRMC,102040.05,A,2824.6,N,08122.7,W,0.07,,2311$GPRMC,1020")
                              << qint64(1);
        QTest::newRow("jump") << QByteArray("racechrono-csv")
                              << QByteArray("1714990840.55,,10.0,46.0,9.0,1,1,1,1,1,1,1")
                              << qint64(0);
        QTest::newRow("zero") << QByteArray("racechrono-csv")
                              << QByteArray("1714990840.55,,10.0,0,0,1,1,1,1,1,1,1") << qint64(0);
        QTest::newRow("time") << QByteArray("racechrono-csv")
                              << QByteArray("1914990840.55,,10.0,45,9,1,1,1,1,1,1,1") << qint64(0);
    }

    void badLines()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, bad);
        QFETCH(qint64, counted);
        QList<QByteArray> lines = madeUp(name).split('\n');
        const Reading good = read(madeUp(name));
        lines.insert(120, bad + '\r');
        const Reading reading = read(lines.join('\n'));
        QCOMPARE(reading.facts.damage.lines, counted);
        QVERIFY(counted == 0 || reading.facts.damage.firstLine == 121);
        QCOMPARE(reading.samples(), good.samples());
        for (std::size_t i = 0; i < good.samples(); ++i)
            QCOMPARE(reading.rides[0].sample(i).latitude, good.rides[0].sample(i).latitude);
    }

    // Some loggers glue the sentences of a moment together.
    void sentencesOnALine()
    {
        const QByteArray apart = madeUp("nmea");
        QByteArray glued;
        for (const QByteArray &line : apart.split('\n'))
            glued += line.trimmed() + (line.contains("RMC") ? "\n" : "");
        QVERIFY(glued.count('\n') < apart.count('\n'));
        const Reading reading = read(glued);
        QCOMPARE(reading.samples(), read(apart).samples());
        QCOMPARE(reading.facts.damage.lines, 0);
    }

    void lapNumbers()
    {
        const auto marks = [](int first, int second) {
            QByteArray text = "time,latitude,longitude,lap_number\n";
            for (int i = 0; i < 100; ++i) {
                text += QByteArray::number(0.1 * i, 'f', 1) + ",45.0,9.0,"
                        + (i < first ? QByteArray() : QByteArray::number(i < second ? 1 : 2))
                        + '\n';
            }
            return read(text).facts.lapMarks;
        };
        QCOMPARE(marks(40, 70), (std::vector<double> {4.0, 7.0}));
        QCOMPARE(marks(5, 70), (std::vector<double> {7.0}));
    }

    void dateOfSixDigits()
    {
        const QByteArray row = ",201211,13,20,5,45.0,9.0\n";
        const Reading reading
            = read("ms,Date,Hour,Minute,Second,Latitude,Longitude\n0" + row + "100" + row);
        QCOMPARE(reading.facts.clockZero.date(), QDate(2020, 12, 11));
    }

    void unknown()
    {
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray("hello"), QByteArray(70000, '\0'),
              QByteArray("a,b,c\n1,2,3\n"), QByteArray("PK\3\4 something else")})
            QVERIFY(findRideReader(bytes) == nullptr);
        QCOMPARE(read("time,latitude,longitude\nx,y,z\n,,\n").samples(), std::size_t(0));
        QVERIFY(!read("[header]\nsatellites\n[data]\n").error.isEmpty());
        QVERIFY(!read("<gpx><trk><trkseg><trkpt lat=\"1\" lon=\"2\"/></trkseg></trk></gpx>")
                     .error.isEmpty());
    }

    void columns()
    {
        const auto guess = [](const QStringList &names, const QStringList &units = {},
                              const QStringList &sources = {}) -> QString {
            const ColumnMapping mapping = guessColumns({names, units, sources}, {});
            QString text;
            for (const Quantity quantity : {Quantity::Time, Quantity::Latitude, Quantity::Longitude,
                                            Quantity::Speed, Quantity::Course})
                text += QString::number(mapping.use(quantity).column) + u' ';
            return text + QString::number(mapping.use(Quantity::Speed).factor, 'g', 4);
        };
        QCOMPARE(guess({u"Time"_s, u"GPS Latitude (°)"_s, u"GPS Longitude (°)"_s, u"Speed (mph)"_s,
                        u"GPS Speed (km/h)"_s, u"GPS North (Angle)"_s}),
                 u"0 1 2 4 5 0.2778"_s);
        QCOMPARE(guess({u"timestamp"_s, u"lat"_s, u"lng"_s, u"speed_mph"_s, u"heading_deg"_s}),
                 u"0 1 2 3 4 0.447"_s);
        QCOMPARE(guess({u"speed"_s, u"latitude"_s, u"longitude"_s, u"speed"_s, u"speed"_s},
                       {u"m/s"_s, {}, {}, u"m/s"_s, u"m/s"_s},
                       {u"200: obd"_s, {}, {}, u"calc"_s, u"100: gps"_s}),
                 u"-1 1 2 4 -1 1"_s);
        QCOMPARE(guess({u"latitude *gps"_s, u"longitude *gps"_s, u"speed *obd"_s, u"speed *gps"_s}),
                 u"-1 0 1 3 -1 1"_s);
    }

    void times_data()
    {
        QTest::addColumn<std::vector<RawRow>>("rows");
        QTest::addColumn<QStringList>("patterns");
        const auto joined = [](std::initializer_list<std::vector<RawRow>> parts) {
            std::vector<RawRow> all;
            for (const auto &part : parts)
                all.insert(all.end(), part.begin(), part.end());
            return all;
        };
        const auto row
            = [](const char *name, const std::vector<RawRow> &rows, const QStringList &patterns) {
                  QTest::newRow(name) << rows << patterns;
              };
        row("even", straight(5, 9), {u"ooooo"_s});
        row("once a second", straight(5, 9, 1), {u"ooooo"_s});
        row("bridged", joined({straight(0, 2), straight(4.4, 6)}), {u"ooooooo"_s});
        row("gap", joined({straight(0, 2), straight(4.6, 7)}), {u"ooo..ooo"_s});
        row("pause", joined({straight(0, 2), straight(303, 305)}), {u"ooo"_s, u"ooo"_s});
        row("goes back", joined({straight(1000, 1002), straight(0, 2)}), {u"ooo"_s, u"ooo"_s});
        auto trembling = straight(0, 4, 25);
        for (std::size_t i = 4; i < trembling.size(); i += 4)
            std::swap(trembling[i - 1], trembling[i]);
        row("trembles", trembling, {u"ooooo"_s});
        auto held = straight(0, 4);
        for (std::size_t i = 0; i < held.size(); ++i) {
            held[i].latitude = held[i - i % 5].latitude;
            held[i].isFresh = i % 5 == 0;
        }
        row("held", held, {u"ooooo"_s});
        auto wrong = straight(0, 6);
        for (std::size_t i = 0; i < 10; ++i)
            wrong[i].latitude = 3.2 + 1e-7 * static_cast<double>(i);
        row("wrong at first", wrong, {u"oooooo"_s});
        auto moved = straight(0, 20);
        for (std::size_t i = 100; i < moved.size(); ++i)
            moved[i].longitude = 9.1;
        row("elsewhere", moved, {u"oooooooooooooooooooooo"_s.left(21)});
        auto standing = straight(0, 9);
        for (std::size_t i = 20; i < 80; ++i)
            standing[i].latitude = standing[20].latitude;
        row("lost where it was", standing, {u"ooo.....oo"_s});
        for (std::size_t i = 20; i < 80; ++i)
            standing[i].speed = 0;
        row("stands", standing, {u"oooooooooo"_s});
        row("none", straight(0, 0.5), {});
    }

    void times()
    {
        QFETCH(std::vector<RawRow>, rows);
        QFETCH(QStringList, patterns);
        const Reading reading = convert(rows);
        QStringList found;
        for (const ConvertedRide &ride : reading.rides) {
            found.append(pattern(ride));
            QCOMPARE(ride.sample(0).milliseconds, 0U);
        }
        QCOMPARE(found, patterns);
        if (QLatin1String(QTest::currentDataTag()) == QLatin1String("held")) {
            // On the line between measurements, not where the last one was.
            const double latitude
                = static_cast<double>(reading.rides[0].frame.places()[13].latitude);
            QVERIFY(std::abs(latitude - (45 + 13.0 / 111195)) < 1e-8);
        }
    }

    // Channels whose sign, scale or mounting is wrong, against what speed and turn say.
    void channels_data()
    {
        QTest::addColumn<double>("factor");
        QTest::addColumn<double>("offset");
        QTest::addColumn<int>("source");
        const auto row = [](const char *name, double factor, double offset, ChannelSource source) {
            QTest::newRow(name) << factor << offset << int(source);
        };
        row("right", 1, 0, ChannelSource::Recorded);
        row("turned", -1, 0, ChannelSource::Turned);
        row("metres a second squared", 9.80665, 0, ChannelSource::Recorded);
        row("aslant", -1, 0.4, ChannelSource::Turned);
        row("counts", 53, 0, ChannelSource::Recorded);
        row("empty", 0, 0, ChannelSource::Replaced);
        row("missing", NoValue, 0, ChannelSource::Computed);
    }

    void channels()
    {
        QFETCH(double, factor);
        QFETCH(double, offset);
        QFETCH(int, source);
        std::vector<RawRow> rows;
        for (const Moment &m : moments({})) {
            RawRow row {m.time,
                        m.latitude,
                        m.longitude,
                        m.speed,
                        m.course,
                        m.along * factor + offset,
                        m.across * factor + offset};
            rows.push_back(row);
        }
        const Reading reading = convert(rows);
        const ConversionReport &report = reading.rides[0].report;
        QCOMPARE(int(report.along), source);
        QCOMPARE(int(report.across), source);
        const QList<Moment> all = moments({});
        for (std::size_t i = 5; i < 190; ++i) {
            const Moment &m = all[static_cast<qsizetype>(i)];
            const RideSample sample = reading.rides[0].sample(i);
            QVERIFY(std::abs(static_cast<double>(sample.along) - m.along) < 0.03);
            QVERIFY(std::abs(static_cast<double>(sample.across) - m.across) < 0.06);
        }
    }

    void suspension()
    {
        std::vector<RawRow> rows = straight(0, 3);
        for (RawRow &row : rows)
            row.front = 100 * row.time;
        const Reading reading = convert(rows);
        const auto &front = reading.rides[0].frame.front.values();
        QCOMPARE(front.size(), reading.rides[0].size() * 10 + 1);
        for (std::size_t i = 0; i < 300; ++i)
            QVERIFY(std::abs(static_cast<double>(front[i]) - static_cast<double>(i)) < 0.01);
    }
};

QTEST_GUILESS_MAIN(TestFormats)
#include "tst_formats.moc"
