// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <demo/demowriter.h>

#include <algorithm>
#include <cmath>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QtEndian>

namespace zuno::demo {

namespace {

/// Metres around a timing point within which a lap or sector may end. At 10 Hz and 280 km/h samples
/// are 8 m apart, so one always falls inside, also for a rider at the edge of the track.
constexpr double GateSize = 12;

/// Little-endian, as the logger writes.
class Bytes
{
public:
    template<typename Number>
    void add(Number value)
    {
        const Number little = qToLittleEndian(value);
        m_data.append(reinterpret_cast<const char *>(&little), sizeof little);
    }

    void addText(const QString &text)
    {
        const QByteArray letters = text.toLatin1().left(255);
        add(static_cast<quint8>(letters.size()));
        m_data.append(letters);
    }

    void reserve(qsizetype size) { m_data.reserve(size); }
    [[nodiscard]] const QByteArray &data() const { return m_data; }

private:
    QByteArray m_data;
};

void addSample(Bytes &bytes, const Sample &sample)
{
    bytes.add(sample.time);
    for (const float value :
         {sample.longitude, sample.latitude, sample.speed, sample.lean, sample.drive, sample.side})
        bytes.add(value);
}

void addReadings(Bytes &bytes, const std::vector<double> &readings)
{
    bytes.add(static_cast<quint32>(readings.size()));
    quint32 number = 0;
    for (const double reading : readings) {
        bytes.add(number++);
        bytes.add(reading);
    }
}

void addInformation(Bytes &bytes, const Information &information)
{
    for (const QString &text :
         {information.circuit, information.event, information.driver, information.bestLap,
          information.idealTime, information.vehicle, information.condition})
        bytes.addText(text);
    bytes.add(static_cast<quint8>(information.temperature));
    bytes.addText(information.tyres);
    bytes.addText(information.notes);
    bytes.add(static_cast<quint8>(information.invalidLaps.size()));
    for (const int lap : information.invalidLaps)
        bytes.add(static_cast<quint8>(lap));
}

void addPosition(Bytes &bytes, const Position &position)
{
    bytes.add(position.longitude);
    bytes.add(position.latitude);
}

void addNamedPoint(Bytes &bytes, const QString &name, const Position &position)
{
    bytes.addText(name);
    addPosition(bytes, position);
}

/// One lap, from the line to the line, about every 8 m.
[[nodiscard]] QList<Position> outline(const Circuit &circuit, const Path &path)
{
    const int steps = static_cast<int>(std::lround(path.length() / 8));
    QList<Position> points;
    for (int i = 0; i < steps; ++i)
        points.append(toPosition(circuit.origin, path.at(path.length() * i / steps, 0)));
    points.append(points.first());
    return points;
}

void addCorners(Bytes &bytes, const QList<Position> &points)
{
    const auto latitudes = std::minmax_element(
        points.begin(), points.end(),
        [](const Position &a, const Position &b) { return a.latitude < b.latitude; });
    const auto longitudes = std::minmax_element(
        points.begin(), points.end(),
        [](const Position &a, const Position &b) { return a.longitude < b.longitude; });
    bytes.add(latitudes.first->latitude);
    bytes.add(latitudes.second->latitude);
    bytes.add(longitudes.first->longitude);
    bytes.add(longitudes.second->longitude);
}

} // namespace

QByteArray encodeSession(const Ride &ride, const QDateTime &begin, bool neverOpened,
                         const std::optional<Information> &information)
{
    Bytes bytes;
    bytes.reserve(1024 + static_cast<qsizetype>(28 * ride.samples.size() + 24 * ride.front.size()));
    bytes.addText(QStringLiteral("RA1"));
    bytes.addText(QStringLiteral("1.0.0.0"));
    bytes.add(static_cast<quint32>(ride.samples.size()));
    for (const Sample &sample : ride.samples)
        addSample(bytes, sample);
    bytes.add(quint32 {2}); // words that readers skip: the logger's own settings
    bytes.add(quint32 {100});
    bytes.add(quint32 {ReadingsPerSample});
    bytes.addText(begin.toString(u"dd/MM/yyyy"));
    bytes.add(quint8 {0});
    bytes.addText(begin.toString(u"HH:mm:ss"));
    bytes.add(0.0);
    bytes.add(static_cast<quint8>(neverOpened ? 1 : 0));
    const bool lists = !ride.front.empty();
    if (lists) {
        bytes.add(quint8 {1});
        addReadings(bytes, ride.front);
        addReadings(bytes, ride.rear);
    }
    // Without lists the block's first byte, the length of the circuit's name, stands where the flag
    // for lists would be. A name of one letter would read as that flag; no circuit has such a name.
    if (information)
        addInformation(bytes, *information);
    else if (!lists)
        bytes.add(quint8 {0});
    return bytes.data();
}

QByteArray encodeMap(const Circuit &circuit, int number)
{
    const Path path = circuit.path();
    const QList<Position> points = outline(circuit, path);
    Bytes bytes;
    bytes.addText(QStringLiteral("MAP"));
    bytes.addText(QStringLiteral("1.0"));
    addCorners(bytes, points);
    bytes.add(qint32 {number});
    bytes.add(static_cast<qint32>(circuit.sectorEnds.size() + 2));
    addNamedPoint(bytes, QStringLiteral("Start"), points.first());
    for (qsizetype i = 0; i < circuit.sectorEnds.size(); ++i) {
        const Point point = path.at(circuit.sectorEnds[i] * path.length(), 0);
        addNamedPoint(bytes, QStringLiteral("Time %1").arg(i), toPosition(circuit.origin, point));
    }
    addNamedPoint(bytes, QStringLiteral("Time %1").arg(circuit.sectorEnds.size()), points.first());
    bytes.add(GateSize);
    bytes.add(static_cast<qint32>(points.size()));
    for (const Position &point : points)
        addPosition(bytes, point);
    return bytes.data();
}

QString saveNewFile(const QString &path, const QByteArray &bytes)
{
    if (QFile existing(path); existing.exists()) {
        if (existing.size() == bytes.size() && existing.open(QIODevice::ReadOnly)
            && existing.readAll() == bytes)
            return {};
        return QStringLiteral("%1 exists and is another file; it was left as it is").arg(path);
    }
    if (!QDir().mkpath(QFileInfo(path).path()))
        return QStringLiteral("%1: the folder cannot be created").arg(path);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()
        || !file.commit())
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    return {};
}

} // namespace zuno::demo
