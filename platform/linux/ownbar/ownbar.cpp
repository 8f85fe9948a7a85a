// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownbar/ownbar.h"

#include "menubar/itemhostingview.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "state/defaultsstore.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace ferrin {

namespace {

const QString placeKey = u"ownBarPlace"_s;

/// In the corner where status areas are.
BarPlace usualPlace()
{
    return { .along = QGuiApplication::isRightToLeft() ? 0.0 : 1.0 };
}

} // namespace

OwnBarItem::OwnBarItem(const PanelColors &colors, DefaultsStore *store, QObject *parent)
    : StatusItem(parent)
    , m_colors(colors)
{
    connect(&m_colors, &PanelColors::changed, this, &OwnBarItem::showLook);
    connect(&m_window, &OwnBarWindow::clicked, this, &StatusItem::activated);
    connect(&m_window, &OwnBarWindow::menuRequested, this, &OwnBarItem::popUpMenu);
    connect(&m_window, &OwnBarWindow::screenChosen, this, &OwnBarItem::changeScreen);
    connect(&m_popup, &PopupMenu::triggered, this, &StatusItem::menuEntryTriggered);
    if (store) {
        const auto remembered = barPlaceIn(store->string(placeKey).value_or(QString()));
        m_window.setPlace(remembered.value_or(usualPlace()));
        connect(&m_window, &OwnBarWindow::placeChanged, store,
                [this, store] { store->setObject(placeKey, toText(m_window.barPlace())); });
    }
    showLook();
}

OwnBarItem::~OwnBarItem() = default;

void OwnBarItem::show()
{
    m_isWanted = true;
    m_layers.prepare(m_window, LayerShell::Kind::Bar);
    m_window.setFollowing(!m_layers.contains(&m_window));
    m_window.show();
}

void OwnBarItem::hide()
{
    m_isWanted = false;
    m_window.hide();
}

void OwnBarItem::changeScreen()
{
    // A surface in a layer belongs to a screen, and goes with it.
    if (!m_layers.isPossible())
        return;
    m_window.hide();
    m_window.goToScreen();
    if (!m_isWanted)
        return;
    show();
    // Qt moves the windows of a screen that has gone once more.
    QMetaObject::invokeMethod(&m_window, &OwnBarWindow::goToScreen, Qt::QueuedConnection);
}

void OwnBarItem::setLength(qreal length)
{
    m_length = length;
    m_window.setContentLength(length);
}

void OwnBarItem::removeContentViews()
{
    m_view.reset();
}

void OwnBarItem::addContentView(std::unique_ptr<ItemHostingView> view)
{
    m_view = std::move(view);
    if (!m_view)
        return;
    connect(m_view.get(), &ItemHostingView::contentChanged, this, &OwnBarItem::showContent);
    showContent();
}

void OwnBarItem::setHighlighted(bool highlighted)
{
    m_window.setPressed(highlighted);
}

ItemPlace OwnBarItem::place() const
{
    return { .item = m_window.itemBounds(), .panel = m_window.geometry() };
}

void OwnBarItem::showContent()
{
    m_window.setContent(m_view->content());
}

void OwnBarItem::showLook()
{
    m_window.setLook(ownWindowLook(m_colors), m_colors.contextForOwnBar());
}

void OwnBarItem::popUpMenu()
{
    m_popup.popUp(m_entries, place(), ownWindowLook(m_colors));
}

bool OwnBar::isPossible()
{
    return !QGuiApplication::platformName().startsWith(u"wayland") || bool(*LayerShell::shared());
}

OwnBar::OwnBar(const PanelColors &colors, DefaultsStore *store, QObject *parent)
    : StatusBar(parent)
    , m_item(colors, store)
{
}

} // namespace ferrin
