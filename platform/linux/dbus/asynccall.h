// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

class QObject;

namespace ferrin {

/// Sends the call without waiting and hands the reply, which may be an error, to `replied`. Drops
/// the reply once `context` is gone. `timeout` is in milliseconds, -1 for the bus's own default.
void callAsync(QDBusConnection bus, const QDBusMessage &call, QObject *context,
               std::function<void(const QDBusMessage &reply)> replied, int timeout = -1);

} // namespace ferrin
