// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/statusnotifier/busobject.h"

#include <vector>

namespace ferrin {

/// The item's context menu on the bus, com.canonical.dbusmenu at /MenuBar: a flat list of entries
/// under the root. Entry n of the list has the number n + 1; the root is 0. For hosts that open
/// it on every click it also shows the state in words and the entries that open the windows.
class DBusMenu final : public BusObject
{
    Q_OBJECT

public:
    static constexpr auto path = "/MenuBar";

    /// The resolver outlives it.
    DBusMenu(const QDBusConnection &connection, HostResolver &resolver, QObject *parent = nullptr);

    [[nodiscard]] const std::vector<MenuEntry> &entries() const noexcept { return m_entries; }
    void setEntries(const std::vector<MenuEntry> &entries);

    /// What the item shows, in words. Announced to a host when it is about to show the menu.
    void setState(const QString &words);

Q_SIGNALS:
    void triggered(const QString &id);
    void openRequested();
    void settingsRequested();

protected:
    void readProperties(const QString &caller,
                        std::function<void(const Properties &)> read) override;
    [[nodiscard]] QStringList propertyNames() const override;
    [[nodiscard]] std::optional<QVariantList> call(const QDBusMessage &message,
                                                   const HostProfile &profile) override;

private:
    /// Such a host opens the menu where others activate the item.
    [[nodiscard]] bool leadsToWindows(const HostProfile &profile) const;
    /// The numbers of what such a host is given, from top to bottom.
    [[nodiscard]] QList<int> numbersFor(const HostProfile &profile) const;
    [[nodiscard]] QVariantMap entryProperties(int number, const QStringList &names) const;
    [[nodiscard]] std::optional<QVariantList> layout(const QList<int> &all, int parent, int depth,
                                                     const QStringList &names) const;
    [[nodiscard]] QVariantList groupProperties(const QList<int> &all, QList<int> numbers,
                                               const QStringList &names) const;
    [[nodiscard]] std::optional<QVariantList> entryProperty(const QList<int> &all, int number,
                                                            const QString &name) const;
    [[nodiscard]] bool takeEvent(const QList<int> &all, int number, const QString &event);
    [[nodiscard]] QVariantList takeEvents(const QList<int> &all, const QVariant &events);
    void trigger(int number);
    /// Announces new words to a host that shows them; it does not ask again by itself.
    void announceState(const QString &caller, const HostProfile &profile);

    std::vector<MenuEntry> m_entries;
    QString m_state;
    /// The words have changed since they were last announced.
    bool m_isStateNew = false;
    uint m_revision = 1;
};

} // namespace ferrin
