// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/batterydataprovider.h"
#include "menubar/itemhostingview.h"
#include "menubar/menubaritemselecteditemview.h"
#include "settingswindow/menubaricon/mockupviews.h"
#include "settingswindow/menubaricon/settingsmbiselectedmockupview.h"
#include "tests/menubar/ink.h"
#include "tests/settingswindow/iconstage.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/fakeprocesslauncher.h"
#include "tests/support/fakeregistry.h"
#include "tests/support/testmain.h"

#include <QSignalSpy>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int discharging = 0;
constexpr int charging = 1;
constexpr int charged = 2;

AnyView previewIn(QQuickItem *section)
{
    auto *const shown = itemsOfType(section, "ferrin::SettingsMBISelectedMockupView").constFirst();
    return qobject_cast<SettingsMBISelectedMockupView *>(shown)->view();
}

QRectF placeOf(const QQuickItem *item)
{
    return item->mapRectToScene(item->boundingRect());
}

const QQuickItem *noteIn(QQuickItem *section)
{
    QQuickItem *const note = itemsOfType(section, "ScaleTextEffect").constFirst();
    return visibleItemsOfType(note, "QQuickText").constFirst();
}

/// The texts that are not part of a control.
QStringList spokenTextsIn(QQuickItem *section)
{
    QStringList spoken;
    for (QQuickItem *const text : visibleItemsOfType(section, "QQuickText")) {
        const auto *const element = QAccessible::queryAccessibleInterface(text);
        const QList<QAccessible::Role> roles { QAccessible::StaticText, QAccessible::Heading };
        if (element && !element->state().invisible && roles.contains(element->role()))
            spoken.append(element->text(QAccessible::Name));
    }
    return spoken;
}

} // namespace

class TestMenuBarIconPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatEachSectionIsFor()
    {
        IconStage f;
        QCOMPARE(f.sections.size(), 3);
        const QString note = u"At least one element must be selected"_s;
        const QString lead = u"Choose menu bar icon appearance when power adapter is "_s;
        QCOMPARE(textsOf(f.sections[discharging]),
                 (QStringList { u"When discharging"_s,
                                lead + u"disconnected and battery is discharging."_s,
                                u"Show icon"_s, u"Show charge %"_s, u"Show time to empty"_s,
                                u"Preview 37% and 4:29 to empty"_s, note }));
        QCOMPARE(textsOf(f.sections[charging]),
                 (QStringList { u"When charging"_s, lead + u"connected and battery is charging."_s,
                                u"Show icon"_s, u"Show charge %"_s, u"Show time to full"_s,
                                u"Preview 78% and 0:52 to full"_s, note }));
        QCOMPARE(textsOf(f.sections[charged]),
                 (QStringList { u"When fully charged"_s,
                                lead + u"connected and battery is fully charged."_s, u"Show icon"_s,
                                u"Show charge %"_s, u"Preview 100% fully charged"_s, note }));
    }

    void fitsItsPageInAnyFont_data()
    {
        QTest::addColumn<QString>("font");
        QTest::newRow("wide") << u"DejaVu Sans"_s;
        QTest::newRow("narrow") << u"DejaVu Sans Condensed"_s;
        QTest::newRow("any") << u"Nowhere Installed"_s;
    }

    void fitsItsPageInAnyFont()
    {
        QFETCH(QString, font);
        IconStage f;
        f.appearance.setFontFamily(font);
        const QRectF page(201, 0, 500, 500);
        for (QQuickItem *const section : f.sections) {
            QVERIFY(page.contains(placeOf(section)));
            for (const QQuickItem *const text : visibleItemsOfType(section, "QQuickText")) {
                QVERIFY(!text->property("truncated").toBool());
                QVERIFY(text->property("contentWidth").toReal() <= text->width());
                QVERIFY(placeOf(section).contains(placeOf(text)));
            }
        }
    }

    void itsSectionsStandOnOneGrid()
    {
        IconStage f;
        for (const int section : { charging, charged }) {
            const QPointF down = placeOf(f.sections[section]).topLeft()
                - placeOf(f.sections[discharging]).topLeft();
            QCOMPARE(down.x(), 0.0);
            QCOMPARE(placeOf(f.previewOf(section)),
                     placeOf(f.previewOf(discharging)).translated(down));
            QCOMPARE(placeOf(f.controlOf(section)),
                     placeOf(f.controlOf(discharging)).translated(down));
            for (int i = 0; i < 2; ++i)
                QCOMPARE(placeOf(f.switchesOf(section)[i]),
                         placeOf(f.switchesOf(discharging)[i]).translated(down));
        }
    }

    void everySwitchIsStoredUnderItsKey()
    {
        const QList<QStringList> keys {
            { u"showIconWhenDischarging"_s, u"showChargeWhenDischarging"_s,
              u"showTimeWhenDischarging"_s },
            { u"showIconWhenCharging"_s, u"showChargeWhenCharging"_s, u"showTimeWhenCharging"_s },
            { u"showIconWhenCharged"_s, u"showChargeWhenCharged"_s },
        };
        IconStage f;
        for (int section = 0; section < 3; ++section) {
            const QList<QQuickItem *> switches = f.switchesOf(section);
            QCOMPARE(switches.size(), keys[section].size());
            for (int i = 0; i < switches.size(); ++i) {
                QVERIFY(switches[i]->property("isOn").toBool());
                f.click(switches[i]);
                QVERIFY(!switches[i]->property("isOn").toBool());
                QCOMPARE(f.store.writes, QStringList { keys[section][i] });
                QCOMPARE(f.store.stored.value(keys[section][i]), QVariant(false));
                f.click(switches[i]);
                QCOMPARE(f.store.stored.value(keys[section][i]), QVariant(true));
                f.store.writes.clear();
            }
        }
    }

    void theLastSwitchFlipsBackAndTheNotePulses()
    {
        IconStage f;
        QQuickItem *const section = f.sections[discharging];
        QQuickItem *const note = itemsOfType(section, "ScaleTextEffect").constFirst();
        QCOMPARE(note->width(), note->parentItem()->width());
        QQuickItem *const swelling = note->childItems().constFirst();
        QList<qreal> scales { 1.0 };
        connect(swelling, &QQuickItem::scaleChanged, this,
                [&] { scales.append(swelling->scale()); });
        const QList<QQuickItem *> switches = f.switchesOf(discharging);
        f.click(switches[0]);
        f.click(switches[1]);
        QVERIFY(!section->property("mustNoteBeScaled").toBool());
        f.click(switches[2]);
        QVERIFY(section->property("mustNoteBeScaled").toBool());
        QVERIFY(switches[2]->property("isOn").toBool());
        QCOMPARE(f.store.stored.value(u"showIconWhenDischarging"_s), QVariant(false));
        QCOMPARE(f.store.stored.value(u"showChargeWhenDischarging"_s), QVariant(false));
        QCOMPARE(f.store.stored.value(u"showTimeWhenDischarging"_s), QVariant(true));

        QTRY_VERIFY(!section->property("mustNoteBeScaled").toBool());
        QTRY_VERIFY(scales.size() > 2 && scales.constLast() == 1.0);
        QCOMPARE(*std::max_element(scales.constBegin(), scales.constEnd()), 1.05);
    }

    void swellsOnceAndSinksBackAtEachChangeOfItsTrigger()
    {
        SettingsStage stage;
        QQuickItem *const effect
            = stage.show("ScaleTextEffect { trigger: false; Rectangle { width: 40; height: 20 } }");
        QCOMPARE(effect->size(), QSizeF(40, 20));
        QQuickItem *const swelling = effect->childItems().constFirst();
        QCOMPARE(swelling->transformOrigin(), QQuickItem::Center);
        for (const bool trigger : { true, false }) {
            QList<qreal> scales { swelling->scale() };
            const auto follower = connect(swelling, &QQuickItem::scaleChanged, this,
                                          [&] { scales.append(swelling->scale()); });
            effect->setProperty("trigger", trigger);
            QTRY_VERIFY(scales.size() > 2 && scales.constLast() == 1.0);
            disconnect(follower);
            const auto peak = std::max_element(scales.constBegin(), scales.constEnd());
            QCOMPARE(*peak, 1.05);
            QVERIFY(std::is_sorted(scales.constBegin(), peak));
            QVERIFY(std::is_sorted(peak, scales.constEnd(), std::greater()));
        }
    }

    void theNoteStandsStillWhereNothingMayMove()
    {
        IconStage f;
        f.appearance.setReducesMotion(true);
        QQuickItem *const section = f.sections[discharging];
        QQuickItem *const note = itemsOfType(section, "ScaleTextEffect").constFirst();
        const QSignalSpy scales(note->childItems().constFirst(), &QQuickItem::scaleChanged);
        for (QQuickItem *const each : f.switchesOf(discharging))
            f.click(each);
        QVERIFY(section->property("mustNoteBeScaled").toBool());
        QTRY_VERIFY(!section->property("mustNoteBeScaled").toBool());
        QCOMPARE(scales.count(), 0);
    }

    void theNoteStandsOutInsteadWhereNothingMayMove()
    {
        IconStage f;
        const QQuickItem *const words = noteIn(f.sections[discharging]);
        const auto color = [words] { return words->property("color").value<QColor>().name(); };
        for (QQuickItem *const each : f.switchesOf(discharging))
            f.click(each);
        QCOMPARE(color(), f.colorNamed("secondaryText"));
        f.appearance.setReducesMotion(true);
        QCOMPARE(color(), f.colorNamed("redIcon"));
        QCOMPARE(noteIn(f.sections[charging])->property("color").value<QColor>().name(),
                 f.colorNamed("secondaryText"));
        QTRY_COMPARE(color(), f.colorNamed("secondaryText"));
    }

    void aSwitchThatIsTurnedBackOnSaysWhy()
    {
        IconStage f;
        const auto described = [&f] {
            return QAccessible::queryAccessibleInterface(f.switchesOf(discharging)[2])
                ->text(QAccessible::Description);
        };
        f.click(f.switchesOf(discharging)[0]);
        f.click(f.switchesOf(discharging)[1]);
        QCOMPARE(described(), QString());
        f.click(f.switchesOf(discharging)[2]);
        QCOMPARE(described(), u"At least one element must be selected"_s);
        QTRY_COMPARE(described(), QString());
    }

    void chargedShowsTheChargeWithBothOfItsSwitchesOff()
    {
        IconStage f;
        for (QQuickItem *const each : f.switchesOf(charged))
            f.click(each);
        for (QQuickItem *const each : f.switchesOf(charged))
            QVERIFY(!each->property("isOn").toBool());
        QVERIFY(!f.sections[charged]->property("mustNoteBeScaled").toBool());
        const AnyView preview = previewIn(f.sections[charged]);
        QVERIFY(preview.as<MockupWithChargeView>());
        QCOMPARE(preview.as<MockupWithChargeView>()->charge, u"100"_s);
    }

    void withoutAnIconThePlaceOfItsControlStaysEmpty()
    {
        IconStage f;
        const QRectF control = placeOf(f.controlOf(discharging));
        QCOMPARE(control.size(), QSizeF(52, 28));
        const QRectF preview = placeOf(f.previewOf(discharging));
        const QRectF section = placeOf(f.sections[discharging]);
        f.click(f.switchesOf(discharging)[0]);
        QVERIFY(!f.controlOf(discharging));
        const QQuickItem *const empty
            = itemsOfType(f.sections[discharging], "SettingsMBIEmptyPopoverButtonView").value(0);
        QVERIFY(empty);
        QCOMPARE(placeOf(empty), control);
        QCOMPARE(placeOf(f.previewOf(discharging)), preview);
        QCOMPARE(placeOf(f.sections[discharging]), section);
        QVERIFY(f.controlOf(charging));
    }

    void thePreviewStandsBesideTheSignsOfThePanel()
    {
        IconStage f;
        const QRectF panel = placeOf(f.previewOf(discharging));
        QCOMPARE(panel.size(), QSizeF(180, 22));
        const QRectF shown
            = placeOf(itemsOfType(f.sections[discharging], "ferrin::SettingsMBISelectedMockupView")
                          .constFirst());
        QCOMPARE(shown.right(), panel.left() + 94 - 5);
        QCOMPARE(shown.center().y(), panel.top() + 18 - 7);
        QVERIFY(shown.left() >= panel.left() + 4);
    }

    void theItemFollowsASwitchInTheSameTurn()
    {
        IconStage f;
        FakeRegistry registry;
        FakePowerSources powerSources;
        FakeProcessLauncher launcher;
        LogCapture log;
        BatteryDataProvider provider({ registry, powerSources, launcher, []() -> StoredData & {
                                          qFatal("No adapter was ever connected");
                                      } });
        std::ignore = log.take();
        provider.data()->setChargingStatus(BatteryChargingStatus::discharging);
        provider.data()->setCharge(64);
        ItemHostingView host;
        new MenuBarItemSelectedItemView(host,
                                        { provider, *f.settingsData, f.switches, blackOnClear });
        const QImage before = painted(viewFor(host.content()));
        const QList<QQuickItem *> switches = f.switchesOf(discharging);
        f.click(switches[0]);
        QVERIFY(!host.content().icon);
        f.click(switches[2]);
        QVERIFY(!host.content().time);
        QCOMPARE(host.content().charge, u"64"_s);
        QVERIFY(painted(viewFor(host.content())) != before);
        f.click(switches[1]);
        QCOMPARE(host.content().charge, u"64"_s);
    }

    void showsItsColorsOnEitherGround_data()
    {
        QTest::addColumn<Appearance>("appearance");
        QTest::newRow("light") << Appearance::light;
        QTest::newRow("dark") << Appearance::dark;
    }

    void showsItsColorsOnEitherGround()
    {
        QFETCH(Appearance, appearance);
        IconStage f;
        f.appearance.setAppearance(appearance);
        const qreal scale = f.window.devicePixelRatio();
        const QImage picture = f.picture();
        const QRectF panel = placeOf(f.previewOf(discharging));
        const auto lightness = [&](const QPointF &at) {
            return picture.pixelColor((at * scale).toPoint()).lightness();
        };
        const bool isDark = appearance == Appearance::dark;
        QCOMPARE(lightness(panel.topLeft() + QPointF(20, 11)) < 128, isDark);
        int ink = 0;
        for (int x = 30; x < 89; ++x) {
            for (int y = 2; y < 20; ++y) {
                const int found = lightness(panel.topLeft() + QPointF(x, y));
                ink += (isDark ? found > 190 : found < 70) ? 1 : 0;
            }
        }
        QVERIFY2(ink > 20, qPrintable(QString::number(ink)));
    }

    void isHeardAsItIsSeen()
    {
        IconStage f;
        QCOMPARE(spokenNameOf(f.sections[charging]), u"When charging"_s);
        const QStringList spoken = spokenTextsIn(f.sections[charging]);
        for (
            const QString &text :
            { u"When charging"_s,
              u"Choose menu bar icon appearance when power adapter is connected and battery is charging."_s,
              u"Preview 78% and 0:52 to full"_s, u"At least one element must be selected"_s })
            QVERIFY2(spoken.contains(text), qPrintable(text));
        QCOMPARE(spokenNameOf(f.switchesOf(charging)[2]), u"Show time to full"_s);
        QCOMPARE(spokenNameOf(f.controlOf(charging)), u"Choose icon"_s);
        const auto described = [](QQuickItem *item) {
            return QAccessible::queryAccessibleInterface(item)->text(QAccessible::Description);
        };
        QCOMPARE(described(f.controlOf(charging)), u"Upright battery"_s);
        QCOMPARE(described(f.previewOf(charging)), u"78%, 0:52 to full"_s);
        f.click(f.switchesOf(charging)[1]);
        QCOMPARE(described(f.previewOf(charging)), u"0:52 to full"_s);
    }
};

FERRIN_TEST(QGuiApplication, TestMenuBarIconPage)
#include "test_menubariconpage.moc"
