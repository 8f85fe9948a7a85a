// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/upower/powerevents.h"

namespace ferrin {

using namespace Qt::StringLiterals;

PowerEvents::PowerEvents(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_kernelOnExternalPower(m_supplies.onExternalPower())
    , m_onExternalPower(m_kernelOnExternalPower)
{
    m_folding.setSingleShot(true);
    m_folding.setInterval(foldingTime);
    m_secondLook.setSingleShot(true);
    m_secondLook.setInterval(secondLookTime);
    connect(&m_supplies, &SupplyMonitor::changed, this, &PowerEvents::noteSupplies);
    connect(&m_folding, &QTimer::timeout, this, &PowerEvents::changed);
    connect(&m_secondLook, &QTimer::timeout, this, &PowerEvents::changed);
    QDBusConnection(bus).connect(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                 u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, this,
                                 SLOT(onPrepareForSleep(bool)));
}

void PowerEvents::noteUPower(std::optional<bool> onExternalPower)
{
    note(&m_upowerOnExternalPower, onExternalPower);
    fold();
}

void PowerEvents::noteSupplies()
{
    note(&m_kernelOnExternalPower, m_supplies.onExternalPower());
    fold();
}

void PowerEvents::note(std::optional<bool> *last, std::optional<bool> onExternalPower)
{
    if (!onExternalPower)
        return;
    // Each source is compared with itself first, so that two that disagree for ever, as on a
    // machine with an adapter that is always online, do not tell of an event whenever one of them
    // speaks.
    const std::optional<bool> before = *last ? *last : m_onExternalPower;
    *last = onExternalPower;
    const bool isNews = before && onExternalPower != before && onExternalPower != m_onExternalPower;
    if (isNews || !before)
        m_onExternalPower = onExternalPower;
    if (isNews)
        Q_EMIT powerSourceChanged(*onExternalPower);
}

void PowerEvents::fold()
{
    if (!m_folding.isActive())
        m_folding.start();
}

void PowerEvents::onPrepareForSleep(bool start)
{
    if (start)
        return;
    Q_EMIT woke();
    m_secondLook.start();
    Q_EMIT changed();
}

} // namespace ferrin
