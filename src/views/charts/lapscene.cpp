// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <views/charts/lapscene.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include <QCoreApplication>
#include <QLocale>

#include <base/jsonwriter.h>
#include <base/signedtext.h>
#include <theme/shownunits.h>
#include <theme/themes.h>
#include <views/charts/channel.h>
#include <views/charts/chartcolours.h>
#include <views/charts/chartstate.h>

namespace zuno {

namespace {

struct LapScene
{
    Q_DECLARE_TR_FUNCTIONS(LapScene)
};

constexpr double None = std::numeric_limits<double>::quiet_NaN();

// Of a whole session so many samples are enough to see where it was ridden.
constexpr std::size_t MostRidePoints = 4000;

// The line's sign comes before all others.
constexpr double StartWeight = 99.0;

// A row of values with what its ends mean.
struct Scale
{
    std::vector<double> values;
    std::vector<Colour> stops;
    QString from;
    QString to;
};

const Channel &channelOf(LineMode mode)
{
    return channels()[mode == LineMode::Speed ? 0 : mode == LineMode::Lean ? 1 : 2];
}

std::vector<double> readings(const LapTrack &lap, const Channel &channel)
{
    std::vector<double> values;
    for (std::size_t i = 0; i < lap.size(); ++i)
        values.push_back(lap.hasFix(i) ? channel.value(lap.points()[i]) : None);
    return values;
}

double extreme(const std::vector<double> &values, bool highest)
{
    double found = None;
    for (const double value : values)
        found = highest ? std::fmax(found, value) : std::fmin(found, value);
    return std::isnan(found) ? 0.0 : found;
}

const std::vector<Colour> &ramp()
{
    static const std::vector<Colour> colours {Colour::Ramp1, Colour::Ramp2, Colour::Ramp3,
                                              Colour::Ramp4, Colour::Ramp5};
    return colours;
}

Scale gainScale(const ChartState &state)
{
    Scale scale {lossRates(state.first()->places(AxisKind::Distance), state.comparison()->gaps()),
                 {Colour::Gain, Colour::Neutral, Colour::Loss},
                 LapScene::tr("gaining"),
                 LapScene::tr("losing %1 s / 100 m").arg(QLocale().toString(FullRate, 'f', 1))};
    for (double &rate : scale.values) {
        const bool isNoise = std::abs(rate) < NoiseRate;
        rate = isNoise ? 0.5 : (std::clamp(rate / FullRate, -1.0, 1.0) + 1) / 2;
    }
    return scale;
}

Scale speedScale(const LapTrack &lap)
{
    Scale scale {readings(lap, channelOf(LineMode::Speed)), ramp(), {}, {}};
    const double low = extreme(scale.values, false);
    const double high = extreme(scale.values, true);
    scale.from = shownNumber(units().speed(low), 0);
    scale.to = units().speedText(high);
    for (double &value : scale.values)
        value = high > low ? (value - low) / (high - low) : 0.0;
    return scale;
}

Scale leanScale(const LapTrack &lap)
{
    Scale scale {readings(lap, channelOf(LineMode::Lean)), ramp(), QStringLiteral("0\u00b0"), {}};
    for (double &value : scale.values)
        value = std::abs(value);
    const double high = extreme(scale.values, true);
    scale.to = QLocale().toString(high, 'f', 0) + u'\u00b0';
    for (double &value : scale.values)
        value = high > 0 ? value / high : 0.0;
    return scale;
}

Scale accelerationScale(const LapTrack &lap)
{
    Scale scale {readings(lap, channelOf(LineMode::Acceleration)),
                 {Colour::Braking, Colour::Neutral, Colour::Accelerating},
                 LapScene::tr("braking"),
                 LapScene::tr("accelerating")};
    const double hardest = std::abs(extreme(scale.values, false));
    const double strongest = extreme(scale.values, true);
    for (double &value : scale.values) {
        const double most = value < 0 ? hardest : strongest;
        value = most > 0 ? (value / most + 1) / 2 : 0.5;
    }
    return scale;
}

Scale scaleOf(const ChartState &state, LineMode mode)
{
    switch (mode) {
    case LineMode::Gain:
        return gainScale(state);
    case LineMode::Speed:
        return speedScale(*state.first());
    case LineMode::Lean:
        return leanScale(*state.first());
    case LineMode::Acceleration:
        break;
    }
    return accelerationScale(*state.first());
}

// Where somebody was, and which way he went: a vector of length 1, metres east and north.
struct Heading
{
    double latitude = None;
    double longitude = None;
    double east = 0.0;
    double north = 1.0;

    [[nodiscard]] bool isKnown() const { return !std::isnan(latitude); }
    [[nodiscard]] double degrees() const
    {
        return std::atan2(east, north) * 180.0 / std::numbers::pi;
    }
};

Heading headingAt(const LapTrack &lap, double seconds)
{
    const double position = positionAmong(lap.places(AxisKind::Time), seconds);
    const PointAcquisition here = lap.sampleAt(position);
    const auto index = static_cast<std::size_t>(position);
    std::size_t before = index > 1 ? index - 2 : 0;
    std::size_t after = std::min(index + 2, lap.size() - 1);
    while (before > 0 && !lap.hasFix(before))
        --before;
    while (after + 1 < lap.size() && !lap.hasFix(after))
        ++after;
    if (!lap.hasFix(index) || !lap.hasFix(before) || !lap.hasFix(after))
        return {};
    const PointAcquisition &from = lap.points()[before];
    const PointAcquisition &to = lap.points()[after];
    const double shrink = std::cos(here.dataCoordY * std::numbers::pi / 180.0);
    const double east = (to.dataCoordX - from.dataCoordX) * shrink;
    const double north = to.dataCoordY - from.dataCoordY;
    const double length = std::hypot(east, north);
    if (!(length > 0))
        return {};
    return {here.dataCoordY, here.dataCoordX, east / length, north / length};
}

// A text at a place, and the way out of the corner there.
struct Sign
{
    Heading at;
    bool isRight = false;
    QString label;
    QString value = {};
    Colour frame = Colour::Edge;
    Colour ink = Colour::Text;
    double weight = None;
    bool isOptional = false;
    /// -1 for none.
    int zone = -1;
};

void write(JsonWriter &json, const Heading &at)
{
    json.member("lat", at.latitude);
    json.member("lng", at.longitude);
}

void write(JsonWriter &json, const Sign &sign)
{
    if (!sign.at.isKnown())
        return;
    // Left of a right corner, and right of a left one.
    const double side = sign.isRight ? 1.0 : -1.0;
    json.beginObject();
    write(json, sign.at);
    json.member("dx", -sign.at.north * side);
    json.member("dy", sign.at.east * side);
    json.member("label", sign.label);
    json.member("value", sign.value);
    json.member("colour", theme().colour(sign.frame).name());
    json.member("ink", theme().colour(sign.ink).name());
    json.member("weight", sign.weight);
    json.member("optional", sign.isOptional);
    json.member("zone", sign.zone);
    json.endObject();
}

// The value of a corner in a mode: the difference, the lowest speed, the largest lean.
void setValue(Sign &sign, const TrackZone &zone, LineMode mode, const LapTrack &lap)
{
    if (mode == LineMode::Acceleration)
        return;
    if (mode == LineMode::Gain) {
        if (!zone.loss)
            return;
        sign.value = signedText(*zone.loss, 2);
        sign.weight = std::abs(*zone.loss);
        if (sign.weight >= NoiseLoss)
            sign.frame = sign.ink = *zone.loss > 0 ? Colour::Loss : Colour::Gain;
        return;
    }
    const std::vector<double> &times = lap.places(AxisKind::Time);
    double found = None;
    for (std::size_t i = nearestSample(times, zone.from); i <= nearestSample(times, zone.to); ++i) {
        const double value = lap.hasFix(i) ? channelOf(mode).value(lap.points()[i]) : None;
        found
            = mode == LineMode::Speed ? std::fmin(found, value) : std::fmax(found, std::abs(value));
    }
    if (std::isnan(found))
        return;
    sign.value = mode == LineMode::Speed ? shownNumber(units().speed(found), 0)
                                         : QLocale().toString(found, 'f', 0) + u'\u00b0';
}

void writeSigns(JsonWriter &json, const ChartState &state, LineMode mode)
{
    const LapTrack &lap = *state.first();
    json.key("signs");
    json.beginArray();
    if (!lap.sectors().empty() || !state.zones().empty())
        write(json, {headingAt(lap, 0.0),
                     true,
                     LapScene::tr("Start"),
                     {},
                     Colour::Edge,
                     Colour::Text,
                     StartWeight});
    for (std::size_t i = 0; i < state.zones().size(); ++i) {
        const TrackZone &zone = state.zones()[i];
        if (!zone.hasCorner)
            continue;
        Sign sign {headingAt(lap, zone.middle), zone.isRight, zone.label};
        sign.zone = static_cast<int>(i);
        setValue(sign, zone, mode, lap);
        write(json, sign);
    }
    for (std::size_t i = 0; i + 1 < lap.sectors().size(); ++i) {
        const SectorStretch &sector = lap.sectors()[i];
        write(json, {headingAt(lap, sector.time.to),
                     true,
                     QStringLiteral("P%1").arg(sector.sector + 1),
                     {},
                     Colour::Edge,
                     Colour::SecondText,
                     -1.0,
                     true});
    }
    json.endArray();
}

void writeGates(JsonWriter &json, const ChartState &state)
{
    const LapTrack &lap = *state.first();
    const auto gate = [&](double seconds, bool isStart) {
        const Heading at = headingAt(lap, seconds);
        if (!at.isKnown())
            return;
        json.beginObject();
        write(json, at);
        json.member("heading", at.degrees());
        json.member("isStart", isStart);
        json.endObject();
    };
    json.key("gates");
    json.beginArray();
    if (!lap.sectors().empty() || !state.zones().empty())
        gate(0.0, true);
    for (std::size_t i = 0; i + 1 < lap.sectors().size(); ++i)
        gate(lap.sectors()[i].time.to, false);
    json.endArray();
}

void writeActs(JsonWriter &json, const ChartState &state)
{
    const auto act = [&json](const LapTrack &lap, std::optional<double> seconds, bool isBraking,
                             bool isOther) {
        const Heading at = seconds ? headingAt(lap, *seconds) : Heading();
        if (!at.isKnown())
            return;
        json.beginObject();
        write(json, at);
        json.member("isBraking", isBraking);
        json.member("isOther", isOther);
        json.endObject();
    };
    json.key("acts");
    json.beginArray();
    if (const auto shown = state.shownZone(); shown && *shown < state.zones().size()) {
        const TrackZone &zone = state.zones()[*shown];
        if (state.second() != nullptr) {
            act(*state.second(), zone.otherActs.brakes, true, true);
            act(*state.second(), zone.otherActs.gas, false, true);
        }
        act(*state.first(), zone.acts.brakes, true, false);
        act(*state.first(), zone.acts.gas, false, false);
    }
    json.endArray();
}

void writeColours(JsonWriter &json)
{
    constexpr std::array<std::pair<const char *, Colour>, 11> Named {{
        {"map", Colour::Map},
        {"road", Colour::Road},
        {"roadEdge", Colour::PaneEdge},
        {"casing", Colour::Casing},
        {"text", Colour::Text},
        {"secondText", Colour::SecondText},
        {"card", Colour::Card},
        {"edge", Colour::Edge},
        {"lap1", Colour::Lap1},
        {"lap2", Colour::Lap2},
        {"neutral", Colour::Neutral},
    }};
    json.key("colours");
    json.beginObject();
    for (const auto &[name, colour] : Named)
        json.member(name, theme().colour(colour).name());
    json.endObject();
}

void writeScale(JsonWriter &json, const Scale &scale, std::size_t step)
{
    constexpr double Steps = 1000.0;
    json.key("values");
    json.beginArray();
    for (std::size_t i = 0; i < scale.values.size(); i += step)
        json.value(std::round(scale.values[i] * Steps) / Steps);
    json.endArray();
    json.key("stops");
    json.beginArray();
    for (const Colour colour : scale.stops)
        json.value(theme().colour(colour).name());
    json.endArray();
}

void writeLegend(JsonWriter &json, const ChartState &state, const Scale &scale)
{
    json.key("legend");
    json.beginObject();
    json.member("from", scale.from);
    json.member("to", scale.to);
    json.member("other", state.second() != nullptr
                             ? LapScene::tr("reference, lap %1").arg(state.second()->lapNumber())
                             : QString());
    json.member("brakes", LapScene::tr("brakes"));
    json.member("gas", LapScene::tr("on the gas"));
    json.member("offline", LapScene::tr("Offline map"));
    json.endObject();
}

// The way of a session without laps, which the page gets in no other form.
void writePath(JsonWriter &json, const LapTrack &lap, std::size_t step)
{
    json.member("step", static_cast<qint64>(step));
    json.key("path");
    json.beginArray();
    for (std::size_t i = 0; i < lap.size(); i += step) {
        json.beginArray();
        json.value(lap.hasFix(i) ? lap.points()[i].dataCoordY : None);
        json.value(lap.hasFix(i) ? lap.points()[i].dataCoordX : None);
        json.endArray();
    }
    json.endArray();
}

void writeRideSigns(JsonWriter &json, const LapTrack &lap)
{
    std::size_t first = 0;
    std::size_t last = lap.size() - 1;
    while (first < last && !lap.hasFix(first))
        ++first;
    while (last > first && !lap.hasFix(last))
        --last;
    const auto write = [&](std::size_t sample, const QString &text) {
        Sign sign {headingAt(lap, lap.places(AxisKind::Time)[sample]), true, text};
        // Who stands there heads nowhere.
        if (!sign.at.isKnown() && lap.hasFix(sample))
            sign.at = {lap.points()[sample].dataCoordY, lap.points()[sample].dataCoordX, 1.0, 0.0};
        ::zuno::write(json, sign);
    };
    json.key("signs");
    json.beginArray();
    write(first, LapScene::tr("first sample"));
    write(last, LapScene::tr("last sample"));
    json.endArray();
}

constexpr std::array ModeNames {"gain", "speed", "lean", "acceleration"};

} // namespace

LineMode shownMode(LineMode wanted, const ChartState &state)
{
    if (wanted == LineMode::Gain && state.comparison() == nullptr)
        return LineMode::Speed;
    if (wanted == LineMode::Gain || state.first() == nullptr)
        return wanted;
    return channelOf(wanted).isIn(state.first()->points()) ? wanted : LineMode::Speed;
}

QByteArray scenePayload(const ChartState &state, LineMode wanted)
{
    JsonWriter json(JsonWriter::Numbers::AsQt);
    json.beginObject();
    if (state.first() != nullptr) {
        const LineMode mode = shownMode(wanted, state);
        const Scale scale = scaleOf(state, mode);
        json.member("mode", QString::fromLatin1(ModeNames[static_cast<std::size_t>(mode)]));
        const std::size_t size = state.first()->size();
        const std::size_t step = state.isRide() ? (size + MostRidePoints - 1) / MostRidePoints : 1;
        json.member("speedFactor", units().speed(1.0));
        writeScale(json, scale, step);
        writeColours(json);
        if (state.isRide()) {
            writePath(json, *state.first(), step);
            writeRideSigns(json, *state.first());
        } else {
            writeSigns(json, state, mode);
        }
        writeGates(json, state);
        writeActs(json, state);
        writeLegend(json, state, scale);
    }
    json.endObject();
    return json.text();
}

} // namespace zuno
