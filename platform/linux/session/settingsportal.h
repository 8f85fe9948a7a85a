// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

class QDBusVariant;

namespace ferrin {

/// The desktop's settings, as its portal tells them. Each setting that is watched is asked for
/// once, without waiting, again whenever the portal comes to the bus, and followed by the portal's
/// own signal. Where there is no portal, or none of that setting, nothing is ever told.
class SettingsPortal : public QObject
{
    Q_OBJECT

public:
    explicit SettingsPortal(const QDBusConnection &session, QObject *parent = nullptr);

    /// Tells the setting by `valueChanged` now and at each change.
    void watch(const QString &group, const QString &key);

Q_SIGNALS:
    void valueChanged(const QString &group, const QString &key, const QVariant &value);

private:
    void read(const QString &group, const QString &key);
    void readAll();
    Q_SLOT void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

    QDBusConnection m_session;
    QMultiHash<QString, QString> m_watched;
};

} // namespace ferrin
