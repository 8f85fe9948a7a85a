// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/statusnotifierstatusitem.h"

#include "menubar/itemhostingview.h"
#include "platform/linux/ownwindows/ownwindowlook.h"
#include "platform/linux/x11/x11dock.h"
#include "popover/clickplace.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace ferrin {

namespace {

// On X11 the pointer's own place is known, whatever the host reports.
std::optional<QPoint> screenPoint(QPoint reported)
{
    if (QGuiApplication::platformName() == u"xcb")
        return QCursor::pos();
    return reported.isNull() ? std::nullopt : std::optional(reported);
}

ItemPlace placeAt(std::optional<QPoint> click, bool hasLayers)
{
    const QScreen *const screen = click ? QGuiApplication::screenAt(*click) : nullptr;
    if (!screen)
        return {};
    if (hasLayers)
        return placeAtEdge(*click, screen->geometry());
    return placeOfClick(*click, dockUnderPointer(),
                        { .geometry = screen->geometry(), .ratio = screen->devicePixelRatio() });
}

} // namespace

StatusNotifierStatusItem::StatusNotifierStatusItem(const QDBusConnection &connection,
                                                   HostResolver &resolver,
                                                   const PanelColors &colors, QObject *parent)
    : StatusItem(parent)
    , m_colors(colors)
    , m_item(connection, resolver, colors)
    , m_menu(connection, resolver)
{
    connect(&m_item, &StatusNotifierItem::activateRequested, this,
            &StatusNotifierStatusItem::activateAt);
    connect(&m_item, &StatusNotifierItem::readersChanged, this,
            &StatusNotifierStatusItem::readersChanged);
    connect(&m_item, &StatusNotifierItem::contextMenuRequested, this,
            &StatusNotifierStatusItem::popUpMenu);
    connect(&m_menu, &DBusMenu::triggered, this, &StatusItem::menuEntryTriggered);
    connect(&m_menu, &DBusMenu::openRequested, this, [this] { activateAt(QPoint()); });
    connect(&m_menu, &DBusMenu::settingsRequested, this, &StatusItem::settingsRequested);
}

StatusNotifierStatusItem::~StatusNotifierStatusItem() = default;

void StatusNotifierStatusItem::removeContentViews()
{
    m_view.reset();
}

void StatusNotifierStatusItem::addContentView(std::unique_ptr<ItemHostingView> view)
{
    m_view = std::move(view);
    if (!m_view)
        return;
    connect(m_view.get(), &ItemHostingView::contentChanged, this,
            &StatusNotifierStatusItem::showContent);
    showContent();
}

void StatusNotifierStatusItem::showContent()
{
    const ItemContent content = m_view->content();
    m_item.setContent(content);
    m_menu.setState(sentenceFor(content));
}

void StatusNotifierStatusItem::activateAt(QPoint reported)
{
    // Only what opens needs the place. GTK's panels report places on their own surface on Wayland,
    // so what is found there comes before what is reported.
    if (m_pointer.isPossible() && !m_isHighlighted)
        m_pointer.find([this, reported](std::optional<QPoint> found) {
            activateAtClick(found ? found : screenPoint(reported));
        });
    else
        activateAtClick(screenPoint(reported));
}

void StatusNotifierStatusItem::activateAtClick(std::optional<QPoint> click)
{
    m_place = placeAt(click, m_pointer.isPossible());
    Q_EMIT activated();
}

void StatusNotifierStatusItem::setContextMenu(const std::vector<MenuEntry> &entries)
{
    m_menu.setEntries(entries);
}

void StatusNotifierStatusItem::setHighlighted(bool highlighted)
{
    m_isHighlighted = highlighted;
    // While its place was looked for, the pointer left the item and came back, upon which the host
    // would show the tool tip over the dashboard.
    if (m_pointer.isPossible())
        m_item.setToolTipEnabled(!highlighted);
}

void StatusNotifierStatusItem::popUpMenu(QPoint reported)
{
    if (!m_popup) {
        m_popup = std::make_unique<PopupMenu>();
        connect(m_popup.get(), &PopupMenu::triggered, this, &StatusItem::menuEntryTriggered);
    }
    m_popup->popUp(m_menu.entries(), placeAt(screenPoint(reported), m_pointer.isPossible()),
                   ownWindowLook(m_colors));
}

} // namespace ferrin
