// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/update/updatedocument.h>

#include <QByteArray>
#include <QStringList>
#include <QXmlStreamReader>

namespace zuno {

UpdateDocument::UpdateDocument(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == u"item"
            && reader.attributes().value(QLatin1String("name")) == u"ZUNO Analyzer")
            readItem(reader);
    }
    if (reader.hasError())
        clear();
}

void UpdateDocument::clear()
{
    m_version.clear();
    m_url.clear();
    m_name.clear();
}

// Ends after the address: what stands behind it in an item is not read.
void UpdateDocument::readItem(QXmlStreamReader &reader)
{
    clear();
    const auto text = [&reader] {
        return reader.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
    };
    while (reader.readNextStartElement()) {
        if (reader.name() == u"name") {
            m_name = text();
        } else if (reader.name() == u"version") {
            m_version = text();
        } else if (reader.name() == u"url") {
            m_url = text();
            return;
        } else {
            reader.skipCurrentElement();
        }
    }
}

bool isOffered(const QString &remote, const QString &local)
{
    const QStringList theirs = remote.split(u'.');
    const QStringList ours = local.split(u'.');
    if (theirs.size() < 2 || ours.size() < 2)
        return false;
    return theirs[0].toInt() > ours[0].toInt() || theirs[1].toInt() > ours[1].toInt();
}

} // namespace zuno
