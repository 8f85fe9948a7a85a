// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QMetaType>
#include <QString>

namespace ferrin {

/// Why a check, a download or an installation did not succeed.
enum class UpdateFailure {
    notPackaged,
    noService,
    /// The package service cannot be started, or ended in the middle.
    serviceBroken,
    /// An error of the package service that has no words of its own here.
    serviceError,
    offline,
    unreachable,
    /// The package source answered with an error.
    sourceError,
    /// A signature is missing, wrong, or by an unknown key.
    notTrusted,
    /// A list or a package is not what the signed list says.
    tampered,
    /// A signed list has expired, or its date is in the future.
    notCurrent,
    /// A package that is announced and not there.
    packageMissing,
    tooSlow,
    notAuthorized,
    /// Another program holds the package database.
    busy,
    /// An earlier installation was broken off, and the package manager refuses to go on.
    interrupted,
    /// The package's own set-up failed, or is unfinished.
    setupFailed,
    conflict,
    diskFull,
    /// The service reported success, and the old version is still installed.
    nothingDone,
};

/// One or two sentences for the user.
[[nodiscard]] QString plainWords(UpdateFailure failure);

/// The name in the log.
[[nodiscard]] QString logName(UpdateFailure failure);

/// A failure with what the log says about it.
struct UpdateTrouble
{
    UpdateFailure failure = UpdateFailure::serviceError;
    /// One line for whoever looks after the machine.
    QString detail;

    friend bool operator==(const UpdateTrouble &, const UpdateTrouble &) = default;
};

} // namespace ferrin
