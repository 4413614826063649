// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

namespace zuno {

/// Stands in the map's place when its page has died again and again, and offers another try.
class PageFailure final : public QWidget
{
    Q_OBJECT

public:
    explicit PageFailure(QWidget *parent = nullptr);

Q_SIGNALS:
    void anotherTryWanted();
};

} // namespace zuno
