// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QWidget>

#include <maps/editor/mapcheckmodel.h>
#include <session/recording/pointacquisition.h>

namespace zuno {

struct MapDraft;

namespace Ui {
class MapCheckPane;
}

/// The laps that the map gives that is edited, and what is wrong with it.
class MapCheckPane final : public QWidget
{
    Q_OBJECT

public:
    explicit MapCheckPane(QWidget *parent = nullptr);
    ~MapCheckPane() override;

    /// Tries the draft on samples, which may be none. In a low window it shows fewer warnings at
    /// once.
    void check(const Points &samples, const MapDraft &draft, bool isLow);
    [[nodiscard]] const QList<MapWarning> &warnings() const { return m_laps.check().warnings; }

Q_SIGNALS:
    /// The rider has chosen a warning of that point.
    void pointSelected(int point);
    void warningsChanged();

private:
    [[nodiscard]] QString summary(bool hasSamples) const;
    void showWarnings(bool hasSamples, bool isLow);

    std::unique_ptr<Ui::MapCheckPane> m_ui;
    MapCheckModel m_laps;
};

} // namespace zuno
