// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "core/storeddata.h"

#include "base/logging.h"
#include "base/variantcast.h"
#include "state/defaultsstore.h"
#include "state/shareddefaults.h"

namespace ferrin {

using namespace Qt::StringLiterals;

namespace {

const QString nameKey = u"adapterNameStored"_s;
const QString manufacturerKey = u"adapterManufacturerStored"_s;
const QString wattsKey = u"adapterWattsStored"_s;
const QString voltageKey = u"adapterVoltageStored"_s;
const QString currentKey = u"adapterCurrentStored"_s;

/// Says whether anything was written.
template <typename T>
bool writeIfDifferent(DefaultsStore &defaults, const QString &key, const std::optional<T> &value)
{
    if (variantCast<T>(defaults.object(key)) == value)
        return false;
    defaults.setObject(key, toVariant(value));
    return true;
}

} // namespace

StoredData::StoredData(DefaultsStore &defaults, QObject *parent)
    : QObject(parent)
    , m_defaults(defaults)
{
}

StoredData &StoredData::shared()
{
    static auto *const instance = new StoredData(sharedDefaults());
    return *instance;
}

// Reading the count of writes is what registers a read with the binding that makes it.

std::optional<QString> StoredData::adapterName() const
{
    m_nameWrites.value();
    return variantCast<QString>(m_defaults.object(nameKey));
}

std::optional<QString> StoredData::adapterManufacturer() const
{
    m_manufacturerWrites.value();
    return variantCast<QString>(m_defaults.object(manufacturerKey));
}

std::optional<qint64> StoredData::adapterWatts() const
{
    m_wattsWrites.value();
    return variantCast<qint64>(m_defaults.object(wattsKey));
}

std::optional<float> StoredData::adapterVoltage() const
{
    m_voltageWrites.value();
    return variantCast<float>(m_defaults.object(voltageKey));
}

std::optional<float> StoredData::adapterCurrent() const
{
    m_currentWrites.value();
    return variantCast<float>(m_defaults.object(currentKey));
}

void StoredData::setAdapterName(const std::optional<QString> &name)
{
    if (writeIfDifferent(m_defaults, nameKey, name))
        m_nameWrites = m_nameWrites + 1;
}

void StoredData::setAdapterManufacturer(const std::optional<QString> &manufacturer)
{
    if (writeIfDifferent(m_defaults, manufacturerKey, manufacturer))
        m_manufacturerWrites = m_manufacturerWrites + 1;
}

void StoredData::setAdapterWatts(std::optional<qint64> watts)
{
    if (writeIfDifferent(m_defaults, wattsKey, watts))
        m_wattsWrites = m_wattsWrites + 1;
}

void StoredData::setAdapterVoltage(std::optional<float> volts)
{
    if (writeIfDifferent(m_defaults, voltageKey, volts))
        m_voltageWrites = m_voltageWrites + 1;
}

void StoredData::setAdapterCurrent(std::optional<float> amperes)
{
    if (amperes && writeIfDifferent(m_defaults, currentKey, amperes))
        m_currentWrites = m_currentWrites + 1;
}

void StoredData::deleteAll()
{
    qCInfo(logger, "Deleting all stored power adaper info");
    for (const QString &key : { nameKey, manufacturerKey, wattsKey, voltageKey, currentKey })
        m_defaults.removeObject(key);
}

} // namespace ferrin
