// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <maps/editor/filegates.h>
#include <maps/editor/mapeditor.h>
#include <track/mapdraft.h>

namespace zuno {

class AcquisitionLibrary;
class MapLibrary;
class SessionDisplay;
class Settings;

/// Makes, changes, renames and deletes the files of the maps folder as the rider wishes, and keeps
/// the choices of maps that are stored for sessions in step.
///
/// Keeps no pointer to a session or map while it asks the rider: both may be loaded again.
class MapMaker final : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all of it must outlive it.
    struct Parts
    {
        const AcquisitionLibrary &library;
        const MapLibrary &maps;
        const SessionDisplay &display;
        const Settings &settings;
    };
    /// Its dialogs stand on @p window, or on the dialog that is open there.
    MapMaker(const Parts &parts, QWidget *window);

public Q_SLOTS:
    /// Proposes a map from the displayed session and opens the editor.
    void newMap();
    /// Opens the editor with the map of that name, or with a copy when the map came from elsewhere.
    void editMap(const QString &name);
    void renameMap(const QString &name);
    /// Asks, then moves the map's file to the trash where there is one.
    void deleteMap(const QString &name);

Q_SIGNALS:
    /// The maps folder holds other maps; those in memory are the old ones still.
    void mapsChanged();

private:
    [[nodiscard]] QWidget *owner() const;
    [[nodiscard]] QString path(const QString &name) const;
    [[nodiscard]] MapEditor::Content content(const MapDraft &draft, const QString &mapName) const;
    /// Opens the editor with @p gates as the first change, which can be undone. The name under
    /// which the rider has saved; empty when he has not. Of a map from elsewhere, @p source, whose
    /// corners alone were changed no copy is made.
    [[nodiscard]] QString run(const MapEditor::Content &content, const QString &original,
                              const QString &source, const FileGates &gates = {});
    [[nodiscard]] QString askName(const QString &name) const;
    /// Writes @p draft into the maps folder; asks before another map than @p original, a name below
    /// the folder, is replaced. Tells the rider what goes wrong. The name under which it was
    /// written; empty when it was not.
    [[nodiscard]] QString save(const MapDraft &draft, const QString &original);
    /// Puts the rider's changes of corners beside the map of that name; without any there is no
    /// file.
    void saveCorners(const CornerEdits &edits, const QString &name) const;
    [[nodiscard]] bool ask(const QString &question) const;
    void tell(const QString &problem) const;

    Parts m_parts;
    QWidget *m_window;
};

} // namespace zuno
