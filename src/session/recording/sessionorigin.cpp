// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/sessionorigin.h>

#include <algorithm>
#include <cmath>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <base/bytereader.h>

namespace zuno {

namespace {

constexpr quint32 Mark = 0x5A554E4F; // "ZUNO", the Z in the highest byte
constexpr quint32 Version = 1;
constexpr std::size_t MostGates = 100;
constexpr qsizetype LongestName = 100;
constexpr double UnitsPerDegree = 1e7;
enum GateFlag : quint32 { Start = 1, AlongCourse = 2 };

// A file's words beyond so many are a logger's.
constexpr qint64 MostWords = 10000;
constexpr qint64 SampleSize = 28;

quint32 degreesWord(double degrees)
{
    return static_cast<quint32>(static_cast<qint32>(std::lround(degrees * UnitsPerDegree)));
}

void addText(std::vector<quint32> &words, const QByteArray &bytes)
{
    words.push_back(static_cast<quint32>(bytes.size()));
    for (qsizetype i = 0; i < bytes.size(); i += 4) {
        QByteArray four = bytes.mid(i, 4);
        four.resize(4, '\0');
        words.push_back(qFromLittleEndian<quint32>(four.constData()));
    }
}

/// Reads words one after the other; beyond the last one they are 0.
class Words
{
public:
    explicit Words(const std::vector<quint32> &words) : m_words(words) {}

    quint32 next()
    {
        m_ranShort = m_ranShort || m_next >= m_words.size();
        return m_ranShort ? 0 : m_words[m_next++];
    }
    QGeoCoordinate place()
    {
        const auto degrees
            = [this] { return static_cast<double>(static_cast<qint32>(next())) / UnitsPerDegree; };
        const double latitude = degrees();
        return {latitude, degrees()};
    }
    QByteArray text(qsizetype limit)
    {
        const auto size = static_cast<qsizetype>(next());
        QByteArray bytes;
        m_ranShort = m_ranShort || size > limit;
        while (!m_ranShort && bytes.size() < size) {
            const quint32 four = qToLittleEndian(next());
            bytes.append(reinterpret_cast<const char *>(&four), sizeof four);
        }
        bytes.truncate(size);
        return bytes;
    }
    [[nodiscard]] bool ranShort() const { return m_ranShort; }

private:
    const std::vector<quint32> &m_words;
    std::size_t m_next = 0;
    bool m_ranShort = false;
};

} // namespace

QGeoCoordinate RideGate::middle() const
{
    const double distance = first.distanceTo(second);
    if (!(distance > 0.01))
        return first;
    return first.atDistanceAndAzimuth(distance / 2, first.azimuthTo(second));
}

std::vector<quint32> wordsOf(const SessionOrigin &origin)
{
    std::vector<quint32> words {Mark, Version, origin.part};
    addText(words, origin.fingerprint.left(SessionOrigin::FingerprintSize));
    const std::size_t count = std::min(origin.gates.size(), MostGates);
    words.push_back(static_cast<quint32>(count));
    for (std::size_t i = 0; i < count; ++i) {
        const RideGate &gate = origin.gates[i];
        words.push_back((gate.isStart ? Start : 0U) | (gate.isAlongCourse ? AlongCourse : 0U));
        for (const QGeoCoordinate &place : {gate.first, gate.second}) {
            words.push_back(degreesWord(place.latitude()));
            words.push_back(degreesWord(place.longitude()));
        }
        addText(words, gate.name.left(LongestName / 4).toUtf8());
    }
    return words;
}

std::optional<SessionOrigin> originOf(const std::vector<quint32> &list)
{
    Words words(list);
    if (words.next() != Mark || words.next() != Version)
        return std::nullopt;
    SessionOrigin origin;
    origin.part = words.next();
    origin.fingerprint = words.text(SessionOrigin::FingerprintSize);
    const quint32 count = words.next();
    for (quint32 i = 0; i < count && i < MostGates && !words.ranShort(); ++i) {
        const quint32 flags = words.next();
        RideGate gate {{}, words.place(), {}, (flags & Start) != 0, (flags & AlongCourse) != 0};
        gate.second = words.place();
        gate.name = QString::fromUtf8(words.text(LongestName));
        if (gate.first.isValid() && gate.second.isValid())
            origin.gates.push_back(std::move(gate));
    }
    if (words.ranShort() || origin.fingerprint.size() != SessionOrigin::FingerprintSize)
        return std::nullopt;
    return origin;
}

std::optional<SessionOrigin> readSessionOrigin(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    ByteReader reader(file);
    if (reader.countedBytes() != "RA1")
        return std::nullopt;
    (void)reader.countedBytes();
    reader.skip(SampleSize * std::max(reader.i32(), 0));
    const qint64 count = reader.u32();
    if (count > MostWords || count * 4 > reader.left())
        return std::nullopt;
    std::vector<quint32> words(static_cast<std::size_t>(count));
    for (quint32 &word : words)
        word = reader.u32();
    return originOf(words);
}

} // namespace zuno
