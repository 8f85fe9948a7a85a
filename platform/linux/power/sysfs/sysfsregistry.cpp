// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/sysfs/sysfsregistry.h"

#include "base/variantcast.h"
#include "platform/linux/power/sysfs/batteryfigures.h"
#include "platform/linux/power/sysfs/batteryrecords.h"
#include "platform/linux/power/sysfs/designcycles.h"
#include "platform/linux/power/sysfs/externalpower.h"
#include "platform/linux/power/sysfs/heldcharge.h"
#include "platform/linux/power/sysfs/packmoments.h"
#include "platform/linux/power/sysfs/portablemachine.h"
#include "sources/smartbatterykey.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <array>
#include <ctime>

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
    HeldCharge held;
    std::optional<Direction> direction;
    std::optional<std::chrono::minutes> time;
    std::optional<std::vector<BatteryRecord>> records;
    std::optional<QVariant> adapter;
};

std::chrono::nanoseconds sleeplessClock()
{
    timespec time {};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

struct SysfsRegistry::Property
{
    SmartBatteryKey key;
    QVariant (*value)(SysfsRegistry &registry);
};

SysfsRegistry::SysfsRegistry(QObject *parent)
    : SysfsRegistry(
        Options { .usbVendors = { u"/usr/share/misc/usb.ids"_s, u"/usr/share/hwdata/usb.ids"_s },
                  .memoryPath = MemoryStore::usualPath() },
        parent)
{
}

SysfsRegistry::SysfsRegistry(Options options, QObject *parent)
    : QObject(parent)
    , m_options(std::move(options))
    , m_supplies(m_options.root)
    , m_adapters(m_options.root)
    , m_vendors(m_options.usbVendors)
    , m_forecast(m_options.memoryPath)
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
    const bool found = known && !moment().supplies.batteries.empty();
    // A slot may be filled later, and a driver come late.
    return found || (known && isPortable(m_options.root)) ? batteryHandle : 0;
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
        Property { Key::chargingHeld,
                   [](SysfsRegistry &self) { return QVariant(self.moment().held.isHeld); } },
        Property {
            Key::chargeLimit,
            [](SysfsRegistry &self) { return toVariant(Reading(self.moment().held.limit)); } },
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
    std::vector<Pack> packs = packsOf(moment->supplies.batteries);
    m_history.settle(moment->supplies.batteries, packs, m_options.now());
    moment->packs = realPacks(packs);
    moment->external = externalConnected(moment->supplies);
    moment->charging = isCharging(moment->packs);
    forecast(*moment, packs);
    return moment;
}

void SysfsRegistry::forecast(Moment &moment, const std::vector<Pack> &packs)
{
    learnKeys(moment.supplies.batteries);
    const std::vector<PackMoment> moments = packMoments(moment.supplies.batteries, packs, m_keys);
    moment.held = heldCharge(moment.packs, moment.external, chargePercent(moment.packs),
                             m_forecast.limit(moments));
    const std::optional<bool> full = isFullyCharged(moment.packs, moment.external);
    moment.fullyCharged = full && moment.held.isHeld ? std::optional(false) : full;
    if (!moment.held.isHeld)
        moment.direction = directionOf(moment.packs, moment.charging, moment.external);
    moment.time = m_forecast.update(
        moments, moment.direction, moment.external == true,
        { Hours(m_options.now().time_since_epoch()), Hours(m_options.elapsed()) });
}

void SysfsRegistry::learnKeys(const std::vector<BatterySupply> &batteries)
{
    const bool same = std::equal(
        batteries.begin(), batteries.end(), m_names.begin(), m_names.end(),
        [](const BatterySupply &battery, const std::string &name) { return battery.name == name; });
    if (same)
        return;
    const std::vector<BatteryRecord> slow = m_supplies.readRecords(batteries);
    m_names.clear();
    m_keys.clear();
    for (std::size_t index = 0; index < batteries.size(); ++index) {
        m_names.push_back(batteries[index].name);
        m_keys.push_back(memoryKey(batteries[index], slow[index]));
    }
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
    if (wanted == Direction::ToEmpty && !now.direction) {
        const auto available = m_forecast.available();
        return available ? QVariant(static_cast<qlonglong>(available->count())) : QVariant();
    }
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
