// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <theme/themes.h>

namespace zuno {

namespace {

Theme::Kind kindOf(ThemeChoice choice, std::optional<Theme::Kind> desktop)
{
    switch (choice) {
    case ThemeChoice::Dark:
        return Theme::Kind::Dark;
    case ThemeChoice::Light:
        return Theme::Kind::Light;
    case ThemeChoice::AsDesktop:
        break;
    }
    return desktop.value_or(Theme::Kind::Dark);
}

} // namespace

Themes::Themes() : m_theme(Theme::Kind::Dark) {}

Themes &Themes::instance()
{
    static Themes themes;
    return themes;
}

void Themes::choose(ThemeChoice choice)
{
    m_choice = choice;
    update();
}

void Themes::setDesktop(std::optional<Theme::Kind> desktop)
{
    m_desktop = desktop;
    update();
}

void Themes::update()
{
    const Theme next(kindOf(m_choice, m_desktop));
    if (next.isDark() == m_theme.isDark())
        return;
    m_theme = next;
    if (m_restyle)
        m_restyle();
    Q_EMIT changed();
}

QString Themes::textOf(ThemeChoice choice)
{
    switch (choice) {
    case ThemeChoice::Dark:
        return QStringLiteral("dark");
    case ThemeChoice::Light:
        return QStringLiteral("light");
    case ThemeChoice::AsDesktop:
        break;
    }
    return QStringLiteral("desktop");
}

ThemeChoice Themes::choiceOf(const QString &text)
{
    for (const ThemeChoice choice : {ThemeChoice::Dark, ThemeChoice::Light}) {
        if (text == textOf(choice))
            return choice;
    }
    return ThemeChoice::AsDesktop;
}

const Theme &theme()
{
    return Themes::instance().theme();
}

} // namespace zuno
