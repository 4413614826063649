// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractFileIconProvider>

namespace zuno {

/// The icons of a tree of recordings. Qt's own provider looks into each file to tell its type,
/// which costs more than all that is wanted of a recording.
class RecordingIcons final : public QAbstractFileIconProvider
{
public:
    using QAbstractFileIconProvider::icon;
    [[nodiscard]] QIcon icon(const QFileInfo &file) const override;
    [[nodiscard]] QString type(const QFileInfo &file) const override;
};

} // namespace zuno
