// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QDialog>

#include <views/idealtime/idealtimesearch.h>

namespace zuno {

class IdealTimeModel;

namespace Ui {
class IdealTimeDialog;
}

/// The ideal time over several sessions: handles one session after another while it shows how far
/// it is, then shows the table.
class IdealTimeDialog final : public QDialog
{
    Q_OBJECT

public:
    /// @p parts must outlive the dialog; the sessions need not.
    IdealTimeDialog(const IdealTimeSearch::Parts &parts, const QList<Session *> &sessions,
                    QWidget *parent = nullptr);
    ~IdealTimeDialog() override;

Q_SIGNALS:
    /// The rider wants to see a lap; its number counts from 1. The dialog closes.
    void lapRequested(const QString &filePath, int lapNumber);

private:
    void createActions();
    void step();
    void showResult();
    void showLeftOut();
    void fitColumns();
    void showLap(const QModelIndex &index);
    void copyTable() const;

    std::unique_ptr<Ui::IdealTimeDialog> m_ui;
    IdealTimeSearch m_search;
    IdealTimeModel *m_model;
};

} // namespace zuno
