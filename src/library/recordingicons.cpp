// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <library/recordingicons.h>

namespace zuno {

QIcon RecordingIcons::icon(const QFileInfo & /*file*/) const
{
    return {};
}

QString RecordingIcons::type(const QFileInfo &file) const
{
    // Never empty: the model shows a file that it knows by its path already only when what the
    // provider says of it is new. The column is hidden.
    return file.suffix() + u'.';
}

} // namespace zuno
