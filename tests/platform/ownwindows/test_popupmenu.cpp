// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/ownwindows/popupmenu.h"
#include "tests/support/testmain.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

const std::vector<MenuEntry> twoEntries { { u"one"_s, u"One"_s }, { u"two"_s, u"Two"_s } };

const ItemPlace place { .item = QRect(10, 10, 20, 20) };

QImage pictureOf(const PopupMenu &menu)
{
    const QRect box = menu.geometry();
    return menu.screen()->grabWindow(0, box.x(), box.y(), box.width(), box.height()).toImage();
}

} // namespace

class PopupMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensOffThePanelOfItsItem();
    void growsWithTheDesktopsTexts();
    void alignsItsEntriesWhereReadingBegins();
    void marksTheCurrentEntryInTheHueOfTheAccent();
    void isBlackAndWhiteInHighContrast();
    void triggersWhatIsClicked();
    void closesAtAClickElsewhere();
    void closesAtEscape();
    void isUsableByKeyboard();
    void isReadByAScreenReader();
    void withoutEntriesDoesNotOpen();
};

void PopupMenuTest::opensOffThePanelOfItsItem()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    for (const int top : { screen.top(), screen.bottom() - 29 }) {
        const QRect panel(screen.left(), top, screen.width(), 30);
        PopupMenu menu;
        menu.popUp(twoEntries, { .item = QRect(screen.right() - 30, top, 30, 30), .panel = panel },
                   {});
        QVERIFY(screen.contains(menu.geometry()));
        QVERIFY(!panel.intersects(menu.geometry()));
    }
}

void PopupMenuTest::growsWithTheDesktopsTexts()
{
    PopupMenu menu;
    menu.popUp(twoEntries, place, { .textScale = 2 });
    QCOMPARE(menu.size(), QSize(280, 2 * 56 + 10));
    // Its rows have grown with it.
    QSignalSpy triggered(&menu, &PopupMenu::triggered);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, { 30, 75 });
    QCOMPARE(triggered.takeFirst(), QVariantList { u"two"_s });
}

void PopupMenuTest::alignsItsEntriesWhereReadingBegins()
{
    for (const auto direction : { Qt::LeftToRight, Qt::RightToLeft }) {
        QGuiApplication::setLayoutDirection(direction);
        const auto restored
            = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
        PopupMenu menu;
        menu.popUp(twoEntries, place, {});
        const auto isInked = [&](int from, int to) {
            const QImage picture = pictureOf(menu);
            for (int x = from; x < to; ++x) {
                if (qGray(picture.pixel(x, 19)) < 128)
                    return true;
            }
            return false;
        };
        const int middle = menu.width() / 2;
        const int end = menu.width() - 5;
        if (direction == Qt::LeftToRight)
            QTRY_VERIFY(isInked(5, middle) && !isInked(middle, end));
        else
            QTRY_VERIFY(isInked(middle, end) && !isInked(5, middle));
    }
}

void PopupMenuTest::marksTheCurrentEntryInTheHueOfTheAccent()
{
    PopupMenu menu;
    menu.popUp(twoEntries, place, { .accent = QColor(0x20, 0x90, 0x30) });
    QTest::keyClick(&menu, Qt::Key_Down);
    QTRY_VERIFY(pictureOf(menu).pixelColor(10, 19) != pictureOf(menu).pixelColor(10, 47));
    const QColor mark = pictureOf(menu).pixelColor(10, 19);
    QVERIFY(mark.green() > mark.red() && mark.green() > mark.blue());
}

void PopupMenuTest::isBlackAndWhiteInHighContrast()
{
    PopupMenu menu;
    menu.popUp(twoEntries, place, { .isDark = true, .isHighContrast = true });
    QTest::keyClick(&menu, Qt::Key_Down);
    QTRY_COMPARE(pictureOf(menu).pixelColor(10, 19), Qt::white);
    QCOMPARE(pictureOf(menu).pixelColor(10, 47), Qt::black);
    QCOMPARE(pictureOf(menu).pixelColor(0, 0), Qt::white);
}

void PopupMenuTest::triggersWhatIsClicked()
{
    PopupMenu menu;
    QSignalSpy triggered(&menu, &PopupMenu::triggered);
    menu.popUp(twoEntries, place, {});
    QTest::mouseClick(&menu, Qt::LeftButton, {}, { 30, 45 });
    QCOMPARE(triggered.takeFirst(), QVariantList { u"two"_s });
    QVERIFY(!menu.isVisible());
}

void PopupMenuTest::closesAtAClickElsewhere()
{
    PopupMenu menu;
    const QSignalSpy triggered(&menu, &PopupMenu::triggered);
    menu.popUp(twoEntries, place, {});
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
    menu.popUp(twoEntries, place, {});
    QVERIFY(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Escape);
    QVERIFY(!menu.isVisible());
    QCOMPARE(triggered.size(), 0);
}

void PopupMenuTest::isUsableByKeyboard()
{
    PopupMenu menu;
    QSignalSpy triggered(&menu, &PopupMenu::triggered);
    menu.popUp(twoEntries, place, { .isDark = true });
    QTest::keyClick(&menu, Qt::Key_Return);
    QCOMPARE(triggered.size(), 0);
    QTest::keyClick(&menu, Qt::Key_Up);
    QTest::keyClick(&menu, Qt::Key_Return);
    QCOMPARE(triggered.takeFirst(), QVariantList { u"two"_s });
}

void PopupMenuTest::isReadByAScreenReader()
{
    PopupMenu menu;
    menu.popUp(twoEntries, place, {});
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
    menu.popUp({}, place, {});
    QVERIFY(!menu.isVisible());
}

FERRIN_TEST(QGuiApplication, PopupMenuTest)
#include "test_popupmenu.moc"
