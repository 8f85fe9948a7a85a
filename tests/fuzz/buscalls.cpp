// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Calls of the item and of its menu by a peer, on a bus. A line "item/Activate=i5|i7" is a method
// at a place with its arguments, see busvalues.h; the calls of a file are under way together.

#include "platform/linux/panelcolors/panelcolors.h"
#include "platform/linux/statusnotifier/dbusmenu.h"
#include "platform/linux/statusnotifier/hostresolver.h"
#include "platform/linux/statusnotifier/statusnotifieritem.h"
#include "tests/fuzz/busvalues.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/lines.h"
#include "tests/fuzz/onabus.h"
#include "tests/platform/support/contents.h"
#include "tests/support/privatebus.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <array>
#include <map>
#include <memory>

namespace ferrin::fuzz {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array<std::string_view, 6> places {
    "item/", "menu/", "itemproperties/", "menuproperties/", "nowhere/", "introspection/"
};
constexpr std::array<std::string_view, 17> methods { "Activate",
                                                     "ContextMenu",
                                                     "SecondaryActivate",
                                                     "Scroll",
                                                     "ProvideXdgActivationToken",
                                                     "GetLayout",
                                                     "GetGroupProperties",
                                                     "GetProperty",
                                                     "Event",
                                                     "EventGroup",
                                                     "AboutToShow",
                                                     "AboutToShowGroup",
                                                     "Get",
                                                     "GetAll",
                                                     "Set",
                                                     "Introspect",
                                                     "" };
constexpr std::array<std::string_view, 24> values { "i5|i-7",
                                                    "i0|i-1|slabel",
                                                    "i0|i0|a",
                                                    "i2147483647|i-2147483648|a",
                                                    "I1|alabel",
                                                    "I|a",
                                                    "i1001|slabel",
                                                    "i1|sclicked|Vx|u0",
                                                    "i1002|sclicked|Vx|u0",
                                                    "i1001|shovered|Vx|u0",
                                                    "eclicked",
                                                    "ehovered",
                                                    "i0",
                                                    "i1001",
                                                    "I1001",
                                                    "sorg.kde.StatusNotifierItem|sToolTip",
                                                    "sorg.kde.StatusNotifierItem|sIconPixmap",
                                                    "scom.canonical.dbusmenu|sVersion",
                                                    "sorg.kde.StatusNotifierItem",
                                                    "scom.canonical.dbusmenu|sVersion|Vx",
                                                    "s",
                                                    "",
                                                    "o/a|ga{sv}|y1|dnan",
                                                    "vx|O/a" };

struct Place
{
    QString path;
    QString interface;
};

Place placeOf(std::string_view name)
{
    static const std::map<std::string_view, Place> all {
        { "item", { u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s } },
        { "menu", { u"/MenuBar"_s, u"com.canonical.dbusmenu"_s } },
        { "itemproperties", { u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties"_s } },
        { "menuproperties", { u"/MenuBar"_s, u"org.freedesktop.DBus.Properties"_s } },
        { "introspection", { u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Introspectable"_s } },
    };
    const auto found = all.find(name);
    return found == all.end() ? Place { u"/"_s, {} } : found->second;
}

QDBusMessage questionTo(const QString &service)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message.setArguments({ u"org.kde.StatusNotifierItem"_s, u"IconAccessibleDesc"_s });
    return message;
}

/// The item, a peer that calls it, and another that does not.
class Desktop
{
public:
    Desktop()
    {
        m_menu.setEntries({ { .id = u"quit"_s, .title = u"Quit Ferrin"_s } });
        m_item.setContent(test::dischargingAt(37, u"4:29"_s));
        QObject::connect(&m_item, &StatusNotifierItem::activateRequested, [this] { ++m_done; });
        QObject::connect(&m_item, &StatusNotifierItem::contextMenuRequested, [this] { ++m_done; });
        QObject::connect(&m_menu, &DBusMenu::triggered, [this] { ++m_done; });
        QObject::connect(&m_menu, &DBusMenu::openRequested, [this] { ++m_done; });
        QObject::connect(&m_menu, &DBusMenu::settingsRequested, [this] { ++m_done; });
    }

    void call(std::string_view line)
    {
        const auto [key, value] = keyAndValue(line);
        const std::size_t slash = std::min(key.find('/'), key.size());
        const Place place = placeOf(key.substr(0, slash));
        const QByteArrayView method = key.substr(std::min(slash + 1, key.size()));
        if (!isName(method))
            return;
        QDBusMessage message = QDBusMessage::createMethodCall(
            m_service, place.path, place.interface, QString::fromLatin1(method));
        message.setArguments(valuesOf(value));
        m_calls.push_back(std::make_unique<QDBusPendingCallWatcher>(m_stranger.asyncCall(message)));
        m_allowed += thingsToDo(place, method, value);
    }

    void check()
    {
        for (const auto &call : std::exchange(m_calls, {}))
            wait(*call);
        QDBusPendingCallWatcher words(m_friend.asyncCall(m_question));
        wait(words);
        const QDBusPendingReply<QDBusVariant> said(words);
        require(said.value().variant() == u"37%, 4:29 to empty"_s, "others are told what is true");
        require(m_done <= m_allowed, "a call does only what it is for");
        m_done = 0;
        m_allowed = 0;
    }

private:
    /// How much such a call may do beyond an answer.
    static int thingsToDo(const Place &place, QByteArrayView method, std::string_view arguments)
    {
        const bool isClick = arguments.find("clicked") != std::string_view::npos;
        if (place.interface == u"org.kde.StatusNotifierItem")
            return method == "Activate" || method == "ContextMenu" ? 1 : 0;
        if (place.interface != u"com.canonical.dbusmenu" || !isClick)
            return 0;
        return method == "Event" ? 1 : method == "EventGroup" ? 2 : 0;
    }

    /// What QtDBus would not even send.
    static bool isName(QByteArrayView text)
    {
        return !text.isEmpty() && text.size() < 256
            && std::all_of(text.begin(), text.end(), [](char each) {
                   return (each >= 'A' && each <= 'Z') || (each >= 'a' && each <= 'z');
               });
    }

    test::PrivateBus m_bus;
    QDBusConnection m_connection = m_bus.connect();
    QString m_service = m_connection.baseService();
    HostResolver m_resolver { m_connection, [](uint) { return HostProcess {}; } };
    PanelColors m_colors;
    StatusNotifierItem m_item { m_connection, m_resolver, m_colors };
    DBusMenu m_menu { m_connection, m_resolver };
    QDBusConnection m_stranger = m_bus.connect();
    QDBusConnection m_friend = m_bus.connect();
    QDBusMessage m_question = questionTo(m_service);
    std::vector<std::unique_ptr<QDBusPendingCallWatcher>> m_calls;
    int m_done = 0;
    int m_allowed = 0;
};

} // namespace

const Words knownWords { places, methods, values };

} // namespace ferrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace ferrin::fuzz;
    static Desktop desktop;
    for (const std::string_view line : linesOf({ reinterpret_cast<const char *>(data), size }))
        desktop.call(line);
    desktop.check();
    return 0;
}
