// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <bit>
#include <limits>
#include <memory>
#include <optional>

#include <QByteArray>
#include <QGeoCoordinate>
#include <QList>
#include <QMap>
#include <QString>

#include <session/recording/pointacquisition.h>

namespace zuno {

class Map;
class Session;

namespace test {

/// Little-endian bytes, put together field by field without the program's own writer.
class Bytes
{
public:
    Bytes &u8(int value) { return number(static_cast<quint8>(value)); }
    Bytes &u32(quint32 value) { return number(value); }
    Bytes &f32(float value) { return number(std::bit_cast<quint32>(value)); }
    Bytes &f64(double value) { return number(std::bit_cast<quint64>(value)); }
    Bytes &raw(const QByteArray &bytes);
    /// A length byte and the text.
    Bytes &text(const QByteArray &bytes) { return u8(static_cast<int>(bytes.size())).raw(bytes); }

    operator const QByteArray &() const { return m_bytes; } // NOLINT: a test reads better so

private:
    template<typename Number>
    Bytes &number(Number value);

    QByteArray m_bytes;
};

/// A list of suspension readings, numbered from 100; it may lie about its length.
[[nodiscard]] QByteArray readingList(const QList<double> &values,
                                     std::optional<quint32> count = {});
/// @p count readings 1.5, 2.5, ...
[[nodiscard]] QByteArray readingList(int count);

/// An information block as it stands in a file.
struct InformationBytes
{
    QByteArray circuit = "Hill";
    QByteArray event = "Cup";
    QByteArray driver = "Ann";
    QByteArray bestLap = "01:02.003";
    QByteArray idealTime = "01:01.001";
    QByteArray vehicle = "R6";
    QByteArray condition = "Wet";
    int temperature = 31;
    QByteArray tyres = "soft";
    QByteArray notes = "rain, later";
    QByteArray invalidLaps = "\x02\x03";

    [[nodiscard]] QByteArray bytes() const;
};

/// A session file with two samples, whose fields can be told apart.
struct SessionBytes
{
    QByteArray magic = "RA1";
    QByteArray version = "1.0.0.0";
    int samples = 2;
    std::optional<quint32> sampleCount = {};
    QList<quint32> words = {1, 2};
    std::optional<quint32> wordCount = {};
    QByteArray date = "03/05/2026";
    QByteArray time = "10:11:12";
    int newSession = 1;
    /// Without lists the information block's first byte takes the flag's place.
    std::optional<int> listsFlag = {};
    QByteArray lists = {};
    QByteArray information = {};

    /// Everything up to the flags.
    [[nodiscard]] QByteArray head() const;
    [[nodiscard]] QByteArray bytes() const;
};

/// A session file with all there can be: lists of 21 and 11 readings, and information.
[[nodiscard]] SessionBytes fullSession(const InformationBytes &information = {});

/// A named place of a map, in metres north of the origin of all rides and maps.
struct NamedPlace
{
    QString name;
    double north = 0.0;
};

/// The place so many metres north and east of the origin. North and south of it on the meridian
/// all distances are exact.
[[nodiscard]] QGeoCoordinate place(double north, double east = 0.0);

/// A ride along the meridian, a sample every 100 ms: "-50..50/10 20*3 -*2" is from 50 metres south
/// of the origin to 50 metres north in steps of 10, then 3 samples at 20 metres and 2 without a
/// position.
[[nodiscard]] Points ride(const QString &description);
/// The description of a ride of laps on a map whose start point is the origin. The first crossing
/// of the line is at 440.5 ms, then there is a lap for each entry of @p standing, of 680 metres in
/// 3.5 seconds and, 296 metres from the line, so many samples more at the same place. Between the
/// line and there the places 0, 10, 20 ... are passed 40.5 ms after a sample.
[[nodiscard]] QString lapRide(const QList<int> &standing);
/// Adds readings of suspension channel 1 or 2.
void addReadings(PointAcquisition &point, int channel, const QList<float> &values);

/// A session of these samples; only the first @p whole of them are in its file.
[[nodiscard]] std::unique_ptr<Session> sessionOf(const Points &points,
                                                 qint64 whole = std::numeric_limits<int>::max());
/// A map with these named points and an outline of that length.
[[nodiscard]] std::unique_ptr<Map> lineMap(double gate, double length,
                                           const QList<NamedPlace> &places
                                           = {{QStringLiteral("Start"), 0.0}});

/// Writes a new file, in a folder that need not be there yet. What it replaces is removed first:
/// some file systems wait for the disk when a file is written over.
void putFile(const QString &path, const QByteArray &bytes);
/// What the file holds; nothing if it cannot be read.
[[nodiscard]] QByteArray contents(const QString &path);
/// What all files of a folder and those below it hold, by their relative paths.
[[nodiscard]] QMap<QString, QByteArray> filesIn(const QString &folder);
/// Moves the file's time into the past, so that any writing shows in isOld().
void makeOld(const QString &path);
[[nodiscard]] bool isOld(const QString &path);

/// Sessions of the demo library; the circuits' maps are named after them.
inline const QString AtValmora = QStringLiteral("2026-04-18 10h12 Valmora.ra1");
inline const QString AtHaidemoor = QStringLiteral("2026-05-24 14h33 Haidemoor.ra1");
inline const QString OnTheRoad = QStringLiteral("2026-06-06 08h15 Hill road.ra1");
inline const QString WithoutBlock = QStringLiteral("2026-07-11 13h45 Karoosberg.ra1");
inline const QString NeverOpened = QStringLiteral("2026-07-12 09h27 Karoosberg.ra1");
/// The bytes of a session or map of the demo library.
[[nodiscard]] QByteArray demoFile(const QString &name);

/// Acquisition numbers of points, "1 2 3".
[[nodiscard]] QString numbersOf(const Points &points);

} // namespace test
} // namespace zuno
