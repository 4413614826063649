// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>

#include <QDialog>
#include <QTimer>

#include <maps/editor/mapedit.h>
#include <maps/editor/mapgestures.h>
#include <session/recording/pointacquisition.h>

namespace zuno {

class MapViewController;
class OutlineChoice;

namespace Ui {
class MapEditor;
}

/// The dialog in which a rider makes or changes a map: the map view with the draft on a session's
/// way, the draft's points and values, and the laps and warnings that it gives.
///
/// It holds copies only, so maps and sessions may be loaded again while it is open, and it writes
/// nothing: whoever opens it saves, and closes it with accept() once the map stands.
class MapEditor final : public QDialog
{
    Q_OBJECT

public:
    /// What is edited, and on which sessions it can be tried.
    struct Content
    {
        /// Its name is the one to propose.
        MapDraft draft;
        /// What the rider changed in its corners, and why they cannot be changed any more; empty
        /// when they can.
        CornerEdits corners = {};
        QString cornersRefused = {};
        /// What the rider should know before he begins; may be empty.
        QString note;
        /// Names of the sessions, the one that is shown first (-1 for none), and the smoothed
        /// samples of one of them.
        QStringList sessions;
        int session = -1;
        std::function<Points(int session)> samplesOf;
        /// Folders below the maps folder.
        QStringList folders;
    };

    explicit MapEditor(Content content, QWidget *parent = nullptr);
    ~MapEditor() override;

    /// The map as it stands, under the name that is typed.
    [[nodiscard]] MapDraft draft() const;
    [[nodiscard]] MapEdit &edit() { return m_edit; }
    /// Whether closing would lose something.
    [[nodiscard]] bool isChanged() const;

public Q_SLOTS:
    /// Asks before changes are lost.
    void reject() override;

Q_SIGNALS:
    /// The rider wants to save; the name is a valid one.
    void saveRequested(const zuno::MapDraft &draft);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createActions();
    void createKeys(QWidget &area);
    void fillForm();
    void connectForm();
    void connectMap();
    void showSession(int session);
    void chooseOutline(int index);
    void tellFull();
    void showCorner(const QList<QGeoCoordinate> &way);

    void showEdit();
    void showPoints();
    void showOnMap();
    void showCheck();
    void showNameFault();
    [[nodiscard]] bool isLow() const;
    void save();

    std::unique_ptr<Ui::MapEditor> m_ui;
    Content m_content;
    MapEdit m_edit;
    MapGestures m_gestures;
    MapViewController *m_map = nullptr;
    Points m_samples;
    std::unique_ptr<OutlineChoice> m_outlines;
    QTimer m_checkSoon;
};

} // namespace zuno
