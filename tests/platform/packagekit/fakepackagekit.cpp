// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/packagekit/fakepackagekit.h"

#include "platform/linux/packagekit/packagekit.h"

#include <QDBusVariant>

namespace ferrin::test {

using namespace Qt::StringLiterals;

namespace {
constexpr uint installedInfo = 1;
constexpr uint availableInfo = 2;
// As the real one tells it, with the severity above.
constexpr uint updateInfo = 327685;
} // namespace

FakePackageKit::FakePackageKit(const QDBusConnection &connection)
    : m_connection(connection)
{
    acts.insert(u"SearchFiles"_s, [this](const QString &path) {
        if (!installed.isEmpty())
            package(path, installedInfo, installed);
        finish(path);
    });
    acts.insert(u"GetUpdates"_s, [this](const QString &path) {
        if (!offered.isEmpty())
            package(path, updateInfo, offered);
        finish(path);
    });
    acts.insert(u"Resolve"_s, [this](const QString &path) {
        package(path, installedInfo, installed);
        if (!offered.isEmpty())
            package(path, availableInfo, offered);
        finish(path);
    });
    acts.insert(u"GetDetails"_s, [this](const QString &path) {
        tell(path, u"Details"_s, { QVariantMap { { u"size"_s, quint64(4'200'000) } } });
        finish(path);
    });
    acts.insert(u"GetUpdateDetail"_s, [this](const QString &path) {
        tell(path, u"UpdateDetail"_s,
             { offered, QStringList(), QStringList(), QStringList(), QStringList(), QStringList(),
               1U, QString(), changelog, 1U, QString(), QString() });
        finish(path);
    });
    acts.insert(u"UpdatePackages"_s, [this](const QString &path) {
        installed = offered;
        finish(path);
    });
    m_connection.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
    m_connection.registerService(packagekit::service);
}

bool FakePackageKit::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    const QString method = message.member();
    if (method == "CreateTransaction"_L1) {
        transaction = u"/transaction_%1"_s.arg(++m_count);
        m_connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(transaction))));
        return true;
    }
    if (method == "Get"_L1) {
        const QVariant value = property(message.arguments().value(1).toString());
        m_connection.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
        return true;
    }
    m_connection.send(message.createReply());
    arguments.insert(method, message.arguments());
    if (method == "SetHints"_L1)
        return true;
    calls.append(method);
    actOf(method)(message.path());
    return true;
}

FakePackageKit::Act FakePackageKit::actOf(const QString &method)
{
    return acts.value(method, [this](const QString &path) { finish(path); });
}

QVariant FakePackageKit::property(const QString &name)
{
    return name == "BackendName"_L1 ? QVariant(u"apt"_s) : QVariant(true);
}

void FakePackageKit::package(const QString &path, uint info, const QString &id)
{
    tell(path, u"Package"_s, { info, id, u"Watches the battery"_s });
}

void FakePackageKit::change(const QString &path, const QVariantMap &properties)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, u"org.freedesktop.DBus.Properties"_s,
                                                     u"PropertiesChanged"_s);
    signal << packagekit::transactionInterface << properties << QStringList();
    m_connection.send(signal);
}

void FakePackageKit::fail(const QString &path, uint code, const QString &text)
{
    tell(path, u"ErrorCode"_s, { code, text });
    finish(path, 2);
}

void FakePackageKit::finish(const QString &path, uint exit)
{
    tell(path, u"Finished"_s, { exit, 10U });
}

void FakePackageKit::leave()
{
    // It closes with the last who holds it, which may be the call that is being answered.
    const auto close = [this] {
        const QString name = m_connection.name();
        m_connection = QDBusConnection(u"closed"_s);
        QDBusConnection::disconnectFromBus(name);
    };
    QMetaObject::invokeMethod(this, close, Qt::QueuedConnection);
}

void FakePackageKit::tell(const QString &path, const QString &member, const QVariantList &values)
{
    QDBusMessage signal
        = QDBusMessage::createSignal(path, packagekit::transactionInterface, member);
    signal.setArguments(values);
    m_connection.send(signal);
}

} // namespace ferrin::test
