// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// A UPower that a test controls through the interface org.ferrin.FakeUPower at /control. It runs in
// a separate process, so that it can be stopped and killed. The argument is the address of the bus;
// with "--battery" before it, the daemon starts with a battery.

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QSet>
#include <QVariantMap>

#include <cstdio>
#include <map>

namespace {

using namespace Qt::StringLiterals;

const QString daemonPath = u"/org/freedesktop/UPower"_s;
const QString daemonInterface = u"org.freedesktop.UPower"_s;
const QString deviceInterface = u"org.freedesktop.UPower.Device"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

QVariantMap plainBattery()
{
    return { { u"Type"_s, 2U },
             { u"PowerSupply"_s, true },
             { u"IsPresent"_s, true },
             { u"State"_s, 2U },
             { u"Percentage"_s, 50.0 },
             { u"TimeToEmpty"_s, qlonglong(3600) },
             { u"TimeToFull"_s, qlonglong(0) } };
}

class FakeUPower final : public QDBusVirtualObject
{
public:
    explicit FakeUPower(const QDBusConnection &bus)
        : m_bus(bus)
    {
    }

    void setDevice(const QString &path, const QVariantMap &properties);

    [[nodiscard]] QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override;

private:
    QDBusMessage answerTo(const QDBusMessage &message);
    QDBusMessage obey(const QDBusMessage &message);
    QDBusMessage tellAll(const QDBusMessage &message);
    void removeDevice(const QString &path);
    void emitSignal(const QString &path, const QString &interface, const QString &name,
                    const QVariantList &arguments);
    void emitProperties(const QString &path, const QString &interface, const QVariantMap &changed,
                        const QStringList &invalidated = {});

    QDBusConnection m_bus;
    std::map<QString, QVariantMap> m_devices;
    /// Replies with a string where another type is expected.
    bool m_talksNonsense = false;
    /// Replies with an error of this text to everything; not if empty.
    QString m_refusal;
    /// Devices that disappear as soon as their properties are requested.
    QSet<QString> m_shy;
    uint m_questions = 0;
};

bool FakeUPower::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    if (message.path() == u"/control"_s) {
        m_bus.send(obey(message));
        return true;
    }
    ++m_questions;
    if (!m_refusal.isEmpty())
        m_bus.send(message.createErrorReply(QDBusError::AccessDenied, m_refusal));
    else if (m_talksNonsense)
        m_bus.send(message.createReply(u"nonsense"_s));
    else
        m_bus.send(answerTo(message));
    return true;
}

QDBusMessage FakeUPower::answerTo(const QDBusMessage &message)
{
    if (message.member() == u"EnumerateDevices"_s) {
        QList<QDBusObjectPath> paths;
        for (const auto &[path, properties] : m_devices)
            paths.append(QDBusObjectPath(path));
        return message.createReply(QVariant::fromValue(paths));
    }
    return tellAll(message);
}

QDBusMessage FakeUPower::tellAll(const QDBusMessage &message)
{
    if (m_shy.contains(message.path()))
        removeDevice(message.path());
    const auto device = m_devices.find(message.path());
    if (device == m_devices.end())
        return message.createErrorReply(QDBusError::UnknownMethod, u"No such object"_s);
    return message.createReply(device->second);
}

QDBusMessage FakeUPower::obey(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    const QString first = arguments.value(0).toString();
    if (message.member() == u"SetDevice"_s) {
        setDevice(first, qdbus_cast<QVariantMap>(arguments.at(1)));
    } else if (message.member() == u"SetDeviceQuietly"_s) {
        m_devices[first].insert(qdbus_cast<QVariantMap>(arguments.at(1)));
        emitProperties(first, deviceInterface, {}, { u"State"_s });
    } else if (message.member() == u"RemoveDevice"_s) {
        removeDevice(first);
    } else if (message.member() == u"AddMany"_s) {
        for (uint number = 0; number < arguments.at(1).toUInt(); ++number)
            m_devices[u"%1%2"_s.arg(first).arg(number)] = qdbus_cast<QVariantMap>(arguments.at(2));
    } else if (message.member() == u"MakeShy"_s) {
        m_shy.insert(first);
    } else if (message.member() == u"TalkNonsense"_s) {
        m_talksNonsense = true;
    } else if (message.member() == u"Refuse"_s) {
        m_refusal = first;
    }
    return message.createReply(m_questions);
}

void FakeUPower::setDevice(const QString &path, const QVariantMap &properties)
{
    const bool isNew = !m_devices.contains(path);
    m_devices[path].insert(properties);
    if (isNew) {
        emitSignal(daemonPath, daemonInterface, u"DeviceAdded"_s,
                   { QVariant::fromValue(QDBusObjectPath(path)) });
    } else {
        emitProperties(path, deviceInterface, properties);
    }
}

void FakeUPower::removeDevice(const QString &path)
{
    m_devices.erase(path);
    emitSignal(daemonPath, daemonInterface, u"DeviceRemoved"_s,
               { QVariant::fromValue(QDBusObjectPath(path)) });
}

void FakeUPower::emitSignal(const QString &path, const QString &interface, const QString &name,
                            const QVariantList &arguments)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, interface, name);
    signal.setArguments(arguments);
    m_bus.send(signal);
}

void FakeUPower::emitProperties(const QString &path, const QString &interface,
                                const QVariantMap &changed, const QStringList &invalidated)
{
    emitSignal(path, propertiesInterface, u"PropertiesChanged"_s,
               { interface, changed, invalidated });
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    QDBusConnection bus = QDBusConnection::connectToBus(arguments.takeLast(), u"fake"_s);
    // Ends with the bus, which may have started it.
    bus.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                u"Disconnected"_s, QCoreApplication::instance(), SLOT(quit()));
    FakeUPower daemon(bus);
    if (arguments.contains(u"--battery"_s))
        daemon.setDevice(u"/org/freedesktop/UPower/devices/battery_BAT0"_s, plainBattery());
    const bool isThere = bus.registerVirtualObject(u"/"_s, &daemon, QDBusConnection::SubPath)
        && bus.registerService(daemonInterface);
    std::puts(isThere ? "ready" : "failed");
    std::fflush(stdout);
    return isThere ? QCoreApplication::exec() : 1;
}
