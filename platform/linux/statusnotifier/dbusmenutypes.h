// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QVariantMap>

namespace ferrin {

/// An entry with its children, D-Bus signature (ia{sv}av); each child is such a layout again.
struct DBusMenuLayout
{
    int number = 0;
    QVariantMap properties {};
    QVariantList children {};
};

/// Properties of one entry, D-Bus signature (ia{sv}).
struct DBusMenuProperties
{
    int number = 0;
    QVariantMap properties {};
};

/// Names of properties that an entry no longer has, D-Bus signature (ias).
struct DBusMenuRemovals
{
    int number = 0;
    QStringList names {};
};

/// Something that happened to an entry, D-Bus signature (isvu).
struct DBusMenuEvent
{
    int number = 0;
    QString event {};
    QDBusVariant data {};
    uint timestamp = 0;
};

/// Makes the types above known to QtDBus; may be called often.
void registerDBusMenuTypes();

QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuLayout &layout);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuLayout &layout);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuProperties &properties);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuProperties &properties);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuRemovals &removals);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuRemovals &removals);
QDBusArgument &operator<<(QDBusArgument &argument, const DBusMenuEvent &event);
const QDBusArgument &operator>>(const QDBusArgument &argument, DBusMenuEvent &event);

} // namespace ferrin

Q_DECLARE_METATYPE(ferrin::DBusMenuLayout)
Q_DECLARE_METATYPE(ferrin::DBusMenuProperties)
Q_DECLARE_METATYPE(ferrin::DBusMenuRemovals)
Q_DECLARE_METATYPE(ferrin::DBusMenuEvent)
