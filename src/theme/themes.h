// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <optional>

#include <QObject>

#include <theme/theme.h>

namespace zuno {

enum class ThemeChoice { AsDesktop, Dark, Light };

/// The theme of the program at the moment: what the rider has chosen, or what the desktop asks for.
/// A desktop that asks for nothing has the dark one.
class Themes final : public QObject
{
    Q_OBJECT

public:
    /// The program has one, as it has one style.
    [[nodiscard]] static Themes &instance();

    [[nodiscard]] const Theme &theme() const { return m_theme; }
    [[nodiscard]] ThemeChoice choice() const { return m_choice; }
    void choose(ThemeChoice choice);
    /// What the desktop asks for; it may change at any time.
    void setDesktop(std::optional<Theme::Kind> desktop);
    /// Has @p restyle called before anybody hears of changed(), so that those find the widgets in
    /// the new colours.
    void setStyler(std::function<void()> restyle) { m_restyle = std::move(restyle); }

    /// A choice as settings have it ("dark", "light", "desktop"), and back; what is none of these
    /// is as the desktop.
    [[nodiscard]] static QString textOf(ThemeChoice choice);
    [[nodiscard]] static ThemeChoice choiceOf(const QString &text);

Q_SIGNALS:
    /// theme() is another one. Who keeps colours or pictures makes them anew; widgets that ask for
    /// colours while they are drawn need not listen.
    void changed();

private:
    Themes();
    void update();

    Theme m_theme;
    ThemeChoice m_choice = ThemeChoice::AsDesktop;
    std::optional<Theme::Kind> m_desktop;
    std::function<void()> m_restyle;
};

/// The theme of the program at the moment.
[[nodiscard]] const Theme &theme();

} // namespace zuno
