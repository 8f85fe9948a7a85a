// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/packagekit/packagetask.h"

namespace ferrin {

/// Refreshes what the package sources offer and looks for a newer version of the package that owns
/// the program. A source that fails and does not offer the package does not matter.
class CheckTask final : public PackageTask
{
    Q_OBJECT

public:
    using PackageTask::PackageTask;

    void start() override;

Q_SIGNALS:
    void checked(const std::optional<ferrin::Release> &release);

private:
    void refresh();
    void judge(const TransactionResult &refresh);
    void judge(const TransactionResult &refresh, const QStringList &origins);
    void findUpdate();
    [[nodiscard]] std::optional<PackageId> newestOf(const TransactionResult &updates) const;
    void describe(const PackageId &newest);
    void findNotes(const PackageId &newest);
    void readChangelog(const PackageId &newest);

    PackageId m_installed;
    VersionOrder m_order = VersionOrder::unknown;
    Release m_release;
};

} // namespace ferrin
