// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/release.h"
#include "updates/updatefailure.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QUrl>

#include <optional>

namespace ferrin {

/// What a check compares the feed with.
struct UpdateCheck
{
    QUrl feed;
    /// Ed25519, 32 bytes.
    QByteArray publicKey;
    QString installedVersion;
    /// Debian's name of the machine's architecture.
    QString architecture;
    /// The newest time of issue that was ever seen; absent before the first check.
    std::optional<QDateTime> newestIssued;

    friend bool operator==(const UpdateCheck &, const UpdateCheck &) = default;
};

/// What a feed that can be believed means for this machine.
struct UpdateOffer
{
    QDateTime issued;
    /// Absent when the installed version is as new.
    std::optional<Release> release;

    friend bool operator==(const UpdateOffer &, const UpdateOffer &) = default;
};

struct PackageRequest
{
    /// The package lies beside the feed.
    QUrl feed;
    Package package;
    /// Absolute; made when it is missing.
    QString folder;

    friend bool operator==(const PackageRequest &, const PackageRequest &) = default;
};

/// Speaks to the update server, one task at a time, and answers each task by one of its signals,
/// later. What it tells was verified: an offer by the feed's signature, a file by what a verified
/// feed says of it.
class UpdateEngine : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void check(const UpdateCheck &check) = 0;
    virtual void download(const PackageRequest &request) = 0;
    /// Nothing more is told of the present task. What was fetched may be continued later.
    virtual void cancel() = 0;

Q_SIGNALS:
    void checked(const ferrin::UpdateOffer &offer);
    /// Bytes.
    void progressed(qint64 received, qint64 total);
    void downloaded(const QString &path);
    void failed(const ferrin::UpdateTrouble &trouble);
};

} // namespace ferrin
