// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/hostresolver.h"
#include "tests/platform/support/buspeer.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class HostResolverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void knowsACallerByItsProcess();
    void forgetsCallersThatLeftBeforeTheyWereKnown();
    void knowsOfAnIndicatorServiceWhileItIsThere();

private:
    /// What the resolver says of the caller, waited for.
    QString profileOf(const QString &caller);

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<HostResolver> m_resolver;
    QString m_process;
};

void HostResolverTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    m_resolver = std::make_unique<HostResolver>(
        m_bus->connect(), [this](uint) { return HostProcess { .name = m_process }; });
}

void HostResolverTest::cleanup()
{
    m_resolver.reset();
    m_bus.reset();
}

QString HostResolverTest::profileOf(const QString &caller)
{
    QString name;
    m_resolver->resolve(caller, [&name](const HostProfile &profile) { name = profile.name; });
    const bool isAnswered = QTest::qWaitFor([&name] { return !name.isEmpty(); });
    return isAnswered ? name : u"no answer"_s;
}

void HostResolverTest::knowsACallerByItsProcess()
{
    const BusPeer peer(m_bus->connect());
    m_process = u"waybar"_s;
    QCOMPARE(profileOf(peer.connection().baseService()), u"waybar"_s);
}

void HostResolverTest::forgetsCallersThatLeftBeforeTheyWereKnown()
{
    m_process = u"waybar"_s;
    constexpr int moreThanAreRemembered = 70;
    for (int i = 0; i < moreThanAreRemembered; ++i)
        QCOMPARE(profileOf(u":99.%1"_s.arg(i)), u"unknown"_s);
    const BusPeer peer(m_bus->connect());
    QCOMPARE(profileOf(peer.connection().baseService()), u"waybar"_s);
}

void HostResolverTest::knowsOfAnIndicatorServiceWhileItIsThere()
{
    QVERIFY(!m_resolver->hasIndicatorService());
    m_process = u"ayatana-indicat"_s;
    const QString name = u"indicators"_s;
    {
        const BusPeer peer(QDBusConnection::connectToBus(m_bus->address(), name));
        profileOf(peer.connection().baseService());
        QVERIFY(m_resolver->hasIndicatorService());
    }
    QDBusConnection::disconnectFromBus(name);
    QTRY_VERIFY(!m_resolver->hasIndicatorService());
}

FERRIN_TEST(QCoreApplication, HostResolverTest)
#include "test_hostresolver.moc"
