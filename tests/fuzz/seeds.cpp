// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writes the files that fuzzing starts from into a folder: a sub-folder for each
// target.

#include <cmath>

#include <QCoreApplication>

#include "../builders.h"
#include "../madeuprides.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray rideSession(const Points &points)
{
    Bytes file;
    file.text("RA1").text("1.0.0.0").u32(static_cast<quint32>(points.size()));
    for (const PointAcquisition &point : points) {
        const auto number = static_cast<float>(point.acquisitionNumber);
        file.u32(point.dataTimeStamp).f32(static_cast<float>(point.dataCoordX));
        file.f32(static_cast<float>(point.dataCoordY)).f32(std::fmod(number, 200.0F));
        file.f32(std::fmod(number, 50.0F)).f32(0.1F).f32(-0.1F);
    }
    return file.u32(0).text("03/05/2026").u8(0).text("10:11").f64(0).u8(1).u8(0);
}

QByteArray map()
{
    Bytes file;
    file.text("MAP").text("1.0").f64(45).f64(45.1).f64(9).f64(9.1).u32(7).u32(3);
    for (const double north : {0.0, 100.0, 200.0})
        file.text(north > 0 ? "Time 0" : "Start/Time 1").f64(9).f64(place(north).latitude());
    file.f64(10).u32(35);
    for (int i = 0; i < 35; ++i)
        file.f64(9).f64(place(20.0 * i).latitude());
    return file;
}

} // namespace

int main(int count, char **arguments)
{
    const QCoreApplication application(count, arguments);
    const QString folder = QCoreApplication::arguments().value(1, u"."_s);
    const QList<QByteArray> sessions {
        fullSession().bytes(),
        SessionBytes {.information = InformationBytes().bytes()}.bytes(),
        rideSession(ride(lapRide({0, 0, 1}))),
    };
    for (qsizetype i = 0; i < sessions.size(); ++i) {
        putFile(u"%1/session/%2.ra1"_s.arg(folder).arg(i), sessions[i]);
        putFile(u"%1/rewrite/%2.ra1"_s.arg(folder).arg(i), sessions[i]);
    }
    putFile(folder + u"/map/sectors.map", map());
    putFile(
        folder + u"/update/one.xml",
        R"(<list><item name="ZUNO Analyzer"><version>1.6.0.0</version><name>setup.exe</name>)"
        R"(<platform>linux-x86_64</platform><size>1000</size><sha256>)"
            + QByteArray(64, '0')
            + R"(</sha256><validUntil>2040-01-01T00:00:00Z</validUntil>)"
              R"(<url>https://www.example.com/setup.exe</url></item><item name="Other"/></list>)");
    putFile(folder + u"/page/drawn.json", R"({"event":"drawn"})");
    putFile(folder + u"/page/moved.json",
            R"({"event":"pointMoved","lat":46,"lng":6,"point":-1,"done":true})");
    putFile(folder + u"/page/resized.json", R"({"event":"gateResized","metres":5})");
    putFile(folder + u"/page/clicked.json",
            R"({"event":"trackClicked","lat":46,"lng":6,"metresPerPixel":2})");
    putFile(folder + u"/page/picked.json", R"({"event":"picked","index":2147483647})");
    for (const Format &format : formats()) {
        putFile(u"%1/formats/%2"_s.arg(folder, QLatin1String(format.name)),
                format.write({.count = 25}));
    }
    return 0;
}
