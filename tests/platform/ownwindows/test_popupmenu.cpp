// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownwindows/popupmenu.h"
#include "tests/support/testmain.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const std::vector<MenuEntry> twoEntries { { u"one"_s, u"One"_s }, { u"two"_s, u"Two"_s } };

} // namespace

class PopupMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitsOnItsScreen_data();
    void fitsOnItsScreen();
    void triggersWhatIsClicked();
    void closesAtAClickElsewhere();
    void closesAtEscape();
    void isUsableByKeyboard();
    void isReadByAScreenReader();
    void withoutEntriesDoesNotOpen();
};

void PopupMenuTest::fitsOnItsScreen_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("in the middle") << QPoint(300, 200) << QPoint(300, 200);
    QTest::newRow("top left") << QPoint(0, 0) << QPoint(0, 0);
    QTest::newRow("bottom") << QPoint(300, 590) << QPoint(300, 490);
    QTest::newRow("bottom right") << QPoint(799, 599) << QPoint(600, 499);
    QTest::newRow("right") << QPoint(790, 10) << QPoint(600, 10);
}

void PopupMenuTest::fitsOnItsScreen()
{
    QFETCH(QPoint, at);
    QFETCH(QPoint, expected);
    QCOMPARE(placeNear(at, { 200, 100 }, { 0, 0, 800, 600 }), expected);
}

void PopupMenuTest::triggersWhatIsClicked()
{
    PopupMenu menu;
    QSignalSpy triggered(&menu, &PopupMenu::triggered);
    menu.popUp(twoEntries, { 10, 10 }, {});
    QTest::mouseClick(&menu, Qt::LeftButton, {}, { 30, 45 });
    QCOMPARE(triggered.takeFirst(), QVariantList { u"two"_s });
    QVERIFY(!menu.isVisible());
}

void PopupMenuTest::closesAtAClickElsewhere()
{
    PopupMenu menu;
    const QSignalSpy triggered(&menu, &PopupMenu::triggered);
    menu.popUp(twoEntries, { 10, 10 }, {});
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(-30, 45),
                      QPointF(menu.position()) + QPointF(-30, 45), Qt::LeftButton, Qt::LeftButton,
                      {});
    QCoreApplication::sendEvent(&menu, &press);
    QVERIFY(!menu.isVisible());
    QCOMPARE(triggered.size(), 0);
}

void PopupMenuTest::closesAtEscape()
{
    PopupMenu menu;
    const QSignalSpy triggered(&menu, &PopupMenu::triggered);
    menu.popUp(twoEntries, { 10, 10 }, {});
    QVERIFY(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Escape);
    QVERIFY(!menu.isVisible());
    QCOMPARE(triggered.size(), 0);
}

void PopupMenuTest::isUsableByKeyboard()
{
    PopupMenu menu;
    QSignalSpy triggered(&menu, &PopupMenu::triggered);
    menu.popUp(twoEntries, { 10, 10 }, { .isDark = true });
    QTest::keyClick(&menu, Qt::Key_Return);
    QCOMPARE(triggered.size(), 0);
    QTest::keyClick(&menu, Qt::Key_Up);
    QTest::keyClick(&menu, Qt::Key_Return);
    QCOMPARE(triggered.takeFirst(), QVariantList { u"two"_s });
}

void PopupMenuTest::isReadByAScreenReader()
{
    PopupMenu menu;
    menu.popUp(twoEntries, { 10, 10 }, {});
    QAccessibleInterface *const root = menu.accessibleRoot();
    QCOMPARE(root->role(), QAccessible::PopupMenu);
    QCOMPARE(root->childCount(), 2);
    QCOMPARE(root->child(1)->role(), QAccessible::MenuItem);
    QCOMPARE(root->child(1)->text(QAccessible::Name), u"Two"_s);
    QSignalSpy triggered(&menu, &PopupMenu::triggered);
    root->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(triggered.takeFirst(), QVariantList { u"two"_s });
}

void PopupMenuTest::withoutEntriesDoesNotOpen()
{
    PopupMenu menu;
    menu.popUp({}, { 10, 10 }, {});
    QVERIFY(!menu.isVisible());
}

FERRIN_TEST(QGuiApplication, PopupMenuTest)
#include "test_popupmenu.moc"
