// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// RaceChrono's own files: a zip of session.json and a file of bare numbers for each channel,
// channel_<device>_<id>_<fragment>_<kind>_<type>.

#include <algorithm>
#include <cmath>
#include <map>

#include <QCoreApplication>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <formats/convert/positionfilter.h>
#include <formats/readers/readers.h>
#include <formats/readers/ziparchive.h>

#include <QtEndian>

namespace zuno {

namespace {

constexpr qint64 LargestFile = 100LL * 1024 * 1024;
constexpr qint64 LargestEntry = 64LL * 1024 * 1024;
constexpr double UnitsPerDegree = 6000000;
constexpr double FirstTime = 1e11; // milliseconds of 1973

/// The channels of one receiver that are told apart.
struct Receiver
{
    QByteArray times; ///< i64, milliseconds since 1970
    QByteArray places; ///< pairs of i32
    QByteArray speeds; ///< i32, millimetres a second
};

template<typename Number>
double numberAt(const QByteArray &bytes, qsizetype i)
{
    return static_cast<double>(
        qFromLittleEndian<Number>(bytes.constData() + i * qsizetype(sizeof(Number))));
}

std::vector<RawRow> rowsOf(const Receiver &receiver, bool latitudeFirst)
{
    const qsizetype count = std::min(receiver.times.size() / 8, receiver.places.size() / 8);
    std::vector<RawRow> rows(static_cast<std::size_t>(count));
    for (qsizetype i = 0; i < count; ++i) {
        RawRow &row = rows[static_cast<std::size_t>(i)];
        row.time = numberAt<qint64>(receiver.times, i) / 1000;
        const double first = numberAt<qint32>(receiver.places, 2 * i) / UnitsPerDegree;
        const double second = numberAt<qint32>(receiver.places, 2 * i + 1) / UnitsPerDegree;
        row.latitude = latitudeFirst ? first : second;
        row.longitude = latitudeFirst ? second : first;
        if (4 * (i + 1) <= receiver.speeds.size())
            row.speed = numberAt<qint32>(receiver.speeds, i) / 1000;
    }
    return rows;
}

// How far the way by positions is from the way by speeds; a latitude that is none is far.
double disagreement(const std::vector<RawRow> &rows)
{
    double byPositions = 0;
    double bySpeeds = 0;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const double step = rows[i].time - rows[i - 1].time;
        if (std::abs(rows[i].latitude) > 90)
            return 1e9;
        if (!(step > 0 && step < 1) || std::isnan(rows[i].speed))
            continue;
        const Fix a {0, rows[i - 1].latitude, rows[i - 1].longitude};
        const Fix b {0, rows[i].latitude, rows[i].longitude};
        byPositions += metresBetween(a, b);
        bySpeeds += rows[i].speed * step;
    }
    return bySpeeds > 0 ? std::abs(std::log(byPositions / bySpeeds)) : 0.0;
}

// Nobody says which of a pair comes first, but only one order gives ways as long as the speeds.
std::vector<RawRow> likelierRows(const Receiver &receiver)
{
    std::vector<RawRow> latitudeFirst = rowsOf(receiver, true);
    std::vector<RawRow> longitudeFirst = rowsOf(receiver, false);
    return disagreement(latitudeFirst) <= disagreement(longitudeFirst) ? latitudeFirst
                                                                       : longitudeFirst;
}

// Laps are objects that tell when they start and finish; names differ by version.
void takeLaps(const QJsonArray &laps, RideFacts &facts)
{
    for (const auto lap : laps) {
        const QJsonObject object = lap.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            const double time = it.value().toDouble();
            const bool isEnd = it.key().contains(u"start", Qt::CaseInsensitive)
                               || it.key().contains(u"finish", Qt::CaseInsensitive);
            if (isEnd && time > FirstTime && time < 1e14)
                facts.lapMarks.push_back(time / 1000);
        }
    }
    std::sort(facts.lapMarks.begin(), facts.lapMarks.end());
    facts.lapMarks.erase(std::unique(facts.lapMarks.begin(), facts.lapMarks.end()),
                         facts.lapMarks.end());
}

void takeSession(const QByteArray &json, RideFacts &facts)
{
    const QJsonObject session = QJsonDocument::fromJson(json).object();
    const auto text = [&session](std::initializer_list<const char *> names) {
        for (const char *name : names) {
            QString found = session.value(QLatin1String(name)).toString();
            if (!found.isEmpty())
                return found;
        }
        return QString();
    };
    facts.circuit = text({"trackName", "track"});
    facts.event = text({"title", "sessionTitle", "name"});
    facts.driver = text({"driverName", "driver"});
    facts.vehicle = text({"vehicleName", "vehicle"});
    facts.notes = text({"note", "notes"});
    takeLaps(session.value(QLatin1String("laps")).toArray(), facts);
}

// Receivers by their names without kind and type.
std::map<QByteArray, Receiver> receiversOf(ZipArchive &archive)
{
    std::map<QByteArray, Receiver> receivers;
    for (const QByteArray &name : archive.names()) {
        const QList<QByteArray> parts = name.split('/').last().split('_');
        if (parts.size() != 6 || parts[0] != "channel")
            continue;
        const QByteArray key = parts.mid(0, 4).join('_');
        const QByteArray kind = parts[4] + '_' + parts[5];
        if (kind == "1_1")
            receivers[key].times = archive.read(name, LargestEntry);
        else if (kind == "3_1")
            receivers[key].places = archive.read(name, LargestEntry);
        else if (kind == "4_0")
            receivers[key].speeds = archive.read(name, LargestEntry);
    }
    return receivers;
}

// The receiver with the most positions of all; of it, all fragments.
std::vector<RawRow> allRows(const std::map<QByteArray, Receiver> &receivers)
{
    std::map<QByteArray, std::vector<RawRow>> rows;
    for (const auto &[key, receiver] : receivers) {
        const QByteArray device = key.left(key.lastIndexOf('_'));
        const std::vector<RawRow> more = likelierRows(receiver);
        rows[device].insert(rows[device].end(), more.begin(), more.end());
    }
    const auto most = std::max_element(rows.begin(), rows.end(), [](const auto &a, const auto &b) {
        return a.second.size() < b.second.size();
    });
    if (most == rows.end())
        return {};
    std::stable_sort(most->second.begin(), most->second.end(),
                     [](const RawRow &a, const RawRow &b) { return a.time < b.time; });
    return std::move(most->second);
}

} // namespace

bool looksLikeRaceChronoArchive(QByteArrayView head)
{
    return head.startsWith("PK\x03\x04")
           && (head.contains("session.json") || head.contains("channel_"));
}

ReadEnd readRaceChronoArchive(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    if (device.size() > LargestFile)
        return {QCoreApplication::translate("Formats", "it is too large")};
    ZipArchive archive(device.readAll());
    facts.logger = QStringLiteral("RaceChrono");
    facts.clockZero = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    if (!archive.isOpen())
        return {QCoreApplication::translate("Formats", "the archive is damaged")};
    for (const QByteArray &name : archive.names()) {
        if (name.endsWith("session.json"))
            takeSession(archive.read(name, LargestEntry), facts);
    }
    const std::vector<RawRow> rows = allRows(receiversOf(archive));
    if (rows.empty())
        return {QCoreApplication::translate("Formats", "there is no position in it")};
    for (const RawRow &row : rows)
        sink.take(row);
    return {};
}

} // namespace zuno
