// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/menubarextraaccess.h"

#include "menubar/statusitem.h"

#include <QMetaObject>

#include <utility>

namespace ferrin {

MenuBarExtraAccess::MenuBarExtraAccess(StatusBar &statusBar, StatusItemIntrospection introspection,
                                       QObject *parent)
    : QObject(parent)
    , m_statusBar(statusBar)
    , m_statusItemIntrospection(std::move(introspection))
{
    connect(this, &MenuBarExtraAccess::isMenuPresentedChanged, this,
            &MenuBarExtraAccess::highlightItem);
}

void MenuBarExtraAccess::setUp()
{
    if (!m_statusItemIntrospectionSetup)
        QMetaObject::invokeMethod(
            this, [this] { handOver(); }, Qt::QueuedConnection);
}

void MenuBarExtraAccess::handOver()
{
    StatusItem *item = m_statusBar.item();
    if (m_statusItemIntrospectionSetup || !item)
        return;

    m_statusItemIntrospectionSetup = true;
    m_item = item;
    connect(item, &StatusItem::activated, this, [this] {
        if (isStatusItemEnabled() && (!m_clickFilter || m_clickFilter()))
            setMenuPresented(!isMenuPresented());
    });
    highlightItem();
    if (m_statusItemIntrospection)
        m_statusItemIntrospection(*item);
}

void MenuBarExtraAccess::highlightItem()
{
    if (m_item)
        m_item->setHighlighted(isMenuPresented());
}

} // namespace ferrin
