// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/powersources/powersources.h"
#include "tests/support/fakepowersources.h"
#include "tests/support/fakeregistry.h"
#include "tests/support/testmain.h"

#include <QTest>

using namespace ferrin;
using namespace Qt::StringLiterals;

class PowerSourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesTheBatteryWithoutUPower()
    {
        m_upower.hasSnapshot = false;
        tell(false, 135);
        QCOMPARE(first().value(u"Type"_s), u"InternalBattery"_s);
        QCOMPARE(first().value(u"Time to Empty"_s), 135);
        QCOMPARE(first().value(u"Time to Full Charge"_s), 0);
    }

    void doesNotTakeUPowersWordForAnEstimate()
    {
        m_upower.descriptions = { test::FakePowerSources::battery(-1, 0) };
        tell(false, 135);
        QCOMPARE(first().value(u"Time to Empty"_s), 135);
    }

    void tellsTheTimeToFullWhileCharging()
    {
        tell(true, 40);
        QCOMPARE(first().value(u"Time to Full Charge"_s), 40);
        QCOMPARE(first().value(u"Time to Empty"_s), 0);
    }

    void isStillEstimatingWhereNothingIsKnown()
    {
        tell(false, {});
        QCOMPARE(first().value(u"Time to Empty"_s), -1);
    }

    void restsWhileTheBatteryIsHeld()
    {
        tell(false, {});
        m_registry.properties.insert(u"ChargingHeld"_s, true);
        QCOMPARE(first().value(u"Time to Empty"_s), 0);
        QCOMPARE(first().value(u"Time to Full Charge"_s), 0);
    }

    // An empty list would be an error line at every refresh, for ever.
    void tellsOfTheMainsWhereThereIsNoBattery()
    {
        m_upower.hasSnapshot = false;
        m_registry.serviceName.reset();
        QVERIFY(m_sources.copyInfo());
        QCOMPARE(first().value(u"Type"_s), u"Mains"_s);
    }

    void init()
    {
        m_upower.hasSnapshot = true;
        m_upower.descriptions.clear();
        m_registry.properties.clear();
        m_registry.serviceName = u"AppleSmartBattery"_s;
    }

private:
    void tell(bool charging, const QVariant &minutes)
    {
        m_registry.properties.insert(u"IsCharging"_s, charging);
        if (minutes.isValid())
            m_registry.properties.insert(u"TimeRemaining"_s, minutes);
    }

    [[nodiscard]] QVariantMap first()
    {
        const auto snapshot = m_sources.copyInfo();
        return m_sources.description(snapshot, m_sources.copyList(snapshot)->constFirst()).toMap();
    }

    test::FakePowerSources m_upower;
    test::FakeRegistry m_registry;
    PowerSources m_sources { m_upower, m_registry };
};

FERRIN_TEST(QCoreApplication, PowerSourcesTest)
#include "test_powersources.moc"
