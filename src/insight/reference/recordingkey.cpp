// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <insight/reference/recordingkey.h>

#include <algorithm>
#include <bit>

#include <QCryptographicHash>
#include <QtEndian>

#include <session/session.h>

namespace zuno {

namespace {

// Twenty seconds: by then most receivers have a position.
constexpr std::size_t HashedSamples = 200;

// So many digits of the hash are enough to tell recordings apart.
constexpr qsizetype KeyLength = 20;

void add(QCryptographicHash &hash, quint64 number)
{
    number = qToLittleEndian(number);
    hash.addData(QByteArrayView(reinterpret_cast<const char *>(&number), sizeof(number)));
}

} // namespace

QString recordingKey(const Session &session)
{
    const std::span<const PointAcquisition> samples = session.wholeSamples();
    if (samples.empty())
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const QString when = session.recording().date + u'\n' + session.recording().time;
    hash.addData(when.toUtf8());
    for (const PointAcquisition &point : samples.first(std::min(HashedSamples, samples.size()))) {
        add(hash, point.dataTimeStamp);
        add(hash, std::bit_cast<quint64>(point.dataCoordX));
        add(hash, std::bit_cast<quint64>(point.dataCoordY));
        add(hash, std::bit_cast<quint64>(point.dataAngle));
    }
    return QString::fromLatin1(hash.result().toHex().left(KeyLength));
}

} // namespace zuno
