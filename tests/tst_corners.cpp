// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

#include <QTemporaryDir>
#include <QTest>

#include <insight/circuitcorners.h>
#include <insight/cornerfile.h>
#include <track/map.h>
#include "testcircuit.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

// "1R180 2L30": numbers, sides and degrees.
QString cornersText(const CircuitCorners &circuit)
{
    QStringList texts;
    for (const Corner &corner : circuit.corners)
        texts.append(corner.label() + (corner.isRight ? u"R" : u"L")
                     + QString::number(std::round(corner.angle / 10.0) * 10.0));
    return texts.join(u' ');
}

QString unitsText(const CircuitCorners &circuit)
{
    QStringList texts;
    for (std::size_t unit = 0; unit < circuit.units.size(); ++unit)
        texts.append(circuit.unitLabel(unit));
    return texts.join(u' ');
}

const QString Oval = u"S200 R50:180 S400 R50:180 S200"_s;
const QString Chicane = u"S300 R50:180 S150 L60:45 R60:90 L60:45 S280 R50:180 S300"_s;

double apart(double a, double b, double length)
{
    return std::fabs(std::remainder(a - b, length));
}

} // namespace

class TestCorners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data()
    {
        QTest::addColumn<QString>("pieces");
        QTest::addColumn<QString>("corners");
        QTest::addColumn<QString>("units");
        QTest::newRow("oval") << Oval << u"1R180 2R180"_s << u"line 1 2"_s;
        QTest::newRow("a chicane is one unit")
            << Chicane << u"1R180 2L30 3R70 4L30 5R180"_s << u"line 1 2-4 5"_s;
        QTest::newRow("the other way around")
            << u"S200 L50:180 S400 L50:180 S200"_s << u"1L180 2L180"_s << u"line 1 2"_s;
        QTest::newRow("a bend that nobody leans for")
            << u"S100 R900:2 L900:2 S90 R50:180 S463 R50:180 S210"_s << u"1R180 2R180"_s
            << u"line 1 2"_s;
        QTest::newRow("one that opens in between is two")
            << u"S200 R30:80 R120:20 R30:80 S400 R30:80 R120:20 R30:80 S200"_s
            << u"1R90 2R90 3R90 4R90"_s << u"line 1 2 3 4"_s;
        QTest::newRow("short way to the first")
            << u"S5 R50:180 S400 R50:180 S395"_s << u"1R180 2R180"_s << u"1 2"_s;
        QTest::newRow("through the line")
            << u"R50:90 S400 R50:180 S400 R50:90"_s << u"1R180 2R180"_s << u"line 1 2"_s;
        QTest::newRow("nothing but a circle") << u"R80:360"_s << QString() << QString();
    }
    void finds()
    {
        QFETCH(QString, pieces);
        const CircuitCorners circuit = findCorners(*TestCircuit(pieces).map());
        QTEST(cornersText(circuit), "corners");
        QTEST(unitsText(circuit), "units");
        // The parts join from the line to the line.
        double place = 0.0;
        for (const TrackPart &unit : circuit.units) {
            QCOMPARE(unit.from, place);
            place = unit.to;
        }
        QVERIFY(circuit.isEmpty() || place == circuit.ring.length());
    }

    void placesAreThoseOfTheArc()
    {
        const CircuitCorners circuit = findCorners(*TestCircuit(Oval).map());
        QCOMPARE(circuit.corners.size(), std::size_t {2});
        const Corner &corner = circuit.corners.front();
        const double arc = 50.0 * 3.14159265;
        // Two metres are one station.
        QVERIFY(std::fabs(corner.middle - (200.0 + arc / 2.0)) < 2.0);
        QVERIFY(std::fabs(corner.start - (200.0 + arc / 10.0)) < 3.5);
        QVERIFY(std::fabs(corner.end - (200.0 + arc * 0.9)) < 3.5);
        QVERIFY(std::fabs(corner.radius - 50.0) < 3.0);
        QVERIFY(std::fabs(circuit.ring.length() - (800.0 + 2.0 * arc)) < 1.5);
    }

    // The same corners, however somebody drew the outline.
    void staysTheSame_data()
    {
        QTest::addColumn<double>("spacing");
        QTest::addColumn<double>("first");
        QTest::addColumn<double>("miss");
        QTest::newRow("begins elsewhere") << 5.0 << 333.0 << 0.0;
        QTest::newRow("dense") << 1.0 << 0.0 << 0.0;
        QTest::newRow("sparse") << 14.0 << 0.0 << 0.0;
        QTest::newRow("points repeated") << 0.2 << 0.0 << 0.0;
        QTest::newRow("ends beside each other") << 5.0 << 0.0 << 8.0;
    }
    void staysTheSame()
    {
        QFETCH(double, spacing);
        QFETCH(double, first);
        QFETCH(double, miss);
        const TestCircuit track(Chicane);
        const CircuitCorners circuit = findCorners(*track.map());
        const CircuitCorners other = findCorners(*track.map(spacing, first, [&](double along) {
            return miss * std::max(0.0, (along - (track.length() - 150.0)) / 150.0);
        }));
        QCOMPARE(cornersText(other), cornersText(circuit));
        QCOMPARE(unitsText(other), unitsText(circuit));
        for (std::size_t i = 0; i < circuit.corners.size(); ++i) {
            const double length = circuit.ring.length();
            QVERIFY(apart(other.corners[i].middle, circuit.corners[i].middle, length) < 4.0);
            QVERIFY(apart(other.corners[i].start, circuit.corners[i].start, length) < 6.0);
            QVERIFY(apart(other.corners[i].boundary, circuit.corners[i].boundary, length) < 6.0);
        }
    }

    void ridesBackwards()
    {
        const TestCircuit track(Chicane);
        const CircuitCorners circuit = findCorners(*track.map());
        const CircuitCorners back = findCorners(*track.map(), {}, CircuitRing::Way::Backwards);
        QCOMPARE(cornersText(back), u"1L180 2R30 3L70 4R30 5L180"_s);
        for (std::size_t i = 0; i < back.corners.size(); ++i) {
            const Corner &corner = circuit.corners[circuit.corners.size() - 1 - i];
            QVERIFY(apart(back.corners[i].middle, -corner.middle, circuit.ring.length()) < 3.0);
        }
    }

    void edits_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<double>("along");
        QTest::addColumn<QString>("corners");
        const QString found = u"1R180 2L30 3R70 4L30 5R180"_s;
        QTest::newRow("a name") << u"rename Hook"_s << 380.0 << u"HookR180 2L30 3R70 4L30 5R180"_s;
        QTest::newRow("beside the corner") << u"delete"_s << 260.0 << u"1L30 2R70 3L30 4R180"_s;
        QTest::newRow("far from any") << u"delete"_s << 150.0 << found;
        QTest::newRow("two become one") << u"join"_s << 380.0 << u"1R210 2R70 3L30 4R180"_s;
        QTest::newRow("over the line") << u"join"_s << -400.0 << u"1R360 2L30 3R70 4L30"_s;
        QTest::newRow("one becomes two")
            << u"split"_s << 360.0 << u"1R70 2R110 3L30 4R70 5L30 6R180"_s;
        QTest::newRow("not in a corner") << u"split"_s << 285.0 << found;
    }
    void edits()
    {
        QFETCH(QString, what);
        QFETCH(double, along);
        const TestCircuit track(Chicane);
        const std::unique_ptr<Map> map = track.map();
        CornerEdit edit;
        edit.kind = what == u"join"     ? CornerEdit::Kind::Join
                    : what == u"split"  ? CornerEdit::Kind::Split
                    : what == u"delete" ? CornerEdit::Kind::Delete
                                        : CornerEdit::Kind::Rename;
        edit.name = what.section(u' ', 1);
        edit.place = CircuitRing(*map).coordinate(along);
        QTEST(cornersText(findCorners(*map, {edit})), "corners");
        // A place on another circuit means nothing.
        edit.place = {edit.place.latitude() + 1.0, edit.place.longitude()};
        QCOMPARE(cornersText(findCorners(*map, {edit})), u"1R180 2L30 3R70 4L30 5R180"_s);
    }

    void keepsEdits()
    {
        const QTemporaryDir folder;
        const QString path = cornerFilePath(folder.filePath(u"My.Track.map"_s));
        QVERIFY(path.endsWith(u"/My.Track.corners"));
        QCOMPARE(int(readCornerFile(path).state), int(CornerFile::State::Missing));
        const CornerEdits edits {{CornerEdit::Kind::Rename, {46.25, -6.5}, u"Kurve \"Süd\""_s},
                                 {CornerEdit::Kind::Split, {-46.0, 6.0}, {}},
                                 {CornerEdit::Kind::Join, {0.0, 180.0}, {}},
                                 {CornerEdit::Kind::Delete, {1.0, 2.0}, {}}};
        QCOMPARE(writeCornerFile(path, edits), QString());
        const CornerFile file = readCornerFile(path);
        QCOMPARE(int(file.state), int(CornerFile::State::Good));
        QVERIFY(file.edits == edits);
    }

    void brokenFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("state");
        using State = CornerFile::State;
        const auto row = [](const char *name, const QByteArray &bytes, State state) {
            QTest::newRow(name) << bytes << int(state);
        };
        const QByteArray head = R"({"format":"zuno corners","version":1)";
        row("empty", "", State::Damaged);
        row("cut", head, State::Damaged);
        row("other", R"({"format":"else","version":1})", State::Damaged);
        row("later", R"({"format":"zuno corners","version":2})", State::Newer);
        row("no edits", head + "}", State::Good);
        row("unknown edit", head + R"(,"edits":[{"edit":"x","latitude":1,"longitude":1}]})",
            State::Good);
        row("no place", head + R"(,"edits":[{"edit":"join"},7]})", State::Good);
        row("off the earth", head + R"(,"edits":[{"edit":"join","latitude":91,"longitude":1}]})",
            State::Good);
    }
    void brokenFiles()
    {
        QFETCH(QByteArray, bytes);
        const CornerFile file = parseCorners(bytes);
        QTEST(int(file.state), "state");
        QVERIFY(file.edits.isEmpty());
    }

    void needsAnOutline()
    {
        Map empty;
        QVERIFY(findCorners(empty).isEmpty());
        Map thin;
        thin.addNamedPoint(u"Start"_s, {46.0, 6.0});
        for (int i = 0; i < 5; ++i)
            thin.addTrackPoint({46.0, 6.0});
        thin.addTrackPoint({46.001, 6.0});
        thin.computeGeometry();
        QVERIFY(findCorners(thin).isEmpty());
        // Around the world is no circuit.
        Map wide;
        wide.addNamedPoint(u"Start"_s, {46.0, 6.0});
        wide.addTrackPoint({46.0, 6.0});
        wide.addTrackPoint({-46.0, 6.0});
        wide.addTrackPoint({0.0, 100.0});
        wide.computeGeometry();
        QVERIFY(findCorners(wide).isEmpty());
    }

    // A receiver that jumps draws corners that nobody could have ridden in that time.
    void zigzagIsNotCredible()
    {
        const TestCircuit track(Oval);
        const auto jumping
            = [](double along) { return std::fmod(along, 60.0) < 30.0 ? 12.0 : -12.0; };
        QVERIFY(isCredible(findCorners(*track.map()), 45.0));
        QVERIFY(!isCredible(findCorners(*track.map(10.0, 0.0, jumping)), 45.0));
    }
};

QTEST_GUILESS_MAIN(TestCorners)
#include "tst_corners.moc"
