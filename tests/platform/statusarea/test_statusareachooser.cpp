// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/itemhostingview.h"
#include "menubar/statusitem.h"
#include "platform/linux/ownbar/ownbar.h"
#include "platform/linux/statusarea/statusareachooser.h"
#include "platform/linux/statusnotifier/statusnotifierbar.h"
#include "tests/platform/support/buspeer.h"
#include "tests/platform/support/contents.h"
#include "tests/platform/support/fakewatcher.h"
#include "tests/support/privatebus.h"
#include "tests/support/testmain.h"

#include <QDBusMessage>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool isInOwnBar(StatusItem *item)
{
    return qobject_cast<OwnBarItem *>(item) != nullptr;
}

std::unique_ptr<ItemHostingView> viewOf(const ItemContent &content)
{
    auto view = std::make_unique<ItemHostingView>();
    view->setContent(content);
    return view;
}

} // namespace

class StatusAreaChooserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void offersItsItemFromTheFirstMoment();
    void staysInTheDesktopsAreaWhenAHostComesInTime();
    void standsInABarOfItsOwnWhereNoHostComes();
    void standsInABarOfItsOwnWithoutABus();
    void givesItsBarUpWhenAHostAppears();
    void standsInAgainWhenTheHostStaysAway();
    void waitsOutAPanelThatIsRestarted();
    void aWatcherWithoutAHostIsNoStatusArea();
    void followsTheContentOfItsView();
    void passesMenuEntriesOn();
    void takesItsNameOffTheBusAtTheEnd();

private:
    /// Items told of so far; takes every one into use as the application does.
    QList<QPointer<StatusItem>> m_items;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeWatcher> m_watcher;
    std::unique_ptr<BusPeer> m_peer;
    std::unique_ptr<StatusAreaChooser> m_chooser;
};

void StatusAreaChooserTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    m_watcher = std::make_unique<FakeWatcher>(m_bus->connect());
    m_peer = std::make_unique<BusPeer>(m_bus->connect());
    m_chooser = std::make_unique<StatusAreaChooser>(m_bus->connect());
    connect(m_chooser.get(), &StatusAreaChooser::itemAvailable, this, [this](StatusItem *item) {
        m_items.append(item);
        item->addContentView(viewOf(dischargingAt(37, u"4:29"_s)));
        item->setContextMenu({ { u"quit"_s, u"Quit Ferrin"_s } });
    });
}

void StatusAreaChooserTest::cleanup()
{
    m_chooser.reset();
    m_items.clear();
    m_peer.reset();
    m_watcher.reset();
    m_bus.reset();
}

void StatusAreaChooserTest::offersItsItemFromTheFirstMoment()
{
    m_chooser->start();
    QCOMPARE(m_items.size(), 1);
    QVERIFY(!isInOwnBar(m_items.constFirst()));
    QCOMPARE(m_chooser->item(), m_items.constFirst().data());
    QCOMPARE(m_chooser->bar()->item(), m_chooser->item());
    QCOMPARE(m_chooser->bar()->thickness(), 22.0);
}

void StatusAreaChooserTest::staysInTheDesktopsAreaWhenAHostComesInTime()
{
    m_watcher->appear();
    m_chooser->setHostTimeout(400ms);
    m_chooser->start();
    QTRY_COMPARE(m_watcher->registeredCount(), 1);
    QTest::qWait(600);
    QCOMPARE(m_items.size(), 1);
}

void StatusAreaChooserTest::standsInABarOfItsOwnWhereNoHostComes()
{
    m_chooser->setHostTimeout(10ms);
    m_chooser->start();
    QTRY_COMPARE(m_items.size(), 2);
    QVERIFY(isInOwnBar(m_items.constLast()));
    QCOMPARE(m_chooser->item(), m_items.constLast().data());
    QCOMPARE(m_chooser->bar()->thickness(), 22.0);
    QVERIFY(qobject_cast<OwnBarItem *>(m_chooser->item())->window().isVisible());
}

void StatusAreaChooserTest::standsInABarOfItsOwnWithoutABus()
{
    StatusAreaChooser chooser(QDBusConnection(u"nowhere"_s));
    const QSignalSpy items(&chooser, &StatusAreaChooser::itemAvailable);
    QCOMPARE(chooser.item(), nullptr);
    chooser.start();
    QCOMPARE(items.size(), 1);
    QVERIFY(isInOwnBar(chooser.item()));
}

void StatusAreaChooserTest::givesItsBarUpWhenAHostAppears()
{
    m_chooser->setHostTimeout(10ms);
    m_chooser->start();
    QTRY_COMPARE(m_items.size(), 2);
    m_watcher->appear();
    QTRY_COMPARE(m_items.size(), 3);
    QVERIFY(!isInOwnBar(m_chooser->item()));
    QTRY_VERIFY(!m_items.at(1));
}

void StatusAreaChooserTest::standsInAgainWhenTheHostStaysAway()
{
    m_watcher->appear();
    m_chooser->setHostTimeout(50ms);
    m_chooser->start();
    QTRY_COMPARE(m_watcher->registeredCount(), 1);
    settle(*m_peer);
    m_watcher->disappear();
    QTRY_VERIFY(isInOwnBar(m_chooser->item()));
    m_watcher->appear();
    QTRY_VERIFY(!isInOwnBar(m_chooser->item()));
}

void StatusAreaChooserTest::waitsOutAPanelThatIsRestarted()
{
    m_watcher->appear();
    m_chooser->setHostTimeout(60s);
    m_chooser->start();
    QTRY_COMPARE(m_watcher->registeredCount(), 1);
    m_watcher->disappear();
    settle(*m_peer);
    m_watcher->appear();
    QTRY_COMPARE(m_watcher->registeredCount(), 2);
    settle(*m_peer);
    QCOMPARE(m_items.size(), 1);
}

void StatusAreaChooserTest::aWatcherWithoutAHostIsNoStatusArea()
{
    m_watcher->haveHost(false);
    m_watcher->appear();
    m_chooser->setHostTimeout(50ms);
    m_chooser->start();
    QTRY_VERIFY(isInOwnBar(m_chooser->item()));
    m_watcher->setHost(true);
    QTRY_VERIFY(!isInOwnBar(m_chooser->item()));
    m_watcher->setHost(false);
    QTRY_VERIFY(isInOwnBar(m_chooser->item()));
}

void StatusAreaChooserTest::followsTheContentOfItsView()
{
    m_watcher->appear();
    m_chooser->start();
    QTRY_COMPARE(m_watcher->registeredCount(), 1);
    const QString service = m_watcher->takeRegistered().constFirst();
    const auto words = [this, &service] {
        return m_peer
            ->property(service, u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s,
                       u"IconAccessibleDesc"_s)
            .toString();
    };
    QCOMPARE(words(), u"37%, 4:29 to empty"_s);

    auto view = viewOf(dischargingAt(36, u"4:20"_s));
    ItemHostingView *const shown = view.get();
    m_chooser->item()->removeContentViews();
    QCOMPARE(words(), u"37%, 4:29 to empty"_s);
    m_chooser->item()->addContentView(std::move(view));
    QCOMPARE(words(), u"36%, 4:20 to empty"_s);
    shown->setContent(dischargingAt(35, u"4:10"_s));
    QCOMPARE(words(), u"35%, 4:10 to empty"_s);
}

void StatusAreaChooserTest::passesMenuEntriesOn()
{
    m_watcher->appear();
    m_chooser->start();
    QTRY_COMPARE(m_watcher->registeredCount(), 1);
    const QString service = m_watcher->takeRegistered().constFirst();
    QSignalSpy triggered(m_chooser->item(), &StatusItem::menuEntryTriggered);
    m_peer->ask(service, u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"Event"_s,
                { 1, u"clicked"_s, QVariant::fromValue(QDBusVariant(0)), 0U });
    QTRY_COMPARE(triggered.size(), 1);
    QCOMPARE(triggered.takeFirst(), QVariantList { u"quit"_s });
}

void StatusAreaChooserTest::takesItsNameOffTheBusAtTheEnd()
{
    m_watcher->appear();
    m_chooser->start();
    QTRY_COMPARE(m_watcher->registeredCount(), 1);
    const QString service = m_watcher->takeRegistered().constFirst();
    QVERIFY(service.startsWith(
        u"org.kde.StatusNotifierItem-%1-"_s.arg(QCoreApplication::applicationPid())));
    m_chooser.reset();
    const QDBusMessage reply
        = m_peer->ask(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                      u"org.freedesktop.DBus"_s, u"NameHasOwner"_s, { service });
    QCOMPARE(reply.arguments(), QVariantList { false });
}

FERRIN_TEST(QGuiApplication, StatusAreaChooserTest)
#include "test_statusareachooser.moc"
