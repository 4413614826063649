// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>
#include <type_traits>

#include <QDataStream>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <cli/demolibrary.h>

using namespace zuno;

namespace {

constexpr float NoFix = 3.4028234663852886e38F;

struct Place
{
    double latitude = 0;
    double longitude = 0;
};

struct Sample
{
    quint32 time = 0;
    float longitude = 0;
    float latitude = 0;
    float speed = 0;
    float lean = 0;
    float drive = 0;
    float side = 0;

    [[nodiscard]] bool hasFix() const { return longitude != NoFix && latitude != NoFix; }
    [[nodiscard]] Place place() const { return {latitude, longitude}; }
};

/// A session file, read without the program's own reader.
struct Recording
{
    QString date;
    QString time;
    QList<Sample> samples;
    QList<double> front;
    QList<double> rear;
    quint8 newFlag = 0;
    quint8 listsFlag = 0;
    QStringList texts; ///< of the information block, none without one
    int temperature = 0;
    bool complete = false; ///< read to the last byte and not beyond
};

struct Course
{
    QMap<QString, Place> points;
    double gate = 0;
    QList<Place> outline;
    QList<double> corners;
    qint32 number = 0;
    bool complete = false;
};

class File
{
public:
    explicit File(const QString &path) : m_file(path), m_in(&m_file)
    {
        m_in.setByteOrder(QDataStream::LittleEndian);
        m_open = m_file.open(QIODevice::ReadOnly);
    }

    template<typename Number>
    [[nodiscard]] Number number()
    {
        m_in.setFloatingPointPrecision(std::is_same_v<Number, float>
                                           ? QDataStream::SinglePrecision
                                           : QDataStream::DoublePrecision);
        Number value {};
        m_in >> value;
        return value;
    }

    [[nodiscard]] QString text() { return text(number<quint8>()); }
    [[nodiscard]] QString text(int length) { return QString::fromLatin1(m_file.read(length)); }
    [[nodiscard]] bool atEnd() { return m_in.atEnd(); }
    [[nodiscard]] bool ok() const { return m_open && m_in.status() == QDataStream::Ok; }

private:
    QFile m_file;
    QDataStream m_in;
    bool m_open = false;
};

Sample readSample(File &file)
{
    Sample sample;
    sample.time = file.number<quint32>();
    for (float *value : {&sample.longitude, &sample.latitude, &sample.speed, &sample.lean,
                         &sample.drive, &sample.side})
        *value = file.number<float>();
    return sample;
}

QList<double> readReadings(File &file)
{
    QList<double> readings;
    const auto count = file.number<quint32>();
    for (quint32 i = 0; i < count && file.ok(); ++i) {
        const auto running = file.number<quint32>();
        const auto value = file.number<double>();
        readings.append(running == i ? value : -1); // -1 is out of every range
    }
    return readings;
}

Recording readSession(const QString &path)
{
    File file(path);
    Recording recording;
    if (file.text() != u"RA1" || file.text() < u"1.0.0.0")
        return recording;
    const auto count = file.number<quint32>();
    for (quint32 i = 0; i < count && file.ok(); ++i)
        recording.samples.append(readSample(file));
    for (auto words = file.number<quint32>(); words > 0 && file.ok(); --words)
        std::ignore = file.number<quint32>();
    recording.date = file.text();
    std::ignore = file.number<quint8>();
    recording.time = file.text();
    std::ignore = file.number<double>();
    recording.newFlag = file.number<quint8>();
    recording.listsFlag = file.number<quint8>();
    if (recording.listsFlag == 1) {
        recording.front = readReadings(file);
        recording.rear = readReadings(file);
    }
    if (!file.atEnd()) {
        recording.texts.append(recording.listsFlag == 1 ? file.text()
                                                        : file.text(recording.listsFlag));
        while (recording.texts.size() < 7)
            recording.texts.append(file.text());
        recording.temperature = file.number<quint8>();
        recording.texts.append({file.text(), file.text()});
        std::ignore = file.text(); // the numbers of invalid laps
    }
    recording.complete = file.ok() && file.atEnd();
    return recording;
}

Place readPlace(File &file)
{
    const auto longitude = file.number<double>();
    return {file.number<double>(), longitude};
}

Course readMap(const QString &path)
{
    File file(path);
    Course course;
    if (file.text() != u"MAP" || file.text() != u"1.0")
        return course;
    for (int i = 0; i < 4; ++i)
        course.corners.append(file.number<double>());
    course.number = file.number<qint32>();
    for (auto count = file.number<qint32>(); count > 0 && file.ok(); --count) {
        const QString name = file.text();
        course.points.insert(name, readPlace(file));
    }
    course.gate = file.number<double>();
    for (auto count = file.number<qint32>(); count > 0 && file.ok(); --count)
        course.outline.append(readPlace(file));
    course.complete = file.ok() && file.atEnd();
    return course;
}

/// Metres, on a flat ground: enough within a circuit and for telling near from far.
double distance(const Place &from, const Place &to)
{
    constexpr double metresPerDegree = 111195;
    const double middle = (from.latitude + to.latitude) / 2 * std::numbers::pi / 180;
    return metresPerDegree
           * std::hypot(to.latitude - from.latitude,
                        (to.longitude - from.longitude) * std::cos(middle));
}

/// Above 0 when the way from \a a by \a b to \a c turns left.
double leftTurn(const Place &a, const Place &b, const Place &c)
{
    const double shrink = std::cos(b.latitude * std::numbers::pi / 180);
    return shrink
           * ((b.longitude - a.longitude) * (c.latitude - b.latitude)
              - (c.longitude - b.longitude) * (b.latitude - a.latitude));
}

double lengthOf(const QList<Place> &line)
{
    double sum = 0;
    for (qsizetype i = 1; i < line.size(); ++i)
        sum += distance(line[i - 1], line[i]);
    return sum;
}

QMap<QString, QByteArray> contents(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator iterator(folder, QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        QFile file(iterator.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

} // namespace

class TestDemoLibrary final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sameBytesEveryTime_data();
    void sameBytesEveryTime();
    void leavesOtherFilesAlone_data();
    void leavesOtherFilesAlone();
    void refuses_data();
    void refuses();
    void circuit_data();
    void circuit();
    void ride_data();
    void ride();
    void suspension_data();
    void suspension();
    void unusualSessions();
    void largeLibrary_data();
    void largeLibrary();

private:
    [[nodiscard]] QString name(const QString &path) const
    {
        return QDir(m_folder.path()).relativeFilePath(path);
    }
    [[nodiscard]] double toNearestStart(const Place &place) const;

    QTemporaryDir m_folder;
    DemoResult m_demo;
};

/// Metres to the start point of the nearest circuit.
double TestDemoLibrary::toNearestStart(const Place &place) const
{
    double nearest = 1e9;
    for (const QString &path : m_demo.mapFiles)
        nearest = std::min(nearest, distance(place, readMap(path).points[QStringLiteral("Start")]));
    return nearest;
}

void TestDemoLibrary::initTestCase()
{
    m_demo = writeDemoLibrary(m_folder.path());
    QVERIFY2(m_demo.ok(), qPrintable(m_demo.error));
    QCOMPARE(m_demo.mapFiles.size(), 3);
    QVERIFY(m_demo.sessionFiles.size() >= 10);
    QCOMPARE(contents(m_folder.path()).size(), m_demo.mapFiles.size() + m_demo.sessionFiles.size());
}

void TestDemoLibrary::sameBytesEveryTime_data()
{
    QTest::addColumn<int>("sessions");
    QTest::addColumn<int>("samples");
    QTest::newRow("fixed demo") << 0 << 0;
    QTest::newRow("large library") << 7 << 500;
}

void TestDemoLibrary::sameBytesEveryTime()
{
    QFETCH(const int, sessions);
    QFETCH(const int, samples);
    const QTemporaryDir first;
    const QTemporaryDir second;
    QVERIFY(writeDemoLibrary(first.path(), {sessions, samples}).ok());
    QVERIFY(writeDemoLibrary(second.path(), {sessions, samples}).ok());
    const auto files = contents(first.path());
    QVERIFY(!files.isEmpty());
    QVERIFY(files == contents(second.path()));
    // Writing on top of itself finds everything in place.
    const DemoResult again = writeDemoLibrary(second.path(), {sessions, samples});
    QVERIFY2(again.ok(), qPrintable(again.error));
    QVERIFY(files == contents(second.path()));
}

void TestDemoLibrary::leavesOtherFilesAlone_data()
{
    QTest::addColumn<QString>("taken");
    QTest::addColumn<int>("byte"); // changed; -1: one more at the end
    const QString map = name(m_demo.mapFiles.first());
    const QString session = name(m_demo.sessionFiles.last());
    QTest::newRow("map, other byte") << map << 20;
    QTest::newRow("session, other byte") << session << 20;
    QTest::newRow("session, one byte more") << session << -1;
}

void TestDemoLibrary::leavesOtherFilesAlone()
{
    QFETCH(const QString, taken);
    QFETCH(const int, byte);
    QByteArray bytes = contents(m_folder.path()).value(taken);
    if (byte < 0)
        bytes.append('x');
    else
        bytes[byte] = static_cast<char>(bytes[byte] + 1);

    const QTemporaryDir folder;
    const QDir root(folder.path());
    QVERIFY(root.mkpath(QFileInfo(taken).path()));
    QFile file(root.filePath(taken));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();

    const DemoResult result = writeDemoLibrary(folder.path());
    QVERIFY(!result.ok());
    QVERIFY2(result.error.contains(file.fileName()), qPrintable(result.error));
    QVERIFY(!(result.mapFiles + result.sessionFiles).contains(file.fileName()));
    QVERIFY(contents(folder.path()).value(taken) == bytes);
}

void TestDemoLibrary::refuses_data()
{
    QTest::addColumn<bool>("withFolder");
    QTest::addColumn<int>("sessions");
    QTest::addColumn<int>("samples");
    QTest::newRow("no folder") << false << 0 << 0;
    QTest::newRow("sessions below 0") << true << -1 << 10;
    QTest::newRow("too many sessions") << true << 100001 << 10;
    QTest::newRow("samples below 0") << true << 1 << -1;
    QTest::newRow("too many samples") << true << 1 << 200001;
}

void TestDemoLibrary::refuses()
{
    QFETCH(const bool, withFolder);
    QFETCH(const int, sessions);
    QFETCH(const int, samples);
    const QTemporaryDir folder;
    const DemoResult result
        = writeDemoLibrary(withFolder ? folder.path() : QString(), {sessions, samples});
    QVERIFY(!result.ok());
    QVERIFY(result.mapFiles.isEmpty() && result.sessionFiles.isEmpty());
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestDemoLibrary::circuit_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("number");
    int number = 0;
    for (const QString &path : m_demo.mapFiles)
        QTest::newRow(qPrintable(name(path))) << path << ++number;
}

void TestDemoLibrary::circuit()
{
    QFETCH(const QString, path);
    QFETCH(const int, number);
    const Course course = readMap(path);
    QVERIFY(course.complete);
    QCOMPARE(course.number, number);

    const double length = lengthOf(course.outline);
    QVERIFY2(length > 2400 && length < 4600, qPrintable(QString::number(length)));
    const Place start = course.points[QStringLiteral("Start")];
    QVERIFY(distance(course.outline.first(), start) < 0.1);
    QVERIFY(distance(course.outline.last(), start) < 0.1);
    for (qsizetype i = 1; i < course.outline.size(); ++i) {
        const double step = distance(course.outline[i - 1], course.outline[i]);
        QVERIFY2(std::abs(step - 8) < 0.5, qPrintable(QString::number(step)));
    }
    for (const Place &point : course.outline) {
        QVERIFY(course.corners[0] <= point.latitude && point.latitude <= course.corners[1]);
        QVERIFY(course.corners[2] <= point.longitude && point.longitude <= course.corners[3]);
    }

    // Sectors are numbered along the track and the last ends at the line.
    const auto timing = course.points.size() - 1;
    QVERIFY(timing >= 4 && timing <= 6);
    QVERIFY(distance(course.points[QStringLiteral("Time %1").arg(timing - 1)], start) < 0.1);
    qsizetype before = 0;
    for (qsizetype i = 0; i + 1 < timing; ++i) {
        const Place gate = course.points[QStringLiteral("Time %1").arg(i)];
        const auto nearest = std::min_element(course.outline.begin(), course.outline.end(),
                                              [&gate](const Place &a, const Place &b) {
                                                  return distance(a, gate) < distance(b, gate);
                                              });
        QVERIFY(distance(*nearest, gate) < 4.5);
        QVERIFY(nearest - course.outline.begin() > before);
        before = nearest - course.outline.begin();
    }

    // No other piece of the track may lie where it would cross a gate: within three gates' reach,
    // only the piece through the gate is found, which is as long as that and a bend's detour.
    for (const Place &gate : std::as_const(course.points)) {
        const auto inReach = std::count_if(
            course.outline.begin(), course.outline.end() - 1,
            [&](const Place &point) { return distance(point, gate) < 3 * course.gate; });
        QVERIFY2(static_cast<double>(inReach) * 8 < 6 * course.gate * 1.3,
                 qPrintable(QString::number(inReach)));
    }
}

void TestDemoLibrary::ride_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : m_demo.sessionFiles)
        QTest::newRow(qPrintable(name(path))) << path;
}

void TestDemoLibrary::ride()
{
    QFETCH(const QString, path);
    const Recording recording = readSession(path);
    QVERIFY(recording.complete);
    const QDateTime begin = QDateTime::fromString(recording.date + u' ' + recording.time,
                                                  QStringLiteral("dd/MM/yyyy HH:mm:ss"));
    QVERIFY(QFileInfo(path).fileName().startsWith(begin.toString(u"yyyy-MM-dd HH'h'mm ")));

    const QList<Sample> &samples = recording.samples;
    QVERIFY(samples.size() > 5000);
    QCOMPARE(samples.first().speed < 1, true);
    QCOMPARE(samples.last().speed < 1, true);
    for (qsizetype i = 0; i < samples.size(); ++i) {
        const Sample &s = samples[i];
        QCOMPARE(s.time, static_cast<quint32>(100 * i));
        QVERIFY(s.speed >= 0 && s.speed < 290);
        QVERIFY(std::abs(s.lean) < 60 && s.drive > -1.3F && s.drive < 0.75F);
        // Leaning right and pushing right go together, as far as the noise lets one see it.
        QVERIFY(std::abs(std::tan(s.lean * std::numbers::pi / 180) - s.side) < 0.25);
    }

    double ridden = 0;
    double driven = 0;
    for (qsizetype i = 10; i < samples.size(); ++i) {
        const Sample &now = samples[i];
        const Sample &earlier = samples[i - 1];
        // What the accelerometer adds up to in a second is the change of speed (km/h).
        double gain = (samples[i - 10].drive + now.drive) / 2;
        for (qsizetype k = i - 9; k < i; ++k)
            gain += samples[k].drive;
        QVERIFY(std::abs(gain * 3.5316 - (now.speed - samples[i - 10].speed)) < 3);
        if (!now.hasFix() || !earlier.hasFix())
            continue;
        if (const Sample &middle = samples[i - 5];
            std::abs(middle.lean) > 30 && samples[i - 10].hasFix()) {
            const double turn = leftTurn(samples[i - 10].place(), middle.place(), now.place());
            QVERIFY2(middle.lean < 0 ? turn > 0 : turn < 0, qPrintable(QString::number(i)));
        }
        const double step = distance(earlier.place(), now.place());
        QVERIFY2(step < now.speed / 36 + 1.5, qPrintable(QString::number(i)));
        if (now.speed > 30) { // when standing, only noise is ridden
            ridden += step;
            driven += (now.speed + earlier.speed) / 2 / 36;
        }
    }
    QVERIFY2(std::abs(ridden / driven - 1) < 0.01, qPrintable(QString::number(ridden / driven)));
}

void TestDemoLibrary::suspension_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : m_demo.sessionFiles) {
        if (readSession(path).listsFlag == 1)
            QTest::newRow(qPrintable(name(path))) << path;
    }
}

void TestDemoLibrary::suspension()
{
    QFETCH(const QString, path);
    const Recording recording = readSession(path);
    // A block of ten belongs to a sample only when the list goes on after it.
    QCOMPARE(recording.front.size(), 10 * recording.samples.size() + 1);
    QCOMPARE(recording.rear.size(), recording.front.size());
    const auto [frontLow, frontHigh]
        = std::minmax_element(recording.front.begin(), recording.front.end());
    const auto [rearLow, rearHigh]
        = std::minmax_element(recording.rear.begin(), recording.rear.end());
    QVERIFY(*frontLow >= 0 && *frontHigh <= 130 && *frontHigh - *frontLow > 50);
    QVERIFY(*rearLow >= 0 && *rearHigh <= 70 && *rearHigh - *rearLow > 25);

    // The front dives under hard braking and rises under power; the rear does the opposite.
    double dive = 0;
    double squat = 0;
    int braking = 0;
    int driving = 0;
    for (qsizetype i = 0; i < recording.samples.size(); ++i) {
        const double difference = recording.front[10 * i + 5] - recording.rear[10 * i + 5];
        if (recording.samples[i].drive < -0.6F) {
            dive += difference;
            ++braking;
        } else if (recording.samples[i].drive > 0.3F) {
            squat += difference;
            ++driving;
        }
    }
    QVERIFY(braking > 100 && driving > 100);
    QVERIFY(dive / braking > squat / driving + 40);
}

void TestDemoLibrary::unusualSessions()
{
    int neverOpened = 0;
    int withoutBlock = 0;
    int withoutLists = 0;
    int unknownTemperature = 0;
    int farAway = 0;
    QList<qsizetype> gaps;
    for (const QString &path : m_demo.sessionFiles) {
        const Recording recording = readSession(path);
        neverOpened += recording.newFlag;
        withoutBlock += recording.texts.isEmpty() ? 1 : 0;
        withoutLists += recording.listsFlag == 0 && !recording.texts.isEmpty() ? 1 : 0;
        unknownTemperature += recording.temperature == 99 ? 1 : 0;
        const auto lost = std::count_if(recording.samples.begin(), recording.samples.end(),
                                        [](const Sample &s) { return !s.hasFix(); });
        if (lost > 0)
            gaps.append(lost);
        const double away = toNearestStart(recording.samples.first().place());
        farAway += away > 50000 ? 1 : 0;
        // Detection wants a first fix in the paddock: near the line, not on it.
        QVERIFY2(away > 50000 || (away > 100 && away < 300), qPrintable(path));
        for (const QString &text : recording.texts)
            QVERIFY(std::all_of(text.begin(), text.end(), [](QChar c) { return c < u'\x7f'; }));
    }
    QCOMPARE(neverOpened, 1);
    QCOMPARE(withoutBlock, 1);
    QCOMPARE(withoutLists, 1);
    QCOMPARE(unknownTemperature, 1);
    QCOMPARE(farAway, 1);
    QCOMPARE(gaps, QList<qsizetype> {80});
}

void TestDemoLibrary::largeLibrary_data()
{
    QTest::addColumn<int>("sessions");
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("folders");
    QTest::newRow("one sample") << 1 << 1 << 1;
    QTest::newRow("a full folder") << 20 << 100 << 1;
    QTest::newRow("one more") << 21 << 100 << 2;
    QTest::newRow("longer than the in lap") << 6 << 9000 << 1;
}

void TestDemoLibrary::largeLibrary()
{
    QFETCH(const int, sessions);
    QFETCH(const int, samples);
    QFETCH(const int, folders);
    const QTemporaryDir folder;
    const DemoResult result = writeDemoLibrary(folder.path(), {sessions, samples});
    QVERIFY2(result.ok(), qPrintable(result.error));
    QCOMPARE(result.sessionFiles.size(), sessions);
    QCOMPARE(result.mapFiles.size(), 3);
    const QDir devices(folder.filePath(QStringLiteral("RemoteDevice")));
    QCOMPARE(devices.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), folders);
    QSet<QString> names; // the program remembers a session's map by its file name alone
    for (const QString &path : result.sessionFiles) {
        const Recording recording = readSession(path);
        QVERIFY(recording.complete);
        QCOMPARE(recording.samples.size(), samples);
        names.insert(QFileInfo(path).fileName());
    }
    QCOMPARE(names.size(), sessions);
}

QTEST_GUILESS_MAIN(TestDemoLibrary)
#include "tst_demolibrary.moc"
