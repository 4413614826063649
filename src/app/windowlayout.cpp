// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/windowlayout.h>

#include <algorithm>

#include <QAbstractButton>
#include <QSplitter>

#include <base/settings.h>

namespace zuno {

namespace {

constexpr std::array States {Setting::TreeSizes, Setting::RowsSizes, Setting::TopRowSizes,
                             Setting::BottomRowSizes};
enum Place { Tree, Rows, TopRow, BottomRow };

constexpr int HandleWidth = 6;

// From these widths on there is room for more.
constexpr int WideWindow = 1400;
constexpr int MiddleWindow = 1200;

// Laps and map get as much as they need in a low window, and a quarter of what there is beyond.
constexpr int LowWindow = 700;
constexpr int LowTopRow = 240;
constexpr int LeastTopRow = 200;

} // namespace

WindowMeasures WindowMeasures::of(QSize window)
{
    WindowMeasures measures;
    measures.hasRail = window.width() < MiddleWindow;
    measures.topRow
        = std::max(LeastTopRow, LowTopRow + ((window.height() - LowWindow) * 265 / 1000));
    if (window.width() >= WideWindow) {
        measures.tree = 200;
        measures.lapsShare = 526;
        measures.where = 300;
    } else {
        measures.tree = 150;
        measures.lapsShare = measures.hasRail ? 458 : 473;
        measures.where = measures.hasRail ? 226 : 250;
    }
    return measures;
}

WindowLayout::WindowLayout(const Parts &parts, const Settings &settings, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_settings(settings)
    , m_splitters {&parts.tree, &parts.rows, &parts.topRow, &parts.bottomRow}
{
    for (std::size_t i = 0; i < m_splitters.size(); ++i) {
        m_splitters[i]->setHandleWidth(HandleWidth);
        m_isChosen[i] = m_splitters[i]->restoreState(m_settings.value(States[i]).toByteArray());
        connect(m_splitters[i], &QSplitter::splitterMoved, this, [this, i] {
            m_isChosen[i] = true;
            Q_EMIT moved();
        });
    }
    connect(&m_parts.rail, &QAbstractButton::clicked, this, &WindowLayout::toggleTree);
}

void WindowLayout::fit(QSize window)
{
    const WindowMeasures measures = WindowMeasures::of(window);
    const auto give = [this](Place place, int first, int all) {
        if (!m_isChosen[place])
            m_splitters[place]->setSizes({first, std::max(0, all - first)});
    };
    if (!m_isTreeChosen)
        showTree(!measures.hasRail);
    const int beside = isTreeShown() ? measures.tree : 0;
    const int width = window.width() - beside;
    give(Tree, measures.tree, window.width());
    give(Rows, measures.topRow, window.height());
    give(TopRow, width * measures.lapsShare / 1000, width);
    give(BottomRow, measures.where, width);
}

bool WindowLayout::isTreeShown() const
{
    return m_parts.rail.isHidden();
}

void WindowLayout::showTree(bool shown)
{
    m_parts.rail.setVisible(!shown);
    m_parts.tree.widget(0)->setVisible(shown);
}

void WindowLayout::toggleTree()
{
    m_isTreeChosen = true;
    showTree(!isTreeShown());
    if (isTreeShown())
        m_parts.tree.widget(0)->setFocus();
}

void WindowLayout::save() const
{
    QList<std::pair<Setting, QVariant>> states;
    for (std::size_t i = 0; i < m_splitters.size(); ++i) {
        if (m_isChosen[i])
            states.append({States[i], m_splitters[i]->saveState()});
    }
    m_settings.setValues(states);
}

} // namespace zuno
