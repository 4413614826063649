// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "builders.h"

#include <cmath>
#include <numbers>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <QtEndian>

#include <demo/demolibrary.h>
#include <session/session.h>
#include <track/map.h>

namespace zuno::test {

using namespace Qt::StringLiterals;

namespace {

constexpr double OriginLatitude = 45.0;
constexpr double OriginLongitude = 9.0;
constexpr double MetresPerDegree = 6371007.2 * std::numbers::pi / 180.0;
constexpr quint32 SampleTime = 100;

void append(Points &points, const QGeoCoordinate &where)
{
    PointAcquisition point;
    point.acquisitionNumber = static_cast<quint32>(points.size()) + 1;
    point.dataTimeStamp = static_cast<quint32>(points.size()) * SampleTime;
    point.dataTimeSec = point.dataTimeStamp / 1000.0;
    point.dataCoordX = where.isValid() ? where.longitude() : NoFixCoordinate;
    point.dataCoordY = where.isValid() ? where.latitude() : NoFixCoordinate;
    points.push_back(point);
}

} // namespace

Bytes &Bytes::raw(const QByteArray &bytes)
{
    m_bytes += bytes;
    return *this;
}

template<typename Number>
Bytes &Bytes::number(Number value)
{
    value = qToLittleEndian(value);
    return raw(QByteArray(reinterpret_cast<const char *>(&value), sizeof value));
}

template Bytes &Bytes::number(quint8);
template Bytes &Bytes::number(quint32);
template Bytes &Bytes::number(quint64);

QByteArray readingList(const QList<double> &values, std::optional<quint32> count)
{
    Bytes list;
    list.u32(count.value_or(static_cast<quint32>(values.size())));
    for (qsizetype i = 0; i < values.size(); ++i)
        list.u32(static_cast<quint32>(100 + i)).f64(values[i]);
    return list;
}

QByteArray readingList(int count)
{
    QList<double> values;
    for (int i = 0; i < count; ++i)
        values.append(i + 1.5);
    return readingList(values);
}

QByteArray InformationBytes::bytes() const
{
    Bytes block;
    for (const QByteArray &text : {circuit, event, driver, bestLap, idealTime, vehicle, condition})
        block.text(text);
    return block.u8(temperature).text(tyres).text(notes).text(invalidLaps);
}

QByteArray SessionBytes::head() const
{
    Bytes file;
    file.text(magic).text(version).u32(sampleCount.value_or(static_cast<quint32>(samples)));
    for (int i = 1; i <= samples; ++i) {
        const auto number = static_cast<float>(i);
        file.u32(static_cast<quint32>(100 * i)).f32(9.0F + number).f32(45.0F + number);
        file.f32(100.5F + number).f32(-20.25F - number).f32(0.25F * number).f32(-0.5F * number);
    }
    file.u32(wordCount.value_or(static_cast<quint32>(words.size())));
    for (const quint32 word : words)
        file.u32(word);
    return file.text(date).u8(7).text(time).f64(2.5);
}

QByteArray SessionBytes::bytes() const
{
    Bytes file;
    file.raw(head()).u8(newSession);
    if (listsFlag)
        file.u8(*listsFlag);
    return file.raw(lists).raw(information);
}

SessionBytes fullSession(const InformationBytes &information)
{
    return {.listsFlag = 1,
            .lists = readingList(21) + readingList(11),
            .information = information.bytes()};
}

QGeoCoordinate place(double north, double east)
{
    static const double shrink = std::cos(OriginLatitude * std::numbers::pi / 180.0);
    return {OriginLatitude + (north / MetresPerDegree),
            OriginLongitude + (east / MetresPerDegree / shrink)};
}

Points ride(const QString &description)
{
    Points points;
    const QStringList moves = description.split(u' ', Qt::SkipEmptyParts);
    for (const QString &move : moves) {
        const int range = static_cast<int>(move.indexOf(u".."));
        const double from = move.section(range < 0 ? u"*"_s : u".."_s, 0, 0).toDouble();
        if (range < 0) {
            const int count = move.contains(u'*') ? move.section(u'*', 1).toInt() : 1;
            const QGeoCoordinate where = move.startsWith(u"-*") ? QGeoCoordinate() : place(from);
            for (int i = 0; i < count; ++i)
                append(points, where);
            continue;
        }
        const double to = move.section(u".."_s, 1).section(u'/', 0, 0).toDouble();
        const double step = move.section(u'/', 1).toDouble();
        const auto count = static_cast<int>(std::round(std::fabs(to - from) / step));
        for (int i = 0; i <= count; ++i)
            append(points, place(from + (i * std::copysign(step, to - from))));
    }
    return points;
}

QString lapRide(const QList<int> &standing)
{
    QString description = u"-44.05..-4.05/10"_s;
    for (const int samples : standing)
        description += u" 5.95..295.95/10 295.95*%1 -44.05..-4.05/10"_s.arg(samples);
    return description + u" 5.95..45.95/10"_s;
}

void addReadings(PointAcquisition &point, int channel, const QList<float> &values)
{
    for (const float value : values) {
        const Reading reading {1, value};
        if (channel == 1)
            point.addSuspension1(&reading, 1);
        else
            point.addSuspension2(&reading, 1);
    }
}

std::unique_ptr<Session> sessionOf(const Points &points, qint64 whole)
{
    auto session = std::make_unique<Session>(u"/somewhere/Ride.ra1"_s);
    Recording recording;
    recording.sampleCount = static_cast<qint64>(points.size());
    recording.wholeSampleCount = std::min(recording.sampleCount, whole);
    session->setRecording(recording);
    session->setSampleSource([points] { return Session::Samples {points, {}}; });
    return session;
}

std::unique_ptr<Map> lineMap(double gate, double length, const QList<NamedPlace> &places)
{
    auto map = std::make_unique<Map>();
    map->setGateSize(gate);
    for (const NamedPlace &named : places)
        map->addNamedPoint(named.name, place(named.north));
    map->addTrackPoint(place(0.0));
    map->addTrackPoint(place(length));
    map->computeGeometry();
    return map;
}

void putFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile::remove(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QMap<QString, QByteArray> filesIn(const QString &folder)
{
    QMap<QString, QByteArray> files;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString path = it.next();
        files.insert(QDir(folder).relativeFilePath(path), contents(path));
    }
    return files;
}

void makeOld(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)
        || !file.setFileTime(QDateTime::currentDateTime().addDays(-1),
                             QFileDevice::FileModificationTime))
        qFatal("cannot age %s", qPrintable(path));
}

bool isOld(const QString &path)
{
    return QFileInfo(path).lastModified() < QDateTime::currentDateTime().addSecs(-3600);
}

QByteArray demoFile(const QString &name)
{
    static const QTemporaryDir folder;
    static const DemoResult result = writeDemoLibrary(folder.path());
    QDirIterator files(folder.path(), {name}, QDir::Files, QDirIterator::Subdirectories);
    if (!result.ok() || !files.hasNext())
        qFatal("no %s", qPrintable(name));
    return contents(files.next());
}

QString numbersOf(const Points &points)
{
    QStringList numbers;
    for (const PointAcquisition &point : points)
        numbers.append(QString::number(point.acquisitionNumber));
    return numbers.join(u' ');
}

} // namespace zuno::test
