// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QPointer>
#include <QProperty>

#include <functional>
#include <utility>

namespace ferrin {

class StatusBar;
class StatusItem;

/// Stands between the status bar and the application: hands the item over once, and keeps the flag
/// "its menu is presented" in step with the item both ways. What the menu is, the application
/// decides; this never opens a window. Owned by the application.
class MenuBarExtraAccess : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isMenuPresented READ isMenuPresented WRITE setMenuPresented NOTIFY
                   isMenuPresentedChanged)
    Q_PROPERTY(bool isStatusItemEnabled READ isStatusItemEnabled WRITE setStatusItemEnabled NOTIFY
                   isStatusItemEnabledChanged)

public:
    using StatusItemIntrospection = std::function<void(StatusItem &)>;

    explicit MenuBarExtraAccess(StatusBar &statusBar, StatusItemIntrospection introspection,
                                QObject *parent = nullptr);

    /// Hands the item over on the next turn of the event loop. Once it has been handed over, and
    /// while that is under way, further calls do nothing; without an item yet, the next call tries
    /// again.
    void setUp();

    [[nodiscard]] bool isMenuPresented() const { return m_isMenuPresented; }
    void setMenuPresented(bool presented) { m_isMenuPresented = presented; }

    /// A disabled item takes no clicks.
    [[nodiscard]] bool isStatusItemEnabled() const { return m_isStatusItemEnabled; }
    void setStatusItemEnabled(bool enabled) { m_isStatusItemEnabled = enabled; }

    /// Asked at each click on the item; a click that it answers with false changes nothing.
    void setClickFilter(std::function<bool()> filter) { m_clickFilter = std::move(filter); }

Q_SIGNALS:
    void isMenuPresentedChanged();
    void isStatusItemEnabledChanged();

private:
    void handOver();
    void highlightItem();

    StatusBar &m_statusBar;
    StatusItemIntrospection m_statusItemIntrospection;
    QPointer<StatusItem> m_item;
    std::function<bool()> m_clickFilter;
    bool m_statusItemIntrospectionSetup = false;
    Q_OBJECT_BINDABLE_PROPERTY(MenuBarExtraAccess, bool, m_isMenuPresented,
                               &MenuBarExtraAccess::isMenuPresentedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MenuBarExtraAccess, bool, m_isStatusItemEnabled, true,
                                         &MenuBarExtraAccess::isStatusItemEnabledChanged)
};

} // namespace ferrin
