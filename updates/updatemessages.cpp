// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updatemessages.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString kind = u"kind"_s;

QString textFrom(const QDateTime &moment)
{
    return moment.toString(Qt::ISODateWithMs);
}

QDateTime momentFrom(const QJsonValue &value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

// A package alone travels as a release that has nothing else.
QJsonObject jsonFrom(const Package &package)
{
    return jsonFromRelease({ u"0"_s, QDate(2000, 1, 1), {}, package });
}

struct Writer
{
    QJsonObject operator()(const UpdateCheck &check) const
    {
        QJsonObject json { { kind, u"check"_s },
                           { u"feed"_s, check.feed.toString() },
                           { u"key"_s, QString::fromLatin1(check.publicKey.toBase64()) },
                           { u"installed"_s, check.installedVersion },
                           { u"architecture"_s, check.architecture } };
        if (check.newestIssued)
            json.insert(u"newestIssued"_s, textFrom(*check.newestIssued));
        return json;
    }

    QJsonObject operator()(const PackageRequest &request) const
    {
        return { { kind, u"download"_s },
                 { u"feed"_s, request.feed.toString() },
                 { u"folder"_s, request.folder },
                 { u"release"_s, jsonFrom(request.package) } };
    }

    QJsonObject operator()(const UpdateOffer &offer) const
    {
        QJsonObject json { { kind, u"offer"_s }, { u"issued"_s, textFrom(offer.issued) } };
        if (offer.release)
            json.insert(u"release"_s, jsonFromRelease(*offer.release));
        return json;
    }

    QJsonObject operator()(const UpdateProgress &progress) const
    {
        return { { kind, u"progress"_s },
                 { u"received"_s, progress.received },
                 { u"total"_s, progress.total } };
    }

    QJsonObject operator()(const DownloadedPackage &package) const
    {
        return { { kind, u"downloaded"_s }, { u"path"_s, package.path } };
    }

    QJsonObject operator()(const UpdateTrouble &trouble) const
    {
        return { { kind, u"trouble"_s },
                 { u"failure"_s, rawValue(trouble.failure) },
                 { u"detail"_s, trouble.detail } };
    }
};

QByteArray lineFromJson(const QJsonObject &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

UpdateCheck checkFrom(const QJsonObject &json)
{
    UpdateCheck check { .feed = QUrl(json.value("feed"_L1).toString()),
                        .publicKey
                        = QByteArray::fromBase64(json.value("key"_L1).toString().toLatin1()),
                        .installedVersion = json.value("installed"_L1).toString(),
                        .architecture = json.value("architecture"_L1).toString(),
                        .newestIssued = std::nullopt };
    if (json.contains("newestIssued"_L1))
        check.newestIssued = momentFrom(json.value("newestIssued"_L1));
    return check;
}

std::optional<UpdateOffer> offerFrom(const QJsonObject &json)
{
    UpdateOffer offer { .issued = momentFrom(json.value("issued"_L1)), .release = std::nullopt };
    if (!offer.issued.isValid())
        return std::nullopt;
    if (json.contains("release"_L1)) {
        offer.release = releaseFromJson(json.value("release"_L1).toObject());
        if (!offer.release)
            return std::nullopt;
    }
    return offer;
}

} // namespace

QByteArray lineFrom(const UpdateTask &task)
{
    return lineFromJson(std::visit(Writer(), task));
}

QByteArray lineFrom(const UpdateAnswer &answer)
{
    return lineFromJson(std::visit(Writer(), answer));
}

std::optional<UpdateTask> taskFromLine(const QByteArray &line)
{
    const QJsonObject json = QJsonDocument::fromJson(line).object();
    const QString what = json.value(kind).toString();
    if (what == "check"_L1)
        return checkFrom(json);
    const auto release = releaseFromJson(json.value("release"_L1).toObject());
    if (what != "download"_L1 || !release)
        return std::nullopt;
    return PackageRequest { QUrl(json.value("feed"_L1).toString()), release->package,
                            json.value("folder"_L1).toString() };
}

std::optional<UpdateAnswer> answerFromLine(const QByteArray &line)
{
    const QJsonObject json = QJsonDocument::fromJson(line).object();
    const QString what = json.value(kind).toString();
    if (what == "offer"_L1)
        return offerFrom(json);
    if (what == "progress"_L1)
        return UpdateProgress { json.value("received"_L1).toInteger(),
                                json.value("total"_L1).toInteger() };
    if (what == "downloaded"_L1)
        return DownloadedPackage { json.value("path"_L1).toString() };
    const auto failure = updateFailureFromRawValue(json.value("failure"_L1).toString());
    if (what != "trouble"_L1 || !failure)
        return std::nullopt;
    return UpdateTrouble { *failure, json.value("detail"_L1).toString() };
}

} // namespace ferrin
