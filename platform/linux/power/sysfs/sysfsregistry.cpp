// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/sysfsregistry.h"

#include "base/variantcast.h"
#include "platform/linux/power/sysfs/batteryfigures.h"
#include "platform/linux/power/sysfs/batteryrecords.h"
#include "platform/linux/power/sysfs/designcycles.h"
#include "platform/linux/power/sysfs/externalpower.h"
#include "sources/smartbatterykey.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <array>

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {
constexpr RegistryService::Handle batteryHandle = 1;
constexpr QEvent::Type expiry = QEvent::User;

std::optional<Direction> directionOf(const std::vector<Pack> &packs, std::optional<bool> charging,
                                     std::optional<bool> external)
{
    if (charging == true)
        return Direction::ToFull;
    const bool discharging = std::any_of(packs.begin(), packs.end(), [](const Pack &pack) {
        return pack.status == ChargeStatus::Discharging;
    });
    return discharging || external == false ? std::optional(Direction::ToEmpty) : std::nullopt;
}
} // namespace

/// One reading and what follows from it; the last two members are filled when they are asked for.
struct SysfsRegistry::Moment
{
    PowerSupplies supplies;
    std::vector<Pack> packs;
    std::optional<bool> external;
    std::optional<bool> charging;
    std::optional<bool> fullyCharged;
    std::optional<Direction> direction;
    std::optional<std::chrono::minutes> time;
    std::optional<std::vector<BatteryRecord>> records;
    std::optional<QVariant> adapter;
};

struct SysfsRegistry::Property
{
    SmartBatteryKey key;
    QVariant (*value)(SysfsRegistry &registry);
};

SysfsRegistry::SysfsRegistry(QObject *parent)
    : SysfsRegistry(
        Options { .usbVendors = { u"/usr/share/misc/usb.ids"_s, u"/usr/share/hwdata/usb.ids"_s },
                  .now = &std::chrono::steady_clock::now },
        parent)
{
}

SysfsRegistry::SysfsRegistry(Options options, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
    , m_supplies(m_options.root)
    , m_adapters(m_options.root)
    , m_vendors(m_options.usbVendors)
{
}

SysfsRegistry::~SysfsRegistry() = default;

RegistryService::Matching SysfsRegistry::serviceNameMatching(const QString &name) const
{
    return { name };
}

RegistryService::Handle SysfsRegistry::matchingService(const Matching &matching)
{
    const bool known = matching.name == "AppleSmartBattery"_L1;
    return known && !moment().supplies.batteries.empty() ? batteryHandle : 0;
}

QVariant SysfsRegistry::createProperty(Handle service, const QString &key)
{
    if (service == batteryHandle && key == adapterDetailsProperty())
        return adapter();
    const Property *property = service == batteryHandle ? find(key) : nullptr;
    return property ? property->value(*this) : QVariant();
}

int SysfsRegistry::release(Handle service)
{
    return service == batteryHandle ? 0 : 1;
}

std::optional<bool> SysfsRegistry::externalPower()
{
    return moment().external;
}

void SysfsRegistry::expire()
{
    m_moment.reset();
}

bool SysfsRegistry::event(QEvent *event)
{
    if (event->type() != expiry)
        return QObject::event(event);
    m_expiryPosted = false;
    expire();
    return true;
}

const SysfsRegistry::Property *SysfsRegistry::find(QStringView key)
{
    using Key = SmartBatteryKey;
    static constexpr std::array properties {
        Property { Key::externalConnected,
                   [](SysfsRegistry &self) { return toVariant(self.moment().external); } },
        Property { Key::isCharging,
                   [](SysfsRegistry &self) { return toVariant(self.moment().charging); } },
        Property { Key::fullyCharged,
                   [](SysfsRegistry &self) { return toVariant(self.moment().fullyCharged); } },
        Property { Key::currentCapacity,
                   [](SysfsRegistry &self) {
                       return toVariant(Reading(chargePercent(self.moment().packs)));
                   } },
        // The charge is a percentage; where there is none, there is nothing to divide by.
        Property { Key::maxCapacity,
                   [](SysfsRegistry &self) {
                       return chargePercent(self.moment().packs) ? toVariant(Reading(100))
                                                                 : QVariant();
                   } },
        Property { Key::appleRawCurrentCapacity,
                   [](SysfsRegistry &self) {
                       return toVariant(remainingMilliampHours(self.moment().packs));
                   } },
        Property {
            Key::appleRawMaxCapacity,
            [](SysfsRegistry &self) { return toVariant(fullMilliampHours(self.moment().packs)); } },
        Property { Key::timeRemaining, [](SysfsRegistry &self) { return self.time({}); } },
        Property { Key::avgTimeToEmpty,
                   [](SysfsRegistry &self) { return self.time(Direction::ToEmpty); } },
        Property { Key::avgTimeToFull,
                   [](SysfsRegistry &self) { return self.time(Direction::ToFull); } },
        Property { Key::cycleCount, [](SysfsRegistry &self) { return self.cycleCount(); } },
        Property { Key::designCycleCount9C,
                   [](SysfsRegistry &self) {
                       return toVariant(Reading(designCycles(
                           readMachineIdentity(self.m_options.root), designCyclesTable())));
                   } },
        Property { Key::designCapacity, [](SysfsRegistry &self) { return self.designCapacity(); } },
        Property { Key::temperature, [](SysfsRegistry &self) { return self.temperature(); } },
        Property { Key::serial, [](SysfsRegistry &self) { return self.serial(); } },
    };
    const auto found
        = std::find_if(properties.begin(), properties.end(),
                       [key](const Property &property) { return rawValue(property.key) == key; });
    return found == properties.end() ? nullptr : &*found;
}

std::unique_ptr<SysfsRegistry::Moment> SysfsRegistry::read()
{
    auto moment = std::make_unique<Moment>();
    moment->supplies = m_supplies.read();
    const auto now = m_options.now();
    std::vector<Pack> packs = packsOf(moment->supplies.batteries);
    m_history.settle(moment->supplies.batteries, packs, now);
    moment->packs = realPacks(std::move(packs));
    moment->external = externalConnected(moment->supplies);
    moment->charging = isCharging(moment->packs);
    moment->fullyCharged = isFullyCharged(moment->packs, moment->external);
    moment->direction = directionOf(moment->packs, moment->charging, moment->external);
    moment->time
        = m_estimate.update(moment->packs, moment->direction,
                            std::chrono::duration_cast<TimeEstimate::Time>(now.time_since_epoch()));
    return moment;
}

const SysfsRegistry::Moment &SysfsRegistry::moment()
{
    if (!m_moment) {
        m_moment = read();
        if (!m_expiryPosted && QCoreApplication::instance()) {
            m_expiryPosted = true;
            QCoreApplication::postEvent(this, new QEvent(expiry));
        }
    }
    return *m_moment;
}

const std::vector<BatteryRecord> &SysfsRegistry::records()
{
    static_cast<void>(moment());
    if (!m_moment->records)
        m_moment->records = m_supplies.readRecords(m_moment->supplies.batteries);
    return *m_moment->records;
}

QVariant SysfsRegistry::adapter()
{
    if (moment().external != true)
        return {};
    if (!m_moment->adapter) {
        AdapterHints hints = m_adapters.read();
        if (hints.partner.vendor)
            hints.partnerMaker = m_vendors.name(*hints.partner.vendor);
        m_moment->adapter = adapterDetails(m_moment->supplies.adapters, hints);
    }
    return *m_moment->adapter;
}

QVariant SysfsRegistry::time(std::optional<Direction> wanted)
{
    const Moment &now = moment();
    if (!now.time || (wanted && now.direction != wanted))
        return {};
    return toVariant(Reading(now.time->count()));
}

QVariant SysfsRegistry::cycleCount()
{
    return toVariant(greatestCycleCount(records()));
}

QVariant SysfsRegistry::designCapacity()
{
    const std::vector<BatteryRecord> &slow = records();
    return toVariant(designMilliampHours(moment().supplies.batteries, slow));
}

QVariant SysfsRegistry::temperature()
{
    return toVariant(temperatureHundredths(records()));
}

QVariant SysfsRegistry::serial()
{
    const QString number = serialNumber(records());
    return number.isEmpty() ? QVariant() : QVariant(number);
}

} // namespace ferrin
