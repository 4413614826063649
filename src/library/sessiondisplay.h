// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <session/session.h>

namespace zuno {

class AcquisitionLibrary;
class InformationWriter;
class Map;
class MapLibrary;
class Settings;

/// How a map came to a session; decides what becomes of the stored choice.
enum class MapMode : int {
    /// Detected: a stored choice is forgotten.
    Detected = 0,
    /// Chosen by the rider: the choice is stored.
    Chosen = 1,
    /// Restored or kept: the stored choice stays as it is.
    Kept = 2,
};

/// The session on display: makes a file of the library the displayed session, with its samples
/// smoothed, its map and its laps, and gives it other maps. Knows nothing of the views; they
/// listen.
class SessionDisplay : public QObject
{
    Q_OBJECT

public:
    /// What the display works with; all of it must outlive the display.
    struct Parts
    {
        AcquisitionLibrary &library;
        const MapLibrary &maps;
        const Settings &settings;
        InformationWriter &writer;
    };
    explicit SessionDisplay(const Parts &parts, QObject *parent = nullptr);
    ~SessionDisplay() override;

    /// The displayed session; nullptr when there is none.
    [[nodiscard]] Session *session() const { return m_session; }
    /// Its position in the library; -1 when there is none.
    [[nodiscard]] qsizetype index() const;

    /// The session with exactly that file path, which becomes the displayed one; nullptr, and
    /// nothing changes, when the library has none.
    Session *findSessionByPath(const QString &path);

    /// Displays the session of a file, loading it when the library has not got it yet. False when
    /// the file gives no session.
    bool display(const QString &path);
    /// Applies map candidates to the displayed session.
    void onMapChanged(const QList<const zuno::Map *> &candidates, int mode);
    /// Finds the displayed session's map by its first position and the length of a lap.
    void detectMap();
    /// Displays nothing.
    void clear();
    /// Keeps the laps of a session that is compared with the displayed one; nullptr for none.
    /// Every other session lets go of its samples when another one is displayed.
    void setCompared(Session *session);

Q_SIGNALS:
    /// The displayed session has been cut into laps anew, on another map or on none.
    void mapApplied(zuno::Session *session);
    /// The session stands on display.
    void sessionDisplayed(zuno::Session *session);
    /// Nothing is on display any more.
    void cleared();
    /// The displayed session's file was deleted or moved; nothing is on display any more.
    void vanished(const QString &path);
    /// A file that is no session was asked for.
    void notASession(const QString &path);
    /// A session has been opened for the first time.
    void viewedStateChanged();

private:
    void assignMap();
    void storeChoice(MapMode mode);
    void onAboutToBeRemoved(Session *session);
    void release(Session *session);
    void remember();

    AcquisitionLibrary &m_library;
    const MapLibrary &m_maps;
    const Settings &m_settings;
    InformationWriter &m_writer;
    Session *m_session = nullptr;
    QPointer<Session> m_compared;
    QTimer m_remember;
};

} // namespace zuno
