// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/platform/statusnotifier/itemonthebus.h"
#include "tests/support/testmain.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class StatusNotifierCallsTest : public ItemOnTheBus
{
    Q_OBJECT

private Q_SLOTS:
    void passesClicksOn();
    void passesTheMenuCallOn();
    void takesNoNotice_data();
    void takesNoNotice();
    void keepsATokenForTheWindowOfItsClickAlone();
    void survivesMalformedCalls_data();
    void survivesMalformedCalls();
    void cannotBeWritten();
};

void StatusNotifierCallsTest::passesClicksOn()
{
    QSignalSpy clicks(m_item.get(), &StatusNotifierItem::activateRequested);
    BusPeer *const plasma = newHost(u"plasmashell"_s);
    const QDBusMessage reply
        = plasma->ask(m_service, itemPath, itemInterface, u"Activate"_s, { 1094, 698 });
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QCOMPARE(clicks.takeFirst(), QVariantList { QPoint(1094, 698) });

    BusPeer *const mate = newHost(u"notification-ar"_s);
    mate->ask(m_service, itemPath, itemInterface, u"Activate"_s, { 0, 25 });
    QCOMPARE(clicks.takeFirst(), QVariantList { QPoint() });
}

void StatusNotifierCallsTest::passesTheMenuCallOn()
{
    QSignalSpy menus(m_item.get(), &StatusNotifierItem::contextMenuRequested);
    BusPeer *const host = newHost(u"swaybar"_s);
    const QDBusMessage reply
        = host->ask(m_service, itemPath, itemInterface, u"ContextMenu"_s, { 790, 9 });
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QCOMPARE(menus.takeFirst(), QVariantList { QPoint(790, 9) });
}

void StatusNotifierCallsTest::takesNoNotice_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");
    QTest::newRow("middle click") << u"SecondaryActivate"_s << QVariantList { 3, 4 };
    QTest::newRow("wheel") << u"Scroll"_s << QVariantList { -120, u"vertical"_s };
    QTest::newRow("token") << u"ProvideXdgActivationToken"_s << QVariantList { u"token"_s };
}

void StatusNotifierCallsTest::takesNoNotice()
{
    QFETCH(QString, method);
    QFETCH(QVariantList, arguments);
    const QSignalSpy clicks(m_item.get(), &StatusNotifierItem::activateRequested);
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    const QDBusMessage reply = host->ask(m_service, itemPath, itemInterface, method, arguments);
    QCOMPARE(reply.type(), QDBusMessage::ReplyMessage);
    QCOMPARE(clicks.size(), 0);
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

void StatusNotifierCallsTest::keepsATokenForTheWindowOfItsClickAlone()
{
    BusPeer *const host = newHost(u"plasmashell"_s);
    const auto provide = [&](const QString &token) {
        host->ask(m_service, itemPath, itemInterface, u"ProvideXdgActivationToken"_s, { token });
    };
    m_item->setTokenLifetime(1h);
    provide(u"first"_s);
    provide(u"second"_s);
    QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), QByteArray("second"));
    m_item->setTokenLifetime(1ms);
    provide(u"third"_s);
    QTRY_VERIFY(!qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
}

void StatusNotifierCallsTest::survivesMalformedCalls_data()
{
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QVariantList>("arguments");

    const QVariant file = QVariant::fromValue(QDBusObjectPath(u"/x"_s));
    QTest::newRow("unknown method") << itemInterface << u"Explode"_s << QVariantList {};
    QTest::newRow("no arguments") << itemInterface << u"Activate"_s << QVariantList {};
    QTest::newRow("texts for places")
        << itemInterface << u"Activate"_s << QVariantList { u"1"_s, u"2"_s };
    QTest::newRow("too many") << itemInterface << u"Activate"_s << QVariantList { 1, 2, 3 };
    QTest::newRow("a path for a menu")
        << itemInterface << u"ContextMenu"_s << QVariantList { file };
    QTest::newRow("a number for a token")
        << itemInterface << u"ProvideXdgActivationToken"_s << QVariantList { 7 };
    QTest::newRow("no interface, no method") << QString() << u"Explode"_s << QVariantList {};
    QTest::newRow("foreign interface")
        << u"org.example.Other"_s << u"Activate"_s << QVariantList { 1, 2 };
    QTest::newRow("Get without a name")
        << propertiesInterface << u"Get"_s << QVariantList { itemInterface };
    QTest::newRow("Get of numbers") << propertiesInterface << u"Get"_s << QVariantList { 1, 2 };
    QTest::newRow("Get of the unknown")
        << propertiesInterface << u"Get"_s << QVariantList { itemInterface, u"Colour"_s };
    QTest::newRow("Get of a foreign interface")
        << propertiesInterface << u"Get"_s << QVariantList { u"a.b"_s, u"Id"_s };
    QTest::newRow("GetAll of nothing") << propertiesInterface << u"GetAll"_s << QVariantList {};
    QTest::newRow("GetAll of a number") << propertiesInterface << u"GetAll"_s << QVariantList { 1 };
    QTest::newRow("GetAll of a foreign interface")
        << propertiesInterface << u"GetAll"_s << QVariantList { u"a.b"_s };
    QTest::newRow("unknown property call") << propertiesInterface << u"Take"_s << QVariantList {};
}

void StatusNotifierCallsTest::survivesMalformedCalls()
{
    QFETCH(QString, interface);
    QFETCH(QString, method);
    QFETCH(QVariantList, arguments);
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    const QDBusMessage reply = host->ask(m_service, itemPath, interface, method, arguments);
    QCOMPARE(reply.type(), QDBusMessage::ErrorMessage);
    QVERIFY(QDBusError(reply).type() != QDBusError::NoReply);
    QCOMPARE(read(host, u"Id"_s).toString(), u"ferrin"_s);
}

void StatusNotifierCallsTest::cannotBeWritten()
{
    BusPeer *const host = newHost(u"xfce4-panel"_s);
    const QVariant value = QVariant::fromValue(QDBusVariant(u"other"_s));
    const QDBusMessage reply = host->ask(m_service, itemPath, propertiesInterface, u"Set"_s,
                                         { itemInterface, u"Title"_s, value });
    QCOMPARE(QDBusError(reply).type(), QDBusError::PropertyReadOnly);
    QCOMPARE(read(host, u"Title"_s).toString(), u"Ferrin"_s);
}

FERRIN_TEST(QGuiApplication, StatusNotifierCallsTest)
#include "test_statusnotifiercalls.moc"
