// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/packagekiterror.h"

#include <QList>

#include <algorithm>
#include <array>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

enum Code : uint {
    noNetwork = 2,
    gpgFailure = 5,
    packageNotFound = 8,
    downloadFailed = 10,
    dependencies = 13,
    noLock = 26,
    badSignature = 30,
    missingSignature = 31,
    fileConflict = 35,
    packageConflict = 36,
    sourceUnavailable = 37,
    corruptPackage = 40,
    noSpace = 46,
    notAuthorized = 48,
    unsignedInstall = 50,
    unsignedUpdate = 51,
    setupFailed = 56,
    installFailed = 58,
    noSources = 64,
    interrupted = 66,
};

struct CodeRow
{
    uint code;
    UpdateFailure failure;
};

constexpr std::array codes {
    CodeRow { noNetwork, UpdateFailure::offline },
    CodeRow { gpgFailure, UpdateFailure::notTrusted },
    CodeRow { packageNotFound, UpdateFailure::nothingDone },
    CodeRow { downloadFailed, UpdateFailure::sourceError },
    CodeRow { dependencies, UpdateFailure::conflict },
    CodeRow { noLock, UpdateFailure::busy },
    CodeRow { badSignature, UpdateFailure::notTrusted },
    CodeRow { missingSignature, UpdateFailure::notTrusted },
    CodeRow { fileConflict, UpdateFailure::conflict },
    CodeRow { packageConflict, UpdateFailure::conflict },
    CodeRow { sourceUnavailable, UpdateFailure::unreachable },
    CodeRow { corruptPackage, UpdateFailure::tampered },
    CodeRow { noSpace, UpdateFailure::diskFull },
    CodeRow { notAuthorized, UpdateFailure::notAuthorized },
    CodeRow { unsignedInstall, UpdateFailure::notTrusted },
    CodeRow { unsignedUpdate, UpdateFailure::notTrusted },
    CodeRow { setupFailed, UpdateFailure::setupFailed },
    CodeRow { installFailed, UpdateFailure::setupFailed },
    CodeRow { noSources, UpdateFailure::sourceError },
    CodeRow { interrupted, UpdateFailure::interrupted },
};

/// The words that apt has for the cause, beneath codes that have many.
struct WordsRow
{
    QLatin1StringView words;
    UpdateFailure failure;
};

// An attack comes before what may be an accident.
constexpr std::array words {
    WordsRow { "signature"_L1, UpdateFailure::notTrusted },
    WordsRow { "is not signed"_L1, UpdateFailure::notTrusted },
    WordsRow { "not valid yet"_L1, UpdateFailure::notCurrent },
    WordsRow { "expired"_L1, UpdateFailure::notCurrent },
    WordsRow { "Hash Sum mismatch"_L1, UpdateFailure::tampered },
    WordsRow { "unexpected size"_L1, UpdateFailure::tampered },
    WordsRow { "dpkg was interrupted"_L1, UpdateFailure::interrupted },
    WordsRow { "Could not get lock"_L1, UpdateFailure::busy },
    WordsRow { "Unable to lock"_L1, UpdateFailure::busy },
    WordsRow { "No space left"_L1, UpdateFailure::diskFull },
    WordsRow { "enough free space"_L1, UpdateFailure::diskFull },
    WordsRow { "timed out"_L1, UpdateFailure::tooSlow },
    WordsRow { "Could not connect"_L1, UpdateFailure::unreachable },
    WordsRow { "Could not resolve"_L1, UpdateFailure::unreachable },
    WordsRow { "Temporary failure resolving"_L1, UpdateFailure::unreachable },
    WordsRow { "404"_L1, UpdateFailure::packageMissing },
};

bool hasManyCauses(uint code)
{
    return code == downloadFailed || code == noLock || code == noSources || code == gpgFailure
        || code == installFailed;
}

UpdateFailure failureFrom(uint code, const QString &text)
{
    const auto cause = std::ranges::find_if(
        words, [&](const WordsRow &row) { return text.contains(row.words, Qt::CaseInsensitive); });
    // A missing list means a broken source; a missing package does not.
    const bool isMissingList = code == noSources && cause != words.end()
        && cause->failure == UpdateFailure::packageMissing;
    if (hasManyCauses(code) && cause != words.end() && !isMissingList)
        return cause->failure;
    const auto *const row = std::ranges::find(codes, code, &CodeRow::code);
    return row == codes.end() ? UpdateFailure::serviceError : row->failure;
}

} // namespace

UpdateTrouble troubleFrom(uint code, const QString &text)
{
    return { failureFrom(code, text), u"PackageKit %1: %2"_s.arg(code).arg(text.simplified()) };
}

UpdateTrouble troubleFrom(const QDBusError &error)
{
    const bool isAbsent = error.type() == QDBusError::ServiceUnknown;
    return { isAbsent ? UpdateFailure::noService : UpdateFailure::serviceBroken,
             u"%1: %2"_s.arg(error.name(), error.message().simplified()) };
}

} // namespace ferrin
