// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/check/plainline.h>

#include <session/recording/trace.h>

namespace zuno {

std::vector<double> linePasses(std::span<const PointAcquisition> samples, const Plane &plane,
                               PlaneVector heading, double reach)
{
    std::vector<double> stamps;
    const PointAcquisition *before = nullptr;
    PlaneVector from;
    for (const PointAcquisition &sample : samples) {
        const QGeoCoordinate position = positionOf(sample);
        if (!position.isValid())
            continue;
        const PlaneVector to = plane.place(position);
        const double behind = from * heading;
        const double ahead = to * heading;
        if (before != nullptr && behind <= 0.0 && ahead > 0.0) {
            const double part = behind / (behind - ahead);
            if ((from + ((to - from) * part)).length() < reach) {
                const double since = sample.dataTimeStamp - before->dataTimeStamp;
                stamps.push_back(before->dataTimeStamp + (part * since));
            }
        }
        before = &sample;
        from = to;
    }
    return stamps;
}

} // namespace zuno
