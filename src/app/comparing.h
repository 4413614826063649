// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <views/comparison/comparison.h>

class QWidget;

namespace zuno {

class ComparisonBar;
class CornerTable;
class LapCharts;
class LapsPane;
class WherePane;

/// All that compares laps in the main window: makes the comparison and its panes and connects them
/// with tables, charts and keys.
class Comparing final : public QObject
{
    Q_OBJECT

public:
    /// All of it must outlive this.
    struct Parts
    {
        LapSelection &selection;
        const Settings &settings;
        LapsPane &laps;
        LapCharts &charts;
        QWidget &map;
    };

    Comparing(const Parts &parts, Comparison::Sources sources, QWidget *window);

    [[nodiscard]] Comparison &comparison() { return m_comparison; }
    [[nodiscard]] ComparisonBar *bar() const { return m_bar; }
    [[nodiscard]] WherePane *where() const { return m_where; }

Q_SIGNALS:
    /// A message for the rider.
    void noticed(const QString &message);

private:
    void connectParts();
    void createKeys();
    void addKey(const QString &text, const QKeySequence &key, const QList<QWidget *> &where,
                const std::function<void()> &run);
    void mark();
    void chooseOtherFile();
    void nameCorner(std::size_t corner, const QString &name);

    Parts m_parts;
    Comparison m_comparison;
    ComparisonBar *m_bar;
    WherePane *m_where;
    CornerTable *m_corners;
};

} // namespace zuno
