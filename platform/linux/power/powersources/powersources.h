// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "sources/powersourcesservice.h"
#include "sources/registryservice.h"

namespace ferrin {

/// The power sources of the machine: those of UPower, with the times that the kernel's figures
/// make. The registry's times are good from the first reading on, so UPower's are never waited for;
/// where the registry has none, there is none.
///
/// Without UPower, which is only recommended, the battery is described by the registry alone. A
/// machine without a battery has one source, the mains, so that nothing is missed for ever.
class PowerSources final : public PowerSourcesService
{
public:
    /// Both must outlive this.
    PowerSources(PowerSourcesService &upower, RegistryService &registry)
        : m_upower(upower)
        , m_registry(registry)
    {
    }

    /// Never null.
    [[nodiscard]] Snapshot copyInfo() override;
    [[nodiscard]] std::optional<QList<SourceHandle>> copyList(const Snapshot &snapshot) override;
    [[nodiscard]] QVariant description(const Snapshot &snapshot, SourceHandle handle) override;

private:
    [[nodiscard]] QList<QVariantMap> describedByUPower();
    void insertTimes(QVariantMap &battery, RegistryService::Handle service);

    PowerSourcesService &m_upower;
    RegistryService &m_registry;
};

} // namespace ferrin
