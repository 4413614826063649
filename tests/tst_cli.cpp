// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs the command line tool as its users do: on files, by its arguments, judged by what it writes
// and how it ends.

#include <cmath>
#include <limits>

#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "builders.h"

using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

enum Status { Done = 0, FileFailed = 1, WrongUse = 2 };

struct Output
{
    int status = -1;
    QByteArray out;
    QByteArray error;

    [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
};

/// Runs the tool in the current folder, which holds the settings, too.
Output run(const QString &words, const QStringList &more = {})
{
    QProcess process;
    process.start(QStringLiteral(ZUNO_TOOL), words.split(u' ', Qt::SkipEmptyParts) + more);
    const bool isDone = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {isDone ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path())
                && QDir().mkpath(u"home/Norvale/ZUNO Analyzer"_s));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.filePath(u"home"_s)));
        qputenv("LC_ALL", "C.UTF-8");
        QCOMPARE(run(u"demo demo"_s).status, int(Done));
        QDirIterator it(u"demo"_s, {u"*Valmora.ra1"_s}, QDir::Files, QDirIterator::Subdirectories);
        QVERIFY(QFile::copy(it.next(), u"run.ra1"_s));
        SessionBytes session {.listsFlag = 1, .lists = readingList(21) + readingList(11)};
        session.information = InformationBytes {}.bytes();
        write(u"good.ra1"_s, session.bytes());
        write(u"empty.ra1"_s, {});
        write(u"old.ra1"_s, SessionBytes {.version = "0.9"}.bytes());
        write(u"headless.ra1"_s, SessionBytes {}.head());
        QVERIFY(QDir().mkdir(u"folder.ra1"_s));
        QCOMPARE(::mkfifo("pipe.ra1", 0600), 0);
    }

    void statuses_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("text");
        const auto row = [](Status status, const QByteArray &arguments, const QByteArray &text) {
            QTest::newRow(arguments) << int(status) << text;
        };
        row(Done, "--help", "payload");
        row(Done, "--version", "zuno 1.5.0.0");
        row(Done, "laps --help", "--invalidate");
        row(WrongUse, "", "no command");
        row(WrongUse, "fly good.ra1", "\"fly\"");
        row(WrongUse, "decode good.ra1 good.ra1", "too many");
        row(WrongUse, "decode --fast good.ra1", "fast");
        row(WrongUse, "laps good.ra1 --invalidate 2 --invalidate 0", "\"0\"");
        row(WrongUse, "csv good.ra1 --lap two", "\"two\"");
        row(WrongUse, "payload good.ra1", "--lap");
        row(WrongUse, "demo new --sessions many", "\"many\"");
        for (const char *const wrong :
             {"event", "weather=fine", "temperature=256", "newSession=2", "invalid=1;2"})
            row(WrongUse, QByteArray("set good.ra1 driver=X ") + wrong, wrong);
        for (const QByteArray command :
             {"decode", "laps", "csv", "payload --lap 1", "set", "map"}) {
            const QByteArray change = command == "set" ? "event=Cup" : "";
            row(WrongUse, command.split(' ').first(), "missing");
            for (const QByteArray file : {" none.ra1 ", " folder.ra1 ", " pipe.ra1 "})
                row(FileFailed, command + file + change, file.trimmed() + ": cannot be read");
            row(FileFailed, command + " empty.ra1 " + change,
                command == "map" ? "no map" : "no session");
        }
        row(FileFailed, "decode old.ra1", "too old");
        row(FileFailed, "map good.ra1", "no map");
        row(FileFailed, "csv good.ra1 --lap 1", "no lap 1");
        row(FileFailed, "laps good.ra1 --invalidate 1", "no lap 1");
        row(FileFailed, "set headless.ra1 event=Cup", "left alone");
        row(FileFailed, "set good.ra1 event=Cup -o none/out.ra1", "not written");
        row(FileFailed, "demo empty.ra1", "empty.ra1");
    }
    void statuses()
    {
        QFETCH(const int, status);
        QFETCH(const QByteArray, text);
        const QByteArray before = contentOf(u"good.ra1"_s);
        const Output output = run(QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY2(output.status == status, output.error);
        QVERIFY2((status == Done ? output.out : output.error).contains(text), output.error);
        QVERIFY((status == Done ? output.error : output.out).isEmpty());
        QVERIFY(contentOf(u"good.ra1"_s) == before && !QFile::exists(u"new"_s));
    }

    void jsonKeys()
    {
        const QList<std::tuple<QString, QString, QString>> rows {
            {u"decode --json --no-points run.ra1"_s, u""_s,
             u"bestLapText circuit condition driver event headerA headerB idealTimeText "
             "invalid list1 list2 listsFlag newSession notes reservedByte reservedDouble "
             "samples temperature tyres vehicle version words"_s},
            {u"decode --json run.ra1"_s, u"points"_s,
             u"acquisitionNumber dataAccelXPH dataAccelXPHComputed dataAccelYPH dataAngle "
             "dataCoordX dataCoordY dataSpeed dataTimeSec dataTimeStamp susp1 susp1Stats "
             "susp2 susp2Stats"_s},
            {u"laps --json --maps demo/Map run.ra1"_s, u""_s,
             u"bestLap bestLapText bestSectorLaps bestSectors distance idealTime idealTimeText "
             "laps map"_s},
            {u"laps --json --maps demo/Map run.ra1"_s, u"laps"_s,
             u"accelMax best bestSectorFlags complete cumulatedTime decelMax distance "
             "firstTimeStamp lastTimeStamp marks maxAngle maxSpeed maxSpeedPoints minAngle "
             "minSpeed minSpeedPoints number points sectors susp1Max susp1Min susp2Max "
             "susp2Min time timeText valid"_s},
            {u"payload --lap 2 --maps demo/Map run.ra1"_s, u""_s,
             u"accelMax decelMax isComplete landmarks lapPoints maxSpeeds minSpeeds"_s},
            {u"map --json demo/Map/Spain/Valmora.map"_s, u""_s,
             u"cornerA cornerB displayName gateSize length mapNumber name namedPointCount "
             "startDirection startPoint timingDirections timingPoints trackPointCount "
             "trackPoints usable"_s},
        };
        for (const auto &[arguments, list, keys] : rows) {
            const QJsonObject json = run(arguments).json();
            const QJsonObject last = json[list].toArray().last().toObject();
            QCOMPARE((list.isEmpty() ? json : last).keys().join(u' '), keys);
        }
    }

    // What a program reads is the same number again; JSON has no other numbers.
    void jsonNumbers()
    {
        Bytes file;
        file.text("RA1").text("1.0.0.0").u32(1).u32(4294967295U).f32(0.1F).f32(-0.0F).f32(1e-40F);
        file.f32(std::numeric_limits<float>::infinity()).f32(std::nanf("")).f32(3.4028235e38F);
        write(u"numbers.ra1"_s, file);
        const Output output = run(u"decode --json numbers.ra1"_s);
        const QJsonObject point = output.json()[u"points"][0].toObject();
        QCOMPARE(point[u"dataTimeStamp"].toInteger(), 4294967295);
        QCOMPARE(point[u"dataSpeed"].toDouble(), double(1e-40F));
        QVERIFY(point[u"dataAngle"].isNull() && point[u"dataAccelXPH"].isNull());
        QVERIFY2(output.out.contains("\"dataCoordY\":-0"), "the sign of a zero");
    }

    // The hill road is far from every circuit; whoever rode on one has laps with all sectors.
    void demoLaps()
    {
        QDirIterator it(u"demo"_s, {u"*.ra1"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QJsonObject json = run(u"laps --json --maps demo/Map"_s, {it.next()}).json();
            const QJsonArray laps = json[u"laps"].toArray();
            const QString place = it.fileInfo().completeBaseName().section(u' ', 2);
            const bool isFar = place == u"Hill road";
            QVERIFY(isFar ? json[u"map"].isNull()
                          : json[u"map"].toString().endsWith(place + u".map"));
            QVERIFY2(isFar ? laps.isEmpty() : laps.size() >= 4, qPrintable(it.fileName()));
            for (qsizetype i = 0; i < laps.size(); ++i) {
                const bool isFull = i > 0 && i < laps.size() - 1;
                QCOMPARE(laps[i][u"complete"].toBool(), isFull);
                int rest = laps[i][u"time"].toInt();
                const QJsonArray sectors = laps[i][u"sectors"].toArray();
                for (const auto &sector : sectors) {
                    QVERIFY2(!isFull || sector.toInt() > 0, qPrintable(it.fileName()));
                    rest -= sector.toInt();
                }
                QVERIFY(!isFull || std::abs(rest) <= 1); // the last sector ends at the line
            }
        }
    }

    void throwsLapsOut()
    {
        const QJsonObject before = run(u"laps --json --maps demo/Map run.ra1"_s).json();
        const int best = before[u"bestLap"].toInt();
        const QString number = QString::number(best + 1);
        const QString options = u" --maps demo/Map run.ra1 --invalidate 1 --invalidate "_s + number;
        const QJsonObject after = run(u"laps --json"_s + options).json();
        for (int i = 0; i < after[u"laps"].toArray().size(); ++i)
            QCOMPARE(after[u"laps"][i][u"valid"].toBool(), i != best && i != 0);
        QVERIFY(after[u"bestLap"].toInt() != best);
        QVERIFY(after[u"idealTime"].toInt() > before[u"idealTime"].toInt());
        const QString row
            = number + u" complete thrown out "_s + after[u"laps"][best][u"timeText"].toString();
        const QString table = QString::fromUtf8(run(u"laps"_s + options).out.replace('\n', " | "));
        QVERIFY2(table.simplified().contains(u" | "_s + row), qPrintable(table));
    }

    // Choices stored by the program are not the tool's.
    void findsMaps()
    {
        write(u"home/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"_s,
              "[General]\nrun.ra1=/Germany/Haidemoor.map\n");
        const auto map = [](const QByteArray &settings, const QString &options) {
            write(u"home/Norvale/Config.ini"_s, "[General]\n" + settings);
            return run(u"laps --json run.ra1 "_s + options).json()[u"map"].toString();
        };
        const QString valmora = u"/Spain/Valmora.map"_s;
        QCOMPARE(map("", u"--maps ./demo/Map/"_s), valmora);
        QCOMPARE(map("", u""_s), QString());
        QCOMPARE(map("mapFiles=demo/Map", u""_s), valmora);
        QCOMPARE(map("mapFiles=demo/Map", u"--maps demo/Map/Spain"_s), u"/Valmora.map"_s);
        QCOMPARE(map("mapFiles=demo/Map", u"--maps nowhere"_s), QString());
        QCOMPARE(map("mapFiles=demo/Map", u"--map /Germany/Haidemoor.map"_s),
                 u"/Germany/Haidemoor.map"_s);
        QVERIFY(run(u"laps run.ra1 --map Valmora"_s).error.contains("\"Valmora\""));
    }

    void sets()
    {
        const QByteArray before = contentOf(u"good.ra1"_s);
        QJsonObject wanted = run(u"decode --json good.ra1"_s).json();
        write(u"place.ra1"_s, before);
        QStringList assignments = u"circuit=a = b; c|event=lost|event=Race|vehicle=|condition=Damp|"
                                  "tyres=hard|notes=sun"_s.split(u'|');
        for (const QString &assignment : std::as_const(assignments))
            wanted[assignment.section(u'=', 0, 0)] = assignment.section(u'=', 1);
        wanted[u"driver"] = u"Jurgen Weiss, Lodz "_s;
        wanted[u"temperature"] = 255;
        wanted[u"newSession"] = 0;
        wanted[u"invalid"] = QJsonArray {3, 1};
        assignments << u"driver=Jürgen Weiß, Łódź 日本"_s << u"temperature=255"_s
                    << u"newSession=0"_s << u"invalid=3,1"_s;
        QCOMPARE(run(u"set good.ra1 -o changed.ra1"_s, assignments).status, int(Done));
        QCOMPARE(run(u"decode --json changed.ra1"_s).json(), wanted);
        QCOMPARE(contentOf(u"good.ra1"_s), before);
        for (const QString &assignment : assignments) // in place, one after the other
            QCOMPARE(run(u"set place.ra1"_s, {assignment}).status, int(Done));
        QCOMPARE(contentOf(u"place.ra1"_s), contentOf(u"changed.ra1"_s));
    }

    void csvLocales()
    {
        Bytes file;
        file.text("RA1").text("1.0.0.0").u32(1);
        file.u32(1234500).f32(-9.1235F).f32(45.5F).f32(0.0F).f32(-12.5F).f32(0.0F).f32(0.25F);
        write(u"one.ra1"_s, file);
        const auto csv = [](const QByteArray &language, const QString &options) {
            write(u"home/Norvale/Config.ini"_s, "[General]\nlanguage=" + language);
            return run(u"csv one.ra1 "_s + options).out;
        };
        const QByteArray plain = "TimeSec;CoordX;CoordY;Vitesse;Accel;Angle;Accel Lat.\n"
                                 "1234,5;-9,1234999;45,5000000;0;0;-12,5;0,25";
        const QByteArray grouped = QByteArray(plain).replace("1234,5;", "1,234,5;");
        QCOMPARE(csv("", u"--locale C"_s), plain);
        QCOMPARE(csv("", u"--locale en_US"_s), grouped);
        QCOMPARE(csv("de", u"--locale fr"_s), plain); // its group separator is no ASCII
        QCOMPARE(csv("de", u""_s), grouped);
        QCOMPARE(csv("", u""_s), plain);
    }

    // Only the session's name can bring letters outside ASCII.
    void csvIsSmoothed()
    {
        QVERIFY(QFile::copy(u"run.ra1"_s, u"Frühling.ra1"_s));
        const QJsonObject session = run(u"decode --json --smooth run.ra1"_s).json();
        const double drive = session[u"points"][1999][u"dataAccelXPHComputed"].toDouble();
        const QByteArrayList lines = run(u"csv --locale C run.ra1"_s).out.split('\n');
        QCOMPARE(lines.size(), session[u"samples"].toInt() + 1);
        QCOMPARE(lines[2000].split(';').value(4), QByteArray::number(drive).replace('.', ','));
        const QByteArray lap = run(u"csv Frühling.ra1 --lap 2 --maps demo/Map"_s).out;
        QVERIFY(lap.startsWith("Session : Frühling.ra1 \nLap number : 2 \nTimeSec;"));
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
