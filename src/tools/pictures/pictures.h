// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

#include <QPixmap>
#include <QString>

namespace zuno {

class Stage;

/// Calls @p take with each picture of the manual and its file's name without the suffix.
void takePictures(Stage &stage,
                  const std::function<void(const QString &name, const QPixmap &picture)> &take);

} // namespace zuno
