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
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "builders.h"

using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

enum Status { Done = 0, FileFailed = 1, WrongUse = 2 };

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The columns of a table: cut where every line has two blanks.
QList<QStringList> cells(const QString &table)
{
    const QStringList lines = table.split(u'\n', Qt::SkipEmptyParts);
    qsizetype width = 0;
    for (const QString &line : lines)
        width = std::max(width, line.size());
    const auto isBlank = [&lines](qsizetype at) {
        return std::all_of(lines.begin(), lines.end(), [at](const QString &line) {
            return at >= line.size() || line[at] == u' ';
        });
    };
    QList<QStringList> rows(lines.size());
    for (qsizetype begin = 0, end = 0; begin < width; begin = end + 2) {
        end = begin;
        while (end < width && !(isBlank(end) && isBlank(end + 1)))
            ++end;
        for (qsizetype i = 0; i < lines.size() && end > begin; ++i)
            rows[i].append(lines[i].mid(begin, end - begin).trimmed());
    }
    return rows;
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void help_data();
    void help();
    void wrongUse_data();
    void wrongUse();
    void failures_data();
    void failures();
    void jsonKeys_data();
    void jsonKeys();
    void jsonNumbers();
    void tables();
    void demoLaps_data();
    void demoLaps();
    void throwsLapsOut();
    void findsMaps_data();
    void findsMaps();
    void sets_data();
    void sets();
    void setsInPlace();
    void csvLocales_data();
    void csvLocales();
    void csvIsSmoothed();

private:
    struct Output
    {
        int status = -1;
        QByteArray out;
        QByteArray error;
        QString text; ///< of both, to be shown when a test fails

        [[nodiscard]] QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
    };
    /// Runs the tool in the folder of the test, which holds the settings, too.
    [[nodiscard]] Output zuno(const QStringList &arguments) const;
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;
    [[nodiscard]] QJsonObject laps(const QString &session, const QStringList &more = {}) const;

    QTemporaryDir m_folder;
    QString m_valmora;
};

TestCli::Output TestCli::zuno(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, path(u"home"_s));
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    process.start(QStringLiteral(ZUNO_TOOL), arguments);
    Output output;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
        output.status = process.exitCode();
    output.out = process.readAllStandardOutput();
    output.error = process.readAllStandardError();
    output.text = QString::fromUtf8(output.error + output.out.left(400));
    process.kill();
    process.waitForFinished();
    return output;
}

void TestCli::write(const QString &name, const QByteArray &bytes) const
{
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QJsonObject TestCli::laps(const QString &session, const QStringList &more) const
{
    return zuno(QStringList {u"laps"_s, u"--json"_s, u"--maps"_s, u"demo/Map"_s, session} + more)
        .json();
}

void TestCli::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const Output demo = zuno({u"demo"_s, u"demo"_s});
    QVERIFY2(demo.status == Done && demo.error.isEmpty(), qPrintable(demo.text));
    QDirIterator it(path(u"demo"_s), {u"*Valmora.ra1"_s}, QDir::Files,
                    QDirIterator::Subdirectories);
    QVERIFY(it.hasNext());
    m_valmora = it.next();

    write(u"good.ra1"_s, SessionBytes {.listsFlag = 1,
                                       .lists = readingList(21) + readingList(11),
                                       .information = InformationBytes {}.bytes()}
                             .bytes());
    write(u"empty.ra1"_s, {});
    write(u"text.ra1"_s, "no recording at all");
    write(u"old.ra1"_s, SessionBytes {.version = "0.9"}.bytes());
    write(u"headless.ra1"_s, SessionBytes {}.head());
    write(u"locked.ra1"_s, contentOf(path(u"good.ra1"_s)));
    QVERIFY(QFile::setPermissions(path(u"locked.ra1"_s), {}));
    QVERIFY(QDir(m_folder.path()).mkdir(u"folder.ra1"_s));
    QCOMPARE(::mkfifo(QFile::encodeName(path(u"pipe.ra1"_s)).constData(), 0600), 0);
}

void TestCli::help_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("named");
    const auto row = [](const char *arguments, const char *named) {
        QTest::newRow(arguments) << words(arguments) << words(named);
    };
    row("--help", "decode laps map csv payload set demo");
    row("--version", "zuno 1.5.0.0");
    row("decode --help", "Usage: FILE --smooth --no-points --json");
    row("laps --help", "Usage: FILE --maps --map --invalidate --json");
    row("map --help", "Usage: FILE --json");
    row("csv --help", "Usage: FILE --lap --locale --maps");
    row("payload --help", "Usage: FILE --lap --maps");
    row("set --help", "Usage: FILE -o circuit event driver vehicle condition temperature tyres "
                      "notes newSession invalid");
    row("demo -h", "Usage: DIR --sessions --samples");
}

void TestCli::help()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, named);
    const Output output = zuno(arguments);
    QCOMPARE(output.status, int(Done));
    QVERIFY2(output.error.isEmpty(), output.error);
    for (const QString &name : named)
        QVERIFY2(output.out.contains(name.toUtf8()), qPrintable(name));
}

void TestCli::wrongUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char *arguments, const char *reason) {
        QTest::newRow(arguments) << words(arguments) << QByteArray(reason);
    };
    row("", "no command");
    row("fly good.ra1", "\"fly\"");
    for (const char *command : {"decode", "laps", "map", "csv", "payload --lap 1", "set", "demo"})
        row(command, "missing");
    row("decode good.ra1 good.ra1", "too many");
    row("decode --fast good.ra1", "fast");
    row("laps good.ra1 --maps", "maps");
    row("laps good.ra1 --invalidate 0", "\"0\"");
    row("laps good.ra1 --invalidate 2 --invalidate two", "\"two\"");
    row("csv good.ra1 --lap -1", "\"-1\"");
    row("payload good.ra1", "--lap");
    row("demo new --sessions many", "\"many\"");
    for (const char *assignment :
         {"event", "weather=fine", "=x", "temperature=256", "temperature=-1",
          "temperature=", "newSession=2", "invalid=1;2", "invalid=256"})
        row(QByteArray("set good.ra1 driver=X ").append(assignment), assignment);
}

void TestCli::wrongUse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, reason);
    const QByteArray before = contentOf(path(u"good.ra1"_s));
    const Output output = zuno(arguments);
    QVERIFY2(output.status == WrongUse, qPrintable(output.text));
    QCOMPARE(output.out, QByteArray());
    QVERIFY2(output.error.startsWith("zuno: ") && output.error.contains(reason), output.error);
    QCOMPARE(contentOf(path(u"good.ra1"_s)), before);
    QVERIFY(!QFile::exists(path(u"new"_s)));
}

void TestCli::failures_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const QString &arguments, const QString &file, const char *reason) {
        QTest::newRow(qPrintable(arguments)) << arguments.split(u' ') << file << QByteArray(reason);
    };
    for (const QString &command : {u"decode %1"_s, u"laps %1"_s, u"csv %1"_s, u"csv --lap 1 %1"_s,
                                   u"payload --lap 1 %1"_s, u"set %1 event=Cup"_s, u"map %1"_s}) {
        for (const QString &file : {u"none.ra1"_s, u"folder.ra1"_s, u"pipe.ra1"_s})
            row(command.arg(file), file, "cannot be read");
        for (const QString &file : {u"empty.ra1"_s, u"text.ra1"_s})
            row(command.arg(file), file, command.startsWith(u"map") ? "no map" : "no session");
    }
    row(u"decode locked.ra1"_s, u"locked.ra1"_s, "cannot be read");
    row(u"map locked.ra1"_s, u"locked.ra1"_s, "cannot be read");
    row(u"decode old.ra1"_s, u"old.ra1"_s, "too old");
    row(u"map good.ra1"_s, u"good.ra1"_s, "no map");
    row(u"decode demo/Map/Spain/Valmora.map"_s, u"demo/Map/Spain/Valmora.map"_s, "no session");
    row(u"csv good.ra1 --lap 1"_s, u"good.ra1"_s, "no lap 1");
    row(u"laps good.ra1 --invalidate 1"_s, u"good.ra1"_s, "no lap 1");
    row(u"set headless.ra1 event=Cup"_s, u"headless.ra1"_s, "left alone");
    row(u"set good.ra1 event=Cup -o none/out.ra1"_s, u"good.ra1"_s, "not written");
    row(u"set good.ra1 event=Cup -o folder.ra1"_s, u"good.ra1"_s, "not written");
    row(u"demo text.ra1"_s, u"text.ra1"_s, "");
}

void TestCli::failures()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, file);
    QFETCH(QByteArray, reason);
    if (file == u"locked.ra1" && QFile(path(file)).open(QIODevice::ReadOnly))
        QSKIP("nothing is locked for root");
    const QByteArray before = contentOf(path(u"good.ra1"_s));
    const Output output = zuno(arguments);
    QVERIFY2(output.status == FileFailed, qPrintable(output.text));
    QCOMPARE(output.out, QByteArray());
    QVERIFY2(output.error.contains(file.toUtf8()) && output.error.contains(reason), output.error);
    QCOMPARE(contentOf(path(u"good.ra1"_s)), before);
}

void TestCli::jsonKeys_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("keys");
    const auto row
        = [](const char *name, const char *arguments, const char *list, const char *keys) {
              QTest::newRow(name) << words(arguments) << QString::fromUtf8(list) << words(keys);
          };
    const char *const session = "version headerA reservedByte headerB reservedDouble words "
                                "newSession listsFlag circuit event driver bestLapText "
                                "idealTimeText vehicle condition temperature tyres notes invalid "
                                "samples list1 list2 points";
    row("session", "decode --json", "", session);
    row("samples", "decode --json --smooth", "points",
        "acquisitionNumber dataTimeStamp dataTimeSec dataCoordX dataCoordY dataSpeed dataAngle "
        "dataAccelXPH dataAccelXPHComputed dataAccelYPH susp1 susp2 susp1Stats susp2Stats");
    row("without samples", "decode --json --no-points", "",
        QByteArray(session).replace(" points", ""));
    row("laps", "laps --json --maps demo/Map", "",
        "map distance bestLap idealTime idealTimeText bestLapText bestSectors bestSectorLaps laps");
    row("each lap", "laps --json --maps demo/Map", "laps",
        "number time timeText cumulatedTime distance complete valid best maxSpeed minSpeed "
        "maxAngle minAngle accelMax decelMax susp1Max susp1Min susp2Max susp2Min sectors "
        "bestSectorFlags points firstTimeStamp lastTimeStamp maxSpeedPoints minSpeedPoints marks");
    row("payload", "payload --lap 2 --maps demo/Map", "",
        "lapPoints maxSpeeds minSpeeds landmarks accelMax decelMax isComplete");
    row("map", "map --json demo/Map/Spain/Valmora.map", "",
        "name displayName cornerA cornerB mapNumber gateSize namedPointCount timingPoints "
        "timingDirections startPoint startDirection trackPointCount trackPoints length usable");
}

void TestCli::jsonKeys()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, list);
    QFETCH(QStringList, keys);
    if (arguments[0] != u"map")
        arguments.append(m_valmora);
    const Output output = zuno(arguments);
    QVERIFY2(output.status == Done && output.error.isEmpty(), qPrintable(output.text));
    const QJsonObject json = output.json();
    const QJsonObject object = list.isEmpty() ? json : json[list].toArray().last().toObject();
    keys.sort();
    QCOMPARE(object.keys(), keys);
}

// What a program reads is the same number again; JSON has no other numbers.
void TestCli::jsonNumbers()
{
    constexpr float Infinite = std::numeric_limits<float>::infinity();
    const QList<float> numbers {0.1F, -0.0F, 123.456F, 1e-40F, 3.4028235e38F};
    Bytes file;
    file.text("RA1").text("1.0.0.0").u32(3);
    file.u32(4294967295U).f32(numbers[0]).f32(numbers[1]).f32(numbers[2]).f32(numbers[3]);
    file.f32(numbers[4]).f32(0.0F);
    for (const float number : {Infinite, std::numeric_limits<float>::quiet_NaN()}) {
        file.u32(0).f32(number).f32(-number).f32(number).f32(number);
        file.f32(number).f32(number);
    }
    write(u"numbers.ra1"_s, file);
    const Output output = zuno({u"decode"_s, u"--json"_s, u"numbers.ra1"_s});
    const QJsonArray points = output.json()[u"points"].toArray();
    QCOMPARE(points.size(), 3);
    QCOMPARE(points[0][u"dataTimeStamp"].toInteger(), 4294967295);
    QCOMPARE(points[0][u"dataTimeSec"].toDouble(), 4294967.295);
    const QStringList keys = words("dataCoordX dataCoordY dataSpeed dataAngle dataAccelXPH");
    for (qsizetype i = 0; i < keys.size(); ++i) {
        QCOMPARE(points[0][keys[i]].toDouble(1.0), static_cast<double>(numbers[i]));
        QVERIFY2(points[1][keys[i]].isNull() && points[2][keys[i]].isNull(), qPrintable(keys[i]));
    }
    QVERIFY2(output.out.contains("\"dataCoordY\":-0"), "the sign of a zero");
}

void TestCli::tables()
{
    const QJsonArray laps = this->laps(m_valmora)[u"laps"].toArray();
    const Output output = zuno({u"laps"_s, u"--maps"_s, u"demo/Map"_s, m_valmora});
    const QStringList parts = QString::fromUtf8(output.out).split(u"\n\n"_s);
    QCOMPARE(parts.size(), 2);
    QVERIFY2(parts[0].startsWith(u"Map         /Spain/Valmora.map\n"), qPrintable(parts[0]));
    QVERIFY2(parts[0].contains(u"\nIdeal time  01:"), qPrintable(parts[0]));
    const QStringList lines = parts[1].split(u'\n');
    const qsizetype edge = lines[0].indexOf(u"Lap time") + 8;
    const QList<QStringList> rows = cells(parts[1]);
    QCOMPARE(rows.size(), laps.size() + 1);
    QStringList header {u"Lap"_s,    u"Type"_s,     u"Lap time"_s, u"Cumulated"_s,
                        u"Metres"_s, u"Max km/h"_s, u"Min km/h"_s, u"Left"_s,
                        u"Right"_s,  u"Accel"_s,    u"Decel"_s};
    for (int sector = 1; sector <= laps[0][u"sectors"].toArray().size(); ++sector)
        header.append(u"Section %1"_s.arg(sector));
    QCOMPARE(rows[0], header);
    for (qsizetype i = 0; i < laps.size(); ++i) {
        const QStringList &row = rows[i + 1];
        const QJsonObject lap = laps[i].toObject();
        QCOMPARE(row[0], QString::number(i + 1) + (lap[u"best"].toBool() ? u"*"_s : u""_s));
        QCOMPARE(row[1], lap[u"complete"].toBool() ? u"complete"_s : u"incomplete"_s);
        QCOMPARE(row[2], lap[u"timeText"].toString());
        QCOMPARE(row[4].toInt(), qRound(lap[u"distance"].toDouble()));
        QCOMPARE(row[5].toInt(), lap[u"maxSpeed"].toInt());
        QCOMPARE(row[7].toInt(), lap[u"minAngle"].toInt());
        QCOMPARE(row[10], QString::number(lap[u"decelMax"].toDouble(), 'f', 2));
        QVERIFY2(lines[i + 1].left(edge).endsWith(u' ' + row[2]), "aligned on the right");
        QCOMPARE(row.last().endsWith(u'*'), lap[u"bestSectorFlags"].toArray().last().toBool());
    }
    const QString samples = QString::fromUtf8(zuno({u"decode"_s, u"good.ra1"_s}).out);
    QCOMPARE(cells(samples.section(u"\n\n"_s, 1)).value(2),
             words("2 0.2 11.000000 47.000000 102.5 -22.3 0.50 0.00 -1.00 16.0 0.0"));
}

void TestCli::demoLaps_data()
{
    QTest::addColumn<QString>("session");
    QDirIterator it(path(u"demo"_s), {u"*.ra1"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString session = it.next();
        QTest::newRow(qPrintable(it.fileName())) << session;
    }
}

// The hill road is far from every circuit; whoever rode on one has laps with all sectors.
void TestCli::demoLaps()
{
    QFETCH(QString, session);
    const QJsonObject json = laps(session);
    const QJsonArray laps = json[u"laps"].toArray();
    const QString place = QFileInfo(session).completeBaseName().section(u' ', 2);
    if (place == u"Hill road") {
        QVERIFY(json[u"map"].isNull());
        QVERIFY(laps.isEmpty());
        QCOMPARE(json[u"idealTime"].toInt(), -1);
        return;
    }
    QVERIFY2(json[u"map"].toString().endsWith(u'/' + place + u".map"), qPrintable(place));
    QVERIFY(laps.size() >= 4);
    for (qsizetype i = 0; i < laps.size(); ++i) {
        const bool isFull = i > 0 && i < laps.size() - 1;
        QCOMPARE(laps[i][u"complete"].toBool(), isFull);
        if (!isFull)
            continue;
        QVERIFY2(laps[i][u"accelMax"].toDouble() > 0.1, "not smoothed");
        int sum = 0;
        const QJsonArray sectors = laps[i][u"sectors"].toArray();
        for (const auto &sector : sectors) {
            QVERIFY2(sector.toInt() > 0, qPrintable(u"lap %1"_s.arg(i + 1)));
            sum += sector.toInt();
        }
        QVERIFY(sectors.size() >= 4 && sectors.size() <= 6);
        // The last sector ends at the line.
        QVERIFY2(std::abs(sum - laps[i][u"time"].toInt()) <= 1, qPrintable(u"lap %1"_s.arg(i + 1)));
    }
    QVERIFY(laps[json[u"bestLap"].toInt()][u"best"].toBool());
}

void TestCli::throwsLapsOut()
{
    const QByteArray bytes = contentOf(m_valmora);
    const QJsonObject before = laps(m_valmora);
    const int best = before[u"bestLap"].toInt();
    const int other = best == 1 ? 2 : 1;
    const QJsonObject after = laps(m_valmora, {u"--invalidate"_s, QString::number(best + 1),
                                               u"--invalidate"_s, QString::number(other + 1)});
    const QJsonArray laps = after[u"laps"].toArray();
    for (qsizetype i = 0; i < laps.size(); ++i)
        QCOMPARE(laps[i][u"valid"].toBool(), i != best && i != other);
    QVERIFY(!laps[best][u"best"].toBool());
    QVERIFY(!after[u"bestSectorLaps"].toArray().contains(best));
    QVERIFY(after[u"idealTime"].toInt() > before[u"idealTime"].toInt());
    QCOMPARE(contentOf(m_valmora), bytes);
}

void TestCli::findsMaps_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("map");
    QTest::addColumn<QByteArray>("error");
    const QByteArray stored = "mapFiles=" + path(u"demo/Map"_s).toUtf8() + '\n';
    const QString valmora = u"/Spain/Valmora.map"_s;
    const QByteArray none;
    QTest::newRow("named folder") << none << words("--maps demo/Map") << valmora << none;
    QTest::newRow("with a slash") << none << words("--maps ./demo/Map/") << valmora << none;
    QTest::newRow("another folder")
        << stored << words("--maps demo/Map/Spain") << u"/Valmora.map"_s << none;
    QTest::newRow("no maps in it") << stored << words("--maps demo/RemoteDevice") << u""_s << none;
    QTest::newRow("no folder") << stored << words("--maps nowhere") << u""_s << none;
    QTest::newRow("the settings'") << stored << QStringList() << valmora << none;
    QTest::newRow("no settings") << none << QStringList() << u""_s << none;
    QTest::newRow("chosen") << stored << words("--map /Spain/Valmora.map") << valmora << none;
    QTest::newRow("chosen, far away")
        << stored << words("--map /Germany/Haidemoor.map") << u"/Germany/Haidemoor.map"_s << none;
    QTest::newRow("unknown") << stored << words("--map Valmora") << valmora
                             << QByteArray("\"Valmora\"");
}

void TestCli::findsMaps()
{
    QFETCH(QByteArray, settings);
    QFETCH(QStringList, options);
    QFETCH(QString, map);
    QFETCH(QByteArray, error);
    write(u"home/Norvale/Config.ini"_s, "[General]\n" + settings);
    // Choices stored by the program are not the tool's.
    write(u"home/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"_s,
          "[General]\n" + QFileInfo(m_valmora).fileName().replace(u' ', u"%20"_s).toUtf8()
              + "=/Germany/Haidemoor.map\n");
    const Output output = zuno(QStringList {u"laps"_s, u"--json"_s, m_valmora} + options);
    QCOMPARE(output.status, int(Done));
    QCOMPARE(output.json()[u"map"].toString(), map);
    QCOMPARE(output.json()[u"laps"].toArray().isEmpty(), !map.endsWith(u"Valmora.map"));
    QVERIFY2(output.error.contains(error) && output.error.isEmpty() == error.isEmpty(),
             output.error);
}

void TestCli::sets_data()
{
    QTest::addColumn<QString>("assignment");
    QTest::addColumn<QJsonValue>("value");
    const auto row = [](const QString &assignment, const QJsonValue &value) {
        QTest::newRow(qPrintable(assignment)) << assignment << value;
    };
    for (const QString &key : words("circuit event driver vehicle condition tyres notes"))
        row(key + u"=a = b; c", u"a = b; c"_s);
    row(u"notes="_s, u""_s);
    row(u"driver=Jürgen Weiß, Łódź 日本"_s, u"Jurgen Weiss, Lodz "_s);
    row(u"notes="_s + QString(300, u'n'), QString(255, u'n'));
    row(u"temperature=0"_s, 0);
    row(u"temperature=255"_s, 255);
    row(u"newSession=0"_s, 0);
    row(u"invalid=3,1"_s, QJsonArray {3, 1});
    row(u"invalid="_s, QJsonArray());
}

void TestCli::sets()
{
    QFETCH(QString, assignment);
    QFETCH(QJsonValue, value);
    const QByteArray before = contentOf(path(u"good.ra1"_s));
    const Output output = zuno({u"set"_s, u"good.ra1"_s, assignment, u"-o"_s, u"changed.ra1"_s});
    QVERIFY2(output.status == Done && output.error.isEmpty(), qPrintable(output.text));
    QCOMPARE(contentOf(path(u"good.ra1"_s)), before);
    QJsonObject wanted = zuno({u"decode"_s, u"--json"_s, u"good.ra1"_s}).json();
    wanted[assignment.section(u'=', 0, 0)] = value;
    QCOMPARE(zuno({u"decode"_s, u"--json"_s, u"changed.ra1"_s}).json(), wanted);
}

void TestCli::setsInPlace()
{
    const QByteArray before = contentOf(path(u"good.ra1"_s));
    write(u"place.ra1"_s, before);
    QCOMPARE(zuno(words("set place.ra1")).status, int(Done));
    QCOMPARE(contentOf(path(u"place.ra1"_s)), before);
    QCOMPARE(zuno(words("set place.ra1 newSession=0 event=Final event=Race")).status, int(Done));
    const QJsonObject json = zuno(words("decode --json place.ra1")).json();
    QCOMPARE(json[u"newSession"].toInt(1), 0);
    QCOMPARE(json[u"event"].toString(), u"Race"_s);
    QCOMPARE(json[u"driver"].toString(), u"Ann"_s);
    QCOMPARE(zuno(words("set place.ra1 newSession=1 event=Cup")).status, int(Done));
    QCOMPARE(contentOf(path(u"place.ra1"_s)), before);
}

void TestCli::csvLocales_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("row");
    const auto row = [](const char *name, const char *language, const char *options,
                        const char *result) {
        QTest::newRow(name) << QString::fromUtf8(language) << words(options) << QByteArray(result);
    };
    const char *const plain = "1234,5;-9,1234999;45,5000000;";
    const char *const grouped = "1,234,5;-9,1234999;45,5000000;";
    row("C", "", "--locale C", plain);
    row("English", "", "--locale en_US", grouped);
    row("French", "", "--locale fr_FR", plain); // its group separator is no ASCII
    row("German", "", "--locale de_DE", grouped); // its group separator is a point
    row("the settings' language", "de", "", grouped);
    row("before the settings' language", "de", "--locale fr", plain);
    row("no language", "", "", plain);
}

void TestCli::csvLocales()
{
    QFETCH(QString, language);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, row);
    write(u"home/Norvale/Config.ini"_s, "[General]\nlanguage=" + language.toUtf8() + '\n');
    Bytes file;
    file.text("RA1").text("1.0.0.0").u32(2);
    for (int i = 0; i < 2; ++i)
        file.u32(1234500).f32(-9.1235F).f32(45.5F).f32(0.0F).f32(-12.5F).f32(0.0F).f32(0.25F);
    write(u"two.ra1"_s, file);
    const Output output = zuno(QStringList {u"csv"_s, u"two.ra1"_s} + options);
    row += "0;0;-12,5;0,25";
    QCOMPARE(output.out,
             "TimeSec;CoordX;CoordY;Vitesse;Accel;Angle;Accel Lat.\n" + row + '\n' + row);

    // Only the session's name can bring letters outside ASCII.
    QVERIFY(QFile::copy(m_valmora, path(u"Frühling.ra1"_s))
            || QFile::exists(path(u"Frühling.ra1"_s)));
    const Output lap = zuno(
        QStringList {u"csv"_s, u"Frühling.ra1"_s, u"--lap"_s, u"2"_s, u"--maps"_s, u"demo/Map"_s}
        + options);
    QVERIFY2(lap.out.startsWith("Session : Frühling.ra1 \nLap number : 2 \nTimeSec;"),
             lap.out.left(80));
    const int points = laps(m_valmora)[u"laps"][1][u"points"].toInt();
    QCOMPARE(lap.out.count('\n'), points + 2);
}

void TestCli::csvIsSmoothed()
{
    const QByteArrayList lines = zuno({u"csv"_s, m_valmora}).out.split('\n');
    const QJsonArray points
        = zuno({u"decode"_s, u"--json"_s, u"--smooth"_s, m_valmora}).json()[u"points"].toArray();
    QCOMPARE(lines.size(), points.size() + 1);
    const QByteArrayList fields = lines[2000].split(';');
    const auto text = [&points](const char16_t *key) {
        return QByteArray::number(points[1999][key].toDouble()).replace('.', ',');
    };
    QCOMPARE(fields.value(3), text(u"dataSpeed"));
    QCOMPARE(fields.value(4), text(u"dataAccelXPHComputed"));
}

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
