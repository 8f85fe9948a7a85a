// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "dashboard/adapter.h"

#include "base/variantcast.h"
#include "core/batterydata.h"
#include "core/storeddata.h"
#include "quick/quickengine.h"

#include <QLocale>

#include <cmath>
#include <utility>

namespace ferrin {

Adapter::Adapter(StoredData &stored, BatteryData &data, QObject *parent)
    : QObject(parent)
    , m_stored(stored)
{
    connect(&stored, &StoredData::adapterWattsChanged, this, &Adapter::readSoon);
    connect(&stored, &StoredData::adapterVoltageChanged, this, &Adapter::readSoon);
    connect(&stored, &StoredData::adapterCurrentChanged, this, &Adapter::readSoon);
    connect(&stored, &StoredData::adapterNameChanged, this, &Adapter::readSoon);
    connect(&stored, &StoredData::adapterManufacturerChanged, this, &Adapter::readSoon);
    connect(&data, &BatteryData::powerSourceChanged, this, &Adapter::readSoon);
    read();
}

Adapter *Adapter::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<Adapter>(*engine);
}

QString Adapter::decimalText(double value)
{
    // Of a half the even neighbour, as number formatters round.
    const double hundredths = std::nearbyint(value * 100);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(hundredths / 100, 'f', QLocale::FloatingPointShortest);
}

bool Adapter::isApple(const QString &manufacturer)
{
    return manufacturer.contains(QLatin1String("apple"), Qt::CaseInsensitive);
}

void Adapter::readSoon()
{
    if (!std::exchange(m_isReadQueued, true))
        QMetaObject::invokeMethod(
            this, [this] { read(); }, Qt::QueuedConnection);
}

void Adapter::read()
{
    m_isReadQueued = false;
    m_watts = toVariant(m_stored.adapterWatts());
    m_voltage = toVariant(m_stored.adapterVoltage());
    m_current = toVariant(m_stored.adapterCurrent());
    m_name = toVariant(m_stored.adapterName());
    m_manufacturer = toVariant(m_stored.adapterManufacturer());
}

} // namespace ferrin
