// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "settingswindow/general/launchatlogin.h"

#include "quick/quickengine.h"
#include "state/loginitem.h"

#include <QLoggingCategory>
#include <QPointer>

namespace ferrin {

namespace {

// The component logs under a subsystem and category of its own.
Q_LOGGING_CATEGORY(launchAtLoginLogger, "org.ferrin.LaunchAtLogin/main")

} // namespace

LaunchAtLoginObservable &LaunchAtLoginObservable::shared()
{
    static LaunchAtLoginObservable observable;
    return observable;
}

LaunchAtLogin::LaunchAtLogin(LoginItem &item, Observable &observable, QObject *parent)
    : QObject(parent)
    , m_item(item)
    , m_observable(observable)
{
}

LaunchAtLogin *LaunchAtLogin::create(QQmlEngine *engine, QJSEngine *)
{
    return engineChild<LaunchAtLogin>(*engine);
}

bool LaunchAtLogin::isEnabled() const
{
    return m_item.status() == LoginItemStatus::enabled;
}

void LaunchAtLogin::setIsEnabled(bool enabled)
{
    Q_EMIT m_observable.willChange();
    if (!enabled || !isEnabled()) {
        change(enabled);
        return;
    }
    // An item that the session already lists is refreshed only by registering it again.
    m_item.unregisterItem([self = QPointer(this)](const std::optional<QString> &) {
        if (self)
            self->change(true);
    });
}

void LaunchAtLogin::change(bool enabled)
{
    const auto done = [self = QPointer(this), enabled](const std::optional<QString> &error) {
        if (error) {
            qCCritical(launchAtLoginLogger, "Failed to %s launch at login: %s",
                       enabled ? "enable" : "disable", qUtf8Printable(*error));
        }
        if (self)
            Q_EMIT self->isEnabledChanged();
    };
    enabled ? m_item.registerItem(done) : m_item.unregisterItem(done);
}

void LaunchAtLogin::readAgain()
{
    Q_EMIT isEnabledChanged();
}

} // namespace ferrin
