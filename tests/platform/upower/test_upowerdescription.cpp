// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/upowerdescription.h"
#include "tests/platform/upower/devices.h"
#include "tests/support/testmain.h"

#include <QTest>

#include <limits>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(ferrin::UPowerState)
Q_DECLARE_METATYPE(ferrin::PowerFlow)
Q_DECLARE_METATYPE(std::optional<bool>)

namespace {

QVariant toEmpty(const UPowerDevice &device)
{
    return describe(device, std::nullopt).value(u"Time to Empty"_s);
}

QVariant toFull(const UPowerDevice &device)
{
    return describe(device, std::nullopt).value(u"Time to Full Charge"_s);
}

QStringList namesOf(const QList<UPowerDevice> &devices)
{
    QStringList names;
    for (const UPowerDevice &device : devices)
        names.append(device.model.value_or(QString()));
    return names;
}

} // namespace

class UPowerDescriptionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsAllFactsOfADischargingBattery();
    void tellsAllFactsOfAChargingBattery();
    void saysStillEstimatingForATimeThatUPowerDoesNotKnow();
    void saysZeroForTheTimeThatDoesNotApply();
    void saysZeroTwiceForABatteryAtRest_data();
    void saysZeroTwiceForABatteryAtRest();
    void doesNotBelieveATimeOfMoreThanTwoDays();
    void roundsAKnownTimeDownButNeverToNothing();
    void hasNoKeyForAFactThatIsNotKnown();
    void goesByTheTimesWhenTheStateIsUnknown();
    void goesByExternalPowerWhenStateAndTimesAreUnknown();
    void drawsFromABatteryAtRestOnlyWithoutExternalPower();
    void prefersADischargingBatteryToExternalPower();
    void callsAUpsAUps();
    void namesADeviceWithoutAModelAfterItsPath();
    void keepsTheOrderOfPacksThatAreAlike();
    void putsThePackInUseFirst();
    void putsThePackWithATimeBeforeThoseThatOnlySeemToBeInUse();
    void putsBatteriesBeforeUpses();
    void leavesOutWhatIsNoPowerSource();
    void settlesInTheDirectionThatApplies_data();
    void settlesInTheDirectionThatApplies();
    void saysStillEstimatingInOneDirectionOnlyWhileSettling();
};

void UPowerDescriptionTest::tellsAllFactsOfADischargingBattery()
{
    const QVariantMap expected {
        { u"Type"_s, u"InternalBattery"_s },
        { u"Name"_s, u"PABAS0241231"_s },
        { u"Time to Empty"_s, 135 },
        { u"Time to Full Charge"_s, 0 },
        { u"Current Capacity"_s, 50 },
        { u"Max Capacity"_s, 100 },
        { u"Is Charging"_s, false },
        { u"Is Present"_s, true },
        { u"Power Source State"_s, u"Battery Power"_s },
    };
    QCOMPARE(describe(named(pack(UPowerState::Discharging, 135min), u"PABAS0241231"_s), false),
             expected);
}

void UPowerDescriptionTest::tellsAllFactsOfAChargingBattery()
{
    const QVariantMap expected {
        { u"Type"_s, u"InternalBattery"_s },
        { u"Name"_s, u"PABAS0241231"_s },
        { u"Time to Empty"_s, 0 },
        { u"Time to Full Charge"_s, 52 },
        { u"Current Capacity"_s, 50 },
        { u"Max Capacity"_s, 100 },
        { u"Is Charging"_s, true },
        { u"Is Present"_s, true },
        { u"Power Source State"_s, u"AC Power"_s },
    };
    QCOMPARE(describe(named(pack(UPowerState::Charging, 0s, 52min), u"PABAS0241231"_s), true),
             expected);
}

void UPowerDescriptionTest::saysStillEstimatingForATimeThatUPowerDoesNotKnow()
{
    QCOMPARE(toEmpty(pack(UPowerState::Discharging)), QVariant(-1));
    QCOMPARE(toFull(pack(UPowerState::Discharging)), QVariant(0));
    QCOMPARE(toEmpty(pack(UPowerState::Charging)), QVariant(0));
    QCOMPARE(toFull(pack(UPowerState::Charging)), QVariant(-1));
}

void UPowerDescriptionTest::saysZeroForTheTimeThatDoesNotApply()
{
    QCOMPARE(toFull(pack(UPowerState::Discharging, 1h, 1h)), QVariant(0));
    QCOMPARE(toEmpty(pack(UPowerState::Charging, 1h, 1h)), QVariant(0));
}

void UPowerDescriptionTest::saysZeroTwiceForABatteryAtRest_data()
{
    QTest::addColumn<UPowerState>("state");
    QTest::newRow("full") << UPowerState::FullyCharged;
    QTest::newRow("empty") << UPowerState::Empty;
    QTest::newRow("threshold") << UPowerState::PendingCharge;
    QTest::newRow("waits for its turn") << UPowerState::PendingDischarge;
    QTest::newRow("unknown") << UPowerState::Unknown;
}

void UPowerDescriptionTest::saysZeroTwiceForABatteryAtRest()
{
    QFETCH(UPowerState, state);
    const bool hasTimes = state != UPowerState::Unknown;
    const UPowerDevice device = hasTimes ? pack(state, 1h, 1h) : pack(state);
    QCOMPARE(toEmpty(device), QVariant(0));
    QCOMPARE(toFull(device), QVariant(0));
}

void UPowerDescriptionTest::doesNotBelieveATimeOfMoreThanTwoDays()
{
    QCOMPARE(toEmpty(pack(UPowerState::Discharging, 48h)), QVariant(2880));
    QCOMPARE(toEmpty(pack(UPowerState::Discharging, 48h + 1s)), QVariant(-1));
    QCOMPARE(toFull(pack(UPowerState::Charging, 0s, 3932100s)), QVariant(-1));
    QCOMPARE(toEmpty(pack(UPowerState::Discharging, std::chrono::seconds::max())), QVariant(-1));
    UPowerDevice negative = pack(UPowerState::Discharging);
    negative.update({ { u"TimeToEmpty"_s, std::numeric_limits<qlonglong>::min() } });
    QCOMPARE(toEmpty(negative), QVariant(-1));
}

void UPowerDescriptionTest::roundsAKnownTimeDownButNeverToNothing()
{
    QCOMPARE(toEmpty(pack(UPowerState::Discharging, 119s)), QVariant(1));
    QCOMPARE(toEmpty(pack(UPowerState::Discharging, 1s)), QVariant(1));
}

void UPowerDescriptionTest::hasNoKeyForAFactThatIsNotKnown()
{
    UPowerDevice device;
    device.kind = UPowerKind::Battery;
    const QVariantMap expected {
        { u"Type"_s, u"InternalBattery"_s },
        { u"Max Capacity"_s, 100 },
        { u"Power Source State"_s, u"AC Power"_s },
        { u"Time to Empty"_s, 0 },
        { u"Time to Full Charge"_s, 0 },
    };
    QCOMPARE(describe(device, std::nullopt), expected);
    device.state = UPowerState::Discharging;
    QVERIFY(!describe(device, std::nullopt).contains(u"Time to Empty"_s));
}

void UPowerDescriptionTest::goesByTheTimesWhenTheStateIsUnknown()
{
    QCOMPARE(toEmpty(pack(UPowerState::Unknown, 1h)), QVariant(60));
    QCOMPARE(toFull(pack(UPowerState::Unknown, 0s, 1h)), QVariant(60));
}

void UPowerDescriptionTest::goesByExternalPowerWhenStateAndTimesAreUnknown()
{
    const QVariantMap description = describe(pack(UPowerState::Unknown), false);
    QCOMPARE(description.value(u"Time to Empty"_s), QVariant(-1));
    QCOMPARE(description.value(u"Time to Full Charge"_s), QVariant(0));
    QCOMPARE(description.value(u"Power Source State"_s), QVariant(u"Battery Power"_s));
}

void UPowerDescriptionTest::drawsFromABatteryAtRestOnlyWithoutExternalPower()
{
    const auto source = [](std::optional<bool> externalPower) {
        return describe(pack(UPowerState::PendingCharge), externalPower)
            .value(u"Power Source State"_s);
    };
    QCOMPARE(source(false), QVariant(u"Battery Power"_s));
    QCOMPARE(source(true), QVariant(u"AC Power"_s));
    QCOMPARE(source(std::nullopt), QVariant(u"AC Power"_s));
}

void UPowerDescriptionTest::prefersADischargingBatteryToExternalPower()
{
    const QVariantMap description = describe(pack(UPowerState::Discharging, 1h), true);
    QCOMPARE(description.value(u"Power Source State"_s), QVariant(u"Battery Power"_s));
    QCOMPARE(description.value(u"Time to Empty"_s), QVariant(60));
}

void UPowerDescriptionTest::callsAUpsAUps()
{
    UPowerDevice ups = pack(UPowerState::FullyCharged, 2250s);
    ups.kind = UPowerKind::Ups;
    QCOMPARE(describe(ups, true).value(u"Type"_s), QVariant(u"UPS"_s));
}

void UPowerDescriptionTest::namesADeviceWithoutAModelAfterItsPath()
{
    UPowerDevice device = pack(UPowerState::Charging);
    device.nativePath = u"/sys/devices/power_supply/CMB1"_s;
    QCOMPARE(describe(device, true).value(u"Name"_s), QVariant(u"CMB1"_s));
    device.nativePath.reset();
    QVERIFY(!describe(device, true).contains(u"Name"_s));
}

void UPowerDescriptionTest::keepsTheOrderOfPacksThatAreAlike()
{
    const QList<UPowerDevice> packs { named(pack(UPowerState::Discharging, 2h), u"first"_s),
                                      named(pack(UPowerState::Discharging, 1h), u"second"_s) };
    QCOMPARE(namesOf(powerSourcesInOrder(packs, false)), QStringList({ u"first"_s, u"second"_s }));
}

void UPowerDescriptionTest::putsThePackWithATimeBeforeThoseThatOnlySeemToBeInUse()
{
    const QList<UPowerDevice> packs { named(pack(UPowerState::Unknown), u"waits"_s),
                                      named(pack(UPowerState::Discharging, 0s), u"empty"_s),
                                      named(pack(UPowerState::Discharging, 80min), u"used"_s),
                                      named(pack(UPowerState::PendingCharge), u"rests"_s) };
    QCOMPARE(namesOf(powerSourcesInOrder(packs, false)),
             QStringList({ u"used"_s, u"waits"_s, u"empty"_s, u"rests"_s }));
}

void UPowerDescriptionTest::putsThePackInUseFirst()
{
    const QList<UPowerDevice> packs { named(pack(UPowerState::PendingDischarge), u"waits"_s),
                                      named(pack(UPowerState::Empty), u"empty"_s),
                                      named(pack(UPowerState::Discharging, 1h), u"used"_s) };
    QCOMPARE(namesOf(powerSourcesInOrder(packs, false)),
             QStringList({ u"used"_s, u"waits"_s, u"empty"_s }));
}

void UPowerDescriptionTest::putsBatteriesBeforeUpses()
{
    UPowerDevice ups = named(pack(UPowerState::Charging), u"ups"_s);
    ups.kind = UPowerKind::Ups;
    const QList<UPowerDevice> devices { ups, named(pack(UPowerState::FullyCharged), u"battery"_s) };
    QCOMPARE(namesOf(powerSourcesInOrder(devices, true)), QStringList({ u"battery"_s, u"ups"_s }));
}

void UPowerDescriptionTest::leavesOutWhatIsNoPowerSource()
{
    UPowerDevice mouse = named(pack(UPowerState::Discharging), u"mouse"_s);
    mouse.powersSystem = false;
    UPowerDevice absent = named(pack(UPowerState::Discharging), u"absent"_s);
    absent.isPresent = false;
    const QList<UPowerDevice> devices { mouse, absent, UPowerDevice {},
                                        named(pack(UPowerState::Charging), u"battery"_s) };
    QCOMPARE(namesOf(powerSourcesInOrder(devices, true)), QStringList(u"battery"_s));
}

void UPowerDescriptionTest::settlesInTheDirectionThatApplies_data()
{
    QTest::addColumn<UPowerState>("state");
    QTest::addColumn<std::optional<bool>>("changedTo");
    QTest::addColumn<PowerFlow>("flow");
    const auto row = [](const char *name, UPowerState state, std::optional<bool> changedTo,
                        PowerFlow flow) { QTest::newRow(name) << state << changedTo << flow; };
    using enum UPowerState;
    row("plugged in, not noticed yet", Discharging, true, PowerFlow::Charging);
    row("plugged in, unknown", Unknown, true, PowerFlow::Charging);
    row("plugged in, charging", Charging, true, PowerFlow::Charging);
    row("plugged in, full", FullyCharged, true, PowerFlow::Resting);
    row("plugged in, threshold", PendingCharge, true, PowerFlow::Resting);
    row("unplugged, not noticed yet", Charging, false, PowerFlow::Discharging);
    row("unplugged when full, not noticed yet", FullyCharged, false, PowerFlow::Discharging);
    row("unplugged at the threshold, not noticed yet", PendingCharge, false,
        PowerFlow::Discharging);
    row("unplugged, discharging", Discharging, false, PowerFlow::Discharging);
    row("unplugged, another pack is used", PendingDischarge, false, PowerFlow::Resting);
    row("unplugged, empty", Empty, false, PowerFlow::Resting);
    row("woken, discharging", Discharging, std::nullopt, PowerFlow::Discharging);
    row("woken, charging", Charging, std::nullopt, PowerFlow::Charging);
    row("woken, full", FullyCharged, std::nullopt, PowerFlow::Resting);
}

void UPowerDescriptionTest::settlesInTheDirectionThatApplies()
{
    QFETCH(UPowerState, state);
    QFETCH(std::optional<bool>, changedTo);
    QFETCH(PowerFlow, flow);
    QVERIFY(settlingFlowOf(pack(state), std::nullopt, changedTo) == flow);
}

void UPowerDescriptionTest::saysStillEstimatingInOneDirectionOnlyWhileSettling()
{
    const QVariantMap settled = describe(pack(UPowerState::Discharging, 1h), false);
    QVariantMap expected = settled;
    expected.insert(u"Time to Empty"_s, -1);
    QCOMPARE(describeSettling(settled, PowerFlow::Discharging), expected);
    expected.insert(u"Time to Empty"_s, 0);
    expected.insert(u"Time to Full Charge"_s, -1);
    QCOMPARE(describeSettling(settled, PowerFlow::Charging), expected);
    expected.insert(u"Time to Full Charge"_s, 0);
    QCOMPARE(describeSettling(settled, PowerFlow::Resting), expected);
}

FERRIN_TEST(QCoreApplication, UPowerDescriptionTest)
#include "test_upowerdescription.moc"
