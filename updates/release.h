// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

namespace ferrin {

/// A file that a release consists of, as the signed feed tells it.
struct Package
{
    /// The largest package that a feed may name, in bytes.
    static constexpr qint64 maximumLength = 256LL * 1024 * 1024;

    /// The plain name of a Debian package. It lies beside the feed and never has a path.
    QString file;
    /// Bytes, 1 to `maximumLength`.
    qint64 length = 0;
    /// Of the whole file, 32 bytes.
    QByteArray sha256;

    friend bool operator==(const Package &, const Package &) = default;
};

/// A release that this machine could install.
struct Release
{
    /// Numbers with dots, as people read them: "1.2.0".
    QString version;
    QDate date;
    /// Markdown.
    QString notes;
    Package package;

    friend bool operator==(const Release &, const Release &) = default;
};

/// All that a feed says, before anything is compared with the machine that reads it.
struct Feed
{
    /// When the feed was signed; it grows from feed to feed.
    QDateTime issued;
    /// From then on the feed is no longer believed.
    QDateTime expires;
    QString version;
    QDate date;
    QString notes;
    /// By the architecture's Debian name.
    QHash<QString, Package> packages;
};

/// Absent unless every part is there and of its own kind.
[[nodiscard]] std::optional<Feed> feedFromJson(const QByteArray &json);

[[nodiscard]] QJsonObject jsonFromRelease(const Release &release);
/// Absent for anything that `jsonFromRelease` does not make.
[[nodiscard]] std::optional<Release> releaseFromJson(const QJsonObject &json);

/// The numbers of a version, 1.2 and 1.2.0 the same and in the order of releases; absent for a text
/// that is not just numbers with dots.
[[nodiscard]] std::optional<QList<int>> versionNumber(const QString &version);

} // namespace ferrin
