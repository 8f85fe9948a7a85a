// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "state/loginitem.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

namespace ferrin {

class DefaultsStore;

/// The login item of a program in a sandbox, as the desktop's Background portal keeps it. The
/// portal cannot be asked about its state, so its last answer is stored.
/// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Background.html
class PortalLoginItem final : public QObject, public LoginItem
{
    Q_OBJECT

public:
    /// The session is to start the program with this name, which is that of a command in the
    /// sandbox.
    PortalLoginItem(const QDBusConnection &session, DefaultsStore &store, QString program);

    [[nodiscard]] LoginItemStatus status() const override;
    void registerItem(Done done) override { request(true, std::move(done)); }
    void unregisterItem(Done done) override { request(false, std::move(done)); }

private:
    void request(bool autostart, Done done);
    /// Returns the error message; absent when the session does what was asked for.
    [[nodiscard]] std::optional<QString> take(bool autostart, bool granted);

    QDBusConnection m_session;
    DefaultsStore &m_store;
    QString m_program;
    /// Of the last request: an answer to an earlier one says nothing any more.
    quint64 m_number = 0;
};

} // namespace ferrin
