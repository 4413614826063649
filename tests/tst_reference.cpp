// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <memory>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <base/settings.h>
#include <insight/reference/lapreasons.h>
#include <insight/reference/recordingkey.h>
#include <insight/reference/reference.h>
#include <session/recording/sessionwriter.h>
#include <session/sessionfile.h>
#include <track/map.h>
#include <track/mapdraft.h>
#include <track/mapfile.h>

#include "builders.h"
#include "testcircuit.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

const QString MapName = u"/Here/Oval.map"_s;

const TestCircuit &track()
{
    static const TestCircuit circuit(u"S300 R50:180 S800 R50:180 S500"_s);
    return circuit;
}

// A lap with this speed where there is room for it, m/s.
LapPlan planOf(double speed)
{
    return {[speed](double place) {
                const bool isFirst = place < 857.0;
                const double begin = isFirst ? 300.0 : 1257.0;
                const double away = std::max({begin - place, place - begin - 157.0, 0.0});
                return std::min(speed, std::sqrt(400.0 + (8.0 * away)));
            },
            {}};
}

struct Told
{
    std::unique_ptr<Session> session;
    SessionInsight insight;
    [[nodiscard]] SessionOnCircuit asked() const { return {*session, insight}; }
};

} // namespace

/// A library of made-up sessions on one circuit, each by its laps' highest speeds; the first lap
/// that counts is lap 2.
class TestReference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<Settings>(m_folder->path());
        m_sessions.clear();
        const std::unique_ptr<Map> map = track().map();
        QDir().mkpath(m_folder->filePath(u"Map/Here"_s));
        QCOMPARE(writeMapFile(MapDraft::of(*map), m_folder->filePath(u"Map"_s) + MapName),
                 QString());
        m_maps.loadMaps(m_folder->filePath(u"Map"_s));
        QVERIFY(m_maps.find(MapName) != nullptr);
    }

    void reasons()
    {
        Session *a = addSession(u"A"_s, {30, 31}, {});
        Session *b = addSession(u"B"_s, {31, 30}, {});
        const LapReasons ofA(*m_settings, *a);
        ofA.set(2, LapReason {LapReasonKind::HeldUp, {}});
        ofA.set(3, LapReason {LapReasonKind::Other, u" 12 rain,\n \"wet\" = ü"_s});
        ofA.set(4, LapReason {LapReasonKind::WarmUp, {}});
        ofA.set(4, {});
        QCOMPARE(ofA.all().keys(), QList<qint32>({2, 3}));
        QVERIFY(LapReasons(*m_settings, *b).all().isEmpty());
        // Another name, another folder, smoothed or not, something said about it.
        QDir(m_folder->path()).mkpath(u"away"_s);
        QVERIFY(QFile::copy(a->filePath(), m_folder->filePath(u"away/C.ra1"_s)));
        const std::unique_ptr<Session> copy
            = openSession(m_folder->filePath(u"away/C.ra1"_s)).session;
        copy->setDriver(u"Ann"_s);
        copy->smooth();
        const LapReasons ofCopy(*m_settings, *copy);
        QCOMPARE(reasonText(*ofCopy.of(2)), u"held up"_s);
        QCOMPARE(reasonText(*ofCopy.of(3)), u"12 rain, \"wet\" = ü"_s);
        QVERIFY(!ofCopy.of(4));
        // What a later program kept stays.
        m_settings->keep(SettingsGroup::LapReasons, recordingKey(*a), {u"7 eclipse"_s});
        ofA.set(2, LapReason {LapReasonKind::MissedLine, {}});
        QCOMPARE(ofA.all().keys(), QList<qint32>({2}));
        QCOMPARE(m_settings->kept(SettingsGroup::LapReasons, recordingKey(*a)),
                 QStringList({u"7 eclipse"_s, u"2 missedLine"_s}));
    }

    // Sessions as "name: speeds; what is said", the first looked at; then who has the record and
    // how many files were decoded.
    void bestEver_data()
    {
        QTest::addColumn<QStringList>("sessions");
        QTest::addColumn<QString>("vehicle");
        QTest::addColumn<QString>("best");
        QTest::addColumn<int>("decoded");
        QTest::newRow("own") << QStringList {u"A 40 41"_s, u"B 30 31"_s} << u""_s << u"A 3"_s << 0;
        QTest::newRow("the text says where")
            << QStringList {u"A 30"_s, u"B 31 32"_s, u"C 34 41"_s, u"D 35"_s} << u""_s << u"C 3"_s
            << 1;
        QTest::newRow("a text that promises too much")
            << QStringList {u"A 30"_s, u"B 31 says=00:10.000"_s, u"C 33"_s, u"D 32"_s} << u""_s
            << u"C 2"_s << 2;
        QTest::newRow("never opened")
            << QStringList {u"A 30"_s, u"B 31"_s, u"C 33 new"_s, u"D 32"_s} << u""_s << u"C 2"_s
            << 2;
        QTest::newRow("thrown out")
            << QStringList {u"A 30"_s, u"B 35 31 out=2"_s, u"C 32"_s} << u""_s << u"C 2"_s << 2;
        QTest::newRow("elsewhere")
            << QStringList {u"A 30"_s, u"B 40 choice=/There/Other.map"_s} << u""_s << u"A 2"_s << 0;
        QTest::newRow("own words for the circuit")
            << QStringList {u"A 30"_s, u"B 40 circuit=home"_s} << u""_s << u"B 2"_s << 1;
        QTest::newRow("the same vehicle")
            << QStringList {u"A 30"_s, u"B 41"_s, u"C 35 vehicle=r6"_s, u"D 34 vehicle=R6"_s}
            << u"R6"_s << u"C 2"_s << 1;
        QTest::newRow("gone") << QStringList {u"A 30"_s, u"B 41 gone"_s, u"C 33"_s} << u""_s
                              << u"C 2"_s << 2;
    }
    void bestEver()
    {
        QFETCH(QStringList, sessions);
        QFETCH(QString, vehicle);
        QFETCH(QString, best);
        QFETCH(int, decoded);
        addMap(u"/There/Other.map"_s);
        for (const QString &session : sessions)
            addDescribed(session);
        const Told told = lookAt(u"A"_s);
        BestLapMemory memory;
        BestEverSearch search(sources(), told.asked(), vehicle, &memory);
        while (!search.isDone())
            search.step();
        QCOMPARE(search.decoded(), decoded);
        const std::optional<ReferenceLap> lap = search.result();
        QVERIFY(lap);
        QCOMPARE(nameOf(*lap), best);
        QCOMPARE(lap->session == nullptr, best.startsWith(u"A"_s));
        if (lap->session)
            QCOMPARE(lap->cut()->lapTime(), lap->time);
        // What was decoded once is known, but for the lap itself.
        BestEverSearch again(sources(), told.asked(), vehicle, &memory);
        while (!again.isDone())
            again.step();
        QCOMPARE(nameOf(*again.result()), best);
        QVERIFY(again.decoded() <= 1);
    }

    // A file that has changed is looked at anew: the record follows.
    void followsRecords()
    {
        addDescribed(u"A 30"_s);
        addDescribed(u"B 33 35"_s);
        const Told told = lookAt(u"A"_s);
        BestLapMemory memory;
        const auto best
            = [&] { return nameOf(*findBestEver(sources(), told.asked(), {}, &memory)); };
        QCOMPARE(best(), u"B 3"_s);
        m_sessions.back()->setInvalidLaps({3});
        QCOMPARE(best(), u"B 2"_s);
        addDescribed(u"C 34 new"_s);
        QCOMPARE(best(), u"C 2"_s);
    }

    void choices()
    {
        addDescribed(u"A 30 vehicle=R6"_s);
        addDescribed(u"B 33 35"_s);
        const Told told = lookAt(u"A"_s);
        const Map &map = *told.session->map();
        const auto found = [&] {
            return findReference(referenceChoice(*m_settings, map), sources(), told.asked());
        };
        QCOMPARE(nameOf(*found().lap), u"A 2"_s);
        keepReferenceChoice(*m_settings, map, {ReferenceKind::BestEver});
        QCOMPARE(nameOf(*found().lap), u"B 3"_s);
        keepReferenceChoice(*m_settings, map, {ReferenceKind::BestOnVehicle});
        QCOMPARE(nameOf(*found().lap), u"A 2"_s);
        told.session->setVehicle({});
        QCOMPARE(found().state, ReferenceState::NoVehicle);

        keepReferenceChoice(*m_settings, map, chosenLap(*m_sessions.back(), 2));
        QCOMPARE(nameOf(*found().lap), u"B 2"_s);
        keepReferenceChoice(*m_settings, map, chosenLap(*m_sessions.front(), 2));
        QVERIFY(found().lap->session == nullptr);
        keepReferenceChoice(*m_settings, map, chosenLap(*m_sessions.back(), 9));
        QCOMPARE(found().state, ReferenceState::LapGone);
        keepReferenceChoice(*m_settings, map, chosenLap(*m_sessions.back(), 3));
        // It follows its map, and its file.
        m_settings->renameMapChoices(MapName, u"/a/b, c.map"_s);
        QCOMPARE(found().lap->lap.number, 2);
        m_settings->renameMapChoices(u"/a/b, c.map"_s, MapName);
        const QString old = m_sessions.back()->filePath();
        const QString renamed = m_folder->filePath(u"Z.ra1"_s);
        QVERIFY(QFile::rename(old, renamed));
        m_sessions.back()->setFilePath(renamed);
        QCOMPARE(nameOf(*found().lap), u"Z 3"_s);
        // Another recording in its place is not taken for it.
        m_sessions.pop_back();
        addDescribed(u"B 36 37"_s);
        const ReferenceChoice choice = referenceChoice(*m_settings, map);
        QCOMPARE(found().state, ReferenceState::LapGone);
        QCOMPARE(describe(found().state, choice),
                 u"\"B\" has no lap 3 on this circuit any more."_s);
        QVERIFY(QFile::remove(old));
        m_sessions.pop_back();
        QCOMPARE(describe(found().state, choice), u"The file of the reference, \"B\", is gone."_s);
        m_settings->removeMapChoices(MapName);
        QCOMPARE(referenceChoice(*m_settings, map), ReferenceChoice());
        m_settings->keep(SettingsGroup::References, MapName, {u"lap"_s, u"-1"_s, u"x"_s});
        QCOMPARE(referenceChoice(*m_settings, map), ReferenceChoice());
    }

private:
    [[nodiscard]] ReferenceSources sources() const
    {
        QList<Session *> sessions;
        for (const auto &session : m_sessions)
            sessions.append(session.get());
        return {sessions, m_maps, *m_settings};
    }

    static QString nameOf(const ReferenceLap &lap)
    {
        return u"%1 %2"_s.arg(QFileInfo(lap.filePath).baseName()).arg(lap.lap.number);
    }

    void addMap(const QString &name)
    {
        const QString path = m_folder->filePath(u"Map"_s) + name;
        QDir().mkpath(QFileInfo(path).path());
        QVERIFY(QFile::copy(m_folder->filePath(u"Map"_s) + MapName, path));
        m_maps.loadMaps(m_folder->filePath(u"Map"_s));
    }

    // As files the sessions stand with what displaying them once left there.
    Session *addSession(const QString &name, const std::vector<double> &speeds,
                        const SessionInformation &information)
    {
        std::vector<LapPlan> plans;
        for (const double speed : speeds)
            plans.push_back(planOf(speed));
        const std::unique_ptr<Map> map = track().map();
        const std::unique_ptr<Session> ridden = rideLaps(track(), *map, plans);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        SessionWriter writer(buffer);
        writer.begin(static_cast<quint32>(ridden->sampleCount()));
        for (const PointAcquisition &point : ridden->samples()) {
            writer.addSample(point.dataTimeStamp,
                             {static_cast<float>(point.dataCoordX),
                              static_cast<float>(point.dataCoordY), point.rawSpeed, 0, 0, 0});
        }
        writer.addHeader({}, "03/05/2026", "10:11:12", true);
        SessionInformation stored = information;
        if (stored.bestLapText.text() == u"best")
            stored.bestLapText = StoredText(ridden->bestLapText());
        writer.addInformation(stored);
        [[maybe_unused]] const bool isWhole = writer.finish();
        const QString path = m_folder->filePath(name + u".ra1");
        putFile(path, buffer.data());
        m_sessions.push_back(openSession(path).session);
        return m_sessions.back().get();
    }

    // "A 30 31 vehicle=R6": laps of these speeds; "new" was never opened, "gone" is its file.
    void addDescribed(const QString &text)
    {
        SessionInformation information;
        information.circuitName = StoredText(u"Oval"_s);
        information.bestLapText = StoredText(u"best"_s);
        const QStringList words = text.split(u' ');
        std::vector<double> speeds;
        const auto value = [](const QString &word) { return word.section(u'=', 1); };
        for (const QString &word : words.mid(1)) {
            if (word.toDouble() > 0.0)
                speeds.push_back(word.toDouble());
            else if (word.startsWith(u"says="_s))
                information.bestLapText = StoredText(value(word));
            else if (word.startsWith(u"circuit="_s))
                information.circuitName = StoredText(value(word));
            else if (word.startsWith(u"vehicle="_s))
                information.vehicle = StoredText(value(word));
            else if (word.startsWith(u"choice="_s))
                m_settings->setMapChoice(words[0] + u".ra1", value(word));
            else if (word == u"new"_s)
                information = {};
        }
        Session *session = addSession(words[0], speeds, information);
        for (const QString &word : words) {
            if (word.startsWith(u"out="_s))
                session->setInvalidLaps({static_cast<quint8>(value(word).toInt())});
        }
        if (words.contains(u"gone"_s))
            QFile::remove(session->filePath());
    }

    [[nodiscard]] Told lookAt(const QString &name) const
    {
        const auto found
            = std::find_if(m_sessions.begin(), m_sessions.end(), [&](const auto &session) {
                  return session->fileName() == name + u".ra1";
              });
        Told told;
        told.session = openSession((*found)->filePath()).session;
        told.session->setInformation((*found)->information());
        told.session->smooth();
        told.session->setMap(m_maps.find(MapName));
        told.insight = insightOf(*told.session->map(), {}, told.session->wholeSamples(),
                                 told.session->laps());
        return told;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Settings> m_settings;
    MapLibrary m_maps;
    std::vector<std::unique_ptr<Session>> m_sessions;
};

QTEST_GUILESS_MAIN(TestReference)
#include "tst_reference.moc"
