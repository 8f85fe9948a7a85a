// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>

#include <optional>

namespace ferrin {

/// A signed feed is one file: a line "ferrin-feed-1 SIGNATURE", the Ed25519 signature in lower-case
/// hexadecimal digits, and after it the text, signed to its last byte.
///
/// The text of a feed that was signed with this key's other half; absent when anything of it was
/// changed. A key is 32 bytes.
[[nodiscard]] std::optional<QByteArray> signedText(const QByteArray &feed,
                                                   const QByteArray &publicKey);

/// An Ed25519 key pair as libsodium keeps it.
struct SigningKey
{
    /// 32 bytes.
    QByteArray publicKey;
    /// 64 bytes, the public key their second half.
    QByteArray secretKey;
};

[[nodiscard]] SigningKey newSigningKey();
/// Absent unless the bytes are a secret key whose halves belong together.
[[nodiscard]] std::optional<SigningKey> signingKeyFrom(const QByteArray &secretKey);

/// The feed that consists of this text.
[[nodiscard]] QByteArray signedFeed(const QByteArray &text, const SigningKey &key);

} // namespace ferrin
