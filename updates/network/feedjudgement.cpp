// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/network/feedjudgement.h"

#include "updates/network/feedsignature.h"

#include <chrono>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

// A clock that is a little behind is no reason to refuse a feed that was signed just now.
constexpr std::chrono::hours clockTolerance { 24 };

std::optional<UpdateTrouble> doubtsAboutTime(const Feed &feed, const UpdateCheck &check,
                                             const QDateTime &now)
{
    if (feed.expires <= now)
        return UpdateTrouble { UpdateFailure::notCurrent,
                               u"the feed expired at %1"_s.arg(
                                   feed.expires.toString(Qt::ISODate)) };
    if (feed.issued.addDuration(-clockTolerance) > now)
        return UpdateTrouble { UpdateFailure::notCurrent,
                               u"the feed is of %1, which is yet to come"_s.arg(
                                   feed.issued.toString(Qt::ISODate)) };
    if (check.newestIssued && feed.issued < *check.newestIssued)
        return UpdateTrouble { UpdateFailure::replayed,
                               u"the feed is of %1, and one of %2 was seen before"_s.arg(
                                   feed.issued.toString(Qt::ISODate),
                                   check.newestIssued->toString(Qt::ISODate)) };
    return std::nullopt;
}

} // namespace

std::variant<UpdateOffer, UpdateTrouble> judgeFeed(const QByteArray &fetched,
                                                   const UpdateCheck &check, const QDateTime &now)
{
    const auto text = signedText(fetched, check.publicKey);
    if (!text)
        return UpdateTrouble { UpdateFailure::badSignature, u"the feed's signature is wrong"_s };
    const auto feed = feedFromJson(*text);
    if (!feed)
        return UpdateTrouble { UpdateFailure::badFeed, u"the signed feed is not a feed"_s };
    if (const auto doubts = doubtsAboutTime(*feed, check, now))
        return *doubts;

    UpdateOffer offer { .issued = feed->issued, .release = std::nullopt };
    const auto installed = versionNumber(check.installedVersion);
    const auto offered = versionNumber(feed->version);
    if (!installed || offered <= installed)
        return offer;
    const auto package = feed->packages.constFind(check.architecture);
    if (package == feed->packages.cend())
        return UpdateTrouble { UpdateFailure::noPackage,
                               u"version %1 has no package for \"%2\""_s.arg(feed->version,
                                                                             check.architecture) };
    offer.release = Release { feed->version, feed->date, feed->notes, *package };
    return offer;
}

} // namespace ferrin
