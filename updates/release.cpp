// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/release.h"

#include "state/bundle.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QVersionNumber>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

constexpr int format = 1;
constexpr qsizetype sha256Length = 32;

std::optional<QDateTime> momentFrom(const QJsonValue &value)
{
    const QDateTime moment = QDateTime::fromString(value.toString(), Qt::ISODate);
    // A time without a zone would mean another moment on each machine.
    return moment.isValid() && moment.timeSpec() == Qt::UTC ? std::optional(moment) : std::nullopt;
}

bool isPackageName(const QString &name)
{
    static const QRegularExpression plain(u"\\A[A-Za-z0-9][A-Za-z0-9.+~_-]*\\.deb\\z"_s);
    return name.size() <= 200 && plain.match(name).hasMatch();
}

std::optional<Package> packageFrom(const QJsonObject &json)
{
    const QByteArray hash = json.value("sha256"_L1).toString().toLatin1();
    const Package package { .file = json.value("file"_L1).toString(),
                            .length = json.value("length"_L1).toInteger(),
                            .sha256 = QByteArray::fromHex(hash) };
    if (!isPackageName(package.file) || package.length < 1
        || package.length > Package::maximumLength || package.sha256.size() != sha256Length
        || package.sha256.toHex() != hash)
        return std::nullopt;
    return package;
}

QJsonObject jsonFrom(const Package &package)
{
    return { { u"file"_s, package.file },
             { u"length"_s, package.length },
             { u"sha256"_s, QString::fromLatin1(package.sha256.toHex()) } };
}

std::optional<QHash<QString, Package>> packagesFrom(const QJsonValue &json)
{
    if (!json.isObject())
        return std::nullopt;
    QHash<QString, Package> packages;
    const QJsonObject object = json.toObject();
    for (auto it = object.begin(); it != object.end(); ++it) {
        const auto package = packageFrom(it.value().toObject());
        if (!package)
            return std::nullopt;
        packages.insert(it.key(), *package);
    }
    return packages;
}

} // namespace

std::optional<Feed> feedFromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    // A key that signs for several programs must not make one's feed pass for another's.
    if (object.value("format"_L1).toInt() != format
        || object.value("product"_L1).toString() != Bundle::main().identifier())
        return std::nullopt;

    const auto issued = momentFrom(object.value("issued"_L1));
    const auto expires = momentFrom(object.value("expires"_L1));
    const auto packages = packagesFrom(object.value("packages"_L1));
    const QString version = object.value("version"_L1).toString();
    const QDate date = QDate::fromString(object.value("date"_L1).toString(), Qt::ISODate);
    const QJsonValue notes = object.value("notes"_L1);
    if (!issued || !expires || !packages || !versionNumber(version) || !date.isValid()
        || !notes.isString())
        return std::nullopt;
    return Feed { *issued, *expires, version, date, notes.toString(), *packages };
}

QJsonObject jsonFromRelease(const Release &release)
{
    return { { u"version"_s, release.version },
             { u"date"_s, release.date.toString(Qt::ISODate) },
             { u"notes"_s, release.notes },
             { u"package"_s, jsonFrom(release.package) } };
}

std::optional<Release> releaseFromJson(const QJsonObject &json)
{
    const auto package = packageFrom(json.value("package"_L1).toObject());
    const QString version = json.value("version"_L1).toString();
    const QDate date = QDate::fromString(json.value("date"_L1).toString(), Qt::ISODate);
    if (!package || !versionNumber(version) || !date.isValid())
        return std::nullopt;
    return Release { version, date, json.value("notes"_L1).toString(), *package };
}

std::optional<QList<int>> versionNumber(const QString &version)
{
    static const QRegularExpression plain(u"\\A[0-9]{1,9}(\\.[0-9]{1,9}){0,4}\\z"_s);
    if (!plain.match(version).hasMatch())
        return std::nullopt;
    return QVersionNumber::fromString(version).normalized().segments();
}

} // namespace ferrin
