// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/packagekit/packageid.h"

#include <QStringList>

namespace ferrin {

std::optional<PackageId> PackageId::fromText(const QString &text)
{
    const QStringList parts = text.split(u';');
    if (parts.size() != 4 || parts[0].isEmpty() || parts[1].isEmpty())
        return std::nullopt;
    return PackageId { parts[0], parts[1], parts[2], parts[3] };
}

QString PackageId::text() const
{
    return QStringList { name, version, architecture, source }.join(u';');
}

} // namespace ferrin
