// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QTemporaryDir>

namespace ferrin::bench {

/// A sysfs tree of one laptop with a mains adapter and `batteries` packs.
class LaptopTree
{
public:
    explicit LaptopTree(int batteries);

    [[nodiscard]] QString root() const { return m_folder.path(); }
    void set(const QString &supply, const QString &attribute, const QByteArray &value) const;
    void remove(const QString &supply, const QString &attribute) const;

private:
    void addMains() const;
    void addBattery(int number) const;

    QTemporaryDir m_folder;
};

} // namespace ferrin::bench
