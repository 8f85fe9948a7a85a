// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

namespace ferrin::test {

/// A settings portal that says what a test puts in, on a connection of its own.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(const QDBusConnection &bus)
        : m_bus(bus)
    {
        m_bus.registerObject(path(), this,
                             QDBusConnection::ExportScriptableSlots
                                 | QDBusConnection::ExportScriptableSignals);
        m_bus.registerService(service());
    }

    ~FakePortal() override
    {
        m_bus.unregisterObject(path());
        m_bus.unregisterService(service());
    }

    /// Puts a setting in without a word.
    void put(const QString &group, const QString &key, const QVariant &value)
    {
        m_settings.insert(group + u'/' + key, value);
    }

    /// Changes a setting and says so.
    void change(const QString &group, const QString &key, const QVariant &value)
    {
        put(group, key, value);
        Q_EMIT SettingChanged(group, key, QDBusVariant(value));
    }

    /// Takes calls and never answers.
    bool isHung = false;
    int reads = 0;

    Q_SCRIPTABLE Q_SLOT QDBusVariant Read(const QString &group, const QString &key)
    {
        ++reads;
        setDelayedReply(isHung);
        const QVariant value = m_settings.value(group + u'/' + key);
        if (!value.isValid() && !isHung)
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"));
        return QDBusVariant(QVariant::fromValue(QDBusVariant(value.isValid() ? value : 0)));
    }

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString &group, const QString &key,
                                     const QDBusVariant &value);

private:
    static QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
    static QString path() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

    QDBusConnection m_bus;
    QHash<QString, QVariant> m_settings;
};

} // namespace ferrin::test
