// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The update server's document.

#include <QXmlStreamReader>

#include <app/update/updatedocument.h>

#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray xml(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const UpdateDocument document(xml);
    const QString texts = document.version() + document.url() + document.name();
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
        reader.readNext();
    check(!reader.hasError() || texts.isEmpty(), "half a document says nothing");
    check(!isOffered(document.version(), document.version()), "no release is newer than itself");
    (void)isOffered(document.version(), QStringLiteral("1.5.0.0"));
    return 0;
}
