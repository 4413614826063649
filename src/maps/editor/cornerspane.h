// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QList>
#include <QWidget>

#include <insight/circuitcorners.h>
#include <track/mapdraft.h>

class QLabel;
class QPushButton;
class QTableWidget;

namespace zuno {

class MapEdit;

/// The corners of the map that is edited, as its outline and what the rider changed of them say.
class CornersPane final : public QWidget
{
    Q_OBJECT

public:
    explicit CornersPane(QWidget *parent = nullptr);

    /// Finds the corners anew when the outline, the line or the rider's changes are others.
    void showCorners(const MapEdit &edit);
    /// Says why the corners cannot be changed; they can while it is empty.
    void refuse(const QString &reason);

Q_SIGNALS:
    void editRequested(const zuno::CornerEdit &edit);
    /// The corners shall be as they were found.
    void resetRequested();
    /// The rider selected a corner: the way there, through it and out again.
    void cornerSelected(const QList<QGeoCoordinate> &way);

private:
    QPushButton *addButton(const QString &text, const QString &toolTip);
    void fillTable();
    void enableButtons();
    void rename(int row, const QString &name);
    void request(CornerEdit::Kind kind);
    void tellSelected(int row);

    QTableWidget *m_table;
    QLabel *m_note;
    QPushButton *m_join;
    QPushButton *m_split;
    QPushButton *m_delete;
    QPushButton *m_reset;
    std::optional<MapDraft> m_draft;
    CornerEdits m_edits;
    CircuitCorners m_circuit;
    bool m_isRefused = false;
};

} // namespace zuno
