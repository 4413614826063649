// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// AiM's .xrk: messages "<hTAG", a length, a version, ">", the data, and a tail with a checksum;
// between them values "(S" (one) and "(M" (several) of the channels that CHS messages describe.
// Positions and velocities are those of the receiver's own frame, in centimetres from the earth's
// centre; of the two clocks its own is the one that is right.

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <map>

#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>

#include <formats/readers/geocentric.h>
#include <formats/readers/readers.h>
#include <formats/text/datetimes.h>

namespace zuno {

namespace {

// Of a file without end; the longest race is some megabytes.
constexpr qint64 LargestFile = 100LL * 1024 * 1024;
// Of a channel that is read a hundred times a second, the means of so many values are kept.
constexpr qsizetype MeanOf = 5;
constexpr qsizetype MessageHead = 12;
constexpr qsizetype MessageTail = 8;
constexpr qsizetype GpsSize = 56;

template<typename Number>
Number at(QByteArrayView bytes, qsizetype position)
{
    return qFromLittleEndian<Number>(bytes.data() + position);
}

double halfToDouble(quint16 bits)
{
    const int exponent = (bits >> 10) & 31;
    const double fraction = (bits & 1023) / 1024.0;
    const double sign = (bits & 0x8000) != 0 ? -1.0 : 1.0;
    if (exponent == 31)
        return NoValue;
    return exponent == 0 ? sign * std::ldexp(fraction, -14)
                         : sign * std::ldexp(1 + fraction, exponent - 15);
}

/// What is wanted of a channel.
enum class Wanted : quint8 { Nothing, AxisX, AxisY, AxisZ, Front, Rear };

/// A value on the logger's clock; small, since there are millions.
struct Value
{
    double time = 0.0;
    float value = 0.0F;
    Wanted wanted = Wanted::Nothing;
};

struct Channel
{
    qsizetype size = 0;
    int type = 0;
    double period = 0.0; ///< seconds between the values of an "(M"
    Wanted wanted = Wanted::Nothing;
};

Wanted wantedOf(const QByteArray &name)
{
    const QByteArray plain = name.toLower();
    if (plain.contains("acc") && plain.endsWith('x'))
        return Wanted::AxisX;
    if (plain.contains("acc") && plain.endsWith('y'))
        return Wanted::AxisY;
    if (plain.contains("acc") && plain.endsWith('z'))
        return Wanted::AxisZ;
    if (plain.contains("fork") || (plain.contains("susp") && plain.contains("fr")))
        return Wanted::Front;
    if (plain.contains("shock") || (plain.contains("susp") && plain.contains("r")))
        return Wanted::Rear;
    return Wanted::Nothing;
}

double decoded(QByteArrayView value, const Channel &channel)
{
    if (channel.size == 2)
        return channel.type == 20 || channel.type == 1 ? halfToDouble(at<quint16>(value, 0))
                                                       : static_cast<double>(at<qint16>(value, 0));
    if (channel.size != 4)
        return NoValue;
    return channel.type == 6 ? static_cast<double>(std::bit_cast<float>(at<quint32>(value, 0)))
                             : static_cast<double>(at<qint32>(value, 0));
}

RawRow rowOf(const Value &value, double offset)
{
    RawRow row;
    row.time = value.time + offset;
    const double number = static_cast<double>(value.value);
    switch (value.wanted) {
    case Wanted::AxisX:
        row.axes[0] = number;
        break;
    case Wanted::AxisY:
        row.axes[1] = number;
        break;
    case Wanted::AxisZ:
        row.axes[2] = number;
        break;
    case Wanted::Front:
        row.front = number;
        break;
    case Wanted::Rear:
        row.rear = number;
        break;
    case Wanted::Nothing:
        break;
    }
    return row;
}

QString textOf(QByteArrayView body)
{
    return QString::fromLatin1(upTo(body, '\0')).trimmed();
}

class AimXrk
{
public:
    AimXrk(QByteArrayView bytes, RideFacts &facts, RowSink &sink)
        : m_bytes(bytes)
        , m_facts(facts)
        , m_sink(sink)
    {
    }

    ReadEnd read();

private:
    [[nodiscard]] qsizetype take(qsizetype position);
    [[nodiscard]] qsizetype takeMessage(qsizetype position);
    [[nodiscard]] qsizetype takeValues(qsizetype position, bool isSeveral);
    void takeBody(QByteArrayView tag, QByteArrayView body);
    void takeChannel(QByteArrayView body);
    void takeGps(QByteArrayView body);
    void addValues(const Channel &channel, double time, QByteArrayView values);
    void placeOnClock();

    QByteArrayView m_bytes;
    RideFacts &m_facts;
    RowSink &m_sink;
    std::map<quint16, Channel> m_channels;
    std::vector<RawRow> m_fixes;
    std::vector<Value> m_values;
    std::vector<double> m_laps;
    std::vector<double> m_offsets;
    QDate m_date;
    double m_time = NoValue;
    int m_depth = 0;
    bool m_isDamaged = false;
};

ReadEnd AimXrk::read()
{
    m_facts.logger = QStringLiteral("AiM");
    qsizetype position = 0;
    while (position < m_bytes.size() && !m_sink.isCancelled()) {
        const qsizetype used = take(position);
        if (used == 0 && !m_isDamaged)
            m_facts.damage.add(0, position);
        m_isDamaged = used == 0;
        position += std::max<qsizetype>(used, 1);
    }
    if (m_fixes.empty())
        return {QCoreApplication::translate("Formats", "there is no position in it")};
    placeOnClock();
    return {};
}

// How many bytes stand for something at @p position; 0 when they are damaged.
qsizetype AimXrk::take(qsizetype position)
{
    const QByteArrayView rest = m_bytes.sliced(position);
    if (rest.startsWith("<h"))
        return takeMessage(position);
    if (rest.startsWith("(S"))
        return takeValues(position, false);
    if (rest.startsWith("(M"))
        return takeValues(position, true);
    return 0;
}

qsizetype AimXrk::takeMessage(qsizetype position)
{
    const QByteArrayView rest = m_bytes.sliced(position);
    if (rest.size() < MessageHead + MessageTail || rest[11] != '>')
        return 0;
    const QByteArrayView tag = rest.sliced(2, 4);
    const qint64 length = at<qint32>(rest, 6);
    if (length < 0 || length > rest.size() - MessageHead - MessageTail)
        return 0;
    const QByteArrayView body = rest.sliced(MessageHead, static_cast<qsizetype>(length));
    const QByteArrayView tail = rest.sliced(MessageHead + body.size(), MessageTail);
    if (tail.front() != '<' || tail.sliced(1, 4) != tag || tail[7] != '>')
        return 0;
    quint16 sum = 0;
    for (const char byte : body)
        sum = static_cast<quint16>(sum + static_cast<quint8>(byte));
    if (at<quint16>(tail, 5) != sum)
        return 0;
    if (tag.startsWith("CNF") && m_depth == 0) {
        // Messages within a message.
        ++m_depth;
        qsizetype inner = 0;
        while (inner < body.size()) {
            const qsizetype used = take(position + MessageHead + inner);
            inner += std::max<qsizetype>(used, 1);
        }
        --m_depth;
    } else {
        takeBody(tag, body);
    }
    return MessageHead + body.size() + MessageTail;
}

void AimXrk::takeBody(QByteArrayView tag, QByteArrayView body)
{
    if (tag.startsWith("GPS"))
        takeGps(body);
    else if (tag.startsWith("CHS"))
        takeChannel(body);
    else if (tag.startsWith("RCR"))
        m_facts.driver = textOf(body);
    else if (tag.startsWith("VEH"))
        m_facts.vehicle = textOf(body);
    else if (tag.startsWith("CMP"))
        m_facts.event = textOf(body);
    else if (tag.startsWith("TRK"))
        m_facts.circuit = textOf(body.first(std::min<qsizetype>(body.size(), 32)));
    else if (tag.startsWith("TMD"))
        m_date = findDate(textOf(body), DateOrder::MonthFirst);
    else if (tag.startsWith("TMT"))
        m_time = findTimeOfDay(textOf(body));
    else if (tag.startsWith("LAP") && body.size() >= 20 && body[1] == 0)
        m_laps.push_back(at<qint32>(body, 16) / 1000.0);
}

void AimXrk::takeChannel(QByteArrayView body)
{
    if (body.size() < 76)
        return;
    Channel channel;
    channel.size = static_cast<quint8>(body[72]);
    channel.type = static_cast<quint8>(body[20]);
    channel.period = at<quint32>(body, 64) / 1e6;
    channel.wanted = wantedOf(upTo(body.sliced(32, 24), '\0').toByteArray());
    m_channels[at<quint16>(body, 0)] = channel;
}

qsizetype AimXrk::takeValues(qsizetype position, bool isSeveral)
{
    const QByteArrayView rest = m_bytes.sliced(position);
    const qsizetype head = isSeveral ? 10 : 8;
    if (rest.size() < head + 1)
        return 0;
    const auto found = m_channels.find(at<quint16>(rest, 6));
    if (found == m_channels.end())
        return 0;
    const Channel &channel = found->second;
    const qsizetype count = isSeveral ? at<quint16>(rest, 8) : 1;
    const qsizetype size = count * channel.size;
    if (rest.size() < head + size + 1 || rest[head + size] != ')')
        return 0;
    if (channel.wanted != Wanted::Nothing && channel.size > 0)
        addValues(channel, at<qint32>(rest, 2) / 1000.0, rest.sliced(head, size));
    return head + size + 1;
}

void AimXrk::addValues(const Channel &channel, double time, QByteArrayView values)
{
    const qsizetype count = values.size() / channel.size;
    for (qsizetype begin = 0; begin < count; begin += MeanOf) {
        double sum = 0;
        const qsizetype end = std::min(count, begin + MeanOf);
        for (qsizetype i = begin; i < end; ++i)
            sum += decoded(values.sliced(i * channel.size, channel.size), channel);
        const double mean = sum / static_cast<double>(end - begin);
        const double middle = time + channel.period * static_cast<double>(begin + end - 1) / 2;
        if (!std::isnan(mean))
            m_values.push_back({middle, static_cast<float>(mean), channel.wanted});
    }
}

void AimXrk::takeGps(QByteArrayView body)
{
    if (body.size() < GpsSize)
        return;
    std::array<double, 3> place {};
    std::array<double, 3> velocity {};
    for (qsizetype i = 0; i < 3; ++i) {
        place[static_cast<std::size_t>(i)] = at<qint32>(body, 16 + 4 * i) / 100.0;
        velocity[static_cast<std::size_t>(i)] = at<qint32>(body, 32 + 4 * i) / 100.0;
    }
    const double logger = at<qint32>(body, 0) / 1000.0;
    const double week = 604800.0 * at<quint16>(body, 12);
    RawRow row = rowFromGeocentric(place, velocity);
    if (std::isnan(row.latitude))
        return;
    row.time = week + at<qint32>(body, 4) / 1000.0;
    m_offsets.push_back(row.time - logger);
    m_fixes.push_back(row);
}

// Puts what the logger's clock says on the receiver's, and all of it in order; the logger tells the
// date and the time of day on its own.
void AimXrk::placeOnClock()
{
    const auto middle = m_offsets.begin() + std::ssize(m_offsets) / 2;
    std::nth_element(m_offsets.begin(), middle, m_offsets.end());
    const double offset = *middle;
    for (const double lap : m_laps)
        m_facts.lapMarks.push_back(lap + offset);
    if (m_date.isValid()) {
        const double seconds = (std::isnan(m_time) ? 0.0 : m_time) - offset;
        m_facts.clockZero = QDateTime(m_date, QTime(0, 0), Qt::UTC)
                                .addMSecs(static_cast<qint64>(std::llround(seconds * 1000)));
    }
    std::stable_sort(m_values.begin(), m_values.end(),
                     [](const Value &a, const Value &b) { return a.time < b.time; });
    auto value = m_values.begin();
    for (const RawRow &fix : m_fixes) {
        for (; value != m_values.end() && value->time + offset <= fix.time; ++value)
            m_sink.take(rowOf(*value, offset));
        m_sink.take(fix);
    }
}

} // namespace

bool looksLikeAimXrk(QByteArrayView head)
{
    return head.startsWith("<h") && head.size() > MessageHead && head[11] == '>';
}

ReadEnd readAimXrk(QIODevice &device, RideFacts &facts, RowSink &sink)
{
    if (device.size() > LargestFile)
        return {QCoreApplication::translate("Formats", "it is too large")};
    const QByteArray bytes = device.readAll();
    return AimXrk(bytes, facts, sink).read();
}

} // namespace zuno
