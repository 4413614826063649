// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

#include <base/processorstate.h>

namespace zuno {

/// The application with an event loop that does not stall: each event, painting included, begins
/// with cleared vector registers.
class Application final : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        clearVectorRegisters();
        return QApplication::notify(receiver, event);
    }
};

} // namespace zuno
