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
/// No call may block: the platform keeps its own copy of the data up to date.
class PowerSourcesService
{
public:
    /// Only the platform knows what it contains. Null when the service is not available.
    using Snapshot = std::shared_ptr<const void>;
    /// Identifies one power source within its snapshot.
    using SourceHandle = int;

    virtual ~PowerSourcesService() = default;

    [[nodiscard]] virtual Snapshot copyInfo() = 0;

    /// The handles in their order; absent when the snapshot has no list.
    [[nodiscard]] virtual std::optional<QList<SourceHandle>> copyList(const Snapshot &snapshot) = 0;

    /// A QVariantMap that describes the source; invalid when there is none.
    [[nodiscard]] virtual QVariant description(const Snapshot &snapshot, SourceHandle handle) = 0;
};

} // namespace ferrin
