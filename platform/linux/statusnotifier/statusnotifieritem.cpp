// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/statusnotifieritem.h"

#include "platform/linux/dbus/activationtoken.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/statusnotifier/hostresolver.h"
#include "platform/linux/x11/x11dock.h"

#include <QDBusObjectPath>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ferrin {

namespace {

// Reserves the width of the longest label, so that the panel does not jitter.
const QString labelGuide = u"100% 00:00"_s;

// Draws nothing; makes a label another text than the one that a host has read.
constexpr QChar unseenMark(0x200e);

qreal desktopScale()
{
    return qGuiApp ? qGuiApp->devicePixelRatio() : 1;
}

// Hosts read tool tips as one kind of markup or another.
QString withoutMarkup(QString text)
{
    return text.remove(u'<').remove(u'>').remove(u'&');
}

// The click that the token belongs to follows it at once.
constexpr auto tokenLifetime = 5s;

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection &connection, HostResolver &resolver,
                                       const PanelColors &colors, QObject *parent)
    : BusObject(connection, resolver, QString::fromLatin1(path), u"org.kde.StatusNotifierItem"_s,
                parent)
    , m_colors(colors)
{
    registerStatusNotifierTypes();
    m_update.setSingleShot(true);
    m_update.setInterval(0ms);
    connect(&m_update, &QTimer::timeout, this, &StatusNotifierItem::sendUpdate);
    m_tokenExpiry.setSingleShot(true);
    setTokenLifetime(tokenLifetime);
    connect(&m_tokenExpiry, &QTimer::timeout, this, &forgetActivationToken);
    connect(&resolver, &HostResolver::left, this, &StatusNotifierItem::forget);
    connect(&m_colors, &PanelColors::changed, this, &StatusNotifierItem::scheduleUpdate);
    followScreens();
}

void StatusNotifierItem::followScreens()
{
    if (!qGuiApp)
        return;
    const auto follow = [this](const QScreen *screen) {
        connect(screen, &QScreen::geometryChanged, this, &StatusNotifierItem::scheduleUpdate);
        connect(screen, &QScreen::physicalDotsPerInchChanged, this,
                &StatusNotifierItem::scheduleUpdate);
    };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, follow);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &StatusNotifierItem::scheduleUpdate);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &StatusNotifierItem::scheduleUpdate);
    for (const QScreen *const screen : QGuiApplication::screens())
        follow(screen);
}

void StatusNotifierItem::setContent(const ItemContent &content)
{
    if (m_content == content)
        return;
    m_content = content;
    scheduleUpdate();
}

std::optional<PanelAppearance> StatusNotifierItem::panelAppearance() const
{
    if (!m_lastHost)
        return {};
    PanelAppearance result { .form = ItemForm::Glyph,
                             .height = 16,
                             .context = m_colors.contextFor(m_lastHost->panel()),
                             .hasLabel = m_lastHost->label };
    const auto pictures = m_lastHost->picturesFor(m_isPanelStanding);
    if (!pictures.empty()) {
        result.form = pictures.front().form;
        result.height = pictures.front().height;
    }
    return result;
}

void StatusNotifierItem::setPanelStanding(bool isStanding)
{
    if (std::exchange(m_isPanelStanding, isStanding) == isStanding)
        return;
    scheduleUpdate();
    Q_EMIT readersChanged();
}

void StatusNotifierItem::setToolTipEnabled(bool isEnabled)
{
    if (std::exchange(m_isToolTipEnabled, isEnabled) != isEnabled)
        scheduleUpdate();
}

void StatusNotifierItem::scheduleUpdate()
{
    if (!m_readers.isEmpty())
        m_update.start();
}

void StatusNotifierItem::sendUpdate()
{
    m_update.stop();
    QList<const HostProfile *> newIcons;
    QList<const HostProfile *> newLabels;
    for (auto [profile, seen] : m_seen.asKeyValueRange()) {
        const Seen now = seenBy(*profile, seen.hasIcon);
        if (now.pictures != seen.pictures || now.iconName != seen.iconName)
            newIcons.append(profile);
        if (now.label != seen.label)
            newLabels.append(profile);
        seen = now;
    }
    const QString seenToolTip = std::exchange(m_seenToolTip, toolTip());

    announce(u"NewIcon"_s, &Reader::hasIcon,
             [&](const HostProfile &profile) { return newIcons.contains(&profile); });
    // A host that draws a label shows no tool tip.
    announce(u"NewToolTip"_s, &Reader::hasToolTip, [&](const HostProfile &profile) {
        return m_seenToolTip != seenToolTip && !profile.label;
    });
    for (const auto [name, reader] : m_readers.asKeyValueRange()) {
        if (newLabels.contains(reader.profile))
            sendLabelTo(name, m_seen[reader.profile].label);
    }
}

void StatusNotifierItem::announce(const QString &signal, bool Reader::*hasRead,
                                  const std::function<bool(const HostProfile &)> &isNews)
{
    QStringList concerned;
    bool isNewsToAll = true;
    for (const auto [name, reader] : m_readers.asKeyValueRange()) {
        if (!(reader.*hasRead))
            continue;
        if (isNews(*reader.profile))
            concerned.append(name);
        else
            isNewsToAll = false;
    }
    if (concerned.isEmpty())
        return;
    if (isNewsToAll) {
        sendSignal(signal);
        return;
    }
    for (const QString &name : std::as_const(concerned))
        sendSignalTo(name, signal, {});
}

void StatusNotifierItem::sendLabelTo(const QString &reader, const QString &label)
{
    sendSignalTo(reader, u"XAyatanaNewLabel"_s, { label, labelGuide });
}

void StatusNotifierItem::repeatLabel(const QString &reader, int repeatsLeft,
                                     std::chrono::milliseconds delay)
{
    if (repeatsLeft == 0)
        return;
    QTimer::singleShot(delay, this, [this, reader, repeatsLeft, delay] {
        const auto found = m_readers.constFind(reader);
        if (found == m_readers.cend())
            return;
        if (const QString &label = m_seen[found->profile].label; !label.isEmpty())
            sendLabelTo(reader, label + unseenMark);
        repeatLabel(reader, repeatsLeft - 1, 2 * delay);
    });
}

StatusNotifierItem::Seen StatusNotifierItem::seenBy(const HostProfile &profile, bool hasIcon)
{
    Seen seen;
    seen.hasIcon = hasIcon;
    if (profile.label)
        seen.label = labelFor(m_content);
    if (!hasIcon)
        return seen;
    if (profile.iconName)
        seen.iconName = m_iconFiles.nameFor(m_content);
    else
        seen.pictures = m_pictures.pictures(
            profile, m_content, m_colors.contextFor(profile.panel()),
            { .desktopScale = desktopScale(),
              .panelHeights = profile.panelHeights ? dockThicknesses() : QList<int>(),
              .isPanelStanding = m_isPanelStanding });
    return seen;
}

QString StatusNotifierItem::words() const
{
    return withoutMarkup(sentenceFor(m_content));
}

QString StatusNotifierItem::toolTip() const
{
    return m_isToolTipEnabled ? words() : QString();
}

QString StatusNotifierItem::moreWords() const
{
    ItemContent state = m_content;
    state.charge.reset();
    state.time.reset();
    const QString text = withoutMarkup(sentenceFor(state));
    return text == words() ? QString() : text;
}

void StatusNotifierItem::remember(const QString &caller, const HostProfile &profile,
                                  const QString &property)
{
    if (m_readers.isEmpty())
        m_seenToolTip = toolTip();
    if (!m_readers.contains(caller)) {
        m_readers.insert(caller, { .profile = &profile });
        // GNOME's extension draws its item before it knows the label that it has read since version
        // 58. It misses signals until then, and later ignores one that brings what it has read.
        constexpr int repeats = 6;
        if (profile.label)
            repeatLabel(caller, repeats, m_labelRepeatDelay);
    }
    Seen &seen = m_seen[&profile];
    Reader &reader = m_readers[caller];
    reader.hasToolTip = reader.hasToolTip || property == u"ToolTip";
    const bool isOfIcon = property.startsWith(u"Icon");
    if (!seen.hasIcon)
        seen = seenBy(profile, isOfIcon);
    if (!isOfIcon || std::exchange(reader.hasIcon, true))
        return;
    m_lastHost = &profile;
    Q_EMIT readersChanged();
}

void StatusNotifierItem::forget(const QString &caller)
{
    const HostProfile *const profile = m_readers.take(caller).profile;
    const auto hasIcon = [](const Reader &reader) { return reader.hasIcon; };
    const bool hasOtherReader
        = std::any_of(m_readers.cbegin(), m_readers.cend(),
                      [profile](const Reader &reader) { return reader.profile == profile; });
    if (!profile || hasOtherReader)
        return;
    if (m_lastHost == profile) {
        const auto other = std::find_if(m_readers.cbegin(), m_readers.cend(), hasIcon);
        m_lastHost = other == m_readers.cend() ? nullptr : other->profile;
    }
    Q_EMIT readersChanged();
    m_seen.remove(profile);
    m_pictures.forget(*profile);
}

void StatusNotifierItem::readProperties(const QString &caller,
                                        std::function<void(const Properties &)> read)
{
    resolver().resolve(caller, [this, caller, read](const HostProfile &profile) {
        // What this reader is about to see is new to the others too.
        if (m_update.isActive())
            sendUpdate();
        read([this, &caller, &profile](const QString &name) {
            return property(name, caller, profile);
        });
    });
}

QStringList StatusNotifierItem::propertyNames() const
{
    return { u"Category"_s,      u"Id"_s,
             u"Title"_s,         u"Status"_s,
             u"WindowId"_s,      u"IconName"_s,
             u"IconThemePath"_s, u"IconPixmap"_s,
             u"ToolTip"_s,       u"IconAccessibleDesc"_s,
             u"ItemIsMenu"_s,    u"Menu"_s,
             u"XAyatanaLabel"_s, u"XAyatanaLabelGuide"_s };
}

QVariant StatusNotifierItem::property(const QString &name, const QString &caller,
                                      const HostProfile &profile)
{
    static const QVariantMap constants {
        { u"Category"_s, u"Hardware"_s },
        { u"Id"_s, u"ferrin"_s },
        { u"Title"_s, u"Ferrin"_s },
        { u"Status"_s, u"Active"_s },
        { u"WindowId"_s, 0 },
        { u"ItemIsMenu"_s, false },
        { u"Menu"_s, QVariant::fromValue(QDBusObjectPath(u"/MenuBar"_s)) },
    };
    if (const auto constant = constants.find(name); constant != constants.end())
        return *constant;
    if (!propertyNames().contains(name))
        return {};
    remember(caller, profile, name);
    if (name == u"IconName")
        return m_seen[&profile].iconName;
    if (name == u"IconThemePath")
        return profile.iconName ? m_iconFiles.folder() : QString();
    if (name == u"IconPixmap")
        return QVariant::fromValue(m_seen[&profile].pictures);
    if (name == u"ToolTip")
        return QVariant::fromValue(StatusNotifierToolTip {
            .title = toolTip(), .text = m_isToolTipEnabled ? moreWords() : QString() });
    if (name == u"IconAccessibleDesc")
        return words();
    if (!profile.label)
        return {};
    return name == u"XAyatanaLabel" ? m_seen[&profile].label : labelGuide;
}

std::optional<QVariantList> StatusNotifierItem::call(const QDBusMessage &message,
                                                     const HostProfile &profile)
{
    const auto place = [&] {
        const QVariantList arguments = message.arguments();
        return profile.trustedClicks ? QPoint(arguments.at(0).toInt(), arguments.at(1).toInt())
                                     : QPoint();
    };
    const QString method = message.member() + u'(' + message.signature() + u')';
    if (method == u"Activate(ii)") {
        Q_EMIT activateRequested(place());
        return QVariantList {};
    }
    if (method == u"ContextMenu(ii)") {
        Q_EMIT contextMenuRequested(place());
        return QVariantList {};
    }
    if (method == u"ProvideXdgActivationToken(s)") {
        if (keepActivationToken(message.arguments().constFirst().toString()))
            m_tokenExpiry.start();
        return QVariantList {};
    }
    // Nothing is tied to the middle button and the wheel; an error would make a host open the menu.
    if (method == u"SecondaryActivate(ii)" || method == u"Scroll(is)")
        return QVariantList {};
    return {};
}

} // namespace ferrin
