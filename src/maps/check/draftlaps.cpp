// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/check/draftlaps.h>

namespace zuno {

DraftLaps::DraftLaps(std::span<const PointAcquisition> samples, const MapDraft &draft)
    : m_map(draft.toMap())
    , m_session(QString())
{
    Recording recording;
    recording.sampleCount = static_cast<qint64>(samples.size());
    recording.wholeSampleCount = recording.sampleCount;
    m_session.setRecording(recording);
    m_session.setSampleSource([samples] {
        return Session::Samples {Points(samples.begin(), samples.end()), {}};
    });
    m_session.setMap(m_map.get());
}

} // namespace zuno
