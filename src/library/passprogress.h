// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QProgressBar;

namespace zuno {

class UpgradePass;

/// How far the first start's pass is, for a status bar, with a button that stops it. Goes by itself
/// when the pass is over.
class PassProgress final : public QWidget
{
    Q_OBJECT

public:
    explicit PassProgress(UpgradePass &pass, qsizetype sessions, QWidget *parent = nullptr);

private:
    void showProgress(qsizetype done, qsizetype all);

    QProgressBar *m_bar;
};

} // namespace zuno
