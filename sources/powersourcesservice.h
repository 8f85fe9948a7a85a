// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QList>
#include <QVariant>

#include <memory>
#include <optional>

namespace ferrin {

/// The power-sources service of the machine: a snapshot of all power sources, the handles in it,
/// and one description for each. The platform implements it; BatteryDataFromIOPS is its only user.
/// No call may block: the platform keeps its own picture up to date.
class PowerSourcesService
{
public:
    /// Opaque to everyone but the platform. Null when the service cannot be reached.
    using Snapshot = std::shared_ptr<const void>;
    /// Names one power source within its snapshot.
    using SourceHandle = int;

    virtual ~PowerSourcesService() = default;

    [[nodiscard]] virtual Snapshot copyInfo() = 0;

    /// The handles in their order; absent when the snapshot has no list.
    [[nodiscard]] virtual std::optional<QList<SourceHandle>> copyList(const Snapshot &snapshot) = 0;

    /// A QVariantMap of the source's facts; invalid when it has none.
    [[nodiscard]] virtual QVariant description(const Snapshot &snapshot, SourceHandle handle) = 0;
};

} // namespace ferrin
