// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace ferrin {

/// The makers behind USB vendor numbers, by the list that distributions ship (usb.ids). The list is
/// not kept: it is searched once for each vendor in turn, which is when an adapter is plugged in.
class UsbVendors
{
public:
    /// Where the list may be; the first that can be opened counts, none is no failure.
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
