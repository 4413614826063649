// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace zuno {

/// Tells when the system wants the program to end: at a logout, and when it is told to by a signal
/// (SIGTERM, SIGINT, SIGHUP), which would otherwise end it at once. There is one at most.
class Ending final : public QObject
{
    Q_OBJECT

public:
    explicit Ending(QObject *parent = nullptr);
    ~Ending() override;

Q_SIGNALS:
    /// The last moment to write something; nobody answers questions any more. After a signal the
    /// program ends when everybody has been told.
    void imminent();

private:
    void onSignal();
};

} // namespace zuno
