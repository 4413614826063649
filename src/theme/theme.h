// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <span>

#include <QColor>
#include <QPalette>
#include <QString>

namespace zuno {

/// What a colour is for. The table in theme.cpp has the two colours of each and its name, which is
/// also its name in the style sheet (with an @ before it) and on the map page.
enum class Colour {
    // Grounds.
    Window,
    Pane,
    Raised,
    Hover,
    Card,
    Map,
    // Texts.
    Text,
    SecondText,
    ThirdText,
    DisabledText,
    // Edges of fields, of panes, and faint ones: lines between cells, the grid of a chart.
    Edge,
    EdgeHover,
    PaneEdge,
    FaintEdge,
    // The keyboard focus, what is chosen or pressed, and the stroke of small signs.
    Focus,
    Accent,
    AccentHover,
    Chosen,
    ChosenText,
    Sign,
    Scroll,
    ToolTip,
    ToolTipText,
    // The laps, in the order in which they are added: selected, reference, four more.
    Lap1,
    Lap2,
    Lap3,
    Lap4,
    Lap5,
    Lap6,
    // Where the selected lap is faster or slower than the reference. They are the two laps'
    // colours: blue is where the selected lap is faster.
    Gain,
    Loss,
    Braking,
    Accelerating,
    Neutral,
    // Signs that are always on a ground of their own: ink on a yellow triangle.
    Warning,
    WarningInk,
    Error,
    // Grounds of table cells, with text and bar at the left edge.
    BestLap,
    BestLapText,
    BestLapBar,
    BestSection,
    BestSectionText,
    BestSectionBar,
    ThrownOut,
    SelectedRow,
    SelectedText,
    SelectedLoss,
    // Charts.
    CornerBand,
    Zero,
    SectorLine,
    Cursor,
    Selection,
    // The map: the road below the lap, the edge around a lap's line, and speed or lean from low
    // to high.
    Road,
    Casing,
    Ramp1,
    Ramp2,
    Ramp3,
    Ramp4,
    Ramp5,
};

inline constexpr std::size_t ColourCount = static_cast<std::size_t>(Colour::Ramp5) + 1;
inline constexpr std::size_t LapColourCount = 6;
inline constexpr std::size_t RampColourCount = 5;

/// The colours of one look of the program. All that is drawn takes its colours from here: widgets
/// by the palette and the style sheet, charts and tables by colour(), the map page as values.
class Theme final
{
public:
    enum class Kind { Dark, Light };

    explicit Theme(Kind kind) : m_kind(kind) {}

    [[nodiscard]] bool isDark() const { return m_kind == Kind::Dark; }
    [[nodiscard]] QColor colour(Colour colour) const;
    /// The colour of the lap at that place: 0 the selected one, 1 the reference, up to 5 others;
    /// from 6 on they begin anew.
    [[nodiscard]] QColor lap(std::size_t place) const;
    /// Speed or lean from low (0) to high (4).
    [[nodiscard]] QColor ramp(std::size_t place) const;
    /// @p sheet with its @names replaced by colours. What no colour is named stays.
    [[nodiscard]] QString filled(const QString &sheet) const;
    /// Gives @p palette the same colours, for what Qt draws by itself.
    void fill(QPalette &palette) const;

    /// The name of a colour, "bestLap".
    [[nodiscard]] static QString name(Colour colour);

private:
    Kind m_kind;
};

/// Dash and gap of the lap at that place, in pixels at a scale of one; empty for a solid line. With
/// it laps are told apart without their colours.
[[nodiscard]] std::span<const double> lapDash(std::size_t place);

} // namespace zuno
