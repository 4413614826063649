// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <functional>

#include <QTest>

#include <base/processorstate.h>
#include <insight/sessioninsight.h>
#include <maps/check/mapcheck.h>
#include <maps/detection/mapdetection.h>
#include <maps/proposal/mapproposal.h>
#include <session/laps/lapgap.h>
#include <session/recording/smoothing.h>
#include <session/session.h>
#include <track/map.h>

#include "testcircuit.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

struct Ride
{
    TestCircuit circuit {u"S400 R60:180 S400 R60:180"_s};
    std::unique_ptr<Map> map = circuit.map();
    std::unique_ptr<Session> session = rideLaps(
        circuit, *map, {{[](double) { return 30.0; }, {}}, {[](double) { return 32.0; }, {}}});
};

using Work = std::function<void(Ride &)>;

} // namespace

Q_DECLARE_METATYPE(Work)

// Each entry to numeric work has to free the processor of what a hashed text has left in it.
class TestProcessorState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        dirtyVectorRegisters();
        if (!areVectorRegistersDirty())
            QSKIP("This processor has no upper halves, or does not tell of them");
    }

    // The fault that all this is about, where this Qt has it: it must not be a mere assumption.
    void hashing()
    {
        clearVectorRegisters();
        QVERIFY(!areVectorRegistersDirty());
        const volatile size_t hash = qHash(u"Cup.ra1"_s, 0x1234);
        Q_UNUSED(hash)
        if (!areVectorRegistersDirty())
            QSKIP("This Qt clears the registers itself, or hashes without them");
        clearVectorRegisters();
        const volatile size_t seedless = qHash(u"Cup.ra1"_s, 0);
        Q_UNUSED(seedless)
        QVERIFY(!areVectorRegistersDirty());
    }

    void entries_data()
    {
        QTest::addColumn<Work>("work");
        const auto row = [](const char *name, Work work) { QTest::newRow(name) << work; };
        row("smoothing", [](Ride &ride) {
            Points points = ride.session->samples();
            smoothSamples(points);
        });
        row("cutting", [](Ride &ride) { ride.session->cutIntoLaps(); });
        row("detecting", [](Ride &ride) { (void)findCandidates(*ride.session, {ride.map.get()}); });
        row("checking", [](Ride &ride) {
            (void)checkMap(ride.session->wholeSamples(), MapDraft::of(*ride.map));
        });
        row("proposing", [](Ride &ride) { (void)proposeMap(ride.session->wholeSamples()); });
        row("comparing",
            [](Ride &ride) { LapGap(*ride.session->laps()[0], *ride.session->laps()[1]); });
        row("insight", [](Ride &ride) {
            (void)insightOf(*ride.map, {}, ride.session->wholeSamples(), ride.session->laps());
        });
    }

    void entries()
    {
        QFETCH(Work, work);
        Ride ride;
        dirtyVectorRegisters();
        work(ride);
        QVERIFY(!areVectorRegistersDirty());
    }
};

QTEST_GUILESS_MAIN(TestProcessorState)
#include "tst_processorstate.moc"
