// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QGeoCoordinate>
#include <QHash>
#include <QList>

#include <maps/proposal/mapproposal.h>
#include <session/recording/pointacquisition.h>

class QComboBox;

namespace zuno {

class MapEdit;
class TrackRing;

/// Which lap of a session the outline of a map follows: an entry of a box each, below the outline
/// that the map has.
class OutlineChoice
{
    Q_DECLARE_TR_FUNCTIONS(OutlineChoice)

public:
    /// What is given must outlive the choice.
    OutlineChoice(QComboBox &box, MapEdit &edit, const Points &samples);

    /// Offers the laps of the samples, which are another session's now.
    void offerLaps();
    /// Makes an entry of the box the outline.
    void choose(int index);
    /// Shows which entry the outline is; after undo it may be another one.
    void show();

private:
    QComboBox &m_box;
    MapEdit &m_edit;
    const Points &m_samples;
    MapProposal m_proposal;
    /// What the first entry brings back.
    QList<QGeoCoordinate> m_before;
    /// Which entry a way around came from.
    QHash<const TrackRing *, int> m_entries;
};

} // namespace zuno
