// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/network/feedsignature.h"
#include "updates/updateengine.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

namespace ferrin::test {

/// The moment at which the feeds of the tests are read.
inline const QDateTime readingTime(QDate(2026, 5, 1), QTime(12, 0), Qt::UTC);

/// Bytes that look like a package as little as they compress.
inline QByteArray somePackage(qsizetype length)
{
    QByteArray bytes;
    for (quint32 block = 0; bytes.size() < length; ++block)
        bytes += QCryptographicHash::hash(QByteArray::number(block), QCryptographicHash::Sha256);
    bytes.truncate(length);
    return bytes;
}

inline Package packageOf(const QByteArray &bytes, const QString &file)
{
    return { file, bytes.size(), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256) };
}

/// The text of a feed that is right in every part; a test spoils one.
inline QJsonObject goodFeed(const Package &package)
{
    using namespace Qt::StringLiterals;
    const QJsonObject described { { u"file"_s, package.file },
                                  { u"length"_s, package.length },
                                  { u"sha256"_s, QString::fromLatin1(package.sha256.toHex()) } };
    return { { u"format"_s, 1 },
             { u"product"_s, u"org.ferrin.Ferrin"_s },
             { u"issued"_s, u"2026-04-30T10:00:00Z"_s },
             { u"expires"_s, u"2026-07-29T10:00:00Z"_s },
             { u"version"_s, u"1.3.0"_s },
             { u"date"_s, u"2026-04-30"_s },
             { u"notes"_s, u"- **Quieter**, and _prettier_.\n"_s },
             { u"packages"_s, QJsonObject { { u"amd64"_s, described } } } };
}

/// For the version before that of `goodFeed`.
inline UpdateCheck checkOf(const QUrl &feed, const SigningKey &key)
{
    using namespace Qt::StringLiterals;
    return { .feed = feed,
             .publicKey = key.publicKey,
             .installedVersion = u"1.2.9"_s,
             .architecture = u"amd64"_s,
             .newestIssued = std::nullopt };
}

inline QByteArray signedJson(const QJsonObject &json, const SigningKey &key)
{
    return signedFeed(QJsonDocument(json).toJson(), key);
}

} // namespace ferrin::test
