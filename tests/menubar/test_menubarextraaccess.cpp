// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "fakestatusbar.h"
#include "menubar/menubarextraaccess.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace ferrin::test;

namespace {

struct Fixture
{
    FakeStatusItem item;
    FakeStatusBar bar;
    QList<StatusItem *> handedOver;
    MenuBarExtraAccess access { bar, [this](StatusItem &it) { handedOver.append(&it); } };

    Fixture() { bar.onlyItem = &item; }

    void setUp()
    {
        access.setUp();
        QCoreApplication::processEvents();
    }
};

} // namespace

class MenuBarExtraAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsTheItemOverOnTheNextTurn()
    {
        Fixture fixture;
        fixture.access.setUp();
        QVERIFY(fixture.handedOver.isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(fixture.handedOver, QList<StatusItem *>({ &fixture.item }));
    }

    void handsTheItemOverOnlyOnce()
    {
        Fixture fixture;
        fixture.access.setUp();
        fixture.setUp();
        fixture.setUp();
        QCOMPARE(fixture.handedOver.size(), 1);
    }

    void waitsForAnItemThatIsNotThereYet()
    {
        Fixture fixture;
        fixture.bar.onlyItem = nullptr;
        fixture.setUp();
        QVERIFY(fixture.handedOver.isEmpty());
        fixture.bar.onlyItem = &fixture.item;
        fixture.setUp();
        QCOMPARE(fixture.handedOver.size(), 1);
    }

    void aClickPresentsTheMenuAndTheNextOneClosesIt()
    {
        Fixture fixture;
        fixture.setUp();
        QSignalSpy changes(&fixture.access, &MenuBarExtraAccess::isMenuPresentedChanged);
        Q_EMIT fixture.item.activated();
        QVERIFY(fixture.access.isMenuPresented());
        QVERIFY(fixture.item.highlighted);
        Q_EMIT fixture.item.activated();
        QVERIFY(!fixture.access.isMenuPresented());
        QVERIFY(!fixture.item.highlighted);
        QCOMPARE(changes.size(), 2);
    }

    void theFlagHighlightsTheItem()
    {
        Fixture fixture;
        fixture.setUp();
        fixture.access.setMenuPresented(true);
        QVERIFY(fixture.item.highlighted);
        fixture.access.setMenuPresented(false);
        QVERIFY(!fixture.item.highlighted);
    }

    void anItemThatComesLateIsHighlightedWhileTheMenuIsOpen()
    {
        Fixture fixture;
        fixture.access.setMenuPresented(true);
        fixture.setUp();
        QVERIFY(fixture.item.highlighted);
    }

    void aDisabledItemTakesNoClicks()
    {
        Fixture fixture;
        fixture.setUp();
        QVERIFY(fixture.access.isStatusItemEnabled());
        fixture.access.setStatusItemEnabled(false);
        Q_EMIT fixture.item.activated();
        QVERIFY(!fixture.access.isMenuPresented());
        fixture.access.setStatusItemEnabled(true);
        Q_EMIT fixture.item.activated();
        QVERIFY(fixture.access.isMenuPresented());
    }

    void aClickThatTheFilterTakesChangesNothing()
    {
        Fixture fixture;
        fixture.setUp();
        bool isNews = false;
        fixture.access.setClickFilter([&] { return isNews; });
        const QSignalSpy changes(&fixture.access, &MenuBarExtraAccess::isMenuPresentedChanged);
        Q_EMIT fixture.item.activated();
        QCOMPARE(changes.size(), 0);
        isNews = true;
        Q_EMIT fixture.item.activated();
        QVERIFY(fixture.access.isMenuPresented());
    }

    void survivesTheItem()
    {
        FakeStatusBar bar;
        MenuBarExtraAccess access(bar, {});
        {
            FakeStatusItem item;
            bar.onlyItem = &item;
            access.setUp();
            QCoreApplication::processEvents();
            bar.onlyItem = nullptr;
        }
        access.setMenuPresented(true);
        QVERIFY(access.isMenuPresented());
    }
};

FERRIN_TEST(QCoreApplication, MenuBarExtraAccessTest)
#include "test_menubarextraaccess.moc"
