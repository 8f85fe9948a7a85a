// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerclient.h"

#include "base/logging.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDeadlineTimer>

#include <algorithm>
#include <array>
#include <utility>

namespace ferrin {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString busName = u"org.freedesktop.DBus"_s;
const QString busPath = u"/org/freedesktop/DBus"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;
const QString daemonName = u"org.freedesktop.UPower"_s;
const QString daemonPath = u"/org/freedesktop/UPower"_s;
const QString daemonInterface = u"org.freedesktop.UPower"_s;
const QString deviceInterface = u"org.freedesktop.UPower.Device"_s;
// UPower's summary of the other devices. It is not always composed of the right ones.
const QString displayDevicePath = u"/org/freedesktop/UPower/devices/DisplayDevice"_s;

constexpr auto overdueAfter = 5s;
constexpr std::size_t batchSize = 16;
constexpr std::size_t maxQueued = 16384;
constexpr std::size_t maxDevices = 64;

/// Whether the error only says that the device or the daemon disappeared during the call.
bool isGone(const QDBusMessage &error)
{
    constexpr std::array goneErrors {
        QDBusError::UnknownObject,  QDBusError::UnknownMethod, QDBusError::UnknownInterface,
        QDBusError::ServiceUnknown, QDBusError::NoReply,       QDBusError::Disconnected,
    };
    return std::find(goneErrors.begin(), goneErrors.end(), QDBusError(error).type())
        != goneErrors.end();
}

QString pathIn(const QDBusMessage &message)
{
    return message.arguments().value(0).value<QDBusObjectPath>().path();
}

} // namespace

UPowerClient::UPowerClient(const QDBusConnection &bus, SteadyNow now, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_calls(bus, std::move(now))
{
    m_nextBatch.setSingleShot(true);
    connect(&m_nextBatch, &QTimer::timeout, this, &UPowerClient::requestNextBatch);
    if (!m_bus.isConnected()) {
        qCCritical(logger, "Cannot connect to the system bus, so UPower is not available");
        return;
    }
    m_bus.connect(busName, busPath, busName, u"NameOwnerChanged"_s, { daemonName }, u"sss"_s, this,
                  SLOT(onOwnerChanged(QString, QString, QString)));
    requestOwner(true);
}

void UPowerClient::waitForFirstReplies(std::chrono::milliseconds budget)
{
    const QDeadlineTimer deadline(budget);
    m_calls.waitForReplies(deadline);
    while (!m_queued.empty() && !deadline.hasExpired()) {
        requestNextBatch();
        m_calls.waitForReplies(deadline);
    }
}

bool UPowerClient::isKnown() const
{
    const bool isComplete = m_queued.empty() && m_requested.empty();
    return m_bus.isConnected() && m_hasEnumerated && (isComplete || !m_devices.empty());
}

QList<UPowerDevice> UPowerClient::devices() const
{
    QList<UPowerDevice> devices;
    for (const auto &[path, device] : m_devices)
        devices.append(device);
    return devices;
}

void UPowerClient::logOverdueReplies()
{
    if (!m_owner.isEmpty() && m_calls.pendingTime() > overdueAfter)
        m_log.error(u"UPower does not reply"_s);
}

void UPowerClient::requestOwner(bool mayStart)
{
    QDBusMessage message
        = QDBusMessage::createMethodCall(busName, busPath, busName, u"GetNameOwner"_s);
    message.setArguments({ daemonName });
    m_calls.call(message, [this, mayStart](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            setOwner(reply.arguments().value(0).toString());
        else if (mayStart && m_owner.isEmpty())
            startDaemon();
    });
}

void UPowerClient::startDaemon()
{
    QDBusMessage message
        = QDBusMessage::createMethodCall(busName, busPath, busName, u"StartServiceByName"_s);
    message.setArguments({ daemonName, 0U });
    m_calls.call(message, [this](const QDBusMessage &reply) {
        // Requested again, because signals may not arrive before the event loop runs.
        if (reply.type() == QDBusMessage::ReplyMessage)
            requestOwner(false);
        else if (m_owner.isEmpty())
            m_log.error(u"Cannot start UPower"_s, reply.errorMessage());
    });
}

void UPowerClient::onOwnerChanged(const QString &, const QString &, const QString &after)
{
    if (after != m_owner && !m_owner.isEmpty()) {
        if (after.isEmpty())
            qCCritical(logger, "UPower has left the bus");
        clearOwner();
    }
    if (!after.isEmpty())
        setOwner(after);
}

void UPowerClient::setOwner(const QString &owner)
{
    if (owner == m_owner || owner.isEmpty())
        return;
    m_owner = owner;
    subscribe(true);
    requestDevices();
}

void UPowerClient::clearOwner()
{
    subscribe(false);
    for (const auto &[path, device] : m_devices)
        subscribeTo(path, false);
    for (const QString &path : m_requested)
        subscribeTo(path, false);
    m_calls.abandonAll();
    m_owner.clear();
    m_hasEnumerated = false;
    m_queued.clear();
    m_requested.clear();
    m_devices.clear();
    m_log.reset();
    Q_EMIT changed();
    Q_EMIT powerStateChanged();
}

void UPowerClient::subscribe(bool on)
{
    const auto subscribeToSignal = [this, on](const QString &name, const char *slot) {
        if (on)
            m_bus.connect(m_owner, daemonPath, daemonInterface, name, this, slot);
        else
            m_bus.disconnect(m_owner, daemonPath, daemonInterface, name, this, slot);
    };
    subscribeToSignal(u"DeviceAdded"_s, SLOT(onDeviceAdded(QDBusMessage)));
    subscribeToSignal(u"DeviceRemoved"_s, SLOT(onDeviceRemoved(QDBusMessage)));
    subscribeTo(daemonPath, on);
}

void UPowerClient::subscribeTo(const QString &path, bool on)
{
    // For each path, so that changes of mice and of the summary do not wake the process.
    const QString name = u"PropertiesChanged"_s;
    const char *const slot = SLOT(onPropertiesChanged(QDBusMessage));
    if (on)
        m_bus.connect(m_owner, path, propertiesInterface, name, this, slot);
    else
        m_bus.disconnect(m_owner, path, propertiesInterface, name, this, slot);
}

void UPowerClient::requestDevices()
{
    m_calls.call(
        QDBusMessage::createMethodCall(m_owner, daemonPath, daemonInterface, u"EnumerateDevices"_s),
        [this](const QDBusMessage &reply) { handleDevices(reply); });
}

void UPowerClient::handleDevices(const QDBusMessage &reply)
{
    if (reply.type() == QDBusMessage::ErrorMessage) {
        m_log.error(u"UPower refuses to list its devices"_s, reply.errorMessage());
        return;
    }
    if (reply.signature() != u"ao"_s) {
        m_log.error(u"UPower listed its devices with an unexpected signature"_s);
        return;
    }
    const auto paths = qdbus_cast<QList<QDBusObjectPath>>(reply.arguments().value(0));
    for (const QDBusObjectPath &path : paths)
        enqueue(path.path());
    m_hasEnumerated = true;
    qCInfo(logger, "Connection to UPower successful");
    requestNextBatch();
    Q_EMIT changed();
    Q_EMIT powerStateChanged();
}

void UPowerClient::enqueue(const QString &path)
{
    const bool isDuplicate = m_requested.contains(path) || m_devices.contains(path);
    if (path.isEmpty() || path == displayDevicePath || isDuplicate)
        return;
    if (m_queued.size() >= maxQueued)
        m_log.error(u"UPower has more devices than Ferrin reads"_s);
    else
        m_queued.insert(path);
}

void UPowerClient::scheduleNextBatch()
{
    // In another turn of the event loop, so that thousands of devices do not block it.
    if (m_requested.empty() && !m_queued.empty())
        m_nextBatch.start();
}

void UPowerClient::requestNextBatch()
{
    while (m_requested.size() < batchSize && !m_queued.empty())
        requestProperties(m_queued.extract(m_queued.begin()).value());
}

void UPowerClient::requestProperties(const QString &path)
{
    if (m_devices.size() + m_requested.size() >= maxDevices) {
        m_log.error(u"UPower has more devices than Ferrin reads"_s);
        return;
    }
    m_requested.insert(path);
    subscribeTo(path, true);
    QDBusMessage message
        = QDBusMessage::createMethodCall(m_owner, path, propertiesInterface, u"GetAll"_s);
    message.setArguments({ deviceInterface });
    m_calls.call(message,
                 [this, path](const QDBusMessage &reply) { handleProperties(path, reply); });
}

void UPowerClient::handleProperties(const QString &path, const QDBusMessage &reply)
{
    // Not requested any more when the device was removed meanwhile.
    if (m_requested.erase(path) == 0)
        return;
    UPowerDevice device;
    if (reply.type() == QDBusMessage::ErrorMessage) {
        if (!isGone(reply))
            m_log.error(u"UPower refuses to describe a device"_s, reply.errorMessage());
    } else if (reply.signature() != u"a{sv}"_s) {
        m_log.error(u"UPower described a device with an unexpected signature"_s);
    } else {
        update(&device, qdbus_cast<QVariantMap>(reply.arguments().value(0)));
    }
    const auto known = m_devices.find(path);
    const UPowerDevice before = known == m_devices.end() ? UPowerDevice {} : known->second;
    if (reply.type() == QDBusMessage::ReplyMessage && device.mayPowerSystem())
        m_devices.insert_or_assign(path, device);
    else
        dropDevice(path);
    scheduleNextBatch();
    const bool changes = device != before && (device.isPowerSource() || before.isPowerSource());
    if (changes || (m_queued.empty() && m_requested.empty()))
        Q_EMIT changed();
    if (changes)
        Q_EMIT powerStateChanged();
}

void UPowerClient::update(UPowerDevice *device, const QVariantMap &properties)
{
    const QStringList wrong = device->update(properties);
    for (const QString &name : wrong)
        m_log.error(u"UPower sent %1 with an unexpected type"_s.arg(name));
}

void UPowerClient::onDeviceAdded(const QDBusMessage &signal)
{
    if (!isFromOwner(signal))
        return;
    enqueue(pathIn(signal));
    scheduleNextBatch();
}

void UPowerClient::onDeviceRemoved(const QDBusMessage &signal)
{
    if (!isFromOwner(signal))
        return;
    const QString path = pathIn(signal);
    m_queued.erase(path);
    const bool wasRequested = m_requested.erase(path) > 0;
    const bool wasKnown = m_devices.contains(path);
    if (wasRequested || wasKnown)
        dropDevice(path);
    scheduleNextBatch();
    if (wasKnown) {
        Q_EMIT changed();
        Q_EMIT powerStateChanged();
    }
}

void UPowerClient::dropDevice(const QString &path)
{
    subscribeTo(path, false);
    m_devices.erase(path);
}

void UPowerClient::onPropertiesChanged(const QDBusMessage &signal)
{
    if (!isFromOwner(signal) || signal.signature() != u"sa{sv}as"_s)
        return;
    const QString interface = signal.arguments().at(0).toString();
    const auto properties = qdbus_cast<QVariantMap>(signal.arguments().at(1));
    const auto known = m_devices.find(signal.path());
    if (interface != deviceInterface || known == m_devices.end())
        return;
    if (!signal.arguments().at(2).toStringList().isEmpty()) {
        m_queued.insert(signal.path());
        scheduleNextBatch();
    }
    const UPowerDevice before = known->second;
    update(&known->second, properties);
    if (known->second != before)
        emitChange(before, known->second);
}

void UPowerClient::emitChange(const UPowerDevice &before, const UPowerDevice &after)
{
    const bool changesPower
        = after.state != before.state || after.isPowerSource() != before.isPowerSource();
    Q_EMIT changed();
    if (changesPower)
        Q_EMIT powerStateChanged();
}

bool UPowerClient::isFromOwner(const QDBusMessage &message) const
{
    return !m_owner.isEmpty() && message.service() == m_owner;
}

} // namespace ferrin
