// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// What a daemon that calls itself UPower sends over the bus. A line "reply/GetAll=PPercentage:d37"
// is its next reply to that method, "signal/DeviceAdded=o/a" a signal after the first replies; see
// busvalues.h for the values. A method without a reply of its own gets an error.

#include "platform/linux/power/upower/upowerclient.h"
#include "tests/fuzz/busvalues.h"
#include "tests/fuzz/lines.h"
#include "tests/fuzz/onabus.h"
#include "tests/fuzz/upowerinvariants.h"
#include "tests/support/privatebus.h"

#include <QDBusPendingCallWatcher>
#include <QDBusVirtualObject>

#include <array>
#include <chrono>
#include <map>

namespace ferrin::fuzz {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr std::array<std::string_view, 2> places { "reply/", "signal/" };
constexpr std::array<std::string_view, 5> members { "EnumerateDevices", "GetAll", "DeviceAdded",
                                                    "DeviceRemoved", "PropertiesChanged" };
constexpr std::array<std::string_view, 12> values {
    "O/a",
    "o/a",
    "o/b",
    "a",
    "u2",
    "PType:u2;PowerSupply:btrue;IsPresent:btrue;State:u2;Percentage:d37;TimeToEmpty:x3600",
    "PType:u2;PowerSupply:btrue;IsPresent:btrue;State:u1;Percentage:d1e308;TimeToFull:x-1",
    "PType:s2;PowerSupply:u1;State:d1;Percentage:s37;NativePath:aBAT0",
    "PType:u1;Online:btrue",
    "sorg.freedesktop.UPower.Device|PPercentage:dnan|a",
    "sorg.freedesktop.UPower.Device|PState:u1|aPercentage",
    "vx|vx|vx",
};

class Daemon final : public QDBusVirtualObject
{
public:
    explicit Daemon(const QDBusConnection &bus)
        : m_bus(bus)
    {
        m_bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
        m_bus.registerService(u"org.freedesktop.UPower"_s);
    }

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        const auto replies = m_replies.find(message.member());
        if (replies == m_replies.end() || replies->second.isEmpty())
            m_bus.send(message.createErrorReply(QDBusError::Failed, u"no"_s));
        else
            m_bus.send(message.createReply(replies->second.takeFirst()));
        return true;
    }

    void setReplies(std::map<QString, QList<QVariantList>> replies)
    {
        m_replies = std::move(replies);
    }

    void signal(const QString &name, const QVariantList &arguments)
    {
        const bool isOfDevice = name == u"PropertiesChanged";
        QDBusMessage message = QDBusMessage::createSignal(
            isOfDevice ? u"/a"_s : u"/org/freedesktop/UPower"_s,
            isOfDevice ? u"org.freedesktop.DBus.Properties"_s : u"org.freedesktop.UPower"_s, name);
        message.setArguments(arguments);
        m_bus.send(message);
    }

private:
    QDBusConnection m_bus;
    std::map<QString, QList<QVariantList>> m_replies;
};

/// A bus with the daemon, which is asked anew for each input.
class System
{
public:
    void live(std::string_view text)
    {
        std::map<QString, QList<QVariantList>> replies;
        std::vector<std::pair<QString, QVariantList>> sent;
        for (const std::string_view line : linesOf(text)) {
            const auto [key, value] = keyAndValue(line);
            const std::size_t slash = std::min(key.find('/') + 1, key.size());
            const QString member = QString::fromLatin1(QByteArrayView(key.substr(slash)));
            if (key.starts_with("reply/"))
                replies[member].append(valuesOf(value));
            else if (isSignal(member))
                sent.emplace_back(member, valuesOf(value));
        }
        m_daemon.setReplies(std::move(replies));
        UPowerClient client(m_connection, &std::chrono::steady_clock::now);
        letArrive();
        check(client);
        for (const auto &[name, arguments] : sent)
            m_daemon.signal(name, arguments);
        letArrive();
        check(client);
    }

private:
    static bool isSignal(const QString &member)
    {
        return member == u"DeviceAdded" || member == u"DeviceRemoved"
            || member == u"PropertiesChanged";
    }

    static void check(const UPowerClient &client)
    {
        for (const std::optional<bool> external : { std::optional<bool>(), { false }, { true } })
            checkPowerSources(client.devices(), external);
    }

    /// A question and its answers cross the bus twice in each direction; a reply leads to the next
    /// question.
    void letArrive()
    {
        constexpr int rounds = 8;
        for (int round = 0; round < rounds; ++round) {
            for (QDBusConnection &bus : m_both)
                wait(QDBusPendingCallWatcher(bus.asyncCall(m_question)));
        }
    }

    test::PrivateBus m_bus;
    QDBusConnection m_connection = m_bus.connect();
    QDBusConnection m_daemonsConnection = m_bus.connect();
    std::array<QDBusConnection, 2> m_both { m_connection, m_daemonsConnection };
    QDBusMessage m_question
        = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                         u"org.freedesktop.DBus"_s, u"GetId"_s);
    Daemon m_daemon { m_daemonsConnection };
};

} // namespace

const Words knownWords { places, members, values };

} // namespace ferrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static ferrin::fuzz::System system;
    system.live({ reinterpret_cast<const char *>(data), size });
    return 0;
}
