// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "itemsources.h"
#include "menubar/iconview.h"
#include "menubar/itemcontent.h"
#include "menubar/itemform.h"
#include "menubar/itemviews.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <array>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using enum BatteryChargingStatus;

namespace {

ItemContent contentOf(const ItemSources &sources)
{
    return contentFor(sources.data(), *sources.switches, *sources.settings,
                      sources.battery->batteryIOService().connected());
}

QString nameOf(const AnyView &view)
{
    if (view.as<MenuBarChargeTimeIconView>())
        return u"ChargeTimeIcon"_s;
    if (view.as<MenuBarChargeTimeView>())
        return u"ChargeTime"_s;
    if (view.as<MenuBarChargeIconView>())
        return u"ChargeIcon"_s;
    if (view.as<MenuBarTimeIconView>())
        return u"TimeIcon"_s;
    if (view.as<MenuBarChargeView>())
        return u"Charge"_s;
    if (view.as<MenuBarTimeView>())
        return u"Time"_s;
    return view.as<MenuBarIconView>() ? u"Icon"_s : u"none"_s;
}

void addEveryMix(const QStringList &views)
{
    QTest::addColumn<bool>("icon");
    QTest::addColumn<bool>("charge");
    QTest::addColumn<bool>("time");
    QTest::addColumn<QString>("view");
    for (int i = 0; i < 8; ++i) {
        const bool icon = (i & 4) != 0;
        const bool charge = (i & 2) != 0;
        const bool time = (i & 1) != 0;
        QTest::addRow("%s%s%s.", icon ? "I" : "", charge ? "C" : "", time ? "T" : "")
            << icon << charge << time << views[i];
    }
}

/// The three switches of one state; those of the others the other way round, since they must not
/// matter.
void switchOneState(const ItemSources &sources, BatteryChargingStatus status, bool icon,
                    bool charge, bool time)
{
    using enum DisplaySwitch;
    using Three = std::array<DisplaySwitch, 3>;
    const Three ofDischarging { showIconWhenDischarging, showChargeWhenDischarging,
                                showTimeWhenDischarging };
    const Three ofCharging { showIconWhenCharging, showChargeWhenCharging, showTimeWhenCharging };
    const Three ofCharged { showIconWhenCharged, showChargeWhenCharged, showTimeWhenCharged };
    const Three mine = status == discharging ? ofDischarging
        : status == charging                 ? ofCharging
                                             : ofCharged;
    for (const Three &three : { ofDischarging, ofCharging, ofCharged }) {
        const bool other = three != mine;
        sources.switches->set(three[0], icon != other);
        sources.switches->set(three[1], charge != other);
        sources.switches->set(three[2], time != other);
    }
}

ItemContent said(BatteryChargingStatus status, std::optional<QString> charge,
                 std::optional<QString> time, bool icon = true)
{
    ItemContent content { .status = status, .charge = charge, .time = time };
    if (icon)
        content.icon = IconElement {};
    return content;
}

} // namespace

class ItemContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void workingShowsWhatIsSwitchedOn_data()
    {
        addEveryMix({ u"Time"_s, u"Time"_s, u"Charge"_s, u"ChargeTime"_s, u"Icon"_s, u"TimeIcon"_s,
                      u"ChargeIcon"_s, u"ChargeTimeIcon"_s });
    }

    void workingShowsWhatIsSwitchedOn()
    {
        QFETCH(bool, icon);
        QFETCH(bool, charge);
        QFETCH(bool, time);
        QFETCH(QString, view);
        ItemSources sources;
        for (const BatteryChargingStatus status : { charging, discharging }) {
            switchOneState(sources, status, icon, charge, time);
            sources.show(status, 37, { 4, 29 });
            QCOMPARE(nameOf(viewFor(contentOf(sources))), view);
        }
    }

    void chargedNeverShowsATime_data()
    {
        addEveryMix({ u"Charge"_s, u"Charge"_s, u"Charge"_s, u"Charge"_s, u"Icon"_s, u"Icon"_s,
                      u"ChargeIcon"_s, u"ChargeIcon"_s });
    }

    void chargedNeverShowsATime()
    {
        QFETCH(bool, icon);
        QFETCH(bool, charge);
        QFETCH(bool, time);
        QFETCH(QString, view);
        ItemSources sources;
        for (const BatteryChargingStatus status : { charged, finishingCharge, unknown }) {
            switchOneState(sources, status, icon, charge, time);
            sources.show(status, 99, { 4, 29 });
            QCOMPARE(nameOf(viewFor(contentOf(sources))), view);
        }
    }

    void fullyChargedWithOnlyChargeAndTimeOnShowsTheCharge()
    {
        ItemSources sources;
        sources.switchAll(false, true, true);
        sources.show(charged, 100, { 0, 0 });
        QVERIFY(viewFor(contentOf(sources)) == AnyView(MenuBarChargeView { u"100"_s }));
    }

    void fullyChargedWithEverythingOffShowsTheCharge()
    {
        ItemSources sources;
        sources.switchAll(false, false, false);
        sources.show(charged, 100);
        QVERIFY(viewFor(contentOf(sources)) == AnyView(MenuBarChargeView { u"100"_s }));
    }

    void chargingWithEverythingOffShowsTheTime()
    {
        ItemSources sources;
        sources.switchAll(false, false, false);
        sources.show(charging, 78, { 0, 52 });
        QVERIFY(viewFor(contentOf(sources)) == AnyView(MenuBarTimeView { u"0:52"_s }));
    }

    void heldReadsTheChargeAsMeasuredAndNoTime()
    {
        ItemSources sources;
        sources.show(BatteryChargingStatus::held, 80, { 5, 10 });
        sources.data().setChargeLimit(80);
        QCOMPARE(contentOf(sources).charge, u"80"_s);
        QCOMPARE(contentOf(sources).time, std::nullopt);
        QCOMPARE(sentenceFor(contentOf(sources)), u"80%, held at its limit"_s);
        sources.data().setChargeLimit({});
        QCOMPARE(sentenceFor(contentOf(sources)), u"80%, not charging"_s);
    }

    void claimsNothingOfABatteryThatSaysNothing()
    {
        ItemSources sources;
        sources.show(unknown, {});
        QCOMPARE(contentOf(sources).charge, u"??"_s);
        QCOMPARE(sentenceFor(contentOf(sources)), u"Battery state unknown"_s);
    }

    void chargedReadsOneHundredWhateverWasMeasured_data()
    {
        QTest::addColumn<std::optional<qint64>>("measured");
        QTest::newRow("99") << std::optional<qint64>(99);
        QTest::newRow("101") << std::optional<qint64>(101);
        QTest::newRow("unknown") << std::optional<qint64>();
    }

    void chargedReadsOneHundredWhateverWasMeasured()
    {
        QFETCH(std::optional<qint64>, measured);
        ItemSources sources;
        sources.show(charged, measured);
        QCOMPARE(contentOf(sources).charge, u"100"_s);
    }

    void everyStateHasItsOwnSwitches()
    {
        ItemSources sources;
        sources.switches->setShowIconWhenDischarging(false);
        sources.switches->setShowChargeWhenCharging(false);
        sources.switches->setShowIconWhenCharged(false);
        sources.show(discharging, 37, { 4, 29 });
        QCOMPARE(nameOf(viewFor(contentOf(sources))), u"ChargeTime"_s);
        sources.show(charging, 37, { 4, 29 });
        QCOMPARE(nameOf(viewFor(contentOf(sources))), u"TimeIcon"_s);
        sources.show(charged, 37, { 4, 29 });
        QCOMPARE(nameOf(viewFor(contentOf(sources))), u"Charge"_s);
    }

    void everyStateHasItsOwnIcon()
    {
        ItemSources sources;
        sources.settings->setDischargingIconSelected(Icon::arrowshapeDown);
        sources.settings->setChargingIconSelected(Icon::bolt);
        sources.settings->setChargedIconSelected(Icon::poweroutletTypeG);
        const auto iconIn = [&](BatteryChargingStatus status) {
            sources.show(status, 37);
            return contentOf(sources).icon->icon;
        };
        QCOMPARE(iconIn(discharging), Icon::arrowshapeDown);
        QCOMPARE(iconIn(charging), Icon::bolt);
        QCOMPARE(iconIn(charged), Icon::poweroutletTypeG);
        QCOMPARE(iconIn(finishingCharge), Icon::poweroutletTypeG);
        QCOMPARE(iconIn(unknown), Icon::poweroutletTypeG);
    }

    void theIconIsDrawnAtTheChargeAndTheStatus()
    {
        ItemSources sources;
        sources.show(discharging, 8, { 0, 9 });
        QVERIFY(viewFor(*contentOf(sources).icon)
                == AnyView(IconView { Icon::battery1V, 8, discharging }));
    }

    void anUnknownChargeIsSaidWithQuestionMarksAndDrawnHalfFull()
    {
        ItemSources sources;
        sources.show(discharging, {}, { 4, 29 });
        QCOMPARE(contentOf(sources).charge, u"??"_s);
        QCOMPARE(contentOf(sources).icon->charge, 50.0);
    }

    void timesAreWrittenInHoursAndTwoDigitsOfMinutes_data()
    {
        QTest::addColumn<BatteryTime>("time");
        QTest::addColumn<QString>("text");
        QTest::newRow("hours and minutes") << BatteryTime { 4, 29 } << u"4:29"_s;
        QTest::newRow("minutes below ten") << BatteryTime { 3, 5 } << u"3:05"_s;
        QTest::newRow("no hours") << BatteryTime { 0, 52 } << u"0:52"_s;
        QTest::newRow("many hours") << BatteryTime { 12, 5 } << u"12:05"_s;
        QTest::newRow("nothing known") << BatteryTime {} << u"?:??"_s;
        QTest::newRow("minutes missing") << BatteryTime { 4, {} } << u"4:??"_s;
        QTest::newRow("hours missing") << BatteryTime { {}, 5 } << u"?:??"_s;
    }

    void timesAreWrittenInHoursAndTwoDigitsOfMinutes()
    {
        QFETCH(BatteryTime, time);
        QFETCH(QString, text);
        ItemSources sources;
        sources.show(discharging, 37, time);
        QCOMPARE(contentOf(sources).time, text);
    }

    void withoutABatteryServiceEveryIconIsTheCrossedOutBattery()
    {
        ItemSources sources(false);
        for (const bool charge : { true, false }) {
            for (const bool time : { true, false }) {
                sources.switchAll(true, charge, time);
                for (const BatteryChargingStatus status : { discharging, charging, charged }) {
                    sources.show(status, 20, {});
                    const ItemContent content = contentOf(sources);
                    QVERIFY(!content.hasBattery);
                    QVERIFY(viewFor(*content.icon)
                            == AnyView(MenuBarBatteryFaultView { 20, status }));
                }
            }
        }
    }

    void saysInWordsWhatThePictureShows_data()
    {
        QTest::addColumn<ItemContent>("content");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("discharging")
            << said(discharging, u"37"_s, u"4:29"_s) << u"37%, 4:29 to empty"_s;
        QTest::newRow("charging") << said(charging, u"78"_s, u"0:52"_s) << u"78%, 0:52 to full"_s;
        QTest::newRow("charged") << said(charged, u"100"_s, {}) << u"100%"_s;
        QTest::newRow("charge only") << said(discharging, u"37"_s, {}, false) << u"37%"_s;
        QTest::newRow("time only") << said(charging, {}, u"0:52"_s, false) << u"0:52 to full"_s;
        QTest::newRow("unknown charge") << said(discharging, u"??"_s, {}) << u"??%"_s;
        QTest::newRow("unknown time") << said(discharging, {}, u"?:??"_s) << u"?:?? to empty"_s;
        QTest::newRow("icon, discharging") << said(discharging, {}, {}) << u"Discharging"_s;
        QTest::newRow("icon, charging") << said(charging, {}, {}) << u"Charging"_s;
        QTest::newRow("icon, charged") << said(charged, {}, {}) << u"Charged"_s;
        QTest::newRow("icon, finishing") << said(finishingCharge, {}, {}) << u"Charged"_s;
        ItemContent none = said(unknown, u"100"_s, {});
        none.hasBattery = false;
        QTest::newRow("no battery") << none << u"No battery"_s;
    }

    void saysInWordsWhatThePictureShows()
    {
        QFETCH(ItemContent, content);
        QFETCH(QString, sentence);
        QCOMPARE(sentenceFor(content), sentence);
    }

    void labelsTheTextsInOneLine()
    {
        QCOMPARE(labelFor(said(discharging, u"37"_s, u"4:29"_s)), u"37% 4:29"_s);
        QCOMPARE(labelFor(said(charged, u"100"_s, {})), u"100%"_s);
        QCOMPARE(labelFor(said(charging, {}, u"0:52"_s)), u"0:52"_s);
        QCOMPARE(labelFor(said(charging, {}, {})), QString());
    }
};

FERRIN_TEST(QGuiApplication, ItemContentTest)
#include "test_itemcontent.moc"
