// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs the command line tool as its users do: on files, by its arguments, judged by what it writes
// and how it ends.

#include <cmath>

#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
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
        putFile(u"good.ra1"_s, fullSession().bytes());
        putFile(u"empty.ra1"_s, {});
        putFile(u"old.ra1"_s, SessionBytes {.version = "0.9"}.bytes());
        putFile(u"headless.ra1"_s, SessionBytes {}.head());
        QCOMPARE(::mkfifo("pipe.ra1", 0600), 0);
    }

    void statuses_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("text");
        const auto row = [](Status status, const QByteArray &arguments, const QByteArray &text) {
            QTest::newRow(arguments) << int(status) << text;
        };
        row(Done, "laps --help", "--invalidate");
        row(WrongUse, "", "no command");
        row(WrongUse, "fly good.ra1", "\"fly\"");
        row(WrongUse, "laps good.ra1 --invalidate 2 --invalidate 0", "\"0\"");
        for (const char *const wrong :
             {"event", "weather=fine", "temperature=256", "newSession=2", "invalid=1;2"})
            row(WrongUse, QByteArray("set good.ra1 driver=X ") + wrong, wrong);
        for (const QByteArray &command :
             QByteArrayList {"decode", "laps", "insight", "csv", "payload --lap 1", "set", "map"}) {
            const QByteArray change = command == "set" ? "event=Cup" : "";
            row(WrongUse, command.split(' ').first(), "missing");
            row(FileFailed, command + " pipe.ra1 " + change, "pipe.ra1: cannot be read");
            row(FileFailed, command + " empty.ra1 " + change,
                command == "map" ? "no map" : "no session");
        }
        row(WrongUse, "map new good.ra1", "-o");
        row(FileFailed, "map new good.ra1 -o no.map", "gives no map: hardly a sample");
        row(WrongUse, "insight run.ra1 --maps demo/Map --against two", "\"two\"");
        row(FileFailed, "insight run.ra1 --maps demo/Map --lap 1", "no complete lap 1");
        row(FileFailed, "insight run.ra1 --lap 2", "no circuit");
        row(FileFailed, "corners good.ra1 --maps demo/Map", "no circuit");
        row(FileFailed, "decode old.ra1", "too old");
        row(FileFailed, "csv good.ra1 --lap 1", "no lap 1");
        row(FileFailed, "set headless.ra1 event=Cup", "left alone");
        row(FileFailed, "set good.ra1 event=Cup -o none/out.ra1", "not written");
        // Whatever stands there is somebody's.
        const QByteArray set = "set good.ra1 event=Cup -o ";
        row(FileFailed, set + "good.ra1", "--force");
        row(FileFailed, set + "run.ra1", "--force");
        for (const char *const other : {"/dev/null", "pipe.ra1", "demo"})
            row(FileFailed, set + other + " --force", "no file that could be replaced");
        row(FileFailed, set + "demo/Map/Spain/Valmora.map --force", "no session file");
        row(FileFailed, "map new run.ra1 -o good.ra1 --force", "no map file");
    }
    void statuses()
    {
        QFETCH(const int, status);
        QFETCH(const QByteArray, text);
        const QByteArray before = contents(u"good.ra1"_s);
        const Output output = run(QString::fromUtf8(QTest::currentDataTag()));
        QVERIFY2(output.status == status, output.error);
        QVERIFY2((status == Done ? output.out : output.error).contains(text), output.error);
        QVERIFY((status == Done ? output.error : output.out).isEmpty());
        QVERIFY(contents(u"good.ra1"_s) == before);
    }

    void output()
    {
        QProcess full;
        full.setStandardOutputFile(u"/dev/full"_s);
        full.start(QStringLiteral(ZUNO_TOOL), {u"decode"_s, u"good.ra1"_s});
        QVERIFY(full.waitForFinished());
        QCOMPARE(full.exitCode(), int(FileFailed));
        const auto inShell = [](const QString &command) {
            QProcess shell;
            shell.start(u"bash"_s, {u"-c"_s, command, QStringLiteral(ZUNO_TOOL)});
            return shell.waitForFinished()
                       ? QByteArray::number(shell.exitCode()) + shell.readAllStandardError()
                       : QByteArray();
        };
        QVERIFY(inShell(u"(sleep 0.2; \"$0\" decode good.ra1; echo $? >status) | true"_s) != "");
        QCOMPARE(contents(u"status"_s), "1\n");
#ifndef __SANITIZE_ADDRESS__ // it takes terabytes of addresses by itself
        // Only what the memory has no room for is left out.
        putFile(u"large.ra1"_s, Bytes().text("RA1").text("1.0.0.0").u32(6'000'000));
        QVERIFY(QFile::resize(u"large.ra1"_s, 170'000'000));
        for (const char *const command : {"laps", "decode --json", "csv", "map new -o new.map"}) {
            const QByteArray said = inShell(
                u"ulimit -v 400000; \"$0\" %1 large.ra1"_s.arg(QString::fromLatin1(command)));
            QVERIFY2(said.startsWith("1zuno: large.ra1: needs more memory"), said);
        }
#endif
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

    // Lap against lap as the laps' table has them, to the millisecond.
    void comparesLaps()
    {
        const QJsonArray laps
            = run(u"laps --json --maps demo/Map run.ra1"_s).json()[u"laps"].toArray();
        const QJsonObject json
            = run(u"insight --json --maps demo/Map run.ra1 --lap 3 --against run.ra1:5"_s).json();
        double sum = 0.0;
        for (const auto loss : json[u"losses"].toArray())
            sum += loss[u"loss"].toDouble();
        QCOMPARE(qRound(1000.0 * sum), laps[2][u"time"].toInt() - laps[4][u"time"].toInt());
        QCOMPARE(json[u"losses"].toArray().size(), json[u"units"].toArray().size());
        for (const auto lap : json[u"laps"].toArray()) {
            int time = 0;
            for (const auto unit : lap[u"unitTime"].toArray())
                time += qRound(1000.0 * unit.toDouble());
            QCOMPARE(time, laps[lap[u"number"].toInt() - 1][u"time"].toInt());
        }
        // The circuit of the session and of its map are the same.
        const QString map = u"demo/Map"_s + json[u"map"].toString();
        QVERIFY(run(u"corners --json"_s, {map}).json()[u"corners"] == json[u"corners"]);
        QVERIFY(
            run(u"insight --maps demo/Map run.ra1"_s).out.contains("Where the usual lap loses"));
    }

    void makesMaps()
    {
        QCOMPARE(run(u"map new run.ra1 -o own/new.map"_s).status, int(Done));
        QCOMPARE(run(u"map new run.ra1 -o own/new.map"_s).status, int(FileFailed));
        const QByteArray checked = run(u"map check own/new.map run.ra1 gone.ra1 --json"_s).out;
        const QJsonArray checks = QJsonDocument::fromJson(checked).array();
        QCOMPARE(checks.size(), 1);
        QVERIFY(checks[0][u"laps"].toArray().size() > 4
                && checks[0][u"warnings"].toArray().isEmpty());
    }

    // Choices stored by the program are not the tool's.
    void findsMaps()
    {
        putFile(u"home/Norvale/ZUNO Analyzer/ConfigAnalyzer.ini"_s,
                "[General]\nrun.ra1=/Germany/Haidemoor.map\n");
        const auto map = [](const QByteArray &settings, const QString &options) {
            putFile(u"home/Norvale/Config.ini"_s, "[General]\n" + settings);
            return run(u"laps --json run.ra1 "_s + options).json()[u"map"].toString();
        };
        const QString valmora = u"/Spain/Valmora.map"_s;
        QCOMPARE(map("", u"--maps ./demo/Map/"_s), valmora);
        QCOMPARE(map("", u""_s), QString());
        QCOMPARE(map("mapFiles=demo/Map", u""_s), valmora);
        QCOMPARE(map("mapFiles=demo/Map", u"--map /Germany/Haidemoor.map"_s),
                 u"/Germany/Haidemoor.map"_s);
        QVERIFY(run(u"laps run.ra1 --map Valmora"_s).error.contains("\"Valmora\""));
    }

    void sets()
    {
        const QByteArray before = contents(u"good.ra1"_s);
        QJsonObject wanted = run(u"decode --json good.ra1"_s).json();
        putFile(u"place.ra1"_s, before);
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
        QCOMPARE(contents(u"good.ra1"_s), before);
        for (const QString &assignment : assignments) // in place, one after the other
            QCOMPARE(run(u"set place.ra1"_s, {assignment}).status, int(Done));
        QCOMPARE(contents(u"place.ra1"_s), contents(u"changed.ra1"_s));
        QCOMPARE(run(u"set good.ra1 -o changed.ra1 --force"_s).status, int(Done));
        QCOMPARE(contents(u"changed.ra1"_s), before);
    }

    // By the language of the settings; only the session's name brings letters outside ASCII.
    void csv()
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

    // Of many files each one's output, in their order, whatever is done first.
    void manyFiles()
    {
        QVERIFY(QDir().mkpath(u"many/deep"_s));
        QStringList files;
        for (int i = 0; i < 12; ++i) {
            files << u"many/%1.ra1"_s.arg(i, 2, 10, QLatin1Char('0'));
            QVERIFY(QFile::copy(i % 3 == 0 ? u"good.ra1"_s : u"run.ra1"_s, files.last()));
        }
        QVERIFY(QFile::copy(u"run.ra1"_s, u"many/deep/00.ra1"_s));
        for (const QString &command : {u"laps --maps demo"_s, u"insight --maps demo"_s}) {
            QByteArray expected;
            for (const QString &file : files + QStringList {u"run.ra1"_s})
                expected += file.toUtf8() + '\n' + run(command, {file}).out + '\n';
            for (const QString &jobs : {u"1"_s, u"3"_s, u"40"_s}) {
                const Output all
                    = run(command, files + QStringList {u"run.ra1"_s, u"--jobs"_s, jobs});
                QCOMPARE(all.status, int(Done));
                QCOMPARE(all.out, expected);
            }
        }
        // A folder means all below it; a line of JSON each, which names its file.
        const Output json = run(u"laps many --json --jobs 4"_s);
        QStringList named;
        for (const QByteArray &line : json.out.trimmed().split('\n'))
            named << QJsonDocument::fromJson(line)[u"file"].toString();
        files << u"many/deep/00.ra1"_s;
        files.sort();
        QCOMPARE(named, files);
        // The others are done although one fails.
        const Output partly = run(u"laps run.ra1 empty.ra1 good.ra1 --jobs 3"_s);
        QCOMPARE(partly.status, int(FileFailed));
        QVERIFY(partly.out.contains("good.ra1") && partly.error.contains("empty.ra1"));
    }

    void manyOutputs_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("single");
        QTest::addColumn<QString>("ending");
        QTest::newRow("csv") << u"csv --locale de"_s << u"csv --locale de run.ra1 -o one"_s
                             << u"csv"_s;
        QTest::newRow("export") << u"export --format gpx"_s
                                << u"export --format gpx run.ra1 -o one"_s << u"gpx"_s;
    }

    // Into a folder, and never over what is there.
    void manyOutputs()
    {
        QFETCH(QString, command);
        QFETCH(QString, single);
        QFETCH(QString, ending);
        QVERIFY(QDir().mkpath(u"twice"_s) && QDir().mkpath(u"out"_s + ending));
        QFile::copy(u"run.ra1"_s, u"twice/run.ra1"_s);
        QCOMPARE(run(command + u" run.ra1 twice"_s).status, int(WrongUse));
        const QString all = command + u" run.ra1 twice -o out"_s + ending;
        QCOMPARE(run(all).status, int(Done));
        QCOMPARE(run(single).status, int(Done));
        for (const QString &name : {u"run."_s, u"run (2)."_s})
            QCOMPARE(contents(u"out%1/"_s.arg(ending) + name + ending), contents(u"one"_s));
        QCOMPARE(run(all).status, int(WrongUse));
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
