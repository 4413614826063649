// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is done on several threads gives what one thread does. The preset "tsan" looks for what they
// share on the way.

#include <thread>
#include <vector>

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

#include <demo/demolibrary.h>
#include <insight/sessioninsight.h>
#include <library/work/upgradeone.h>
#include <maps/detection/mapdetection.h>
#include <maps/proposal/mapproposal.h>
#include <session/session.h>
#include <session/sessionfile.h>
#include <track/mapfile.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

constexpr int Threads = 4;

/// All that is told of a session, computed from its file.
QString toldOf(const QString &path, const MapLibrary &maps)
{
    const OpenedSession opened = openSession(path);
    Session &session = *opened.session;
    session.smooth();
    chooseMapByLength(session, candidatesOf(session, maps, {}).maps);
    QString text
        = session.circuitName() + u' ' + session.bestLapText() + u' ' + session.idealTimeText();
    if (session.map() == nullptr)
        return text;
    const SessionInsight insight
        = insightOf(*session.map(), {}, session.wholeSamples(), session.laps());
    for (const InsightLap &lap : insight.laps)
        text += u" %1"_s.arg(lap.number);
    return text + u" %1"_s.arg(proposeMap(session.wholeSamples()).laps.size());
}

} // namespace

class TestThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const DemoResult demo = writeDemoLibrary(m_folder.path(), {6, 3000});
        QVERIFY2(demo.ok(), qPrintable(demo.error));
        m_files = demo.sessionFiles;
        m_maps.loadMaps(m_folder.filePath(u"Map"_s));
        QVERIFY(m_files.size() >= 6 && !m_maps.maps().isEmpty());
    }

    // Maps are shared; each session belongs to the thread that works on it.
    void sessions()
    {
        std::vector<QString> alone;
        for (const QString &file : m_files)
            alone.push_back(toldOf(file, m_maps));
        QVERIFY(alone[0].size() > 10);
        std::vector<std::vector<QString>> told(Threads);
        {
            std::vector<std::jthread> threads;
            for (std::vector<QString> &own : told) {
                threads.emplace_back([&own, this] {
                    for (const QString &file : std::as_const(m_files))
                        own.push_back(toldOf(file, m_maps));
                });
            }
        }
        for (const std::vector<QString> &own : told)
            QVERIFY(own == alone);
    }

    // Files are rewritten by the thread that reads them.
    void upgrades()
    {
        std::vector<Upgraded> done(static_cast<std::size_t>(m_files.size()));
        {
            std::vector<std::jthread> threads;
            for (std::size_t i = 0; i < done.size(); ++i) {
                threads.emplace_back([&done, i, this] {
                    done[i] = upgradeOne(m_files[static_cast<qsizetype>(i)], m_maps, {});
                });
            }
        }
        for (std::size_t i = 0; i < done.size(); ++i) {
            const OpenedSession opened = openSession(m_files[static_cast<qsizetype>(i)]);
            QVERIFY(done[i].state && opened.session->newSession() == 0);
            QCOMPARE(opened.session->storedState(), *done[i].state);
        }
    }

private:
    QTemporaryDir m_folder;
    QStringList m_files;
    MapLibrary m_maps;
};

QTEST_GUILESS_MAIN(TestThreads)
#include "tst_threads.moc"
