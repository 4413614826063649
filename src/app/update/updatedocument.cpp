// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/update/updatedocument.h>

#include <utility>

#include <QCryptographicHash>
#include <QStringList>
#include <QSysInfo>
#include <QXmlStreamReader>

namespace zuno {

namespace {

/// The bytes that @p text names with two digits each; none when anything else is in it.
QByteArray hashOf(const QString &text)
{
    const QByteArray digits = text.toLatin1().toLower();
    const QByteArray bytes = QByteArray::fromHex(digits);
    const bool isHash = bytes.size() == QCryptographicHash::hashLength(QCryptographicHash::Sha256);
    return isHash && bytes.toHex() == digits ? bytes : QByteArray();
}

/// A time of no zone would be another one on each computer.
QDateTime timeOf(const QString &text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return time.timeSpec() == Qt::LocalTime ? QDateTime() : time;
}

void setField(Release &release, QStringView element, const QString &text)
{
    if (element == u"version")
        release.version = text;
    else if (element == u"platform")
        release.platform = text;
    else if (element == u"url")
        release.url = text;
    else if (element == u"name")
        release.name = text;
    else if (element == u"size")
        release.size = text.toLongLong();
    else if (element == u"sha256")
        release.sha256 = hashOf(text);
    else if (element == u"validUntil")
        release.validUntil = timeOf(text);
}

// Ends after the address: what stands behind it in an item is not read.
Release readItem(QXmlStreamReader &reader)
{
    Release release;
    while (release.url.isEmpty() && reader.readNextStartElement()) {
        const QString element = reader.name().toString();
        const auto children = QXmlStreamReader::SkipChildElements;
        setField(release, element, reader.readElementText(children).trimmed());
    }
    return release;
}

} // namespace

bool Release::isComplete() const
{
    return !version.isEmpty() && !platform.isEmpty() && !url.isEmpty() && !name.isEmpty()
           && size > 0 && !sha256.isEmpty() && validUntil.isValid();
}

UpdateDocument::UpdateDocument(const QByteArray &xml, const QString &platform)
{
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != u"item"
            || reader.attributes().value(QLatin1String("name")) != u"ZUNO Analyzer")
            continue;
        Release release = readItem(reader);
        if (release.platform == platform)
            m_release = std::move(release);
    }
    if (reader.hasError())
        m_release = {};
}

QString platform()
{
    return QSysInfo::kernelType() + u'-' + QSysInfo::buildCpuArchitecture();
}

bool isNewer(const QString &remote, const QString &local)
{
    const QStringList theirs = remote.split(u'.');
    const QStringList ours = local.split(u'.');
    if (theirs.size() < 2 || ours.size() < 2)
        return false;
    return std::pair(theirs[0].toInt(), theirs[1].toInt())
           > std::pair(ours[0].toInt(), ours[1].toInt());
}

} // namespace zuno
