// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <optional>

namespace ferrin {

/// A call of the desktop's portal that is answered by a signal later, for which the user may be
/// asked. Does not block; deletes itself once it is answered.
/// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Request.html
class PortalRequest final : public QObject
{
    Q_OBJECT

public:
    /// The error message, absent on success, and the results of a success.
    using Answered
        = std::function<void(const std::optional<QString> &error, const QVariantMap &results)>;

    /// Calls a method of an interface of the portal. Its last argument, the options, is added here.
    static void send(const QDBusConnection &session, const QString &interface,
                     const QString &method, const QVariantList &arguments, QVariantMap options,
                     QObject *parent, Answered answered);

private:
    PortalRequest(const QDBusConnection &session, QObject *parent, Answered answered);

    void listenAt(const QString &path);
    void finish(const std::optional<QString> &error, const QVariantMap &results = {});
    Q_SLOT void takeResponse(const QDBusMessage &message);

    QDBusConnection m_session;
    Answered m_answered;
    /// Where the answer is awaited.
    QString m_path;
};

} // namespace ferrin
