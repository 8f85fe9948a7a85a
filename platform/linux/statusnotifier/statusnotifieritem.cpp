// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/statusnotifieritem.h"

#include "menubar/itemdrift.h"
#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/statusnotifier/hostresolver.h"

#include <QDBusObjectPath>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace ferrin {

namespace {

// Reserves the width of the longest label, so that the panel does not jitter.
const QString labelGuide = u"100% 00:00"_s;

qreal desktopScale()
{
    return qGuiApp ? qGuiApp->devicePixelRatio() : 1;
}

// Hosts read tool tips as one kind of markup or another.
QString withoutMarkup(QString text)
{
    return text.remove(u'<').remove(u'>').remove(u'&');
}

// Qt hands the token to the next window that asks for activation.
void keepActivationToken(const QString &token)
{
    constexpr qsizetype longestToken = 1024;
    if (token.size() <= longestToken && !token.contains(QChar::Null))
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection &connection, HostResolver &resolver,
                                       const PanelColors &colors, QObject *parent)
    : BusObject(connection, resolver, QString::fromLatin1(path), u"org.kde.StatusNotifierItem"_s,
                parent)
    , m_colors(colors)
{
    registerStatusNotifierTypes();
    // A refresh changes several values, one after the other: they are one piece of news.
    m_news.setSingleShot(true);
    connect(&m_news, &QTimer::timeout, this, &StatusNotifierItem::sendNews);
    connect(&resolver, &HostResolver::left, this, &StatusNotifierItem::forget);
    connect(&m_colors, &PanelColors::changed, this, [this] { scheduleNews(0ms); });
}

void StatusNotifierItem::setContent(const ItemContent &content)
{
    if (m_content == content)
        return;
    m_content = content;
    const bool canWait = isDrift(m_told, m_content) && !m_peaceEnds.hasExpired();
    scheduleNews(canWait ? std::chrono::milliseconds(m_peaceEnds.remainingTime()) : 0ms);
}

void StatusNotifierItem::setSilenced(bool isSilenced)
{
    if (std::exchange(m_isSilenced, isSilenced) != isSilenced)
        scheduleNews(0ms);
}

void StatusNotifierItem::scheduleNews(std::chrono::milliseconds delay)
{
    // What is urgent stays so.
    const bool isSooner = !m_news.isActive() || delay < m_news.remainingTimeAsDuration();
    if (!m_readers.isEmpty() && isSooner)
        m_news.start(delay);
}

void StatusNotifierItem::sendNews()
{
    m_news.stop();
    m_told = m_content;
    m_peaceEnds.setRemainingTime(m_peace);
    bool isIconNew = false;
    QList<const HostProfile *> newLabels;
    for (auto [profile, seen] : m_seen.asKeyValueRange()) {
        const Seen now = seenBy(*profile);
        isIconNew = isIconNew || now.pictures != seen.pictures;
        if (now.label != seen.label)
            newLabels.append(profile);
        seen = now;
    }
    const QString seenToolTip = std::exchange(m_seenToolTip, toolTip());

    if (isIconNew)
        sendSignal(u"NewIcon"_s);
    // Who draws a label shows no tool tip.
    const bool hasTip = std::any_of(m_readers.cbegin(), m_readers.cend(),
                                    [](const HostProfile *profile) { return !profile->label; });
    if (hasTip && m_seenToolTip != seenToolTip)
        sendSignal(u"NewToolTip"_s);
    for (auto [reader, profile] : m_readers.asKeyValueRange()) {
        if (newLabels.contains(profile))
            sendSignalTo(reader, u"XAyatanaNewLabel"_s, { m_seen[profile].label, labelGuide });
    }
}

StatusNotifierItem::Seen StatusNotifierItem::seenBy(const HostProfile &profile)
{
    return { .pictures = m_pictures.pictures(profile, m_content,
                                             m_colors.contextFor(profile.panel()), desktopScale()),
             .label = profile.label ? labelFor(m_content) : QString() };
}

QString StatusNotifierItem::words() const
{
    return withoutMarkup(sentenceFor(m_content));
}

QString StatusNotifierItem::toolTip() const
{
    return m_isSilenced ? QString() : words();
}

QString StatusNotifierItem::moreWords() const
{
    ItemContent state = m_content;
    state.charge.reset();
    state.time.reset();
    const QString text = withoutMarkup(sentenceFor(state));
    return text == words() ? QString() : text;
}

void StatusNotifierItem::remember(const QString &caller, const HostProfile &profile)
{
    if (m_readers.isEmpty()) {
        m_seenToolTip = toolTip();
        m_told = m_content;
    }
    m_readers.insert(caller, &profile);
    if (!m_seen.contains(&profile))
        m_seen.insert(&profile, seenBy(profile));
}

void StatusNotifierItem::forget(const QString &caller)
{
    const HostProfile *const profile = m_readers.take(caller);
    const bool hasOtherReader
        = std::find(m_readers.cbegin(), m_readers.cend(), profile) != m_readers.cend();
    if (!profile || hasOtherReader)
        return;
    m_seen.remove(profile);
    m_pictures.forget(*profile);
}

void StatusNotifierItem::readProperties(const QString &caller,
                                        std::function<void(const Properties &)> read)
{
    resolver().resolve(caller, [this, caller, read](const HostProfile &profile) {
        // The others must hear of what this one is about to see.
        if (m_news.isActive())
            sendNews();
        read([this, &caller, &profile](const QString &name) {
            return property(name, caller, profile);
        });
    });
}

QStringList StatusNotifierItem::propertyNames() const
{
    return { u"Category"_s,           u"Id"_s,         u"Title"_s,      u"Status"_s,
             u"WindowId"_s,           u"IconName"_s,   u"IconPixmap"_s, u"ToolTip"_s,
             u"IconAccessibleDesc"_s, u"ItemIsMenu"_s, u"Menu"_s,       u"XAyatanaLabel"_s,
             u"XAyatanaLabelGuide"_s };
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
        { u"IconName"_s, u""_s },
        { u"ItemIsMenu"_s, false },
        { u"Menu"_s, QVariant::fromValue(QDBusObjectPath(u"/MenuBar"_s)) },
    };
    if (const auto constant = constants.find(name); constant != constants.end())
        return *constant;
    if (!propertyNames().contains(name))
        return {};
    remember(caller, profile);
    if (name == u"IconPixmap")
        return QVariant::fromValue(m_seen[&profile].pictures);
    if (name == u"ToolTip")
        return QVariant::fromValue(StatusNotifierToolTip {
            .title = toolTip(), .text = m_isSilenced ? QString() : moreWords() });
    if (name == u"IconAccessibleDesc")
        return words();
    if (!profile.label)
        return {};
    return name == u"XAyatanaLabel" ? m_seen[&profile].label : labelGuide;
}

std::optional<QVariantList> StatusNotifierItem::call(const QDBusMessage &message,
                                                     const HostProfile &profile)
{
    const auto placeTold = [&] {
        const QVariantList arguments = message.arguments();
        return profile.trustedClicks ? QPoint(arguments.at(0).toInt(), arguments.at(1).toInt())
                                     : QPoint();
    };
    const QString method = message.member() + u'(' + message.signature() + u')';
    if (method == u"Activate(ii)") {
        Q_EMIT activateRequested(placeTold());
        return QVariantList {};
    }
    if (method == u"ContextMenu(ii)") {
        Q_EMIT contextMenuRequested(placeTold());
        return QVariantList {};
    }
    if (method == u"ProvideXdgActivationToken(s)") {
        keepActivationToken(message.arguments().constFirst().toString());
        return QVariantList {};
    }
    // Nothing is tied to the middle button and the wheel; an error would make a host open the menu.
    if (method == u"SecondaryActivate(ii)" || method == u"Scroll(is)")
        return QVariantList {};
    return {};
}

} // namespace ferrin
