// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <theme/theme.h>

#include <algorithm>

#include <QRegularExpression>

namespace zuno {

namespace {

struct Entry
{
    Colour colour;
    const char16_t *name;
    QRgb dark;
    QRgb light;
};

// The one list of colours. Texts have a contrast of 4.5 at least to every ground they stand on,
// lines and signs one of 3; the laps are told apart with each of the three colour weaknesses.
constexpr std::array<Entry, ColourCount> Table {{
    {Colour::Window, u"window", 0xff19232d, 0xffedf0f3},
    {Colour::Pane, u"pane", 0xff141c24, 0xffffffff},
    {Colour::Raised, u"raised", 0xff2b3947, 0xffdfe5ea},
    {Colour::Hover, u"hover", 0xff38495a, 0xffd0d9e1},
    {Colour::Card, u"card", 0xff202c38, 0xfff6f8fa},
    {Colour::Map, u"map", 0xff10161c, 0xfff4f6f8},
    {Colour::Text, u"text", 0xffffffff, 0xff0e1720},
    {Colour::SecondText, u"secondText", 0xffc3ced8, 0xff33414d},
    {Colour::ThirdText, u"thirdText", 0xff9fb0be, 0xff4c5a66},
    {Colour::DisabledText, u"disabledText", 0xff7f8b95, 0xff717c86},
    {Colour::Edge, u"edge", 0xff647685, 0xff76848f},
    {Colour::EdgeHover, u"edgeHover", 0xff8ea2b3, 0xff4c5a66},
    {Colour::PaneEdge, u"paneEdge", 0xff4a5a68, 0xff97a4af},
    {Colour::FaintEdge, u"faintEdge", 0xff33414c, 0xffcdd5dc},
    {Colour::Focus, u"focus", 0xff7cc4ff, 0xff0b62c4},
    {Colour::Accent, u"accent", 0xff1f8ad8, 0xff0b62c4},
    {Colour::AccentHover, u"accentHover", 0xff1d74b6, 0xff0a55aa},
    {Colour::Chosen, u"chosen", 0xff1464a1, 0xff0b62c4},
    {Colour::ChosenText, u"chosenText", 0xffffffff, 0xffffffff},
    {Colour::Sign, u"sign", 0xffd5dfe8, 0xff33414d},
    {Colour::Scroll, u"scroll", 0xff647685, 0xff76848f},
    {Colour::ToolTip, u"toolTip", 0xffffffff, 0xff0e1720},
    {Colour::ToolTipText, u"toolTipText", 0xff19232d, 0xffffffff},
    {Colour::Lap1, u"lap1", 0xff5bbeff, 0xff0b62c4},
    {Colour::Lap2, u"lap2", 0xffff8a2b, 0xffb54300},
    {Colour::Lap3, u"lap3", 0xffffffff, 0xff101820},
    {Colour::Lap4, u"lap4", 0xfffbf6a8, 0xff067676},
    {Colour::Lap5, u"lap5", 0xffc476a2, 0xff661a00},
    {Colour::Lap6, u"lap6", 0xffb38169, 0xff000080},
    {Colour::Gain, u"gain", 0xff5bbeff, 0xff0b62c4},
    {Colour::Loss, u"loss", 0xffff8a2b, 0xffb54300},
    {Colour::Braking, u"braking", 0xffff5c5c, 0xffc4161c},
    {Colour::Accelerating, u"accelerating", 0xff35d8e6, 0xff00707f},
    {Colour::Neutral, u"neutral", 0xff71828f, 0xff7a8894},
    {Colour::Warning, u"warning", 0xffffd84d, 0xffffd84d},
    {Colour::WarningInk, u"warningInk", 0xff0e1720, 0xff0e1720},
    {Colour::Error, u"error", 0xffff5c5c, 0xffc4161c},
    {Colour::BestLap, u"bestLap", 0xff1b7a43, 0xffbfe9ce},
    {Colour::BestLapText, u"bestLapText", 0xffffffff, 0xff0b3a1f},
    {Colour::BestLapBar, u"bestLapBar", 0xff8ff0b5, 0xff1b7a43},
    {Colour::BestSection, u"bestSection", 0xff7a2e9e, 0xffe6cff3},
    {Colour::BestSectionText, u"bestSectionText", 0xffffffff, 0xff36104a},
    {Colour::BestSectionBar, u"bestSectionBar", 0xffe9c4ff, 0xff7a2e9e},
    {Colour::ThrownOut, u"thrownOut", 0xff7c1d22, 0xfff6cfd0},
    {Colour::SelectedRow, u"selectedRow", 0xff1464a1, 0xffcfe4fa},
    {Colour::SelectedText, u"selectedText", 0xffffffff, 0xff0e1720},
    {Colour::SelectedLoss, u"selectedLoss", 0xffffffff, 0xff9a3a00},
    {Colour::CornerBand, u"cornerBand", 0xff212b33, 0xfff2f2f3},
    {Colour::Zero, u"zero", 0xff647685, 0xff76848f},
    {Colour::SectorLine, u"sectorLine", 0xffa0b0c0, 0xff4c5a66},
    {Colour::Cursor, u"cursor", 0xffffffff, 0xff0e1720},
    {Colour::Selection, u"selection", 0x701464a1, 0x500b62c4},
    {Colour::Road, u"road", 0xff2a343e, 0xffd9dfe4},
    {Colour::Casing, u"casing", 0xff10161c, 0xffffffff},
    {Colour::Ramp1, u"ramp1", 0xff4f63c9, 0xff1b2a78},
    {Colour::Ramp2, u"ramp2", 0xff4e97c9, 0xff2468b4},
    {Colour::Ramp3, u"ramp3", 0xff7cc0a6, 0xff12806f},
    {Colour::Ramp4, u"ramp4", 0xffcfdd7a, 0xff6f7f00},
    {Colour::Ramp5, u"ramp5", 0xfffff3a3, 0xffb06a00},
}};

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < ColourCount; ++i) {
        if (static_cast<std::size_t>(Table[i].colour) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder());

constexpr std::array<double, 2> ReferenceDash {9, 3};
constexpr std::array<double, 2> ThirdDash {2, 2.5};
constexpr std::array<double, 4> FourthDash {8, 3, 2, 3};
constexpr std::array<double, 2> FifthDash {10, 4};
constexpr std::array<double, 2> SixthDash {4, 2};

const Entry &entryOf(Colour colour)
{
    return Table[static_cast<std::size_t>(colour)];
}

Colour following(Colour first, std::size_t place)
{
    return static_cast<Colour>(static_cast<int>(first) + static_cast<int>(place));
}

} // namespace

QColor Theme::colour(Colour colour) const
{
    const Entry &entry = entryOf(colour);
    return QColor::fromRgba(isDark() ? entry.dark : entry.light);
}

QColor Theme::lap(std::size_t place) const
{
    return colour(following(Colour::Lap1, place % LapColourCount));
}

QColor Theme::ramp(std::size_t place) const
{
    return colour(following(Colour::Ramp1, std::min(place, RampColourCount - 1)));
}

QString Theme::filled(const QString &sheet) const
{
    static const QRegularExpression placeholder(QStringLiteral("@([A-Za-z0-9]+)"));
    QString text;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(sheet)) {
        const auto *const entry
            = std::find_if(Table.begin(), Table.end(), [&match](const Entry &one) {
                  return match.capturedView(1) == QStringView(one.name);
              });
        if (entry == Table.end())
            continue;
        text += QStringView(sheet).mid(end, match.capturedStart() - end);
        text += colour(entry->colour).name();
        end = match.capturedEnd();
    }
    return text + QStringView(sheet).mid(end);
}

void Theme::fill(QPalette &palette) const
{
    const auto set = [this, &palette](QPalette::ColorRole role, Colour of) {
        palette.setColor(role, colour(of));
    };
    set(QPalette::Window, Colour::Window);
    set(QPalette::WindowText, Colour::Text);
    set(QPalette::Base, Colour::Pane);
    set(QPalette::AlternateBase, Colour::Card);
    set(QPalette::ToolTipBase, Colour::ToolTip);
    set(QPalette::ToolTipText, Colour::ToolTipText);
    set(QPalette::PlaceholderText, Colour::ThirdText);
    set(QPalette::Text, Colour::Text);
    set(QPalette::Button, Colour::Raised);
    set(QPalette::ButtonText, Colour::Text);
    set(QPalette::BrightText, Colour::Error);
    set(QPalette::Light, Colour::Hover);
    set(QPalette::Midlight, Colour::Raised);
    set(QPalette::Mid, Colour::PaneEdge);
    set(QPalette::Dark, Colour::Edge);
    set(QPalette::Shadow, Colour::Edge);
    set(QPalette::Link, Colour::Focus);
    set(QPalette::LinkVisited, Colour::Focus);
    set(QPalette::Highlight, Colour::SelectedRow);
    set(QPalette::HighlightedText, Colour::SelectedText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::HighlightedText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, colour(Colour::DisabledText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colour(Colour::Raised));
}

QString Theme::name(Colour colour)
{
    return QString::fromUtf16(entryOf(colour).name);
}

std::span<const double> lapDash(std::size_t place)
{
    switch (place % LapColourCount) {
    case 1:
        return ReferenceDash;
    case 2:
        return ThirdDash;
    case 3:
        return FourthDash;
    case 4:
        return FifthDash;
    case 5:
        return SixthDash;
    default:
        return {};
    }
}

} // namespace zuno
