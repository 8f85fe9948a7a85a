// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/usbvendors.h"

#include <QFile>

namespace ferrin {

UsbVendors::UsbVendors(QStringList paths)
    : m_paths(std::move(paths))
{
}

QString UsbVendors::name(std::uint16_t vendor)
{
    if (m_lastVendor != vendor) {
        m_lastName = search(vendor);
        m_lastVendor = vendor;
    }
    return m_lastName;
}

QString UsbVendors::search(std::uint16_t vendor) const
{
    const QByteArray start = QByteArray::number(vendor, 16).rightJustified(4, '0') + "  ";
    for (const QString &path : m_paths) {
        QFile list(path);
        if (!list.open(QIODevice::ReadOnly))
            continue;
        while (!list.atEnd()) {
            const QByteArray line = list.readLine(1024);
            // The device classes follow the vendors; some of their lines look like a vendor.
            if (line.startsWith("C "))
                break;
            if (line.startsWith(start))
                return QString::fromUtf8(line.mid(start.size())).trimmed();
        }
        break;
    }
    return {};
}

} // namespace ferrin
