// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Real recordings against lap times that came from elsewhere. They belong to those who made them
// and are no part of the program: the variable ZUNO_RECORDINGS names a folder that holds
//   sessions/NAME.ra1 and maps/NAME.map, and
//   reference.json: {"NAME": {"lineCrossingLapsMs": [95677.7, ...]}, ...}, the full laps' times.

#include <cmath>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <maps/mapdetection.h>
#include <maps/mapfile.h>
#include <session/sessionfile.h>

using namespace zuno;
using namespace Qt::StringLiterals;

class TestRecordings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void lapTimes_data();
    void lapTimes();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QDir m_folder;
    QJsonObject m_reference;
};

void TestRecordings::initTestCase()
{
    const QString folder = qEnvironmentVariable("ZUNO_RECORDINGS");
    if (folder.isEmpty())
        QSKIP("ZUNO_RECORDINGS names no folder of recordings; nothing has been tested");
    m_folder.setPath(folder);
    QFile file(path(u"reference.json"_s));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    m_reference = QJsonDocument::fromJson(file.readAll()).object();
    QVERIFY2(!m_reference.isEmpty(), qPrintable(file.fileName()));
}

void TestRecordings::lapTimes_data()
{
    QTest::addColumn<double>("tolerance"); // ms, on average
    QTest::newRow("grattan_moto") << 20.0;
    QTest::newRow("pir_0620") << 20.0;
    QTest::newRow("roadamerica_vbox") << 20.0;
}

void TestRecordings::lapTimes()
{
    QFETCH(double, tolerance);
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    const QJsonArray reference = m_reference[name][u"lineCrossingLapsMs"].toArray();
    QVERIFY(!reference.isEmpty());
    const OpenedSession opened = openSession(path(u"sessions/%1.ra1"_s.arg(name)));
    QVERIFY2(opened.session, qPrintable(describe(opened.error)));
    Session &session = *opened.session;
    MapLibrary maps;
    maps.loadMaps(path(u"maps"_s));
    session.smooth();
    chooseMapByLength(session, findCandidates(session, maps.maps()));
    QVERIFY(session.map() != nullptr);
    QCOMPARE(session.map()->displayName(), name);

    QList<qint32> times;
    for (const auto &lap : session.laps()) {
        if (lap->isComplete())
            times.append(lap->lapTime());
    }
    QCOMPARE(times.size(), reference.size());
    double sum = 0.0;
    for (qsizetype i = 0; i < times.size(); ++i)
        sum += std::abs(times[i] - reference[i].toDouble());
    const double mean = sum / static_cast<double>(times.size());
    qInfo("%lld laps, %.1f ms off on average", static_cast<long long>(times.size()), mean);
    QVERIFY2(mean <= tolerance, qPrintable(QString::number(mean)));
}

QTEST_GUILESS_MAIN(TestRecordings)
#include "tst_recordings.moc"
