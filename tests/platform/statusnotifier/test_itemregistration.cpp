// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusnotifier/itemregistration.h"
#include "tests/platform/support/buspeer.h"
#include "tests/platform/support/fakewatcher.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString itemName = u"org.kde.StatusNotifierItem-1-1"_s;
const QStringList once { itemName };

} // namespace

class ItemRegistrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void registersWithAWatcherThatIsThere();
    void waitsForAWatcherThatComesLate();
    void saysNothingWhereThereIsNone();
    void registersAgainAHundredTimes();
    void registersAgainWhenAHostComesLate();
    void believesNobodyButTheWatcherOfAHost();
    void keepsTheHostThatItHasAtASecondOne();
    void noticesAHostThatGoes();
    void takesNoNonsenseForAHost();
    void survivesAWatcherThatDiesInTheMiddleOfTheCall();
    void survivesAWatcherThatNeverAnswers();
    void logsARefusalOnceAndTriesAgain();
    void leavesAWatcherAloneThatRefusesForEver();
    void survivesTheEndOfTheBus();

private:
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeWatcher> m_watcher;
    std::unique_ptr<BusPeer> m_peer;
    std::unique_ptr<ItemRegistration> m_registration;
};

void ItemRegistrationTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    m_watcher = std::make_unique<FakeWatcher>(m_bus->connect());
    const QDBusConnection connection = m_bus->connect();
    m_peer = std::make_unique<BusPeer>(connection);
    m_registration = std::make_unique<ItemRegistration>(connection);
}

void ItemRegistrationTest::cleanup()
{
    m_registration.reset();
    m_peer.reset();
    m_watcher.reset();
    m_bus.reset();
}

void ItemRegistrationTest::registersWithAWatcherThatIsThere()
{
    const LogCapture log;
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_registration->isHostPresent());
    QCOMPARE(m_watcher->takeRegistered(), once);
}

void ItemRegistrationTest::waitsForAWatcherThatComesLate()
{
    const LogCapture log;
    m_registration->start(itemName);
    settle(*m_peer);
    QVERIFY(!m_registration->isHostPresent());
    m_watcher->appear();
    QTRY_VERIFY(m_registration->isHostPresent());
    QCOMPARE(m_watcher->takeRegistered(), once);
}

void ItemRegistrationTest::saysNothingWhereThereIsNone()
{
    const LogCapture log;
    const QSignalSpy changes(m_registration.get(), &ItemRegistration::hostPresentChanged);
    m_registration->start(itemName);
    settle(*m_peer);
    QCOMPARE(changes.size(), 0);
}

void ItemRegistrationTest::registersAgainAHundredTimes()
{
    const LogCapture log;
    m_registration->start(itemName);
    for (int life = 0; life < 100; ++life) {
        m_watcher->appear();
        QTRY_VERIFY(m_registration->isHostPresent());
        QCOMPARE(m_watcher->takeRegistered(), once);
        m_watcher->disappear();
        QTRY_VERIFY(!m_registration->isHostPresent());
    }
}

void ItemRegistrationTest::registersAgainWhenAHostComesLate()
{
    m_watcher->haveHost(false);
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_watcher->registeredCount() > 0);
    QCOMPARE(m_watcher->takeRegistered(), once);
    settle(*m_peer);
    QVERIFY(!m_registration->isHostPresent());
    m_watcher->setHost(true);
    QTRY_VERIFY(m_registration->isHostPresent());
    QCOMPARE(m_watcher->takeRegistered(), once);
}

void ItemRegistrationTest::keepsTheHostThatItHasAtASecondOne()
{
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_registration->isHostPresent());
    QCOMPARE(m_watcher->takeRegistered(), once);
    m_watcher->setHost(true);
    settle(*m_peer);
    QCOMPARE(m_watcher->takeRegistered(), QStringList());
}

void ItemRegistrationTest::noticesAHostThatGoes()
{
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_registration->isHostPresent());
    m_watcher->setHost(false);
    QTRY_VERIFY(!m_registration->isHostPresent());
    m_watcher->setHost(true);
    QTRY_VERIFY(m_registration->isHostPresent());
}

void ItemRegistrationTest::believesNobodyButTheWatcherOfAHost()
{
    m_watcher->haveHost(false);
    m_watcher->appear();
    const QSignalSpy registrations(m_registration.get(), &ItemRegistration::registered);
    m_registration->start(itemName);
    QTRY_COMPARE(registrations.size(), 1);
    settle(*m_peer);
    // The watcher has a host from now on, but it is somebody else who says so.
    m_watcher->haveHost(true);
    m_peer->connection().send(QDBusMessage::createSignal(u"/StatusNotifierWatcher"_s,
                                                         u"org.kde.StatusNotifierWatcher"_s,
                                                         u"StatusNotifierHostRegistered"_s));
    settle(*m_peer);
    QCOMPARE(registrations.size(), 1);
    QVERIFY(!m_registration->isHostPresent());
    m_watcher->setHost(true);
    QTRY_COMPARE(registrations.size(), 2);
    QTRY_VERIFY(m_registration->isHostPresent());
}

void ItemRegistrationTest::takesNoNonsenseForAHost()
{
    m_watcher->setManner(FakeWatcher::Manner::Babbling);
    m_watcher->appear();
    const QSignalSpy registrations(m_registration.get(), &ItemRegistration::registered);
    m_registration->start(itemName);
    QTRY_COMPARE(registrations.size(), 1);
    settle(*m_peer);
    QVERIFY(!m_registration->isHostPresent());
}

void ItemRegistrationTest::survivesAWatcherThatDiesInTheMiddleOfTheCall()
{
    const LogCapture log;
    m_watcher->setManner(FakeWatcher::Manner::Dying);
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_watcher->registeredCount() > 0);
    QCOMPARE(m_watcher->takeRegistered(), once);
    settle(*m_peer);
    QVERIFY(!m_registration->isHostPresent());
    m_watcher->setManner(FakeWatcher::Manner::Polite);
    m_watcher->appear();
    QTRY_VERIFY(m_registration->isHostPresent());
    QCOMPARE(m_watcher->takeRegistered(), once);
}

void ItemRegistrationTest::survivesAWatcherThatNeverAnswers()
{
    const LogCapture log;
    m_watcher->setManner(FakeWatcher::Manner::Silent);
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_watcher->registeredCount() > 0);
    QCOMPARE(m_watcher->takeRegistered(), once);
    QVERIFY(!m_registration->isHostPresent());
    m_watcher->disappear();
    settle(*m_peer);
    m_watcher->setManner(FakeWatcher::Manner::Polite);
    m_watcher->appear();
    QTRY_VERIFY(m_registration->isHostPresent());
}

void ItemRegistrationTest::logsARefusalOnceAndTriesAgain()
{
    LogCapture log;
    m_registration->setFirstRetryDelay(20ms);
    m_watcher->setManner(FakeWatcher::Manner::Refusing);
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_watcher->registeredCount() >= 2);
    settle(*m_peer);
    QCOMPARE(log.take(),
             QStringList { u"error: The status area did not take the item: not today"_s });
    m_watcher->setManner(FakeWatcher::Manner::Polite);
    QTRY_VERIFY(m_registration->isHostPresent());
}

void ItemRegistrationTest::leavesAWatcherAloneThatRefusesForEver()
{
    LogCapture log;
    m_registration->setFirstRetryDelay(0ms);
    m_watcher->setManner(FakeWatcher::Manner::Refusing);
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_COMPARE(m_watcher->registeredCount(), 7);
    settle(*m_peer);
    QCOMPARE(m_watcher->registeredCount(), 7);
    QCOMPARE(log.take().size(), 1);
}

void ItemRegistrationTest::survivesTheEndOfTheBus()
{
    LogCapture log;
    m_watcher->appear();
    m_registration->start(itemName);
    QTRY_VERIFY(m_registration->isHostPresent());
    m_bus->stop();
    QTRY_VERIFY(!m_peer->connection().isConnected());
    QCoreApplication::processEvents();
    QVERIFY(log.take().size() <= 1);
}

FERRIN_TEST(QCoreApplication, ItemRegistrationTest)
#include "test_itemregistration.moc"
