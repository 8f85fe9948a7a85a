// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/release.h"
#include "updates/updatefailure.h"

#include <QObject>

#include <optional>

namespace ferrin {

/// Whether the system's package service can keep this copy of the program current.
enum class UpdateSupport {
    full,
    /// No package installed it, so no package can replace it.
    notPackaged,
    /// The system has no package service that programs can ask.
    noService,
    /// It runs in a Flatpak, which is updated as a whole and from outside.
    sandboxed,
};

enum class UpdateActivity {
    working,
    /// Another installation has to finish first.
    waiting,
    /// The desktop asks the user for a password.
    authorizing,
    downloading,
    installing,
};

struct UpdateProgress
{
    UpdateActivity activity = UpdateActivity::working;
    /// 0 to 1; absent while it is unknown.
    std::optional<double> done;
    bool canCancel = true;

    friend bool operator==(const UpdateProgress &, const UpdateProgress &) = default;
};

/// Whether the user waits for the answer, and may be asked questions.
enum class UpdateManner {
    interactive,
    background,
};

/// The system's package service: one task at a time, each answered later by one of the signals.
/// The service verifies what it downloads and installs. The platform implements this.
class UpdateEngine : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    [[nodiscard]] virtual UpdateSupport support() const = 0;
    /// Finds out again whether there is a service, without starting it.
    virtual void refreshSupport() = 0;

    virtual void check(UpdateManner manner) = 0;
    virtual void download(const Release &release, UpdateManner manner) = 0;
    /// Downloads first what is still missing.
    virtual void install(const Release &release) = 0;
    /// Ends the task as soon as that is safe. It reports nothing more.
    virtual void cancel() = 0;

Q_SIGNALS:
    void supportChanged();
    /// Absent when nothing newer can be installed.
    void checked(const std::optional<ferrin::Release> &release);
    void progressed(const ferrin::UpdateProgress &progress);
    void downloaded();
    /// The package database says that the version is installed.
    void installed();
    void failed(const ferrin::UpdateTrouble &trouble);
};

} // namespace ferrin
