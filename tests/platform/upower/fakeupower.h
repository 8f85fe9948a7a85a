// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QVariantMap>

namespace ferrin::test {

/// The test's hand on a UPower of its own that runs as another process.
class FakeUPower
{
public:
    /// Starts the daemon on the bus and waits until it owns its name.
    FakeUPower(const QString &busAddress, const QDBusConnection &control);
    ~FakeUPower();
    FakeUPower(const FakeUPower &) = delete;
    FakeUPower &operator=(const FakeUPower &) = delete;

    /// Where the executable is.
    [[nodiscard]] static QString program();

    /// The full path of a device by its short name.
    [[nodiscard]] static QString path(const QString &name);

    /// Adds the device, or changes the properties given.
    void setDevice(const QString &name, const QVariantMap &properties);
    /// Changes the device, and says only that it has changed.
    void setDeviceQuietly(const QString &name, const QVariantMap &properties);
    void removeDevice(const QString &name);
    /// Adds devices whose names are the prefix and a number, without a word.
    void addMany(const QString &prefix, uint count, const QVariantMap &properties);
    /// The device will vanish while it is asked about.
    void makeShy(const QString &name);
    void talkNonsense();
    /// Refuses all questions with the text.
    void refuse(const QString &text);
    /// How often it was asked for anything so far.
    [[nodiscard]] uint questions();

    void hang();
    void resume();
    /// Ends it at once, hung or not.
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
