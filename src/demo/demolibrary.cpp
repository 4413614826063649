// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <demo/demolibrary.h>

#include <algorithm>
#include <optional>

#include <QDateTime>
#include <QDir>
#include <QTimeZone>

#include <demo/democircuit.h>
#include <demo/demorider.h>
#include <demo/demowriter.h>

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

/// An outing of the demo.
struct DemoSession
{
    QStringView folder;
    QStringView begin; ///< ISO date and time in UTC, so that no time zone of a machine has a say
    int circuit = 0; ///< or OnTheHillRoad
    RiderIndex rider = Laura;
    int laps = 0;
    double grip = 1;
    QStringView condition;
    int temperature = 20;
    QStringView tyres;
    QStringView event;
    QStringView notes;
    int invalidLap = 0; ///< as the program counts, the out lap being lap 1; 0: none
    int special = Plain; ///< of Special
    Habit habit = {};
};

constexpr QStringView ByLaura = u"ZUNO Laura (00.1B.DC.0F.52.A1)";
constexpr QStringView ByLauraInSpring = u"ZUNO Laura (00.1B.DC.0F.52.A1)/Heide Fr\u00FChling";
constexpr QStringView ByJonas = u"ZUNO Jonas (00.1B.DC.0F.53.07)";
constexpr QStringView Imported = u"Imported Sessions";

constexpr DemoSession FixedDemo[] = {
    {ByLaura, u"2026-04-18T10:12:30Z", 0, Laura, 5, 1, u"Dry", 24, u"Slick soft", u"Season opening",
     u"First outing of the year. Fork two clicks softer than last autumn.", 0, Suspension},
    {ByLaura, u"2026-04-18T14:05:02Z", 0, Laura, 7, 1.02, u"Dry", 33, u"Slick soft",
     u"Season opening", u"Lap 5 struck out for track limits. Everything else felt easy.", 5},
    {ByJonas, u"2026-04-18T11:20:47Z", 0, Jonas, 6, 1, u"Dry", 27, u"Sport 120/70 180/55",
     u"Season opening", u"Late on the throttle out of the second corner.\nTry a shorter gear."},
    {ByJonas, u"2026-04-19T09:41:15Z", 0, Jonas, 5, 0.84, u"Damp", 14, u"Sport 120/70 180/55",
     u"Season opening", u"Damp patches under the trees until ten o'clock."},
    {ByLauraInSpring, u"2026-05-23T10:30:08Z", 1, Laura, 4, 0.9, u"Mixte", 19, u"Slick medium",
     u"Heath track days", u"Drying line, still wet before the last corner."},
    {ByLauraInSpring,
     u"2026-05-23T15:11:54Z",
     1,
     Laura,
     6,
     1,
     u"Dry",
     38,
     u"Slick medium",
     u"Heath track days",
     u"Rear spring one step harder, holds the line better.",
     0,
     Suspension,
     {Habit::Kind::LateOnGas, 3079, 250, 55}},
    {ByJonas, u"2026-05-24T09:18:20Z", 1, Jonas, 5, 0.72, u"Wet", 13, u"Rain", u"Heath track days",
     u"Rain all morning. Position lost for some seconds in lap 4.", 0, LostFix},
    {Imported, u"2026-05-24T14:33:41Z", 1, Pieter, 5, 1, u"Dry", 99, u"Slick soft",
     u"Heath track days", u"Received from Pieter for comparison."},
    {ByJonas, u"2026-06-06T08:15:00Z", OnTheHillRoad, Jonas, 0, 1, u"Dry", 18,
     u"Sport 120/70 180/55", u"Ride in the hills", u"No circuit, only the way home."},
    {Imported,
     u"2026-07-11T10:02:33Z",
     2,
     Pieter,
     9,
     1,
     u"Dry",
     19,
     u"Slick soft",
     u"Winter escape",
     u"Long run on one set of tyres.",
     0,
     NoCircuitName,
     {Habit::Kind::SlowInCorner, 1791, 70, 10}},
    {Imported, u"2026-07-11T13:45:10Z", 2, Pieter, 6, 0.98, u"", 20, u"", u"", u"", 0, NoBlock},
    {ByLaura, u"2026-07-12T09:27:05Z", 2, Laura, 8, 1, u"Dry", 20, u"", u"", u"", 0,
     Suspension | NeverOpened},
    {ByLaura,
     u"2026-07-12T15:50:26Z",
     2,
     Laura,
     7,
     1.02,
     u"Dry",
     26,
     u"Slick soft",
     u"Winter escape",
     u"Best feeling of the trip. Braking point at the first corner 10 m later.",
     0,
     Plain,
     {Habit::Kind::BrakesEarly, 425, 420, 10}},
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

/// "2026-04-18 10h12 Valmora.ra1"
[[nodiscard]] QString fileName(const QDateTime &begin, const QString &place)
{
    return begin.toString(u"yyyy-MM-dd HH'h'mm ") + place + QStringLiteral(".ra1");
}

[[nodiscard]] QString timeText(int milliseconds)
{
    return QTime::fromMSecsSinceStartOfDay(milliseconds).toString(u"mm:ss.zzz");
}

[[nodiscard]] QString bestLap(const Ride &ride, int invalidLap)
{
    int best = 0;
    for (qsizetype i = 0; i < ride.sectorTimes.size(); ++i) {
        int time = 0;
        for (const int sector : ride.sectorTimes[i])
            time += sector;
        // Lap 1 of a recording is the out lap.
        if (i + 2 != invalidLap && (best == 0 || time < best))
            best = time;
    }
    return best == 0 ? QString() : timeText(best);
}

[[nodiscard]] QString idealTime(const Ride &ride, int invalidLap)
{
    QList<int> best;
    for (qsizetype i = 0; i < ride.sectorTimes.size(); ++i) {
        if (i + 2 == invalidLap)
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
    information.condition = session.condition.toString();
    information.temperature = session.temperature;
    information.tyres = session.tyres.toString();
    information.event = session.event.toString();
    information.notes = session.notes.toString();
    if (session.invalidLap > 0)
        information.invalidLaps.append(session.invalidLap);
    if (!(session.special & NoCircuitName))
        information.circuit = placeName(session);
    if (!(session.special & NeverOpened)) { // the program fills these in when it shows a session
        information.bestLap = bestLap(ride, session.invalidLap);
        information.idealTime = idealTime(ride, session.invalidLap);
    }
    return information;
}

[[nodiscard]] Ride ride(const DemoSession &session, quint64 seed)
{
    const Machine &machine = riders()[session.rider].machine;
    const Outing outing {session.laps,
                         session.grip,
                         (session.special & Suspension) != 0,
                         session.special & LostFix ? 3 : 0,
                         seed,
                         session.habit};
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
    for (const DemoSession &session : FixedDemo) {
        if (!library.ok())
            return;
        const Ride ridden = ride(session, seed += 100);
        std::optional<Information> information;
        if (!(session.special & NoBlock))
            information = describe(session, ridden);
        const QDateTime begin = QDateTime::fromString(session.begin.toString(), Qt::ISODate);
        const QString name = session.folder.toString() + u'/' + fileName(begin, placeName(session));
        const bool neverOpened = (session.special & NeverOpened) != 0;
        library.addSession(name, encodeSession(ridden, begin, neverOpened, information));
    }
}

/// Cuts the end off a ride: the samples and the laps that are not ridden to their end any more.
void shorten(Ride &ride, int samples)
{
    ride.samples.resize(static_cast<std::size_t>(samples));
    int clock = ride.outLapTime;
    qsizetype laps = 0;
    while (laps < ride.sectorTimes.size()) {
        for (const int sector : ride.sectorTimes[laps])
            clock += sector;
        if (clock > (samples - 1) * 100)
            break;
        ++laps;
    }
    ride.sectorTimes.resize(laps);
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
        shorten(ridden, samples);
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
        session.rider = static_cast<RiderIndex>(i / 2);
        session.condition = u"Dry";
        session.event = u"Track day";
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
