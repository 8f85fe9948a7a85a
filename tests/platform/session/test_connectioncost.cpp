// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/session/connectioncost.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

/// NetworkManager, on a connection of its own.
class FakeNetworkManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.NetworkManager")
    Q_PROPERTY(uint Metered MEMBER metered)

public:
    explicit FakeNetworkManager(const QDBusConnection &bus)
        : m_bus(bus)
    {
        m_bus.registerObject(u"/org/freedesktop/NetworkManager"_s, this,
                             QDBusConnection::ExportAllProperties);
        m_bus.registerService(u"org.freedesktop.NetworkManager"_s);
    }

    ~FakeNetworkManager() override
    {
        m_bus.unregisterObject(u"/org/freedesktop/NetworkManager"_s);
        m_bus.unregisterService(u"org.freedesktop.NetworkManager"_s);
    }

    uint metered = 0;

private:
    QDBusConnection m_bus;
};

const QByteArray ipv4Head
    = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\n";
const QByteArray ipv4Default = "wlan0\t00000000\t0102A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n";
const QByteArray ipv4Near = "wlan0\t0002A8C0\t00000000\t0001\t0\t0\t600\t00FFFFFF\t0\t0\t0\n";
// A VPN's half of the world is no way into the rest of it.
const QByteArray ipv4Half = "tun0\t00000000\t00000000\t0001\t0\t0\t50\t00000080\t0\t0\t0\n";

QByteArray ipv6Default(const QByteArray &device)
{
    const QByteArray nowhere(32, '0');
    return nowhere + " 00 " + nowhere + " 00 fe800000000000000000000000000001 "
        + "00000400 00000001 00000000 00450003    " + device + '\n';
}

} // namespace

class ConnectionCostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatNetworkManagerSays_data();
    void tellsWhatNetworkManagerSays();
    void knowsOfNoLimitsWithoutNetworkManager();
    void knowsOfNoLimitsWithoutABus();
    void startsNoNetworkManager();
    void knowsWhenThereIsNoWayOut_data();
    void knowsWhenThereIsNoWayOut();
    void staysSilentWhenItIsGone();

private:
    void write(const QString &table, const QByteArray &rows) const
    {
        QFile file(m_routes.filePath(table));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(rows), rows.size());
    }
    [[nodiscard]] std::optional<NetworkReach> reach(const QDBusConnection &bus) const
    {
        ConnectionCost cost(bus, m_routes.path());
        std::optional<NetworkReach> reach;
        cost.ask([&](NetworkReach answer) { reach = answer; });
        static_cast<void>(QTest::qWaitFor([&] { return reach.has_value(); }, 60'000));
        return reach;
    }
    void connectToTheWorld() const
    {
        write(u"route"_s, ipv4Head + ipv4Default);
        write(u"ipv6_route"_s, {});
    }

    QTemporaryDir m_routes;
    PrivateBus m_bus;
};

void ConnectionCostTest::tellsWhatNetworkManagerSays_data()
{
    QTest::addColumn<uint>("metered");
    QTest::addColumn<NetworkReach>("reach");
    QTest::newRow("unknown") << 0U << NetworkReach::free;
    QTest::newRow("yes") << 1U << NetworkReach::metered;
    QTest::newRow("no") << 2U << NetworkReach::free;
    QTest::newRow("guessed yes") << 3U << NetworkReach::metered;
    QTest::newRow("guessed no") << 4U << NetworkReach::free;
}

void ConnectionCostTest::tellsWhatNetworkManagerSays()
{
    QFETCH(uint, metered);
    QFETCH(NetworkReach, reach);
    connectToTheWorld();
    FakeNetworkManager manager(m_bus.connect());
    manager.metered = metered;
    QCOMPARE(this->reach(m_bus.connect()), reach);
}

void ConnectionCostTest::knowsOfNoLimitsWithoutNetworkManager()
{
    connectToTheWorld();
    PrivateBus bus;
    QCOMPARE(reach(bus.connect()), NetworkReach::free);
}

void ConnectionCostTest::knowsOfNoLimitsWithoutABus()
{
    connectToTheWorld();
    QCOMPARE(reach(QDBusConnection(u"no such bus"_s)), NetworkReach::free);
}

void ConnectionCostTest::startsNoNetworkManager()
{
    connectToTheWorld();
    PrivateBus bus;
    const QString mark = m_routes.filePath(u"started"_s);
    bus.addService(u"org.freedesktop.NetworkManager"_s, u"/usr/bin/touch "_s + mark);
    QCOMPARE(reach(bus.connect()), NetworkReach::free);
    QVERIFY(!QFile::exists(mark));
}

void ConnectionCostTest::knowsWhenThereIsNoWayOut_data()
{
    QTest::addColumn<QByteArray>("ipv4");
    QTest::addColumn<QByteArray>("ipv6");
    QTest::addColumn<bool>("isConnected");
    QTest::newRow("nothing") << ipv4Head << QByteArray() << false;
    QTest::newRow("the neighbourhood") << ipv4Head + ipv4Near << QByteArray() << false;
    QTest::newRow("half of it") << ipv4Head + ipv4Half << QByteArray() << false;
    QTest::newRow("refused") << ipv4Head << ipv6Default("lo") << false;
    QTest::newRow("IPv4") << ipv4Head + ipv4Near + ipv4Default << ipv6Default("lo") << true;
    QTest::newRow("IPv6") << ipv4Head << ipv6Default("lo") + ipv6Default("wlan0") << true;
}

void ConnectionCostTest::knowsWhenThereIsNoWayOut()
{
    QFETCH(QByteArray, ipv4);
    QFETCH(QByteArray, ipv6);
    QFETCH(bool, isConnected);
    write(u"route"_s, ipv4);
    write(u"ipv6_route"_s, ipv6);
    PrivateBus bus;
    QCOMPARE(reach(bus.connect()), isConnected ? NetworkReach::free : NetworkReach::none);
}

void ConnectionCostTest::staysSilentWhenItIsGone()
{
    connectToTheWorld();
    FakeNetworkManager manager(m_bus.connect());
    int answers = 0;
    std::optional<ConnectionCost> cost(std::in_place, m_bus.connect(), m_routes.path());
    cost->ask([&](NetworkReach) { ++answers; });
    cost.reset();
    // The answer would have come before this one.
    static_cast<void>(reach(m_bus.connect()));
    QCOMPARE(answers, 0);
}

FERRIN_TEST(QCoreApplication, ConnectionCostTest)
#include "test_connectioncost.moc"
