// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/update/updatesignature.h>

#include <algorithm>
#include <memory>

#include <openssl/err.h>
#include <openssl/evp.h>

namespace zuno {

namespace {

const unsigned char *bytes(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

size_t count(const QByteArray &array)
{
    return static_cast<size_t>(array.size());
}

bool isSignedBy(const QByteArray &key, const QByteArray &document, const QByteArray &signature)
{
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> verifier(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytes(key), count(key)),
        &EVP_PKEY_free);
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(),
                                                                          &EVP_MD_CTX_free);
    const bool isIts
        = verifier && context
          && EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, verifier.get()) == 1
          && EVP_DigestVerify(context.get(), bytes(signature), count(signature), bytes(document),
                              count(document))
                 == 1;
    // The errors of this thread are also looked at by who speaks TLS in it.
    ERR_clear_error();
    return isIts;
}

} // namespace

QList<QByteArray> configuredUpdateKeys()
{
    QList<QByteArray> keys;
    for (const char *key : {ZUNO_UPDATE_KEY, ZUNO_UPDATE_KEY_SPARE})
        keys.append(QByteArray::fromBase64(key));
    return keys;
}

bool isSigned(const QByteArray &document, const QByteArray &signature,
              const QList<QByteArray> &keys)
{
    const auto raw = QByteArray::fromBase64Encoding(signature.trimmed(),
                                                    QByteArray::AbortOnBase64DecodingErrors);
    if (!raw)
        return false;
    return std::any_of(keys.begin(), keys.end(),
                       [&](const QByteArray &key) { return isSignedBy(key, document, *raw); });
}

} // namespace zuno
