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

/// A fact of the first source.
[[nodiscard]] QVariant factOf(UPowerService *service, const QString &key);

/// The line that tells of a daemon that answers.
[[nodiscard]] QString connected();
/// What namesOf() says of the fake daemon's battery, and without a snapshot.
[[nodiscard]] QStringList dell();
[[nodiscard]] QStringList none();

/// What every test of the service starts from: a log and a bus of its own, on which a daemon may
/// start, and a clock that stands until the test moves it.
class ServiceOnTheBus : public QObject
{
    Q_OBJECT

protected:
    void startDaemon();
    /// The lines since the test began; for waiting until they come.
    [[nodiscard]] const QStringList &allLines();
    [[nodiscard]] std::unique_ptr<UPowerService> makeService();

    /// What the service gets for the kernel's answer.
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
