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

#include <maps/check/mapcheck.h>
#include <maps/detection/mapdetection.h>
#include <maps/proposal/mapproposal.h>
#include <session/sessionfile.h>
#include <track/mapfile.h>

using namespace zuno;
using namespace Qt::StringLiterals;

class TestRecordings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lapTimes()
    {
        const QDir folder(qEnvironmentVariable("ZUNO_RECORDINGS"));
        if (!qEnvironmentVariableIsSet("ZUNO_RECORDINGS"))
            QSKIP("ZUNO_RECORDINGS names no folder of recordings; nothing has been tested");
        QFile file(folder.filePath(u"reference.json"_s));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        const QJsonObject references = QJsonDocument::fromJson(file.readAll()).object();
        MapLibrary maps;
        maps.loadMaps(folder.filePath(u"maps"_s));
        for (const QString &name : {u"grattan_moto"_s, u"pir_0620"_s, u"roadamerica_vbox"_s}) {
            const OpenedSession opened
                = openSession(folder.filePath(u"sessions/%1.ra1"_s.arg(name)));
            QVERIFY2(opened.session, qPrintable(name + u' ' + describe(opened.error)));
            opened.session->smooth();
            chooseMapByLength(*opened.session, findCandidates(*opened.session, maps.maps()));
            QVERIFY2(opened.session->map() != nullptr, qPrintable(name));
            QCOMPARE(opened.session->map()->displayName(), name);

            const QJsonArray reference = references[name][u"lineCrossingLapsMs"].toArray();
            qsizetype count = 0;
            double sum = 0.0; // of what the laps are off
            for (const auto &lap : opened.session->laps()) {
                if (lap->isComplete())
                    sum += std::abs(lap->lapTime() - reference[count++].toDouble());
            }
            QVERIFY2(count > 0 && count == reference.size(), qPrintable(name));
            QVERIFY2(sum / static_cast<double>(count) <= 20.0, qPrintable(name));

            const auto samples = opened.session->wholeSamples();
            const MapProposal proposal = proposeMap(samples);
            QCOMPARE(static_cast<qsizetype>(proposal.laps.size()), count);
            QVERIFY2(checkMap(samples, proposal.draft).warnings.isEmpty(), qPrintable(name));
            // Lap 3 at Road America ends in the pit lane, beside the line of that map.
            const MapDraft given = MapDraft::of(*opened.session->map());
            QList<MapWarning> warnings = checkMap(samples, given).warnings;
            warnings.removeIf([](const MapWarning &warning) {
                return warning.kind == MapWarning::Kind::SlowPass;
            });
            QCOMPARE(warnings.size(), name[0] == u'r' ? 2 : 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestRecordings)
#include "tst_recordings.moc"
