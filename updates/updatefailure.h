// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QMetaType>
#include <QString>

#include <optional>

namespace ferrin {

/// Why a check, a download or an installation did not come to its end.
enum class UpdateFailure {
    /// The server could not be reached, or broke off.
    noConnection,
    /// The server answered with an error, or not in the form that was asked for.
    serverTrouble,
    /// The server could not prove that it is the one that was meant.
    notTheServer,
    /// The way led to an address without encryption.
    notEncrypted,
    tooSlow,
    tooLarge,
    /// The feed is not signed with our key.
    badSignature,
    /// The feed is signed and says nothing that makes sense.
    badFeed,
    /// The feed has expired, or comes from the future.
    notCurrent,
    /// An older feed than one that was seen before.
    replayed,
    /// A newer release, without a package for this machine.
    noPackage,
    /// The package is not the one that the feed describes.
    badPackage,
    diskFull,
    cannotWrite,
    /// Another session of the user's is at the same download.
    alreadyAtWork,
    /// The part of the program that speaks to the network could not run to its end.
    brokenOff,
    noInstaller,
};

/// One or two sentences for the user.
[[nodiscard]] QString plainWords(UpdateFailure failure);

/// The name by which one process tells another.
[[nodiscard]] QString rawValue(UpdateFailure failure);
[[nodiscard]] std::optional<UpdateFailure> updateFailureFromRawValue(QStringView rawValue);

/// A failure with what the log says about it.
struct UpdateTrouble
{
    UpdateFailure failure = UpdateFailure::brokenOff;
    /// For those who look after the machine: one line.
    QString detail;

    friend bool operator==(const UpdateTrouble &, const UpdateTrouble &) = default;
};

} // namespace ferrin
