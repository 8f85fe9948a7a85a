// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/xembed/trayitem.h"

#include "menubar/itemform.h"
#include "menubar/itemhostingview.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/xembed/dockedwindow.h"
#include "popover/clickplace.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

using namespace std::chrono_literals;

namespace ferrin {

namespace {

constexpr qreal highlightOpacity = 0.2;
constexpr qreal highlightRadius = 0.15;
// A bar that reads its configuration again lets go of all that is in its tray first.
constexpr auto returnAfter = 200ms;

/// What a bar that leaves its icons no air would have to leave, device pixels: the square would
/// touch both of its edges.
int missingAir(int side, const QRect &panel)
{
    const int thickness = std::min(panel.width(), panel.height());
    const int spare = std::max(0, thickness - side) / 2;
    return std::max(0, int(std::lround(thickness / 14.0)) - spare);
}

/// The screen that shows this place of the X server's.
QScreen *screenAtDevice(QPoint place)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto shows = [place](const QScreen *screen) {
        const QRect geometry = screen->geometry();
        return QRect(geometry.topLeft(), geometry.size() * screen->devicePixelRatio())
            .contains(place);
    };
    const auto found = std::find_if(screens.begin(), screens.end(), shows);
    return found == screens.end() ? QGuiApplication::primaryScreen() : *found;
}

} // namespace

TrayItem::TrayItem(const PanelColors &colors, QObject *parent)
    : StatusItem(parent)
    , m_colors(colors)
{
    connect(&m_colors, &PanelColors::changed, this, &TrayItem::paint);
    connect(&m_popup, &PopupMenu::triggered, this, &StatusItem::menuEntryTriggered);
    m_return.setSingleShot(true);
    m_return.setInterval(returnAfter);
    connect(&m_return, &QTimer::timeout, this, [this] { dockInto(m_tray); });
}

TrayItem::~TrayItem() = default;

void TrayItem::dockInto(quint32 tray)
{
    m_tray = tray;
    m_return.stop();
    leave();
    if (!tray)
        return;
    m_window = std::make_unique<DockedWindow>(tray);
    m_window->setTitle(sentenceFor(m_content));
    DockedWindow *const window = m_window.get();
    connect(window, &DockedWindow::pictureWanted, this, &TrayItem::paint);
    connect(window, &DockedWindow::clicked, this, [this] {
        m_toolTip.hide();
        Q_EMIT activated();
    });
    connect(window, &DockedWindow::menuRequested, this, &TrayItem::popUpMenu);
    connect(window, &DockedWindow::undocked, this, [this] {
        leave();
        m_return.start();
    });
    connect(window, &DockedWindow::entered, this, [this] {
        // It would cover the dashboard.
        if (!m_isHighlighted)
            m_toolTip.showSoon(sentenceFor(m_content), place(), ownWindowLook(m_colors));
    });
    connect(window, &DockedWindow::left, &m_toolTip, &ToolTip::hide);
}

void TrayItem::leave()
{
    m_toolTip.hide();
    if (!m_window)
        return;
    // This may be called from one of its signals.
    m_window->disconnect(this);
    m_window.release()->deleteLater();
}

void TrayItem::removeContentViews()
{
    m_view.reset();
}

void TrayItem::addContentView(std::unique_ptr<ItemHostingView> view)
{
    m_view = std::move(view);
    if (!m_view)
        return;
    connect(m_view.get(), &ItemHostingView::contentChanged, this, &TrayItem::showContent);
    showContent();
}

void TrayItem::showContent()
{
    m_content = m_view->content();
    if (m_window)
        m_window->setTitle(sentenceFor(m_content));
    paint();
}

void TrayItem::setHighlighted(bool highlighted)
{
    if (std::exchange(m_isHighlighted, highlighted) == highlighted)
        return;
    m_toolTip.hide();
    paint();
}

ViewContext TrayItem::context() const
{
    if (!m_window)
        return m_colors.contextForTray({});
    return m_colors.contextForTray(
        { .ground = m_window->ground(), .isI3Bar = m_window->panelClass() == "i3bar" });
}

void TrayItem::paint()
{
    const QSize size = m_window ? m_window->size() : QSize();
    if (size.isEmpty())
        return;
    const ViewContext context = this->context();
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const int granted = std::min(size.width(), size.height());
    const int side = granted - 2 * missingAir(granted, m_window->panel());
    const QRect cell((size.width() - side) / 2, (size.height() - side) / 2, side, side);
    if (m_isHighlighted) {
        QColor lit = context.text;
        lit.setAlphaF(float(highlightOpacity));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(lit);
        painter.drawRoundedRect(cell, side * highlightRadius, side * highlightRadius);
    }
    painter.drawImage(cell.topLeft(), paintForm(ItemForm::Square, m_content, side, 1, context));
    painter.end();
    m_window->show(picture);
}

ItemPlace TrayItem::place() const
{
    const QRect bounds = m_window ? m_window->bounds() : QRect();
    const QScreen *const screen = bounds.isEmpty() ? nullptr : screenAtDevice(bounds.center());
    if (!screen)
        return {};
    return placeOfItem(bounds, m_window->panel(),
                       { .geometry = screen->geometry(), .ratio = screen->devicePixelRatio() });
}

void TrayItem::popUpMenu()
{
    m_toolTip.hide();
    m_popup.popUp(m_entries, place(), ownWindowLook(m_colors));
}

TrayBar::TrayBar(const PanelColors &colors, QObject *parent)
    : StatusBar(parent)
    , m_item(colors)
{
}

} // namespace ferrin
