// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The update server's document; the program looks at its signature first.

#include <QXmlStreamReader>

#include <app/update/updatedocument.h>

#include "check.h"

using namespace zuno;
using namespace zuno::fuzz;

// NOLINTNEXTLINE(readability-identifier-naming): the fuzzer calls it so
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray xml(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString platform = QStringLiteral("linux-x86_64");
    const Release release = UpdateDocument(xml, platform).release();
    QXmlStreamReader reader(xml);
    while (!reader.atEnd())
        reader.readNext();
    const QString texts = release.version + release.url + release.name + release.platform;
    check(!reader.hasError() || texts.isEmpty(), "half a document says nothing");
    check(texts.isEmpty() || release.platform == platform, "other systems are passed over");
    check(release.sha256.isEmpty() || release.sha256.size() == 32, "a hash is whole or missing");
    check(!release.isComplete() || (release.size > 0 && release.sha256.size() == 32),
          "what is complete can be checked");
    check(!isNewer(release.version, release.version), "no release is newer than itself");
    const QString own = QStringLiteral("1.5.0.0");
    check(!isNewer(release.version, own) || !isNewer(own, release.version),
          "of two releases one is newer");
    return 0;
}
