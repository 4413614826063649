// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <session/session.h>

#include <algorithm>

#include <QFileInfo>

#include <base/laptimes.h>
#include <base/memory.h>
#include <session/recording/gpsquality.h>
#include <session/recording/smoothing.h>
#include <track/map.h>

namespace zuno {

Session::Session(QString filePath, QObject *parent)
    : QObject(parent)
    , m_filePath(std::move(filePath))
{
}

Session::~Session() = default;

QString Session::fileName() const
{
    return QFileInfo(m_filePath).fileName();
}

void Session::fetchSamples() const
{
    if (m_fetched)
        return;
    m_fetched = true;
    if (m_sampleSource)
        guard([this] { m_samples = m_sampleSource(); });
    markMisplaced(std::span(m_samples.points).first(wholeCount(m_samples.points)));
}

// Half of the samples, or samples that are not smoothed, would show what is not so.
void Session::guard(const std::function<void()> &work) const
{
    if (withinMemory(work))
        return;
    m_lacksMemory = true;
    m_samples = {};
}

std::size_t Session::wholeCount(const Points &points) const
{
    return std::min(points.size(), static_cast<std::size_t>(m_recording.wholeSampleCount));
}

const Points &Session::samples() const
{
    fetchSamples();
    return m_samples.points;
}

std::span<const PointAcquisition> Session::wholeSamples() const
{
    const Points &all = samples();
    return std::span(all).first(wholeCount(all));
}

const ReadingLists &Session::readingLists() const
{
    fetchSamples();
    return m_samples.lists;
}

void Session::smooth()
{
    if (m_smoothed)
        return;
    m_smoothed = true;
    fetchSamples();
    guard([this] { smoothSamples(m_samples.points); });
}

void Session::release()
{
    if (!m_sampleSource || !m_fetched)
        return;
    m_information.bestLapText = bestLapStored();
    m_information.idealTimeText = idealTimeStored();
    m_information.invalidLaps = invalidLaps();
    m_results = {};
    m_samples = {};
    m_fetched = false;
    m_lacksMemory = false;
    m_smoothed = false;
    m_released = true;
}

void Session::restore()
{
    if (!m_released)
        return;
    smooth();
    cutIntoLaps();
}

StoredText Session::bestLapStored() const
{
    if (laps().empty())
        return m_information.bestLapText;
    const Lap &lap = *laps()[static_cast<std::size_t>(m_results.bestLap)];
    return lap.lapTime() > 0 ? StoredText(lap.timeText()) : StoredText();
}

StoredText Session::idealTimeStored() const
{
    // On a map that it never passes the line of it has none, whatever the file says of another map.
    if (laps().empty() && (m_map == nullptr || m_released))
        return m_information.idealTimeText;
    return StoredText(timeText(m_results.idealTime));
}

QList<quint8> Session::invalidLaps() const
{
    if (laps().empty())
        return m_information.invalidLaps;
    QList<quint8> numbers;
    for (const auto &lap : laps()) {
        // A lap's number is stored in a byte; a greater one would throw out another lap.
        if (!lap->isValid() && lap->lapNumber() <= 255)
            numbers.append(static_cast<quint8>(lap->lapNumber()));
    }
    return numbers;
}

StoredState Session::state() const
{
    StoredState state {m_newSession, m_information};
    state.information.bestLapText = bestLapStored();
    state.information.idealTimeText = idealTimeStored();
    state.information.invalidLaps = invalidLaps();
    return state;
}

bool Session::takeOver(const StoredState &file)
{
    if (file == m_stored)
        return false;
    // The laps first: the times are theirs.
    m_information.invalidLaps = merged(m_stored, state(), file).information.invalidLaps;
    flagLaps();
    StoredState state = merged(m_stored, this->state(), file);
    m_newSession = state.newSession;
    m_information = std::move(state.information);
    m_stored = file;
    return true;
}

// Gives the laps the flags that the stored numbers say.
void Session::flagLaps()
{
    if (laps().empty())
        return;
    for (const auto &lap : laps()) {
        const bool isByte = lap->lapNumber() <= 255;
        if (isByte)
            lap->setIsValid(
                !m_information.invalidLaps.contains(static_cast<quint8>(lap->lapNumber())));
    }
    rankLaps();
}

void Session::setMap(const Map *map)
{
    if (map == m_map)
        return;
    m_map = map;
    setCircuitName(map != nullptr ? storableText(map->displayName()) : QString());
    cutIntoLaps();
    Q_EMIT mapInfoChanged();
}

void Session::cutIntoLaps()
{
    m_released = false;
    m_results = {};
    if (m_map != nullptr) {
        guard([this] {
            m_results = zuno::cutIntoLaps(wholeSamples(), *m_map, m_information.invalidLaps);
        });
    }
}

void Session::rankLaps()
{
    zuno::rankLaps(m_results, m_map);
}

void Session::setLapValid(std::size_t index, bool valid)
{
    if (index >= laps().size() || laps()[index]->isValid() == valid)
        return;
    laps()[index]->setIsValid(valid);
    m_information.invalidLaps = invalidLaps();
    rankLaps();
}

} // namespace zuno
