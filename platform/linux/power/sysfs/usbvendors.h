// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace ferrin {

/// The names of USB vendors, from the list that distributions ship (usb.ids). The list is not kept
/// in memory: it is searched whenever the vendor differs from the last, that is, once for each
/// adapter.
class UsbVendors
{
public:
    /// The possible paths of the list; the first that can be opened is used. There may be none.
    explicit UsbVendors(QStringList paths);

    /// Empty when the vendor is not in the list, or when there is none.
    [[nodiscard]] QString name(std::uint16_t vendor);

private:
    [[nodiscard]] QString search(std::uint16_t vendor) const;

    QStringList m_paths;
    std::optional<std::uint16_t> m_lastVendor;
    QString m_lastName;
};

} // namespace ferrin
