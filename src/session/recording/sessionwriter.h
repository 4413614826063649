// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <vector>

#include <QByteArray>
#include <QString>

#include <session/recording/sessionmerge.h>

class QIODevice;

namespace zuno {

/// Writes a whole session file, from its beginning to its end; docs/formats.md has the layout. The
/// calls come in the order in which they are declared.
class SessionWriter
{
public:
    /// Writes to the open @p device, piece by piece; it must outlive the writer.
    explicit SessionWriter(QIODevice &device);

    /// The beginning of a file of @p count samples, which follow.
    void begin(quint32 count);
    /// A sample: its time in milliseconds, and longitude, latitude, speed, lean angle, longitudinal
    /// and lateral acceleration in the units of the file.
    void addSample(quint32 milliseconds, const std::array<float, 6> &values);
    /// What follows the samples: the words, the date and time of the recording, and the flags.
    void addHeader(const std::vector<quint32> &words, const QByteArray &date,
                   const QByteArray &time, bool neverOpened);
    /// One of two lists of readings, of @p count; both or none of them are begun.
    void beginReadings(quint32 count);
    void addReading(double value);
    /// The information; texts as they can be stored (see storableText()). A circuit's name of one
    /// letter is written as none in a file without readings: it would be read as the lists' flag.
    void addInformation(const SessionInformation &information);
    /// Ends a file without information.
    void addNoInformation();

    /// Writes what is left. False when the device did not take everything.
    [[nodiscard]] bool finish();

private:
    template<typename Number>
    void add(Number value);
    void addText(const QByteArray &text);
    void flush(qsizetype limit);

    QIODevice &m_device;
    QByteArray m_bytes;
    quint32 m_reading = 0;
    int m_lists = 0;
    bool m_isGood = true;
};

} // namespace zuno
