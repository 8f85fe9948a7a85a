// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/menubaritemprovider.h"

#include "base/logging.h"
#include "menubar/itemhostingview.h"
#include "menubar/menubaritemselecteditemview.h"
#include "menubar/statusitem.h"
#include "state/settingsdata.h"

#include <optional>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

std::optional<MenuBarItemProvider::Parts> &handedOver()
{
    static std::optional<MenuBarItemProvider::Parts> parts;
    return parts;
}

/// An item that stands nowhere.
class DetachedStatusItem final : public StatusItem
{
public:
    void setLength(qreal length) override { m_length = length; }
    [[nodiscard]] qreal length() const override { return m_length; }
    [[nodiscard]] bool hasButton() const override { return false; }
    void removeContentViews() override { }
    void addContentView(std::unique_ptr<ItemHostingView>) override { }
    void setContextMenu(const std::vector<MenuEntry> &) override { }
    void setHighlighted(bool) override { }
    [[nodiscard]] ItemPlace place() const override { return {}; }

private:
    qreal m_length = 0;
};

} // namespace

MenuBarItemProvider::MenuBarItemProvider(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_placeholder(std::make_unique<DetachedStatusItem>())
    , m_viewHeight(parts.statusBar.thickness())
{
}

MenuBarItemProvider::~MenuBarItemProvider() = default;

void MenuBarItemProvider::setParts(const Parts &parts)
{
    handedOver().emplace(parts);
}

MenuBarItemProvider &MenuBarItemProvider::shared()
{
    static auto *const instance = [] {
        if (!handedOver())
            qFatal("The menu bar item was asked for before its parts were handed over");
        return new MenuBarItemProvider(*handedOver());
    }();
    return *instance;
}

StatusItem &MenuBarItemProvider::statusItem() const
{
    return m_statusItem ? *m_statusItem : *m_placeholder;
}

void MenuBarItemProvider::setStatusItem(StatusItem &item)
{
    const QString quit = u"quit"_s;
    if (m_statusItem)
        m_statusItem->disconnect(this);
    m_statusItem = &item;
    item.setContextMenu({ { .id = quit, .title = u"Quit Ferrin"_s } });
    connect(&item, &StatusItem::menuEntryTriggered, this, [this, quit](const QString &id) {
        if (id == quit)
            Q_EMIT quitRequested();
    });
}

void MenuBarItemProvider::setContext(const ViewContext &context)
{
    if (m_parts.context == context)
        return;
    m_parts.context = context;
    update();
}

void MenuBarItemProvider::update()
{
    const float width = m_parts.settings.statusItemWidth();
    qCDebug(logger, "Setting menu bar icon with width: %f", double(width));

    auto host = std::make_unique<ItemHostingView>();
    auto *content = new MenuBarItemSelectedItemView(
        *host, { m_parts.battery(), m_parts.settings, m_parts.switches, m_parts.context });
    // Queued, because the item must not lose its content while that content is measuring itself.
    connect(content, &MenuBarItemSelectedItemView::statusItemWidthChanged, this,
            &MenuBarItemProvider::update, Qt::QueuedConnection);

    host->setFrameSize({ qreal(width), m_viewHeight });
    StatusItem &item = statusItem();
    item.setLength(width);
    item.removeContentViews();
    if (item.hasButton())
        item.addContentView(std::move(host));
}

} // namespace ferrin
