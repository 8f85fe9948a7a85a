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
    connect(&stored, &StoredData::adapterWattsChanged, this, &Adapter::notifySoon);
    connect(&stored, &StoredData::adapterVoltageChanged, this, &Adapter::notifySoon);
    connect(&stored, &StoredData::adapterCurrentChanged, this, &Adapter::notifySoon);
    connect(&stored, &StoredData::adapterNameChanged, this, &Adapter::notifySoon);
    connect(&stored, &StoredData::adapterManufacturerChanged, this, &Adapter::notifySoon);
    connect(&data, &BatteryData::powerSourceChanged, this, &Adapter::notifySoon);
}

Adapter *Adapter::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<Adapter>(*engine);
}

QString Adapter::decimalText(double value)
{
    // A half goes to the even neighbour, as in number formatters.
    const double hundredths = std::nearbyint(value * 100);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(hundredths / 100, 'f', QLocale::FloatingPointShortest);
}

bool Adapter::isApple(const QString &manufacturer)
{
    return manufacturer.contains(QLatin1String("apple"), Qt::CaseInsensitive);
}

QVariant Adapter::watts() const
{
    return toVariant(m_stored.adapterWatts());
}

QVariant Adapter::voltage() const
{
    return toVariant(m_stored.adapterVoltage());
}

QVariant Adapter::current() const
{
    return toVariant(m_stored.adapterCurrent());
}

QVariant Adapter::name() const
{
    return toVariant(m_stored.adapterName());
}

QVariant Adapter::manufacturer() const
{
    return toVariant(m_stored.adapterManufacturer());
}

void Adapter::notifySoon()
{
    if (std::exchange(m_isNotificationQueued, true))
        return;
    const auto notify = [this] {
        m_isNotificationQueued = false;
        Q_EMIT changed();
    };
    QMetaObject::invokeMethod(this, notify, Qt::QueuedConnection);
}

} // namespace ferrin
