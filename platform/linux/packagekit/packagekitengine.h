// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/packagetask.h"
#include "updates/updateengine.h"

namespace ferrin {

/// The system's package service, by PackageKit. It is asked, and started, only by a task; whether
/// it exists is known by the bus. Owned by the application.
class PackageKitEngine final : public UpdateEngine
{
    Q_OBJECT

public:
    explicit PackageKitEngine(PackageSystem system);
    ~PackageKitEngine() override;

    [[nodiscard]] UpdateSupport support() const override { return m_support; }
    void refreshSupport() override;

    void check(UpdateManner manner) override;
    void download(const Release &release, UpdateManner manner) override;
    void install(const Release &release) override;
    void cancel() override;

private:
    template <typename Task>
    void begin(Task *task);
    void end();
    void takeFailure(const UpdateTrouble &trouble);
    void setSupport(UpdateSupport support);

    PackageSystem m_system;
    UpdateSupport m_support;
    /// Null when there is no task.
    PackageTask *m_task = nullptr;
};

/// Where packages put programs. A program elsewhere is nobody's without a question.
[[nodiscard]] bool isInPackageFolder(const QString &program);

} // namespace ferrin
