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
    QLatin1StringView logName;
    QLatin1StringView plainWords;
};

constexpr std::array rows {
    Row { UpdateFailure::notPackaged, "notPackaged"_L1,
          "This copy of Ferrin was not installed as a package, so no package can replace it."_L1 },
    Row { UpdateFailure::noService, "noService"_L1,
          "PackageKit, the system's package service, is not installed."_L1 },
    Row { UpdateFailure::serviceBroken, "serviceBroken"_L1,
          "The system's package service could not be started or ended unexpectedly."_L1 },
    Row { UpdateFailure::serviceError, "serviceError"_L1,
          "The system's package service reported an error. The system log tells more."_L1 },
    Row { UpdateFailure::offline, "offline"_L1, "There is no internet connection."_L1 },
    Row { UpdateFailure::unreachable, "unreachable"_L1,
          "The package source could not be reached. Check the internet connection."_L1 },
    Row { UpdateFailure::sourceError, "sourceError"_L1,
          "The package source did not answer as it should. Try again later."_L1 },
    Row { UpdateFailure::notTrusted, "notTrusted"_L1,
          "The package source could not prove that it is genuine. Nothing from it was used."_L1 },
    Row { UpdateFailure::tampered, "tampered"_L1,
          "What the package source sent is not what its signed list says. Nothing of it was "
          "used."_L1 },
    Row {
        UpdateFailure::notCurrent, "notCurrent"_L1,
        "The package source's list is out of date. Check that this computer's clock is right."_L1 },
    Row {
        UpdateFailure::packageMissing, "packageMissing"_L1,
        "The package source announces the new version but does not have it. Try again later."_L1 },
    Row { UpdateFailure::tooSlow, "tooSlow"_L1,
          "The package source stopped answering. Try again later."_L1 },
    Row { UpdateFailure::notAuthorized, "notAuthorized"_L1,
          "The system did not get permission to do this."_L1 },
    Row { UpdateFailure::busy, "busy"_L1,
          "Another program is installing software. Try again when it has finished."_L1 },
    Row { UpdateFailure::interrupted, "interrupted"_L1,
          "An earlier installation was interrupted. Repair it first, on Debian and Ubuntu with "
          "“sudo dpkg --configure -a” in a terminal."_L1 },
    Row { UpdateFailure::setupFailed, "setupFailed"_L1,
          "The new version is not set up completely. Repair it, on Debian and Ubuntu with “sudo "
          "dpkg --configure -a” in a terminal."_L1 },
    Row { UpdateFailure::conflict, "conflict"_L1,
          "The new version does not fit other software on this computer. The software centre "
          "tells more."_L1 },
    Row { UpdateFailure::diskFull, "diskFull"_L1,
          "There is not enough space on the disk for the update."_L1 },
    Row { UpdateFailure::nothingDone, "nothingDone"_L1,
          "The system did not install the new version. Check for it once more."_L1 },
};

const Row &rowOf(UpdateFailure failure)
{
    return *std::ranges::find(rows, failure, &Row::failure);
}

} // namespace

QString plainWords(UpdateFailure failure)
{
    return QString::fromUtf8(rowOf(failure).plainWords.data(), rowOf(failure).plainWords.size());
}

QString logName(UpdateFailure failure)
{
    return rowOf(failure).logName;
}

} // namespace ferrin
