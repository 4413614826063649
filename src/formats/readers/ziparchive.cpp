// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <formats/readers/ziparchive.h>

#include <algorithm>
#include <array>

#include <zip.h>

namespace zuno {

namespace {

constexpr zip_int64_t MostEntries = 1000;

} // namespace

ZipArchive::ZipArchive(QByteArray bytes) : m_bytes(std::move(bytes))
{
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *source = zip_source_buffer_create(
        m_bytes.constData(), static_cast<zip_uint64_t>(m_bytes.size()), 0, &error);
    if (source != nullptr) {
        m_zip = zip_open_from_source(source, ZIP_RDONLY, &error);
        if (m_zip == nullptr)
            zip_source_free(source);
    }
    zip_error_fini(&error);
}

ZipArchive::~ZipArchive()
{
    if (m_zip != nullptr)
        zip_discard(m_zip);
}

QList<QByteArray> ZipArchive::names() const
{
    QList<QByteArray> names;
    const zip_int64_t count
        = m_zip != nullptr ? std::min(zip_get_num_entries(m_zip, 0), MostEntries) : 0;
    for (zip_int64_t i = 0; i < count; ++i)
        names.append(QByteArray(zip_get_name(m_zip, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_RAW)));
    return names;
}

QByteArray ZipArchive::read(const QByteArray &name, qint64 limit) const
{
    QByteArray bytes;
    zip_file_t *file
        = m_zip != nullptr ? zip_fopen(m_zip, name.constData(), ZIP_FL_ENC_RAW) : nullptr;
    if (file == nullptr)
        return bytes;
    std::array<char, 65536> piece {};
    zip_int64_t got = 0;
    while (bytes.size() < limit && (got = zip_fread(file, piece.data(), piece.size())) > 0)
        bytes.append(piece.data(), static_cast<qsizetype>(got));
    zip_fclose(file);
    return bytes;
}

} // namespace zuno
