// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/feedsignature.h"

#include <QtGlobal>

#include <sodium.h>

namespace ferrin {

namespace {

const QByteArray lineStart("ferrin-feed-1 ");

const unsigned char *bytesOf(const QByteArray &data)
{
    return reinterpret_cast<const unsigned char *>(data.constData());
}

unsigned char *bytesOf(QByteArray &data)
{
    return reinterpret_cast<unsigned char *>(data.data());
}

void prepareSodium()
{
    static const bool isReady = sodium_init() >= 0;
    if (!isReady)
        qFatal("The library of the signatures cannot be used on this machine");
}

/// The signature out of the first line; absent for any other way to write it.
std::optional<QByteArray> signatureOf(const QByteArray &line)
{
    if (!line.startsWith(lineStart))
        return std::nullopt;
    const QByteArray digits = line.sliced(lineStart.size());
    const QByteArray signature = QByteArray::fromHex(digits);
    if (signature.size() != crypto_sign_BYTES || signature.toHex() != digits)
        return std::nullopt;
    return signature;
}

} // namespace

std::optional<QByteArray> signedText(const QByteArray &feed, const QByteArray &publicKey)
{
    prepareSodium();
    const qsizetype lineEnd = feed.indexOf('\n');
    if (lineEnd < 0 || publicKey.size() != crypto_sign_PUBLICKEYBYTES)
        return std::nullopt;
    const auto signature = signatureOf(feed.first(lineEnd));
    const QByteArray text = feed.sliced(lineEnd + 1);
    if (!signature
        || crypto_sign_verify_detached(bytesOf(*signature), bytesOf(text),
                                       static_cast<unsigned long long>(text.size()),
                                       bytesOf(publicKey))
            != 0)
        return std::nullopt;
    return text;
}

SigningKey newSigningKey()
{
    prepareSodium();
    SigningKey key { QByteArray(crypto_sign_PUBLICKEYBYTES, '\0'),
                     QByteArray(crypto_sign_SECRETKEYBYTES, '\0') };
    crypto_sign_keypair(bytesOf(key.publicKey), bytesOf(key.secretKey));
    return key;
}

std::optional<SigningKey> signingKeyFrom(const QByteArray &secretKey)
{
    prepareSodium();
    if (secretKey.size() != crypto_sign_SECRETKEYBYTES)
        return std::nullopt;
    SigningKey key { QByteArray(crypto_sign_PUBLICKEYBYTES, '\0'),
                     QByteArray(crypto_sign_SECRETKEYBYTES, '\0') };
    QByteArray seed(crypto_sign_SEEDBYTES, '\0');
    crypto_sign_ed25519_sk_to_seed(bytesOf(seed), bytesOf(secretKey));
    crypto_sign_seed_keypair(bytesOf(key.publicKey), bytesOf(key.secretKey), bytesOf(seed));
    return key.secretKey == secretKey ? std::optional(key) : std::nullopt;
}

QByteArray signedFeed(const QByteArray &text, const SigningKey &key)
{
    prepareSodium();
    QByteArray signature(crypto_sign_BYTES, '\0');
    crypto_sign_detached(bytesOf(signature), nullptr, bytesOf(text),
                         static_cast<unsigned long long>(text.size()), bytesOf(key.secretKey));
    return lineStart + signature.toHex() + '\n' + text;
}

} // namespace ferrin
