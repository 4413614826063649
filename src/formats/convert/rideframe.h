// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <deque>

#include <formats/convert/gridchannel.h>
#include <formats/convert/positionfilter.h>
#include <formats/convert/ridelimits.h>

namespace zuno {

/// Where and how fast, at one of the even times.
struct Place
{
    /// Degrees; NoValue where nobody knows.
    double latitude = NoValue;
    double longitude = NoValue;
    /// Metres a second and degrees from north, as the receiver said; NoValue when it did not.
    float speed = std::numeric_limits<float>::quiet_NaN();
    float course = std::numeric_limits<float>::quiet_NaN();

    [[nodiscard]] bool isKnown() const { return latitude == latitude; }
};

/// One outing at ten samples a second, with what was recorded and nothing computed yet.
class RideFrame
{
public:
    /// Takes a measured place; the first one is time 0.
    void take(const Fix &fix);
    /// Takes what a row says besides its position.
    void takeChannels(const RawRow &row);
    /// Makes all channels as long as the places.
    void finish();
    void clear() { *this = RideFrame(); }

    [[nodiscard]] bool isEmpty() const { return m_places.empty(); }
    [[nodiscard]] std::size_t size() const { return m_places.size(); }
    /// The rows' clock at time 0.
    [[nodiscard]] double begin() const { return m_begin; }
    [[nodiscard]] std::deque<Place> &places() { return m_places; }
    [[nodiscard]] const std::deque<Place> &places() const { return m_places; }

    GridChannel along {SampleStep};
    GridChannel across {SampleStep};
    std::array<GridChannel, 3> axes {GridChannel(SampleStep), GridChannel(SampleStep),
                                     GridChannel(SampleStep)};
    GridChannel lean {SampleStep};
    GridChannel front {ReadingStep};
    GridChannel rear {ReadingStep};

private:
    [[nodiscard]] Place between(const Fix &to, double time) const;

    std::deque<Place> m_places;
    Fix m_last;
    double m_begin = NoValue;
};

} // namespace zuno
