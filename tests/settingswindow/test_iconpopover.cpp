// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "menubar/iconview.h"
#include "menubar/itemcontent.h"
#include "quick/iconitem.h"
#include "tests/menubar/ink.h"
#include "tests/settingswindow/iconstage.h"
#include "tests/support/testmain.h"

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int discharging = 0;
constexpr int charging = 1;
constexpr int charged = 2;

const QStringList keys { u"dischargingIconSelected"_s, u"chargingIconSelected"_s,
                         u"chargedIconSelected"_s };

/// The icons of one section, opened by a click.
struct Popover : IconStage
{
    explicit Popover(int which)
        : section(which)
    {
        click(controlOf(section));
        buttons = iconButtons();
    }
    [[nodiscard]] QString sign() const
    {
        return itemsOfType(controlOf(section), "ferrin::Symbol")
            .constFirst()
            ->property("name")
            .toString();
    }
    [[nodiscard]] QQuickItem *page() const
    {
        return itemsOfType(window.contentItem(), "IconPage").value(0);
    }

    int section;
    QList<QQuickItem *> buttons;
};

IconView viewOf(QQuickItem *button)
{
    auto *const item = itemsOfType(button, "ferrin::IconItem").constFirst();
    return *qobject_cast<IconItem *>(item)->view().as<IconView>();
}

bool hasRed(const AnyView &view)
{
    const QImage image = painted(view);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qRed(image.pixel(x, y)) > qGreen(image.pixel(x, y)))
                return true;
        }
    }
    return false;
}

void addSections()
{
    QTest::addColumn<int>("section");
    QTest::newRow("discharging") << discharging;
    QTest::newRow("charging") << charging;
    QTest::newRow("charged") << charged;
}

} // namespace

class IconPopoverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesWhatLiesBehindAsItLooks()
    {
        const Popover f(discharging);
        for (const QQuickItem *control : f.switchesOf(charged)) {
            QVERIFY(!control->isEnabled());
            QCOMPARE(control->opacity(), 1);
        }
    }

    void headsItsGroups()
    {
        const QString dynamic = u"Level changes according battery charge %"_s;
        const QString still = u"Do not change according battery charge %"_s;
        for (const int section : { discharging, charging })
            QCOMPARE(textsOf(Popover(section).page()),
                     (QStringList { u"Dymanic icons"_s, dynamic, u"Static icons"_s, still }));
        QCOMPARE(
            textsOf(Popover(charged).page()),
            (QStringList { u"Static icons"_s, u"Do not change while battery is fully charged"_s }));
    }

    void setsItsHeadingsInTheHeavyFont()
    {
        Popover popover(charged);
        const QQuickItem *const heading
            = visibleItemsOfType(popover.page(), "QQuickText").constFirst();
        QCOMPARE(heading->property("font").value<QFont>().pixelSize(), 13);
        QCOMPARE(heading->property("font").value<QFont>().weight(), QFont::ExtraBold);
    }

    void offersEveryIconOfItsCatalogue_data() { addSections(); }

    void offersEveryIconOfItsCatalogue()
    {
        QFETCH(int, section);
        Popover f(section);
        const StateChoices *const choices = f.choices()[std::size_t(section)];
        QStringList icons;
        for (const QQuickItem *const button : f.buttons)
            icons.append(button->property("icon").toString());
        QCOMPARE(icons, choices->icons());
        QCOMPARE(icons.size(), (QList { 20, 36, 28 })[section]);
    }

    void isAsWideAsItsPage_data() { addSections(); }

    void isAsWideAsItsPage()
    {
        QFETCH(int, section);
        Popover f(section);
        QCOMPARE(f.page()->width(), 260.0);
        const QList<QQuickItem *> groups = visibleItemsOfType(f.page(), "IconGroup");
        QCOMPARE(groups.size(), section == charged ? 1 : 2);
        for (QQuickItem *const group : groups)
            QCOMPARE(itemsOfType(group, "QQuickText")[1]->width(), 230.0);
        const QRectF whole(0, 0, 701, 500);
        QVERIFY(whole.contains(f.page()->mapRectToScene(f.page()->boundingRect())));
        for (const QQuickItem *const button : f.buttons) {
            QCOMPARE(button->size(), QSizeF(32, 32));
            QVERIFY(f.page()->contains(button->mapToItem(f.page(), QPointF(0, 0))));
            QVERIFY(f.page()->contains(button->mapToItem(f.page(), QPointF(32, 32))));
        }
    }

    void leavesThePreviewInSight_data() { addSections(); }

    void leavesThePreviewInSight()
    {
        QFETCH(int, section);
        Popover f(section);
        const QRectF page = f.page()->mapRectToScene(f.page()->boundingRect());
        QVERIFY(page.right() <= f.controlOf(section)->mapToScene(QPointF(0, 0)).x());
        QVERIFY(page.right() <= f.previewOf(section)->mapToScene(QPointF(0, 0)).x());
    }

    void glyphsOfADischargingBatteryStandInTwoRowsOfFour()
    {
        Popover f(discharging);
        const QStringList icons { u"battery1V"_s,         u"battery1H"_s,
                                  u"battery2V"_s,         u"battery2H"_s,
                                  u"battery2VInverted"_s, u"battery2HInverted"_s,
                                  u"battery2VBlack"_s,    u"battery2HBlack"_s };
        for (int i = 0; i < 8; ++i) {
            QCOMPARE(f.buttons[i]->property("icon").toString(), icons[i]);
            QCOMPARE(f.buttons[i]->x(), f.buttons[i % 4]->x());
            QCOMPARE(f.buttons[i]->y(), f.buttons[i / 4 * 4]->y());
        }
        QVERIFY(f.buttons[4]->y() > f.buttons[0]->y());
        QVERIFY(f.buttons[1]->x() > f.buttons[0]->x());
    }

    void drawsItsIconsAtTheSamplesCharge_data()
    {
        QTest::addColumn<int>("section");
        QTest::addColumn<double>("charge");
        QTest::newRow("discharging") << discharging << 37.0;
        QTest::newRow("charging") << charging << 78.0;
        QTest::newRow("charged") << charged << 100.0;
    }

    void drawsItsIconsAtTheSamplesCharge()
    {
        QFETCH(int, section);
        QFETCH(double, charge);
        Popover f(section);
        for (QQuickItem *const button : f.buttons) {
            const IconView view = viewOf(button);
            QCOMPARE(rawValue(view.icon), button->property("icon").toString());
            QCOMPARE(view.charge, charge);
            QCOMPARE(view.status, BatteryChargingStatus::discharging);
            QVERIFY(!hasRed(view));
        }
        QCOMPARE(viewOf(f.controlOf(section)).charge, charge);
        QVERIFY(hasRed(IconView { Icon::battery1V, 10, BatteryChargingStatus::discharging }));
    }

    void everyIconIsChosenByAClick_data() { addSections(); }

    void everyIconIsChosenByAClick()
    {
        QFETCH(int, section);
        Popover f(section);
        BatteryData data;
        data.setChargingStatus(BatteryChargingStatus(f.choices()[std::size_t(section)]->status()));
        for (QQuickItem *const button : f.buttons) {
            const QString icon = button->property("icon").toString();
            f.store.writes.clear();
            f.click(button);
            QCOMPARE(f.store.writes, QStringList { keys[section] });
            QCOMPARE(f.store.stored.value(keys[section]).toByteArray(),
                     QByteArray('"' + icon.toUtf8() + '"'));
            // The pointer is on it, and the popover stays open for the next try.
            QCOMPARE(f.markedIcons(), QStringList { icon });
            QVERIFY(f.page());
            const ItemContent item = contentFor(data, f.switches, *f.settingsData, true);
            QCOMPARE(rawValue(item.icon.value().icon), icon);
            QCOMPARE(viewOf(f.controlOf(section)).icon, item.icon.value().icon);
            QVERIFY(painted(viewFor(*item.icon))
                    == painted(IconView { item.icon->icon, 50, data.chargingStatus() }));
        }
    }

    void marksTheSelectedIconWhenItOpens()
    {
        IconStage f;
        f.settingsData->setChargingIconSelected(Icon::boltCircle);
        f.click(f.controlOf(charging));
        QCOMPARE(f.markedIcons(), QStringList { u"bolt.circle"_s });
        f.settingsData->setChargingIconSelected(Icon::boltFill);
        QCOMPARE(f.markedIcons(), QStringList { u"bolt.fill"_s });
    }

    void marksTheIconUnderThePointerToo()
    {
        Popover f(discharging);
        QTest::mouseMove(&f.window, centreOf(f.iconButton(u"arrow.down.circle"_s)));
        QTRY_COMPARE(f.markedIcons(), (QStringList { u"battery1V"_s, u"arrow.down.circle"_s }));
        QTest::mouseMove(&f.window, centreOf(f.iconButton(u"battery1V"_s)));
        QTRY_COMPARE(f.markedIcons(), QStringList { u"battery1V"_s });
    }

    void marksAnIconWithoutAState()
    {
        SettingsStage stage;
        QQuickItem *const button = stage.show("SettingsMBIIconButtonView { icon: 'bolt'; charge: "
                                              "37; control: ({ bolt: undefined }) }");
        QCOMPARE(itemsOfType(button, "ferrin::RoundedRect").constFirst()->opacity(), 1.0);
    }

    void opensAndClosesAtTheSameButton()
    {
        Popover f(charging);
        QCOMPARE(f.sign(), u"xmark"_s);
        QVERIFY(f.page());
        f.click(f.controlOf(charging));
        QCOMPARE(f.sign(), u"chevron.down"_s);
        QVERIFY(!f.page());
        f.click(f.controlOf(charging));
        QVERIFY(f.page());
    }

    void closesWhenItsButtonGoes()
    {
        Popover f(charging);
        f.switches.setShowIconWhenCharging(false);
        QTRY_VERIFY(!f.page());
        f.click(f.switchesOf(charging)[1]);
        QVERIFY(!f.switches.showChargeWhenCharging());
    }

    void isWorkedByTheKeyboardAlone()
    {
        IconStage f;
        f.window.requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(&f.window));
        f.choices()[discharging]->setIcon(u"battery2V"_s);
        QQuickItem *const control = f.controlOf(discharging);
        control->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&f.window, Qt::Key_Space);
        const auto focused
            = [&f] { return f.window.activeFocusItem()->property("icon").toString(); };
        QCOMPARE(focused(), u"battery2V"_s);
        QTest::keyClick(&f.window, Qt::Key_Right);
        QCOMPARE(focused(), u"battery2H"_s);
        QTest::keyClick(&f.window, Qt::Key_Right);
        QCOMPARE(focused(), u"battery2H"_s);
        QTest::keyClick(&f.window, Qt::Key_Down);
        QCOMPARE(focused(), u"battery2HBlack"_s);
        QTest::keyClick(&f.window, Qt::Key_Down);
        QCOMPARE(focused(), u"arrowshape.down.circle"_s);
        QTest::keyClick(&f.window, Qt::Key_Left);
        QCOMPARE(focused(), u"arrow.down.circle.fill"_s);
        QTest::keyClick(&f.window, Qt::Key_Up);
        QCOMPARE(focused(), u"battery2VBlack"_s);
        QTest::keyClick(&f.window, Qt::Key_Tab);
        QCOMPARE(focused(), u"battery2HBlack"_s);
        QCOMPARE(f.choices()[discharging]->icon(), u"battery2V"_s);
        QTest::keyClick(&f.window, Qt::Key_Return);
        QCOMPARE(f.choices()[discharging]->icon(), u"battery2HBlack"_s);
        QCOMPARE(focused(), u"battery2HBlack"_s);
        QTest::keyClick(&f.window, Qt::Key_Escape);
        QVERIFY(f.iconButtons().isEmpty());
        QVERIFY(control->hasActiveFocus());
    }

    void isHeardAsItIsSeen()
    {
        Popover f(charging);
        QSet<QString> names;
        for (QQuickItem *const button : f.buttons) {
            names.insert(spokenNameOf(button));
            const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(button);
            QCOMPARE(spoken->role(), QAccessible::RadioButton);
            QCOMPARE(bool(spoken->state().checked), button == f.buttons.constFirst());
        }
        QCOMPARE(names.size(), 36);
        QCOMPARE(spokenNameOf(f.iconButton(u"arrow.up.square.fill"_s)),
                 u"Arrow up in a filled square"_s);
    }
};

FERRIN_TEST(QGuiApplication, IconPopoverTest)
#include "test_iconpopover.moc"
