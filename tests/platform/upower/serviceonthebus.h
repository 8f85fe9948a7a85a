// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/upowerservice.h"
#include "tests/platform/upower/fakeupower.h"
#include "tests/support/logcapture.h"
#include "tests/support/privatebus.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <optional>

namespace ferrin::test {

/// The descriptions in their order; absent when there is no snapshot.
[[nodiscard]] std::optional<QList<QVariantMap>> pictureOf(UPowerService *service);

/// The names of the sources in their order; "none" when there is no snapshot.
[[nodiscard]] QStringList namesOf(UPowerService *service);

/// A value of the first source.
[[nodiscard]] QVariant factOf(UPowerService *service, const QString &key);

/// The log line about a daemon that replies.
[[nodiscard]] QString connected();
/// The results of namesOf() for the fake daemon's battery, and without a snapshot.
[[nodiscard]] QStringList dell();
[[nodiscard]] QStringList none();

/// The fixture for tests of the service: a log capture, a private bus on which a daemon may be
/// started, and a clock that only the test advances.
class ServiceOnTheBus : public QObject
{
    Q_OBJECT

protected:
    void startDaemon();
    /// The lines since the test began, to wait for them.
    [[nodiscard]] const QStringList &allLines();
    [[nodiscard]] std::unique_ptr<UPowerService> makeService();

    /// The kernel's answer for the service.
    std::optional<bool> m_externalPower;
    std::chrono::steady_clock::time_point m_time;
    std::optional<LogCapture> m_log;
    QStringList m_lines;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FakeUPower> m_daemon;

private Q_SLOTS:
    void init();
    void cleanup();
};

} // namespace ferrin::test
