// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/recording/sessionwriter.h>

#include <bit>

#include <QIODevice>
#include <QtEndian>

namespace zuno {

namespace {

constexpr qsizetype PieceSize = 64 * 1024;

} // namespace

SessionWriter::SessionWriter(QIODevice &device) : m_device(device) {}

template<typename Number>
void SessionWriter::add(Number value)
{
    const Number little = qToLittleEndian(value);
    m_bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

void SessionWriter::addText(const QByteArray &text)
{
    const QByteArray bytes = text.left(MaximumTextLength);
    add(static_cast<quint8>(bytes.size()));
    m_bytes.append(bytes);
}

void SessionWriter::flush(qsizetype limit)
{
    if (m_bytes.size() <= limit)
        return;
    m_isGood = m_isGood && m_device.write(m_bytes) == m_bytes.size();
    m_bytes.clear();
}

void SessionWriter::begin(quint32 count)
{
    addText("RA1");
    addText("1.0.0.0");
    add(count);
}

void SessionWriter::addSample(quint32 milliseconds, const std::array<float, 6> &values)
{
    add(milliseconds);
    for (const float value : values)
        add(std::bit_cast<quint32>(value));
    flush(PieceSize);
}

void SessionWriter::addHeader(const std::vector<quint32> &words, const QByteArray &date,
                              const QByteArray &time, bool neverOpened)
{
    add(static_cast<quint32>(words.size()));
    for (const quint32 word : words)
        add(word);
    addText(date);
    add(quint8 {0});
    addText(time);
    add(std::bit_cast<quint64>(0.0));
    add(static_cast<quint8>(neverOpened ? 1 : 0));
}

void SessionWriter::beginReadings(quint32 count)
{
    if (m_lists++ == 0)
        add(quint8 {1});
    add(count);
    m_reading = 0;
}

void SessionWriter::addReading(double value)
{
    add(m_reading++);
    add(std::bit_cast<quint64>(value));
    flush(PieceSize);
}

// Without lists the block's first byte, the length of the circuit's name, stands where their flag
// would be.
void SessionWriter::addInformation(const SessionInformation &information)
{
    const QByteArray circuit = information.circuitName.encoded();
    const bool readsAsFlag = m_lists == 0 && circuit.startsWith('\x01');
    m_bytes.append(readsAsFlag ? StoredText().encoded() : circuit);
    for (const StoredText *text :
         {&information.event, &information.driver, &information.bestLapText,
          &information.idealTimeText, &information.vehicle, &information.condition})
        m_bytes.append(text->encoded());
    add(static_cast<quint8>(information.temperature));
    m_bytes.append(information.tyres.encoded());
    m_bytes.append(information.notes.encoded());
    add(static_cast<quint8>(information.invalidLaps.size()));
    for (const quint8 lap : information.invalidLaps)
        add(lap);
}

void SessionWriter::addNoInformation()
{
    if (m_lists == 0)
        add(quint8 {0});
}

bool SessionWriter::finish()
{
    flush(0);
    return m_isGood;
}

} // namespace zuno
