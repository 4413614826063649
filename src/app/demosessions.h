// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <base/settings.h>

namespace zuno {

/// The made-up sessions with which a rider can try the program: in the folder "Demo" of the
/// library, their circuits in the folder of maps. They are taken away again without a trace, and
/// nothing else with them: a file goes only when it holds the same recording as the demo's, and a
/// map only when it is the same to the byte.
class DemoSessions final
{
    Q_DECLARE_TR_FUNCTIONS(DemoSessions)

public:
    explicit DemoSessions(const Settings &settings) : m_settings(settings) {}

    /// Whether there are sessions in the folder "Demo".
    [[nodiscard]] bool areThere() const;
    /// Where the sessions are.
    [[nodiscard]] QString folder() const;
    /// Puts them there; what is there already stays. Returns why it went wrong, or nothing.
    [[nodiscard]] QString load() const;
    /// Takes them away. Returns how many files could not be.
    [[nodiscard]] int remove() const;

private:
    [[nodiscard]] QString target(const QString &demoFile) const;

    Settings m_settings;
};

} // namespace zuno
