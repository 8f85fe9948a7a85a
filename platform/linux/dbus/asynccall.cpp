// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/dbus/asynccall.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace ferrin {

void callAsync(QDBusConnection bus, const QDBusMessage &call, QObject *context,
               std::function<void(const QDBusMessage &reply)> replied, int timeout)
{
    const auto *const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, timeout), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [replied = std::move(replied)](QDBusPendingCallWatcher *finished) {
                         finished->deleteLater();
                         replied(finished->reply());
                     });
}

} // namespace ferrin
