// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/sysfs/sysfsregistry.h"
#include "tests/support/fakesysfs.h"

namespace ferrin::test {

/// A registry on a fake sysfs, with a clock that only the test advances.
class Laptop
{
public:
    explicit Laptop(QStringList usbVendors = {})
        : m_registry({ sysfs.root(), std::move(usbVendors), [this] { return m_now; } })
    {
    }

    explicit Laptop(const char *machine)
        : Laptop(QStringList())
    {
        sysfs.load(FakeSysfs::record(QString::fromLatin1(machine)));
    }

    /// A property of a new reading.
    [[nodiscard]] QVariant fresh(QStringView key)
    {
        m_registry.expire();
        return said(key);
    }
    /// A property of the present reading.
    [[nodiscard]] QVariant said(QStringView key)
    {
        return m_registry.createProperty(1, key.toString());
    }
    [[nodiscard]] QVariantMap adapter() { return fresh(u"AdapterDetails").toMap(); }
    [[nodiscard]] bool absent(QStringView key) { return !fresh(key).isValid(); }

    void pass(std::chrono::milliseconds time) { m_now += time; }

    FakeSysfs sysfs;

    SysfsRegistry &registry() { return m_registry; }

private:
    std::chrono::steady_clock::time_point m_now { std::chrono::hours(1) };
    SysfsRegistry m_registry;
};

} // namespace ferrin::test
