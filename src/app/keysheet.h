// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QList>

namespace zuno {

/// A key, or two that belong together, and what it does.
struct KeyHelp
{
    QList<QKeySequence> keys;
    QString text;

    /// "Ctrl+L", "Left, Right"
    [[nodiscard]] QString keyText() const;
};

/// All keys of one part of the window.
struct KeyGroup
{
    QString title;
    QList<KeyHelp> keys;
};

/// The keys of all actions of @p window, as the actions say them, and those of the charts.
[[nodiscard]] QList<KeyGroup> keysOf(const QWidget &window);

/// The keys that a chart takes by itself.
[[nodiscard]] QList<KeyHelp> chartKeys();

/// All keys on one sheet.
class KeySheet final : public QDialog
{
    Q_OBJECT

public:
    explicit KeySheet(const QList<KeyGroup> &groups, QWidget *parent = nullptr);
};

} // namespace zuno
