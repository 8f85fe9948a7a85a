// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "tests/settingswindow/stage.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;
using namespace Qt::StringLiterals;

namespace {

struct Menu
{
    Menu() { open(); }

    void open()
    {
        menu = stage.show("SettingsMenuView { focus: true }");
        items = test::itemsOfType(menu, "SettingsMenuItemView");
    }
    [[nodiscard]] QStringList marked() const
    {
        QStringList texts;
        for (QQuickItem *const item : items) {
            if (test::itemsOfType(item, "ferrin::RoundedRect").constFirst()->opacity() > 0)
                texts.append(item->property("text").toString());
        }
        return texts;
    }
    void point(int index) { QTest::mouseMove(&stage.window, test::centreOf(items[index])); }
    /// The two answers of the question that is open.
    [[nodiscard]] QList<QQuickItem *> answers()
    {
        return test::itemsOfType(stage.window.contentItem(), "ProminentButton");
    }

    test::SettingsStage stage;
    QQuickItem *menu = nullptr;
    QList<QQuickItem *> items;
};

constexpr int general = 0;
constexpr int support = 2;
constexpr int about = 3;
constexpr int quit = 4;

} // namespace

class TestSettingsMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsThePagesInTheirOrder()
    {
        Menu f;
        QCOMPARE(test::textsOf(f.menu),
                 (QStringList { u"General"_s, u"Menu bar icon"_s, u"Support"_s, u"About"_s,
                                u"Quit Ferrin"_s }));
        QStringList tiles;
        for (QQuickItem *const tile : test::itemsOfType(f.menu, "SymbolTile"))
            tiles.append(tile->property("symbol").toString() + u' '
                         + tile->property("color").value<QColor>().name());
        QCOMPARE(tiles,
                 (QStringList { u"gearshape.fill "_s + f.stage.colorNamed("systemOrange"),
                                u"battery.75 "_s + f.stage.colorNamed("systemBlue"),
                                u"questionmark.circle.fill "_s + f.stage.colorNamed("systemGray"),
                                u"info.circle.fill "_s + f.stage.colorNamed("systemBrown"),
                                u"xmark.circle "_s + f.stage.colorNamed("systemRed") }));
        QCOMPARE(f.menu->size(), QSizeF(200, 500));
    }

    void hasAThirdOfWhiteOverItsTiles()
    {
        Menu f;
        f.stage.status.setSettingsItemSelected(SettingsMenuButton::general);
        const QQuickItem *const tile = test::itemsOfType(f.menu, "SymbolTile").constFirst();
        const QColor color = QColor(f.stage.colorNamed("systemOrange")).lighter(112);
        const QImage picture = f.stage.picture();
        for (const int y : { 4, 14, 23 }) {
            const QColor shown = picture.pixelColor(tile->mapToScene(QPointF(3, y)).toPoint());
            // Painting rounds.
            QVERIFY(qAbs(shown.red() - (0.67 * color.red() + 0.33 * 255)) < 2);
            QVERIFY(qAbs(shown.green() - (0.67 * color.green() + 0.33 * 255)) < 2);
            QVERIFY(qAbs(shown.blue() - (0.67 * color.blue() + 0.33 * 255)) < 2);
        }
    }

    void beginsAtTheIconsPage() { QCOMPARE(Menu().marked(), QStringList { u"Menu bar icon"_s }); }

    void marksTheItemUnderThePointerBesideTheSelectedOne()
    {
        Menu f;
        f.point(support);
        QTRY_COMPARE(f.marked(), (QStringList { u"Menu bar icon"_s, u"Support"_s }));
        QTest::mouseMove(&f.stage.window, QPoint(100, 490));
        QTRY_COMPARE(f.marked(), QStringList { u"Menu bar icon"_s });
    }

    void turnsToThePageThatIsTapped()
    {
        Menu f;
        const QSignalSpy turns(&f.stage.settings, &Settings::selectedChanged);
        f.stage.click(f.items[general]);
        QCOMPARE(f.stage.status.settingsItemSelected(), SettingsMenuButton::general);
        QTRY_COMPARE(f.marked(), QStringList { u"General"_s });
        f.stage.click(f.items[general]);
        QCOMPARE(turns.count(), 1);
    }

    void showsThePageThatWasSelectedLastWhenItIsReopened()
    {
        Menu f;
        f.stage.click(f.items[about]);
        f.open();
        QCOMPARE(f.marked(), QStringList { u"About"_s });
        QVERIFY(f.items[about]->hasActiveFocus());
    }

    void asksBeforeItQuitsAndLeavesThePageUnchanged()
    {
        Menu f;
        const QSignalSpy ends(&f.stage.settings, &Settings::quitRequested);
        f.stage.click(f.items[quit]);
        QVERIFY(f.menu->property("quitPopoverShown").toBool());
        QCOMPARE(f.answers().size(), 2);
        QCOMPARE(f.stage.status.settingsItemSelected(), SettingsMenuButton::icon);
        QCOMPARE(ends.count(), 0);
    }

    void quitsAtYes()
    {
        Menu f;
        const QSignalSpy ends(&f.stage.settings, &Settings::quitRequested);
        f.stage.click(f.items[quit]);
        f.stage.click(f.answers()[0]);
        QCOMPARE(ends.count(), 1);
    }

    void staysAtNo()
    {
        Menu f;
        const QSignalSpy ends(&f.stage.settings, &Settings::quitRequested);
        f.stage.click(f.items[quit]);
        f.stage.click(f.answers()[1]);
        QVERIFY(!f.menu->property("quitPopoverShown").toBool());
        QVERIFY(f.answers().isEmpty());
        QCOMPARE(ends.count(), 0);
        f.stage.click(f.items[quit]);
        QCOMPARE(f.answers().size(), 2);
    }

    void isWorkedByTheKeyboardAlone()
    {
        Menu f;
        f.stage.window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&f.stage.window));
        QTest::keyClick(&f.stage.window, Qt::Key_Down);
        QTest::keyClick(&f.stage.window, Qt::Key_Return);
        QCOMPARE(f.stage.status.settingsItemSelected(), SettingsMenuButton::support);
        QTest::keyClick(&f.stage.window, Qt::Key_Down);
        QTest::keyClick(&f.stage.window, Qt::Key_Down);
        const QSignalSpy ends(&f.stage.settings, &Settings::quitRequested);
        QTest::keyClick(&f.stage.window, Qt::Key_Space);
        QVERIFY(f.answers()[1]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Backtab);
        QVERIFY(f.answers()[0]->hasActiveFocus());
        QTest::keyClick(&f.stage.window, Qt::Key_Return);
        QCOMPARE(ends.count(), 1);
        QTest::keyClick(&f.stage.window, Qt::Key_Escape);
        QVERIFY(f.answers().isEmpty());
        QVERIFY(f.items[quit]->hasActiveFocus());
    }
};

FERRIN_TEST(QGuiApplication, TestSettingsMenu)
#include "test_settingsmenu.moc"
