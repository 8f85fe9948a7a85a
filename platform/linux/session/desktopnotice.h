// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "updates/updatenotice.h"

#include <QDBusConnection>
#include <QObject>

namespace ferrin {

/// A notification of the desktop, if it has any. Owned by the application. At most one is shown at
/// a time.
/// https://specifications.freedesktop.org/notification-spec/latest/
class DesktopNotice final : public QObject, public UpdateNotice
{
    Q_OBJECT

public:
    explicit DesktopNotice(const QDBusConnection &sessionBus);

    void show(const QString &title, const QString &text, std::function<void()> pressed) override;
    void withdraw() override;

private Q_SLOTS:
    void takeToken(uint id, const QString &token);
    void takeAction(uint id, const QString &action);
    void takeClosing(uint id, uint reason);

private:
    void subscribe(const QString &owner);
    void send(const QString &title, const QString &text);

    QDBusConnection m_bus;
    /// The service's own name, whose signals are heard; empty before the first notification.
    QString m_owner;
    std::function<void()> m_pressed;
    /// Zero while none is shown.
    uint m_id = 0;
};

} // namespace ferrin
