// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/dashboard/stage.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

/// The menu in a window, its items in their order, and what is behind each.
struct Menu
{
    Menu()
    {
        menu = stage.show("MainMenuView {}");
        items = test::itemsOfType(menu, "MenuItemView");
    }

    [[nodiscard]] static QQuickItem *mark(const QQuickItem &item)
    {
        return item.childItems().constFirst();
    }

    /// The colour behind each item; invalid where nothing is.
    [[nodiscard]] QList<QColor> marks() const
    {
        QList<QColor> colors;
        for (const QQuickItem *item : items)
            colors.append(mark(*item)->opacity() > 0
                              ? mark(*item)->property("color").value<QColor>()
                              : QColor());
        return colors;
    }

    [[nodiscard]] QColor color(const char *name) { return test::namedColor(stage.engine, name); }

    void point(int index) { QTest::mouseMove(&stage.window, middle(index)); }
    void pointElsewhere() { QTest::mouseMove(&stage.window, QPoint(70, 205)); }
    void click(int index)
    {
        point(index);
        QTest::mouseClick(&stage.window, Qt::LeftButton, {}, middle(index));
    }
    [[nodiscard]] QPoint middle(int index) const
    {
        return items[index]->mapToScene(items[index]->boundingRect().center()).toPoint();
    }

    test::Stage stage;
    QQuickItem *menu = nullptr;
    QList<QQuickItem *> items;
};

constexpr int status = 0;
constexpr int health = 1;
constexpr int adapter = 2;
constexpr int settings = 3;

} // namespace

class MainMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheFourSectionsInTheirOrder()
    {
        const Menu f;
        QCOMPARE(test::textsOf(f.menu),
                 (QStringList { u"STATUS"_s, u"HEALTH"_s, u"POWER ADAPTER"_s, u"SETTINGS"_s }));
        QStringList images;
        for (const QQuickItem *symbol : test::itemsOfType(f.menu, "ferrin::Symbol"))
            images.append(u"%1 %2"_s.arg(symbol->property("name").toString())
                              .arg(symbol->property("size").toInt()));
        QCOMPARE(images,
                 (QStringList { u"chart.bar.fill 11"_s, u"heart.fill 11"_s, u"bolt.fill 11"_s,
                                u"switch.2 13"_s }));
        QCOMPARE(f.menu->size(), QSizeF(140, 210));
    }

    void marksTheSelectedSectionAndNoOther()
    {
        Menu f;
        const QColor selected = f.color("menuSelected");
        QVERIFY(selected.isValid());
        QCOMPARE(f.marks(), (QList<QColor> { selected, {}, {}, {} }));
    }

    void marksTheSectionThatWasSelectedInAnEarlierOpening()
    {
        Menu f;
        f.click(health);
        f.menu = f.stage.show("MainMenuView {}");
        f.items = test::itemsOfType(f.menu, "MenuItemView");
        QCOMPARE(f.stage.status.dashboardItemSelected(), DashboardMenuButton::health);
        QCOMPARE(f.marks(), (QList<QColor> { {}, f.color("menuSelected"), {}, {} }));
    }

    void marksAnItemWhileThePointerIsOnIt()
    {
        Menu f;
        f.point(adapter);
        QTRY_COMPARE(f.marks(),
                     (QList<QColor> { f.color("menuSelected"), {}, f.color("menuHovered"), {} }));
        f.pointElsewhere();
        QTRY_COMPARE(f.marks(), (QList<QColor> { f.color("menuSelected"), {}, {}, {} }));
    }

    void keepsTheSelectedItemSelectedUnderThePointer()
    {
        Menu f;
        const QList<QColor> before = f.marks();
        f.point(status);
        QTRY_VERIFY(
            f.items[status]->findChild<QObject *>(u"hover"_s)->property("hovered").toBool());
        QCOMPARE(f.marks(), before);
        f.pointElsewhere();
        QTRY_VERIFY(
            !f.items[status]->findChild<QObject *>(u"hover"_s)->property("hovered").toBool());
        QCOMPARE(f.marks(), before);
    }

    void selectsTheSectionThatIsTapped()
    {
        Menu f;
        f.click(adapter);
        QCOMPARE(f.stage.status.dashboardItemSelected(), DashboardMenuButton::adapter);
        QTRY_COMPARE(f.marks(), (QList<QColor> { {}, {}, f.color("menuSelected"), {} }));
    }

    void wakesNobodyWhenTheSelectedSectionIsTapped()
    {
        Menu f;
        const QSignalSpy changes(&f.stage.dashboard, &Dashboard::selectedChanged);
        f.click(status);
        QCOMPARE(changes.count(), 0);
        f.click(health);
        QCOMPARE(changes.count(), 1);
    }

    void asksForTheSettingsAndKeepsTheSection()
    {
        Menu f;
        f.click(health);
        QStringList asked;
        connect(&f.stage.dashboard, &Dashboard::closeRequested, this,
                [&] { asked.append(u"close"_s); });
        connect(&f.stage.dashboard, &Dashboard::settingsRequested, this,
                [&] { asked.append(u"settings"_s); });
        f.click(settings);
        QCOMPARE(asked, (QStringList { u"close"_s, u"settings"_s }));
        QCOMPARE(f.stage.status.dashboardItemSelected(), DashboardMenuButton::health);
    }

    void expectsTheSettingsWhenThePointerOrTheKeysComeToTheirEntry()
    {
        Menu f;
        const QSignalSpy expected(&f.stage.dashboard, &Dashboard::settingsExpected);
        f.point(adapter);
        QCOMPARE(expected.count(), 0);
        f.point(settings);
        QCOMPARE(expected.count(), 1);
        f.point(adapter);
        f.items[settings]->forceActiveFocus(Qt::TabFocusReason);
        QCOMPARE(expected.count(), 2);
    }

    void isWorkedByTheKeyboardAlone()
    {
        Menu f;
        f.menu->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(f.items[status]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Down);
        QVERIFY(f.items[health]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Tab);
        QVERIFY(f.items[adapter]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Up);
        QTest::keyClick(&f.stage.window, Qt::Key_Space);
        QCOMPARE(f.stage.status.dashboardItemSelected(), DashboardMenuButton::health);
        QTest::keyClick(&f.stage.window, Qt::Key_Up);
        QTest::keyClick(&f.stage.window, Qt::Key_Up);
        QVERIFY(f.items[status]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Return);
        QCOMPARE(f.stage.status.dashboardItemSelected(), DashboardMenuButton::status);
    }

    void showsTheFocusOnlyToWhoeverUsesTheKeyboard()
    {
        Menu f;
        const auto isRinged = [&](int index) {
            return test::visibleItemsOfType(f.items[index], "FocusRing").size() == 1;
        };
        f.items[health]->forceActiveFocus();
        f.click(health);
        QVERIFY(!isRinged(health));
        QTest::keyClick(&f.stage.window, Qt::Key_Down);
        QVERIFY(isRinged(adapter));
        QVERIFY(!isRinged(health));
        f.click(adapter);
        QVERIFY(!isRinged(adapter));
    }

    void beginsWithTheKeysAtTheSelectedSection()
    {
        Menu f;
        f.stage.status.setDashboardItemSelected(DashboardMenuButton::adapter);
        f.menu = f.stage.show("MainMenuView { focus: true }");
        f.items = test::itemsOfType(f.menu, "MenuItemView");
        QVERIFY(f.items[adapter]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Up);
        QVERIFY(f.items[health]->hasActiveFocus());
    }

    void hidesTheFocusWhenAWindowOpens()
    {
        Menu f;
        f.items[health]->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&f.stage.window, Qt::Key_Down);
        QCOMPARE(test::visibleItemsOfType(f.menu, "FocusRing").size(), 1);
        f.stage.window.hide();
        f.stage.window.show();
        QCOMPARE(test::visibleItemsOfType(f.menu, "FocusRing").size(), 0);
    }

    void fitsEveryLabelInTheSameSize()
    {
        Menu f;
        for (const QQuickItem *label : test::itemsOfType(f.menu, "QQuickText"))
            QVERIFY2(label->implicitWidth() <= label->width(),
                     qPrintable(label->property("text").toString()));
    }
};

FERRIN_TEST(QGuiApplication, MainMenuTest)
#include "test_mainmenu.moc"
