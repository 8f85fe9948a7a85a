// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/statusarea/statusarea.h"

#include "platform/linux/statusarea/ownbar.h"
#include "platform/linux/statusarea/statusnotifierbar.h"
#include "platform/linux/statusarea/traycolours.h"

using namespace std::chrono_literals;

namespace ferrin {

StatusAreaChooser::StatusAreaChooser(const QDBusConnection &session, QObject *parent)
    : QObject(parent)
    , m_trayColours(std::make_unique<TrayColours>())
{
    readTrayColours();
    connect(m_trayColours.get(), &TrayColours::changed, this, &StatusAreaChooser::readTrayColours);
    if (session.isConnected())
        m_notifierBar = std::make_unique<StatusNotifierBar>(session, m_colours);
    m_patienceTimer.setSingleShot(true);
    connect(&m_patienceTimer, &QTimer::timeout, this, &StatusAreaChooser::useOwnBar);
}

StatusAreaChooser::~StatusAreaChooser() = default;

void StatusAreaChooser::setAppearance(const StatusAreaAppearance &appearance)
{
    m_colours.setAppearance(appearance);
}

void StatusAreaChooser::readTrayColours()
{
    m_colours.setTrayText(m_trayColours->text());
}

void StatusAreaChooser::start()
{
    if (!m_notifierBar) {
        useOwnBar();
        return;
    }
    const ItemRegistration &registration = m_notifierBar->registration();
    connect(&registration, &ItemRegistration::hostPresentChanged, this,
            &StatusAreaChooser::hostPresentChanged);
    // A panel takes the tray for itself at about the time at which it starts to show items.
    connect(&registration, &ItemRegistration::registered, m_trayColours.get(),
            &TrayColours::refresh);
    m_notifierBar->start();
    m_patienceTimer.start(m_patience);
    Q_EMIT itemAvailable(item());
}

StatusBar *StatusAreaChooser::bar() const
{
    if (m_ownBar)
        return m_ownBar.get();
    return m_notifierBar.get();
}

StatusItem *StatusAreaChooser::item() const
{
    StatusBar *const inUse = bar();
    return inUse ? inUse->item() : nullptr;
}

void StatusAreaChooser::hostPresentChanged(bool present)
{
    if (!present) {
        m_patienceTimer.start(m_patience);
        return;
    }
    m_patienceTimer.stop();
    if (m_ownBar)
        useStatusNotifier();
}

void StatusAreaChooser::useOwnBar()
{
    if (m_ownBar)
        return;
    if (m_notifierBar)
        m_notifierBar->item()->removeContentViews();
    m_ownBar = std::make_unique<OwnBar>(m_colours);
    Q_EMIT itemAvailable(item());
    m_ownBar->show();
}

void StatusAreaChooser::useStatusNotifier()
{
    // Whoever uses the own bar's item may do so until it has heard of the other one.
    OwnBar *const former = m_ownBar.release();
    former->item()->removeContentViews();
    former->hide();
    Q_EMIT itemAvailable(item());
    former->deleteLater();
}

} // namespace ferrin
