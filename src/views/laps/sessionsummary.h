// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QString>

class QLabel;
class QTableView;
class QTableWidget;
class QWidget;

namespace zuno {

struct SessionLap;
class Session;

/// What is said about the displayed session around the laps table: its map, the distances, the
/// ideal time, the best time of each section, and the lap that is chosen for comparison.
class SessionSummary
{
    Q_DECLARE_TR_FUNCTIONS(SessionSummary)

public:
    struct Widgets
    {
        QLabel *map;
        QLabel *mapLength;
        QLabel *mapError;
        /// Offers to make a map where none is found.
        QWidget *newMap;
        QLabel *idealTime;
        QLabel *distance;
        QLabel *firstLap;
        QTableWidget *sections;
        /// The laps table, whose rows the sections' are as high as.
        QTableView *laps;
    };
    explicit SessionSummary(const Widgets &widgets) : m_w(widgets) {}

    /// Shows a session; nullptr for none.
    void showSession(const Session *session);
    /// Shows the first lap of a comparison; nullptr for none.
    void showFirstLap(const SessionLap &lap);

    /// How many samples do not say where the motorcycle was; empty when all do.
    [[nodiscard]] static QString gpsText(const Session &session);
    /// Why a session has no laps, and what can be done; @p mapsFolder is where maps lie.
    [[nodiscard]] static QString laplessText(const Session &session, const QString &mapsFolder);

private:
    [[nodiscard]] static QString reasonForNoLaps(const Session &session, const QString &mapsFolder);
    void showLabels(const Session *session);
    void showSections(const Session *session);
    void fillSections(const Session &session, int sectors);

    Widgets m_w;
};

} // namespace zuno
