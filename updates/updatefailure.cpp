// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "updates/updatefailure.h"

#include <algorithm>
#include <array>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    UpdateFailure failure;
    QLatin1StringView rawValue;
    QLatin1StringView plainWords;
};

constexpr std::array rows {
    Row { UpdateFailure::noConnection, "noConnection"_L1,
          "The update server could not be reached. Check the internet connection."_L1 },
    Row { UpdateFailure::serverTrouble, "serverTrouble"_L1,
          "The update server did not answer as it should. It may be better later."_L1 },
    Row { UpdateFailure::notTheServer, "notTheServer"_L1,
          "The update server could not prove that it is the right one, so nothing was fetched "
          "from it."_L1 },
    Row { UpdateFailure::notEncrypted, "notEncrypted"_L1,
          "The update server led to a connection that is not encrypted, so nothing was fetched "
          "from it."_L1 },
    Row { UpdateFailure::tooSlow, "tooSlow"_L1,
          "The update server was too slow. It may be better later."_L1 },
    Row { UpdateFailure::tooLarge, "tooLarge"_L1,
          "The update server sent more than it should have. Nothing of it was used."_L1 },
    Row { UpdateFailure::badSignature, "badSignature"_L1,
          "What the update server said does not come from Ferrin's developers. Nothing of it was "
          "used."_L1 },
    Row { UpdateFailure::badFeed, "badFeed"_L1,
          "What the update server said could not be understood."_L1 },
    Row { UpdateFailure::notCurrent, "notCurrent"_L1,
          "What the update server said is out of date. Check that this computer's clock is "
          "right."_L1 },
    Row { UpdateFailure::replayed, "replayed"_L1,
          "The update server gave an older answer than the last time. Nothing of it was used."_L1 },
    Row { UpdateFailure::noPackage, "noPackage"_L1,
          "There is a newer version, but none for this kind of computer."_L1 },
    Row { UpdateFailure::badPackage, "badPackage"_L1,
          "The downloaded package is not the one that Ferrin's developers made. It was thrown "
          "away."_L1 },
    Row { UpdateFailure::diskFull, "diskFull"_L1,
          "There is not enough room on the disk for the update."_L1 },
    Row { UpdateFailure::cannotWrite, "cannotWrite"_L1,
          "The update could not be written to the disk."_L1 },
    Row { UpdateFailure::alreadyAtWork, "alreadyAtWork"_L1,
          "The update is already being downloaded in another session."_L1 },
    Row { UpdateFailure::brokenOff, "brokenOff"_L1, "The update was broken off unexpectedly."_L1 },
    Row { UpdateFailure::noInstaller, "noInstaller"_L1,
          "The update is downloaded, but no program was found that installs it."_L1 },
};

const Row &rowOf(UpdateFailure failure)
{
    return *std::ranges::find(rows, failure, &Row::failure);
}

} // namespace

QString plainWords(UpdateFailure failure)
{
    return rowOf(failure).plainWords;
}

QString rawValue(UpdateFailure failure)
{
    return rowOf(failure).rawValue;
}

std::optional<UpdateFailure> updateFailureFromRawValue(QStringView rawValue)
{
    for (const Row &row : rows) {
        if (rawValue == row.rawValue)
            return row.failure;
    }
    return std::nullopt;
}

} // namespace ferrin
