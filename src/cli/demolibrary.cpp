// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cli/demolibrary.h>

#include <algorithm>
#include <cmath>

#include <QDir>
#include <QTime>
#include <QTimeZone>

#include <cli/democircuit.h>
#include <cli/demorider.h>
#include <cli/demowriter.h>

namespace zuno {

namespace {

using namespace demo;

constexpr int OnTheHillRoad = -1;
constexpr int SessionsPerFolder = 20;
constexpr int MostSessions = 100000;
constexpr int MostSamples = 200000;
constexpr int UsualSamples = 12000;

struct Rider
{
    QString name;
    QString vehicle;
    Machine machine;
};

enum RiderIndex { Laura, Jonas, Pieter };

enum Special {
    Plain = 0,
    Suspension = 1, ///< the logger had the two suspension sensors
    NeverOpened = 2,
    LostFix = 4,
    NoBlock = 8, ///< from before there was an information block
    NoCircuitName = 16,
};

/// A row of the fixed demo.
struct DemoSession
{
    QString folder;
    QDateTime begin;
    int circuit = 0; ///< or OnTheHillRoad
    RiderIndex rider = Laura;
    int laps = 0;
    double grip = 1;
    QString condition;
    int temperature = 20;
    QString tyres;
    QString event;
    QString notes;
    QList<int> invalidLaps = {};
    int special = Plain; ///< of Special
};

[[nodiscard]] const QList<Rider> &riders()
{
    static const QList<Rider> all {
        {QStringLiteral("Laura Brandt"),
         QStringLiteral("Supersport 600"),
         {1.19, 0.98, 0.58, 330, 0.00105, 74}},
        {QStringLiteral("Jonas Weber"),
         QStringLiteral("Naked 900"),
         {1.02, 0.86, 0.54, 300, 0.0013, 68}},
        {QStringLiteral("Pieter Vos"),
         QStringLiteral("Superbike 1000"),
         {1.13, 1.0, 0.62, 440, 0.001, 79}},
    };
    return all;
}

/// In UTC, so that no time zone of the machine has a say.
[[nodiscard]] QDateTime moment(int month, int day, int hour, int minute, int second)
{
    return {QDate(2026, month, day), QTime(hour, minute, second), QTimeZone::utc()};
}

[[nodiscard]] QList<DemoSession> demoSessions()
{
    const QString laura = QStringLiteral("ZUNO Laura (00.1B.DC.0F.52.A1)");
    const QString spring = laura + QStringLiteral("/Heide Fr\u00FChling");
    const QString jonas = QStringLiteral("ZUNO Jonas (00.1B.DC.0F.53.07)");
    const QString imported = QStringLiteral("Imported Sessions");
    const QString dry = QStringLiteral("Dry");
    const QString damp = QStringLiteral("Damp");
    const QString wet = QStringLiteral("Wet");
    const QString mixed = QStringLiteral("Mixte");
    const QString opening = QStringLiteral("Season opening");
    const QString heath = QStringLiteral("Heath track days");
    const QString winter = QStringLiteral("Winter escape");
    const QString soft = QStringLiteral("Slick soft");
    const QString medium = QStringLiteral("Slick medium");
    const QString sport = QStringLiteral("Sport 120/70 180/55");
    const QString rain = QStringLiteral("Rain");
    return {
        {laura,
         moment(4, 18, 10, 12, 30),
         0,
         Laura,
         5,
         1,
         dry,
         24,
         soft,
         opening,
         QStringLiteral("First outing of the year. Fork two clicks softer than last autumn."),
         {},
         Suspension},
        {laura,
         moment(4, 18, 14, 5, 2),
         0,
         Laura,
         7,
         1.02,
         dry,
         33,
         soft,
         opening,
         QStringLiteral("Lap 5 struck out for track limits. Everything else felt easy."),
         {5}},
        {jonas, moment(4, 18, 11, 20, 47), 0, Jonas, 6, 1, dry, 27, sport, opening,
         QStringLiteral("Late on the throttle out of the second corner.\nTry a shorter gear.")},
        {jonas, moment(4, 19, 9, 41, 15), 0, Jonas, 5, 0.84, damp, 14, sport, opening,
         QStringLiteral("Damp patches under the trees until ten o'clock.")},
        {spring, moment(5, 23, 10, 30, 8), 1, Laura, 4, 0.9, mixed, 19, medium, heath,
         QStringLiteral("Drying line, still wet before the last corner.")},
        {spring,
         moment(5, 23, 15, 11, 54),
         1,
         Laura,
         6,
         1,
         dry,
         38,
         medium,
         heath,
         QStringLiteral("Rear spring one step harder, holds the line better."),
         {},
         Suspension},
        {jonas,
         moment(5, 24, 9, 18, 20),
         1,
         Jonas,
         5,
         0.72,
         wet,
         13,
         rain,
         heath,
         QStringLiteral("Rain all morning. Position lost for some seconds in lap 4."),
         {},
         LostFix},
        {imported, moment(5, 24, 14, 33, 41), 1, Pieter, 5, 1, dry, 99, soft, heath,
         QStringLiteral("Received from Pieter for comparison.")},
        {jonas, moment(6, 6, 8, 15, 0), OnTheHillRoad, Jonas, 0, 1, dry, 18, sport,
         QStringLiteral("Ride in the hills"), QStringLiteral("No circuit, only the way home.")},
        {imported,
         moment(7, 11, 10, 2, 33),
         2,
         Pieter,
         9,
         1,
         dry,
         19,
         soft,
         winter,
         QStringLiteral("Long run on one set of tyres."),
         {},
         NoCircuitName},
        {imported, moment(7, 11, 13, 45, 10), 2, Pieter, 6, 0.98, {}, 20, {}, {}, {}, {}, NoBlock},
        {laura,
         moment(7, 12, 9, 27, 5),
         2,
         Laura,
         8,
         1,
         dry,
         20,
         {},
         {},
         {},
         {},
         Suspension | NeverOpened},
        {laura, moment(7, 12, 15, 50, 26), 2, Laura, 7, 1.02, dry, 26, soft, winter,
         QStringLiteral("Best feeling of the trip. Braking point at the first corner 10 m later.")},
    };
}

/// "2026-04-18 10h12 Valmora.ra1"
[[nodiscard]] QString fileName(const QDateTime &begin, const QString &place)
{
    return begin.toString(u"yyyy-MM-dd HH'h'mm ") + place + QStringLiteral(".ra1");
}

[[nodiscard]] QString timeText(int milliseconds)
{
    return QTime::fromMSecsSinceStartOfDay(milliseconds).toString(u"mm:ss.zzz");
}

[[nodiscard]] QString bestLap(const Ride &ride, const QList<int> &invalidLaps)
{
    int best = 0;
    for (qsizetype i = 0; i < ride.sectorTimes.size(); ++i) {
        int time = 0;
        for (const int sector : ride.sectorTimes[i])
            time += sector;
        // Lap 1 of a recording is the out lap.
        if (!invalidLaps.contains(i + 2) && (best == 0 || time < best))
            best = time;
    }
    return best == 0 ? QString() : timeText(best);
}

[[nodiscard]] QString idealTime(const Ride &ride, const QList<int> &invalidLaps)
{
    QList<int> best;
    for (qsizetype i = 0; i < ride.sectorTimes.size(); ++i) {
        if (invalidLaps.contains(i + 2))
            continue;
        const QList<int> &times = ride.sectorTimes[i];
        if (best.isEmpty())
            best = times;
        for (qsizetype k = 0; k < times.size(); ++k)
            best[k] = std::min(best[k], times[k]);
    }
    int sum = -1; // as the program counts it: one millisecond less
    for (const int time : best)
        sum += time;
    return best.isEmpty() ? QString() : timeText(sum);
}

[[nodiscard]] QString placeName(const DemoSession &session)
{
    return session.circuit == OnTheHillRoad ? QStringLiteral("Hill road")
                                            : circuits()[session.circuit].name;
}

[[nodiscard]] Information describe(const DemoSession &session, const Ride &ride)
{
    const Rider &rider = riders()[session.rider];
    Information information;
    information.driver = rider.name;
    information.vehicle = rider.vehicle;
    information.condition = session.condition;
    information.temperature = session.temperature;
    information.tyres = session.tyres;
    information.event = session.event;
    information.notes = session.notes;
    information.invalidLaps = session.invalidLaps;
    if (!(session.special & NoCircuitName))
        information.circuit = placeName(session);
    if (!(session.special & NeverOpened)) { // the program fills these in when it shows a session
        information.bestLap = bestLap(ride, session.invalidLaps);
        information.idealTime = idealTime(ride, session.invalidLaps);
    }
    return information;
}

[[nodiscard]] Ride ride(const DemoSession &session, quint64 seed)
{
    const Machine &machine = riders()[session.rider].machine;
    const Outing outing {session.laps, session.grip, (session.special & Suspension) != 0,
                         session.special & LostFix ? 3 : 0, seed};
    if (session.circuit != OnTheHillRoad)
        return rideCircuit(circuits()[session.circuit], machine, outing);
    // On the road nobody rides as on a track: half the lean, soft brakes, and the law.
    constexpr Machine onTheRoad {0.5, 0.35, 0.28, 120, 0.0013, 27};
    return rideRoad(hillRoad(14600), hillRoadOrigin(), onTheRoad, outing);
}

/// Writes files below a folder; after the first failure it does nothing more.
class Library
{
public:
    explicit Library(const QString &folder) : m_folder(folder) {}

    void addMap(const QString &name, const QByteArray &bytes)
    {
        add(m_result.mapFiles, QStringLiteral("Map/") + name, bytes);
    }
    void addSession(const QString &name, const QByteArray &bytes)
    {
        add(m_result.sessionFiles, QStringLiteral("RemoteDevice/") + name, bytes);
    }
    [[nodiscard]] const DemoResult &result() const { return m_result; }
    [[nodiscard]] bool ok() const { return m_result.ok(); }

private:
    void add(QStringList &files, const QString &name, const QByteArray &bytes)
    {
        if (!ok())
            return;
        const QString path = m_folder.filePath(name);
        m_result.error = saveNewFile(path, bytes);
        if (ok())
            files.append(path);
    }

    QDir m_folder;
    DemoResult m_result;
};

void writeMaps(Library &library)
{
    int number = 0;
    for (const Circuit &circuit : circuits()) {
        const QString name = QStringLiteral("%1/%2.map").arg(circuit.country, circuit.name);
        library.addMap(name, encodeMap(circuit, ++number));
    }
}

void writeFixedDemo(Library &library)
{
    quint64 seed = 2026;
    for (const DemoSession &session : demoSessions()) {
        if (!library.ok())
            return;
        const Ride ridden = ride(session, seed += 100);
        std::optional<Information> information;
        if (!(session.special & NoBlock))
            information = describe(session, ridden);
        const QString name = session.folder + u'/' + fileName(session.begin, placeName(session));
        const bool neverOpened = (session.special & NeverOpened) != 0;
        library.addSession(name, encodeSession(ridden, session.begin, neverOpened, information));
    }
}

/// A handful of rides on every circuit, cut to the same number of samples.
[[nodiscard]] QList<Ride> longRides(const QList<DemoSession> &sessions, int samples)
{
    QList<Ride> rides;
    for (const DemoSession &session : sessions) {
        DemoSession longer = session;
        // Nobody averages 60 m/s, so there are enough laps.
        const double lap = circuits()[session.circuit].path().length();
        longer.laps = 1 + static_cast<int>(samples * 0.1 * 60 / lap);
        Ride ridden = ride(longer, 7000 + 100 * static_cast<quint64>(rides.size()));
        ridden.samples.resize(static_cast<std::size_t>(samples));
        rides.append(ridden);
    }
    return rides;
}

/// Eight sessions a day from New Year 2020 on, twenty in a folder; the rides repeat.
void writeLargeLibrary(Library &library, int count, int samples)
{
    QList<DemoSession> sessions;
    for (int i = 0; i < 6; ++i) {
        DemoSession session;
        session.circuit = i % 3;
        session.rider = static_cast<RiderIndex>(i % 2 == 0 ? i / 2 : 2 - i / 2);
        session.condition = QStringLiteral("Dry");
        session.event = QStringLiteral("Track day");
        sessions.append(session);
    }
    const QList<Ride> rides = longRides(sessions, samples);
    for (int i = 0; i < count && library.ok(); ++i) {
        const DemoSession &session = sessions[i % sessions.size()];
        const QDateTime begin(QDate(2020, 1, 1).addDays(i / 8), QTime(9 + i % 8, i % 60),
                              QTimeZone::utc());
        const Ride &ridden = rides[i % rides.size()];
        const QString name = QStringLiteral("Track days %1/")
                                 .arg(1 + i / SessionsPerFolder, 4, 10, QLatin1Char('0'))
                             + fileName(begin, placeName(session));
        library.addSession(name, encodeSession(ridden, begin, false, describe(session, ridden)));
    }
}

} // namespace

DemoResult writeDemoLibrary(const QString &folder, const DemoOptions &options)
{
    DemoResult refused;
    if (folder.isEmpty())
        refused.error = QStringLiteral("no folder was given");
    else if (options.sessions < 0 || options.sessions > MostSessions)
        refused.error = QStringLiteral("the number of sessions must be 0 to %1").arg(MostSessions);
    else if (options.samples < 0 || options.samples > MostSamples)
        refused.error = QStringLiteral("the number of samples must be 0 to %1").arg(MostSamples);
    if (!refused.ok())
        return refused;

    Library library(folder);
    const int samples = options.samples == 0 ? UsualSamples : options.samples;
    writeMaps(library);
    if (options.sessions == 0)
        writeFixedDemo(library);
    else
        writeLargeLibrary(library, options.sessions, samples);
    return library.result();
}

} // namespace zuno
