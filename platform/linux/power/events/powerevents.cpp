// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/power/events/powerevents.h"

namespace ferrin {

using namespace Qt::StringLiterals;

PowerEvents::PowerEvents(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
{
    m_folding.setSingleShot(true);
    m_folding.setInterval(foldingTime);
    m_secondRefresh.setSingleShot(true);
    m_secondRefresh.setInterval(secondRefreshDelay);
    connect(&m_supplies, &SupplyMonitor::changed, this, &PowerEvents::scheduleChanged);
    connect(&m_folding, &QTimer::timeout, this, &PowerEvents::changed);
    connect(&m_secondRefresh, &QTimer::timeout, this, &PowerEvents::changed);
    // https://www.freedesktop.org/software/systemd/man/latest/org.freedesktop.login1.html
    QDBusConnection(bus).connect(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                 u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, this,
                                 SLOT(onPrepareForSleep(bool)));
}

void PowerEvents::scheduleChanged()
{
    if (!m_folding.isActive())
        m_folding.start();
}

void PowerEvents::onPrepareForSleep(bool start)
{
    if (start)
        return;
    Q_EMIT woke();
    m_secondRefresh.start();
    Q_EMIT changed();
}

} // namespace ferrin
