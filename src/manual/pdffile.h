// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QList>

namespace zuno {

/// A place in a PDF file: a page, counted from 0, and the height above its lower edge in points.
struct PdfPlace
{
    int page = 0;
    qreal height = 0;
};

/// What Qt has written to @p pdf with two changes. Links to "#0", "#1" and so on, which Qt writes
/// as addresses of the web, lead to that one of @p places. The time of the writing is left out, so
/// that the same text gives the same file.
[[nodiscard]] QByteArray finishedPdf(QByteArray pdf, const QList<PdfPlace> &places);

} // namespace zuno
