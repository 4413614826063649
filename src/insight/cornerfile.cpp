// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/cornerfile.h>

#include <algorithm>
#include <array>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <base/wholefile.h>

namespace zuno {

namespace {

// Bytes; a thousand edits take a tenth of it.
constexpr qint64 MostBytes = 1 << 20;
constexpr qsizetype MostEdits = 10000;
constexpr qsizetype MostNameLength = 80;

constexpr int Version = 1;
constexpr auto Format = "zuno corners";

struct KindName
{
    CornerEdit::Kind kind;
    const char *name;
};

constexpr std::array KindNames {
    KindName {CornerEdit::Kind::Rename, "rename"},
    KindName {CornerEdit::Kind::Join, "join"},
    KindName {CornerEdit::Kind::Split, "split"},
    KindName {CornerEdit::Kind::Delete, "delete"},
};

void addEdit(const QJsonObject &object, CornerEdits &edits)
{
    const QString kind = object[QStringLiteral("edit")].toString();
    const auto known = std::find_if(KindNames.begin(), KindNames.end(), [&](const KindName &name) {
        return kind == QLatin1String(name.name);
    });
    CornerEdit edit;
    // Not a number, and so invalid, when the key is missing.
    edit.place = QGeoCoordinate(object[QStringLiteral("latitude")].toDouble(qQNaN()),
                                object[QStringLiteral("longitude")].toDouble(qQNaN()));
    if (known == KindNames.end() || !edit.place.isValid())
        return;
    edit.kind = known->kind;
    edit.name = object[QStringLiteral("name")].toString().left(MostNameLength);
    edits.append(edit);
}

QJsonObject objectOf(const CornerEdit &edit)
{
    const auto known = std::find_if(KindNames.begin(), KindNames.end(),
                                    [&](const KindName &name) { return edit.kind == name.kind; });
    QJsonObject object {{QStringLiteral("edit"), QLatin1String(known->name)},
                        {QStringLiteral("latitude"), edit.place.latitude()},
                        {QStringLiteral("longitude"), edit.place.longitude()}};
    if (edit.kind == CornerEdit::Kind::Rename)
        object.insert(QStringLiteral("name"), edit.name.left(MostNameLength));
    return object;
}

} // namespace

QString cornerFilePath(const QString &mapPath)
{
    const QFileInfo map(mapPath);
    return map.path() + u'/' + map.completeBaseName() + u".corners";
}

CornerFile parseCorners(const QByteArray &bytes)
{
    CornerFile file;
    file.state = CornerFile::State::Damaged;
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    if (object[QStringLiteral("format")].toString() != QLatin1String(Format))
        return file;
    const int version = object[QStringLiteral("version")].toInt();
    if (version != Version) {
        file.state = version > Version ? CornerFile::State::Newer : CornerFile::State::Damaged;
        return file;
    }
    file.state = CornerFile::State::Good;
    const QJsonArray edits = object[QStringLiteral("edits")].toArray();
    for (qsizetype i = 0; i < std::min(edits.size(), MostEdits); ++i)
        addEdit(edits[i].toObject(), file.edits);
    return file;
}

CornerFile readCornerFile(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return {};
    if (file.size() > MostBytes || !file.open(QIODevice::ReadOnly))
        return {CornerFile::State::Damaged, {}};
    return parseCorners(file.read(MostBytes));
}

QString writeCornerFile(const QString &path, const CornerEdits &edits)
{
    QJsonArray list;
    for (const CornerEdit &edit : edits)
        list.append(objectOf(edit));
    const QJsonObject object {{QStringLiteral("format"), QLatin1String(Format)},
                              {QStringLiteral("version"), Version},
                              {QStringLiteral("edits"), list}};
    return writeWholeFile(path, QJsonDocument(object).toJson());
}

} // namespace zuno
