// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

namespace ferrin {

/// The desktop's settings, from its portal. Each watched setting is read once without blocking,
/// again whenever the portal appears on the bus, and followed by the portal's own signal. Where
/// there is no portal, or it lacks the setting, no signal comes.
class SettingsPortal : public QObject
{
    Q_OBJECT

public:
    explicit SettingsPortal(const QDBusConnection &session, QObject *parent = nullptr);

    /// Emits `valueChanged` for the setting soon, and at each change.
    void watch(const QString &group, const QString &key);

Q_SIGNALS:
    void valueChanged(const QString &group, const QString &key, const QVariant &value);

private:
    void read(const QString &group, const QString &key);
    void readAll();
    // Takes the message whole: with QDBusVariant for a parameter the program was never called.
    Q_SLOT void settingChanged(const QDBusMessage &message);

    QDBusConnection m_session;
    QMultiHash<QString, QString> m_watched;
};

} // namespace ferrin
