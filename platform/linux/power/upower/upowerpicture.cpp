// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerpicture.h"

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
// UPower's summary of all the others, and not always of the right ones: see its devices instead.
const QString displayDevicePath = u"/org/freedesktop/UPower/devices/DisplayDevice"_s;

constexpr auto patience = 5s;
constexpr std::size_t batchSize = 16;
constexpr std::size_t mostWaiting = 16384;
constexpr std::size_t mostDevices = 64;

/// Whether the error only says that the device, or the daemon, went away while it was asked.
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

UPowerPicture::UPowerPicture(const QDBusConnection &bus, SteadyNow now, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_questions(bus, std::move(now))
{
    m_nextBatch.setSingleShot(true);
    connect(&m_nextBatch, &QTimer::timeout, this, &UPowerPicture::askNextBatch);
    if (!m_bus.isConnected()) {
        qCCritical(logger, "The system bus cannot be reached, so UPower cannot either");
        return;
    }
    m_bus.connect(busName, busPath, busName, u"NameOwnerChanged"_s, { daemonName }, u"sss"_s, this,
                  SLOT(onOwnerChanged(QString, QString, QString)));
    askForOwner(true);
}

void UPowerPicture::waitForFirstPicture(std::chrono::milliseconds budget)
{
    const QDeadlineTimer deadline(budget);
    m_questions.waitForAnswers(deadline);
    while (!m_waiting.empty() && !deadline.hasExpired()) {
        askNextBatch();
        m_questions.waitForAnswers(deadline);
    }
}

bool UPowerPicture::isKnown() const
{
    const bool isComplete = m_waiting.empty() && m_asked.empty();
    return m_bus.isConnected() && m_hasEnumerated && (isComplete || !m_devices.empty());
}

QList<UPowerDevice> UPowerPicture::devices() const
{
    QList<UPowerDevice> devices;
    for (const auto &[path, device] : m_devices)
        devices.append(device);
    return devices;
}

void UPowerPicture::noteSilence()
{
    if (!m_owner.isEmpty() && m_questions.openFor() > patience)
        m_troubles.report(u"UPower does not answer"_s);
}

void UPowerPicture::askForOwner(bool mayStart)
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(busName, busPath, busName, u"GetNameOwner"_s);
    question.setArguments({ daemonName });
    m_questions.ask(question, [this, mayStart](const QDBusMessage &answer) {
        if (answer.type() == QDBusMessage::ReplyMessage)
            takeOwner(answer.arguments().value(0).toString());
        else if (mayStart && m_owner.isEmpty())
            startDaemon();
    });
}

void UPowerPicture::startDaemon()
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(busName, busPath, busName, u"StartServiceByName"_s);
    question.setArguments({ daemonName, 0U });
    m_questions.ask(question, [this](const QDBusMessage &answer) {
        // Asked for anew, because signals may be held back until the event loop runs.
        if (answer.type() == QDBusMessage::ReplyMessage)
            askForOwner(false);
        else if (m_owner.isEmpty())
            m_troubles.report(u"UPower cannot be reached"_s, answer.errorMessage());
    });
}

void UPowerPicture::onOwnerChanged(const QString &, const QString &, const QString &after)
{
    if (after != m_owner && !m_owner.isEmpty()) {
        if (after.isEmpty())
            qCCritical(logger, "UPower has left the bus");
        forgetOwner();
    }
    if (!after.isEmpty())
        takeOwner(after);
}

void UPowerPicture::takeOwner(const QString &owner)
{
    if (owner == m_owner || owner.isEmpty())
        return;
    m_owner = owner;
    listen(true);
    askForOnBattery();
    askForDevices();
}

void UPowerPicture::forgetOwner()
{
    listen(false);
    for (const auto &[path, device] : m_devices)
        listenTo(path, false);
    for (const QString &path : m_asked)
        listenTo(path, false);
    m_questions.forgetAll();
    m_owner.clear();
    m_onBattery.reset();
    m_hasEnumerated = false;
    m_waiting.clear();
    m_asked.clear();
    m_devices.clear();
    m_troubles.forgetAll();
    Q_EMIT changed();
    Q_EMIT powerStateChanged();
}

void UPowerPicture::listen(bool on)
{
    const auto listenFor = [this, on](const QString &name, const char *slot) {
        if (on)
            m_bus.connect(m_owner, daemonPath, daemonInterface, name, this, slot);
        else
            m_bus.disconnect(m_owner, daemonPath, daemonInterface, name, this, slot);
    };
    listenFor(u"DeviceAdded"_s, SLOT(onDeviceAdded(QDBusMessage)));
    listenFor(u"DeviceRemoved"_s, SLOT(onDeviceRemoved(QDBusMessage)));
    listenTo(daemonPath, on);
}

void UPowerPicture::listenTo(const QString &path, bool on)
{
    // Path by path, so that the news of mice and of the summary do not even wake the process.
    const QString name = u"PropertiesChanged"_s;
    const char *const slot = SLOT(onPropertiesChanged(QDBusMessage));
    if (on)
        m_bus.connect(m_owner, path, propertiesInterface, name, this, slot);
    else
        m_bus.disconnect(m_owner, path, propertiesInterface, name, this, slot);
}

void UPowerPicture::askForDevices()
{
    m_questions.ask(
        QDBusMessage::createMethodCall(m_owner, daemonPath, daemonInterface, u"EnumerateDevices"_s),
        [this](const QDBusMessage &answer) { takeDevices(answer); });
}

void UPowerPicture::askForOnBattery()
{
    QDBusMessage question
        = QDBusMessage::createMethodCall(m_owner, daemonPath, propertiesInterface, u"Get"_s);
    question.setArguments({ daemonInterface, u"OnBattery"_s });
    m_questions.ask(question, [this](const QDBusMessage &answer) {
        if (answer.type() == QDBusMessage::ReplyMessage)
            takeOnBattery(answer.arguments().value(0).value<QDBusVariant>().variant());
    });
}

void UPowerPicture::takeDevices(const QDBusMessage &answer)
{
    if (answer.type() == QDBusMessage::ErrorMessage) {
        m_troubles.report(u"UPower does not tell its devices"_s, answer.errorMessage());
        return;
    }
    if (answer.signature() != u"ao"_s) {
        m_troubles.report(u"UPower told its devices in an unexpected form"_s);
        return;
    }
    const auto paths = qdbus_cast<QList<QDBusObjectPath>>(answer.arguments().value(0));
    for (const QDBusObjectPath &path : paths)
        enqueue(path.path());
    m_hasEnumerated = true;
    qCInfo(logger, "Connection to UPower successful");
    askNextBatch();
    Q_EMIT changed();
    Q_EMIT powerStateChanged();
}

void UPowerPicture::enqueue(const QString &path)
{
    const bool isKnownAlready = m_asked.contains(path) || m_devices.contains(path);
    if (path.isEmpty() || path == displayDevicePath || isKnownAlready)
        return;
    if (m_waiting.size() >= mostWaiting)
        m_troubles.report(u"UPower tells of more devices than Ferrin looks at"_s);
    else
        m_waiting.insert(path);
}

void UPowerPicture::askNextBatchSoon()
{
    // Through the event loop, so that a crowd of devices never keeps anything else from its turn.
    if (m_asked.empty() && !m_waiting.empty())
        m_nextBatch.start();
}

void UPowerPicture::askNextBatch()
{
    while (m_asked.size() < batchSize && !m_waiting.empty())
        askAbout(m_waiting.extract(m_waiting.begin()).value());
}

void UPowerPicture::askAbout(const QString &path)
{
    if (m_devices.size() + m_asked.size() >= mostDevices) {
        m_troubles.report(u"UPower tells of more devices than Ferrin looks at"_s);
        return;
    }
    m_asked.insert(path);
    listenTo(path, true);
    QDBusMessage question
        = QDBusMessage::createMethodCall(m_owner, path, propertiesInterface, u"GetAll"_s);
    question.setArguments({ deviceInterface });
    m_questions.ask(question,
                    [this, path](const QDBusMessage &answer) { takeDevice(path, answer); });
}

void UPowerPicture::takeDevice(const QString &path, const QDBusMessage &answer)
{
    // Not asked any more when the device was removed meanwhile.
    if (m_asked.erase(path) == 0)
        return;
    UPowerDevice device;
    if (answer.type() == QDBusMessage::ErrorMessage) {
        if (!isGone(answer))
            m_troubles.report(u"UPower does not tell about a device"_s, answer.errorMessage());
    } else if (answer.signature() != u"a{sv}"_s) {
        m_troubles.report(u"UPower told about a device in an unexpected form"_s);
    } else {
        update(&device, qdbus_cast<QVariantMap>(answer.arguments().value(0)));
    }
    const auto known = m_devices.find(path);
    const UPowerDevice before = known == m_devices.end() ? UPowerDevice {} : known->second;
    if (answer.type() == QDBusMessage::ReplyMessage && device.mayPowerSystem())
        m_devices.insert_or_assign(path, device);
    else
        dropDevice(path);
    askNextBatchSoon();
    const bool changes = device != before && (device.isPowerSource() || before.isPowerSource());
    if (changes || (m_waiting.empty() && m_asked.empty()))
        Q_EMIT changed();
    if (changes)
        Q_EMIT powerStateChanged();
}

void UPowerPicture::update(UPowerDevice *device, const QVariantMap &properties)
{
    const QStringList wrong = device->update(properties);
    for (const QString &name : wrong)
        m_troubles.report(u"UPower tells %1 in an unexpected type"_s.arg(name));
}

void UPowerPicture::onDeviceAdded(const QDBusMessage &signal)
{
    if (!isFromOwner(signal))
        return;
    enqueue(pathIn(signal));
    askNextBatchSoon();
}

void UPowerPicture::onDeviceRemoved(const QDBusMessage &signal)
{
    if (!isFromOwner(signal))
        return;
    const QString path = pathIn(signal);
    m_waiting.erase(path);
    const bool wasAsked = m_asked.erase(path) > 0;
    const bool wasKept = m_devices.contains(path);
    if (wasAsked || wasKept)
        dropDevice(path);
    askNextBatchSoon();
    if (wasKept) {
        Q_EMIT changed();
        Q_EMIT powerStateChanged();
    }
}

void UPowerPicture::dropDevice(const QString &path)
{
    listenTo(path, false);
    m_devices.erase(path);
}

void UPowerPicture::onPropertiesChanged(const QDBusMessage &signal)
{
    if (!isFromOwner(signal) || signal.signature() != u"sa{sv}as"_s)
        return;
    const QString interface = signal.arguments().at(0).toString();
    const auto properties = qdbus_cast<QVariantMap>(signal.arguments().at(1));
    if (interface == daemonInterface && signal.path() == daemonPath) {
        if (properties.contains(u"OnBattery"_s))
            takeOnBattery(properties.value(u"OnBattery"_s));
        return;
    }
    const auto known = m_devices.find(signal.path());
    if (interface != deviceInterface || known == m_devices.end())
        return;
    if (!signal.arguments().at(2).toStringList().isEmpty()) {
        m_waiting.insert(signal.path());
        askNextBatchSoon();
    }
    const UPowerDevice before = known->second;
    update(&known->second, properties);
    if (known->second != before)
        tellOfChange(before, known->second);
}

void UPowerPicture::tellOfChange(const UPowerDevice &before, const UPowerDevice &after)
{
    const bool changesPower
        = after.state != before.state || after.isPowerSource() != before.isPowerSource();
    Q_EMIT changed();
    if (changesPower)
        Q_EMIT powerStateChanged();
}

void UPowerPicture::takeOnBattery(const QVariant &value)
{
    std::optional<bool> onBattery;
    if (value.metaType() == QMetaType::fromType<bool>())
        onBattery = value.toBool();
    else
        m_troubles.report(u"UPower tells OnBattery in an unexpected type"_s);
    if (onBattery == m_onBattery)
        return;
    m_onBattery = onBattery;
    Q_EMIT changed();
    Q_EMIT powerStateChanged();
}

bool UPowerPicture::isFromOwner(const QDBusMessage &message) const
{
    return !m_owner.isEmpty() && message.service() == m_owner;
}

} // namespace ferrin
