// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

namespace ferrin {

class HostResolver;
struct HostProfile;

/// One interface at one path of the bus whose answers depend on who asks. The calls of
/// org.freedesktop.DBus.Properties are taken apart here; an unknown or malformed call gets the
/// error that the bus has for it. The interface's description is the XML of its name beside this
/// file.
class BusObject : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// Exports itself at the path for as long as it lives. The resolver outlives it.
    BusObject(const QDBusConnection &connection, HostResolver &resolver, const QString &path,
              const QString &interface, QObject *parent);
    ~BusObject() override;

    [[nodiscard]] QString introspect(const QString &path) const final;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) final;

protected:
    /// Looks up a property for one caller.
    using Properties = std::function<QVariant(const QString &name)>;

    /// Hands over a look-up of properties for this caller, now or later; the look-up answers
    /// invalid for a name that this caller is not given.
    virtual void readProperties(const QString &caller, std::function<void(const Properties &)> read)
        = 0;
    /// The names of all properties, whether or not every caller is given them.
    [[nodiscard]] virtual QStringList propertyNames() const = 0;
    /// Answers a call of the interface by such a host. Absent: there is no such method with such
    /// arguments.
    [[nodiscard]] virtual std::optional<QVariantList> call(const QDBusMessage &message,
                                                           const HostProfile &profile)
        = 0;

    [[nodiscard]] HostResolver &resolver() const noexcept { return m_resolver; }

    void sendSignal(const QString &name, const QVariantList &arguments = {});
    void sendSignalTo(const QString &receiver, const QString &name, const QVariantList &arguments);

private:
    bool handleProperties(const QDBusMessage &message);
    void answer(const QDBusMessage &message, const QDBusMessage &reply);
    void getProperty(const QDBusMessage &message, const QString &name);
    void getAllProperties(const QDBusMessage &message);

    QDBusConnection m_connection;
    HostResolver &m_resolver;
    QString m_path;
    QString m_interface;
};

} // namespace ferrin
