// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/statusarea/busobject.h"

#include <vector>

namespace ferrin {

/// The item's context menu on the bus, com.canonical.dbusmenu at /MenuBar: a flat list of entries
/// under the root. Entry n of the list has the number n + 1; the root is 0.
class DBusMenu final : public BusObject
{
    Q_OBJECT

public:
    static constexpr auto path = "/MenuBar";

    explicit DBusMenu(const QDBusConnection &connection, QObject *parent = nullptr);

    [[nodiscard]] const std::vector<MenuEntry> &entries() const noexcept { return m_entries; }
    void setEntries(const std::vector<MenuEntry> &entries);

Q_SIGNALS:
    void triggered(const QString &id);

protected:
    void readProperties(const QString &caller,
                        std::function<void(const Properties &)> read) override;
    [[nodiscard]] QStringList propertyNames() const override;
    [[nodiscard]] std::optional<QVariantList> call(const QDBusMessage &message) override;

private:
    [[nodiscard]] bool has(int number) const;
    [[nodiscard]] QVariantMap entryProperties(int number, const QStringList &names) const;
    [[nodiscard]] std::optional<QVariantList> layout(int parent, int depth,
                                                     const QStringList &names) const;
    [[nodiscard]] QVariantList groupProperties(QList<int> numbers, const QStringList &names) const;
    [[nodiscard]] std::optional<QVariantList> entryProperty(int number, const QString &name) const;
    [[nodiscard]] QList<int> unknownAmong(const QList<int> &numbers) const;
    bool takeEvent(int number, const QString &event);
    [[nodiscard]] QVariantList takeEvents(const QVariant &events);

    std::vector<MenuEntry> m_entries;
    uint m_revision = 1;
};

} // namespace ferrin
