// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Sessions made of other loggers' files, and files made of sessions for other programs.

#include <cmath>

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <formats/import/importer.h>
#include <formats/rideexport.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <session/sessionrewrite.h>

#include "madeuprides.h"

#include "builders.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

ImportOutcome importInto(const QString &folder, const QString &path)
{
    ImportOptions options;
    options.folder = folder;
    return importRecording(path, options);
}

} // namespace

class TestFormatsFiles final : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    // A session of a made-up ride.
    std::unique_ptr<Session> imported(const char *format)
    {
        const QString original = path(u"%1.log"_s.arg(QLatin1String(format)));
        putFile(original, madeUp(format));
        const ImportOutcome outcome = importInto(path(u"to "_s + QLatin1String(format)), original);
        const QString file
            = outcome.sessions.empty() ? outcome.presentAs : outcome.sessions[0].path;
        return openSession(file).session;
    }

private Q_SLOTS:
    void session()
    {
        const auto session = imported("racechrono-csv");
        QVERIFY(session != nullptr);
        QCOMPARE(session->fileName(), u"2024-05-06 10h20 racechrono-csv.ra1"_s);
        QCOMPARE(session->recording().date, u"06/05/2024"_s);
        QCOMPARE(session->recording().time, u"10:20:30"_s);
        QCOMPARE(session->recording().block, InformationBlock::Whole);
        QCOMPARE(session->circuitName(), u"Oval"_s);
        QCOMPARE(session->newSession(), quint8(1));
        QCOMPARE(session->samples().size(), std::size_t(200));
        QVERIFY(session->notes().startsWith(
            u"From racechrono-csv.log (RaceChrono CSV, RaceChrono Pro v9.1.3, 10 Hz)."_s));
        QVERIFY(session->notes().contains(u"Sign turned: lateral acceleration"_s));
    }

    // The file's own date stands in for one; a time of day stays, and what comes later is later.
    void withoutDate()
    {
        QCOMPARE(imported("racecapture-old")->recording().time, u"10:20:30"_s);
        QByteArray outings = "time,latitude,longitude\n";
        for (int i = 0; i < 400; ++i) {
            outings += QByteArray::number(0.1 * i + (i < 200 ? 0 : 1000), 'f', 1) + ','
                       + QByteArray::number(45 + 1e-5 * i, 'f', 6) + ",9.0\n";
        }
        putFile(path(u"outings.csv"_s), outings);
        const ImportOutcome outcome = importInto(path(u"outings"_s), path(u"outings.csv"_s));
        QCOMPARE(outcome.sessions.size(), std::size_t(2));
        QCOMPARE(outcome.sessions[0].begin.secsTo(outcome.sessions[1].begin), 1020);
    }

    // The same file is not imported again, also when it has another name, nor written over another.
    void again()
    {
        const QByteArray bytes = madeUp("vbo-racebox");
        putFile(path(u"a.vbo"_s), bytes);
        putFile(path(u"b/a.vbo"_s), bytes + "\r\n");
        putFile(path(u"c.vbo"_s), bytes);
        const QString folder = path(u"again"_s);
        const QString first = importInto(folder, path(u"a.vbo"_s)).sessions.at(0).path;
        const ImportOutcome second = importInto(folder, path(u"c.vbo"_s));
        QCOMPARE(second.presentAs, first);
        QVERIFY(second.sessions.empty() && second.error.isEmpty());
        const QString other = importInto(folder, path(u"b/a.vbo"_s)).sessions.at(0).path;
        QVERIFY(other != first);
        QCOMPARE(filesIn(folder).size(), 2);
        QCOMPARE(contents(path(u"a.vbo"_s)), bytes);
        // Where it comes from outlives a change of the information.
        const auto session = openSession(first).session;
        session->setDriver(u"Ann"_s);
        putFile(first, rewritten(contents(first), *session));
        const auto origin = readSessionOrigin(first);
        QVERIFY(origin && origin->fingerprint == fingerprintOf(path(u"a.vbo"_s)));
        QCOMPARE(origin->gates.size(), std::size_t(1));
        QVERIFY(origin->gates[0].isStart && !origin->gates[0].isAlongCourse);
        QCOMPARE(origin->gates[0].name, u"Line"_s);
    }

    void origin()
    {
        const SessionOrigin origin {
            QByteArray(16, 'x'), 2, {{u"\u00e9a"_s, {45, 9}, {-45.5, -179.25}, true, true}}};
        std::vector<quint32> words = wordsOf(origin);
        QVERIFY(originOf(words) == origin);
        QVERIFY(!originOf({}) && !originOf({100, 10}));
        while (words.size() > 1) {
            words.pop_back();
            QVERIFY(!originOf(words));
        }
        QVERIFY(!readSessionOrigin(path(u"none"_s)));
    }

    void pausesAndCancel()
    {
        Scene later;
        later.begin = later.begin.addSecs(3600);
        putFile(path(u"two.nmea"_s), madeUp("nmea") + madeUp("nmea", later));
        const ImportOutcome both = importInto(path(u"two"_s), path(u"two.nmea"_s));
        QCOMPARE(both.sessions.size(), std::size_t(2));
        QCOMPARE(readSessionOrigin(both.sessions[1].path)->part, 2U);
        ImportOptions options;
        options.folder = path(u"cancelled"_s);
        options.isCancelled = [] { return true; };
        Scene longer;
        longer.count = 3000;
        putFile(path(u"long.nmea"_s), madeUp("nmea", longer));
        QVERIFY(importRecording(path(u"long.nmea"_s), options).isCancelled);
        QVERIFY(filesIn(options.folder).isEmpty());
        // Looking only writes nothing.
        QCOMPARE(importRecording(path(u"two.nmea"_s), {}).sessions.size(), std::size_t(2));
    }

    void refused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("a shopping list\n");
        QTest::newRow("heading only") << madeUp("racechrono-csv", {.count = 0});
        QTest::newRow("a moment") << madeUp("gpx", {.count = 5});
        QTest::newRow("cut in its head") << madeUp("vbo-racebox").left(100);
    }

    void refused()
    {
        QFETCH(QByteArray, bytes);
        putFile(path(u"refused"_s), bytes);
        const ImportOutcome outcome = importInto(path(u"no"_s), path(u"refused"_s));
        QVERIFY(!outcome.error.isEmpty() && outcome.sessions.empty());
        QVERIFY(filesIn(path(u"no"_s)).isEmpty());
    }

    void exported_data()
    {
        QTest::addColumn<QString>("id");
        for (const char *id : {"vbo", "gpx", "csv"})
            QTest::newRow(id) << QString::fromLatin1(id);
    }

    // What is written is read again as it was.
    void exported()
    {
        QFETCH(QString, id);
        const auto session = imported("xrk");
        QVERIFY(session != nullptr);
        RideToExport ride;
        ride.samples = session->wholeSamples();
        ride.begin = recordingBegin(session->recording().date, session->recording().time);
        ride.name = u"=1+1"_s;
        ride.gates = {{u"Line"_s, {45, 9}, {45.0001, 9}, true, true}};
        const QString file = path(u"out."_s + id);
        putFile(file, findRideFormat(id)->write(ride));
        const ImportOutcome outcome = importInto(path(u"back "_s + id), file);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.facts.damage.lines, 0);
        const auto back = openSession(outcome.sessions.at(0).path).session;
        QCOMPARE(back->recording().date, session->recording().date);
        QCOMPARE(back->recording().time, session->recording().time);
        QCOMPARE(back->samples().size(), session->samples().size());
        for (std::size_t i = 0; i < back->samples().size(); ++i) {
            const PointAcquisition &is = back->samples()[i];
            const PointAcquisition &was = session->samples()[i];
            QCOMPARE(is.dataTimeStamp, was.dataTimeStamp);
            QVERIFY(std::abs(is.dataCoordX - was.dataCoordX) < 2e-6);
            QVERIFY(std::abs(is.dataCoordY - was.dataCoordY) < 5e-6);
            QVERIFY(std::abs(is.dataSpeed - was.dataSpeed) < 0.001);
        }
        if (id == u"vbo") {
            QCOMPARE(outcome.facts.gates.size(), std::size_t(1));
            QVERIFY(outcome.facts.gates[0].middle().distanceTo({45.00005, 9}) < 0.2);
        }
    }

    void otherPrograms_data()
    {
        QTest::addColumn<QString>("id");
        QTest::newRow("gpx") << u"gpx"_s;
        QTest::newRow("kml") << u"kml"_s;
    }

    void otherPrograms()
    {
        QFETCH(QString, id);
        const QString program = QStandardPaths::findExecutable(u"gpsbabel"_s);
        if (program.isEmpty())
            QSKIP("There is no gpsbabel");
        const auto session = imported("nmea");
        QVERIFY(session != nullptr);
        RideToExport ride;
        ride.samples = session->wholeSamples();
        ride.begin = recordingBegin(session->recording().date, session->recording().time);
        ride.name = u"<Ride> & more"_s;
        putFile(path(u"out."_s + id), findRideFormat(id)->write(ride));
        QProcess process;
        process.start(program, {u"-t"_s, u"-i"_s, id, u"-f"_s, path(u"out."_s + id), u"-o"_s,
                                u"unicsv,grid=ddd"_s, u"-F"_s, u"-"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        const QList<QByteArray> lines = process.readAllStandardOutput().trimmed().split('\n');
        // Pieces of another colour begin with the place where the one before ends.
        QVERIFY(lines.size() >= 201 && lines.size() < (id == u"gpx" ? 202 : 260));
        const QList<QByteArray> cells = lines[1].split(',');
        QVERIFY(std::abs(cells.value(1).mid(1).toDouble() - session->samples()[0].dataCoordY)
                < 2e-5);
        QVERIFY(std::abs(cells.value(2).mid(1).toDouble() - session->samples()[0].dataCoordX)
                < 2e-5);
    }

    void cells()
    {
        for (const auto &[text, cell] : {std::pair(u"plain"_s, QByteArray("plain")),
                                         {u"a,b"_s, QByteArray("\"a,b\"")},
                                         {u"a\"b"_s, QByteArray("\"a\"\"b\"")},
                                         {u"=1+1"_s, QByteArray("\"'=1+1\"")},
                                         {u"-x"_s, QByteArray("\"'-x\"")},
                                         {u"@x"_s, QByteArray("\"'@x\"")},
                                         {u"+x"_s, QByteArray("\"'+x\"")},
                                         {QString(), QByteArray("")}})
            QCOMPARE(csvText(text), cell);
    }
};

QTEST_GUILESS_MAIN(TestFormatsFiles)
#include "tst_formatsfiles.moc"
