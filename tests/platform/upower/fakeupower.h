// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QVariantMap>

namespace ferrin::test {

/// Starts and controls a fake UPower daemon, which runs in another process.
class FakeUPower
{
public:
    /// Starts the daemon on the bus and waits until it owns its name.
    FakeUPower(const QString &busAddress, const QDBusConnection &control);
    ~FakeUPower();
    FakeUPower(const FakeUPower &) = delete;
    FakeUPower &operator=(const FakeUPower &) = delete;

    /// The path of the executable.
    [[nodiscard]] static QString program();

    /// The object path of a device by its short name.
    [[nodiscard]] static QString path(const QString &name);

    /// Adds the device, or changes the properties given.
    void setDevice(const QString &name, const QVariantMap &properties);
    /// Changes the device, and only announces that the properties are invalidated.
    void setDeviceQuietly(const QString &name, const QVariantMap &properties);
    void removeDevice(const QString &name);
    /// Adds devices named by the prefix and a number, without signals.
    void addMany(const QString &prefix, uint count, const QVariantMap &properties);
    /// The device will disappear as soon as its properties are requested.
    void makeShy(const QString &name);
    void talkNonsense();
    /// Replies to all calls with an error of this text.
    void refuse(const QString &text);
    /// The number of calls so far.
    [[nodiscard]] uint questions();

    void hang();
    void resume();
    /// Kills it, even if it hangs.
    void kill();

private:
    uint control(const QString &method, const QVariantList &arguments = {});

    QDBusConnection m_control;
    QProcess m_process;
};

/// A battery that discharges, 50 % and an hour left.
[[nodiscard]] QVariantMap battery();
/// The same but for these properties.
[[nodiscard]] QVariantMap battery(const QVariantMap &other);
[[nodiscard]] QVariantMap mouse();

} // namespace ferrin::test
