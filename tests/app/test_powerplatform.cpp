// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

// Runs on the virtual laptop. The provider's timer is stopped, so that whatever arrives does so
// through the wires of PowerPlatform.

#include "app/powerplatform.h"
#include "core/batterydata.h"
#include "core/storeddata.h"
#include "tests/support/logcapture.h"
#include "tests/support/memorydefaultsstore.h"
#include "tests/support/virtuallaptop.h"

#include <QTest>

using namespace ferrin;
using namespace ferrin::test;
using namespace Qt::StringLiterals;

class PowerPlatformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_log.ignoreRest();
        tellLaptop({ u"drain"_s, u"BAT0"_s, u"37"_s });
        tellLaptop({ u"unplug"_s });
        m_platform = std::make_unique<PowerPlatform>(QDBusConnection::systemBus());
        BatteryDataProvider::Platform parts = m_platform->parts();
        parts.storedData = [this]() -> StoredData & { return m_stored; };
        BatteryDataProvider::setPlatform(parts);
        BatteryDataProvider &provider = BatteryDataProvider::shared();
        const_cast<QTimer &>(provider.timer()).stop();
        m_platform->refreshEarly();
        m_data = provider.data();
        QCOMPARE(m_data->powerSource(), PowerSource::battery);
        QVERIFY(m_data->timeRemaining().hours);
    }

    void seesTheAdapterComeAndGo()
    {
        tellLaptop({ u"plug"_s });
        QTRY_COMPARE(m_data->powerSource(), PowerSource::external);
        QTRY_COMPARE(m_data->chargingStatus(), BatteryChargingStatus::charging);
        // What it can give it tells some seconds later.
        tellLaptop({ u"adapter-details"_s });
        QTRY_COMPARE(m_data->adapterWatts(), 65);
        tellLaptop({ u"unplug"_s });
        QTRY_COMPARE(m_data->powerSource(), PowerSource::battery);
    }

    void seesWhatHappenedDuringASleep()
    {
        tellLaptop({ u"sleep"_s });
        tellLaptop(
            { u"write"_s, u"BAT0"_s, u"capacity"_s, u"20"_s, u"energy_now"_s, u"9200000"_s });
        tellLaptop({ u"wake"_s });
        QTRY_COMPARE(m_data->charge(), 20);
    }

    void tellsTheKernelsTimeWithoutUPower()
    {
        tellLaptop({ u"upower"_s, u"stop"_s });
        tellLaptop({ u"drain"_s, u"BAT0"_s, u"33"_s });
        QTRY_COMPARE(m_data->charge(), 33);
        QCOMPARE(m_data->timeRemainingQuality(), TimeQuality::real);
        QVERIFY(m_data->timeRemaining().hours);
    }

private:
    LogCapture m_log;
    MemoryDefaultsStore m_store;
    StoredData m_stored { m_store };
    std::unique_ptr<PowerPlatform> m_platform;
    BatteryData *m_data = nullptr;
};

QTEST_GUILESS_MAIN(PowerPlatformTest)
#include "test_powerplatform.moc"
