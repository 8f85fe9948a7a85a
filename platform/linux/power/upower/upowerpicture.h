// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/power/upower/busquestions.h"
#include "platform/linux/power/upower/troublelog.h"
#include "platform/linux/power/upower/upowerdevice.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <map>
#include <optional>
#include <set>

namespace ferrin {

/// Our own picture of UPower's devices, owned by UPowerService and kept from what the daemon tells:
/// it is asked once for its devices and once about each of them, and after that only listened to.
/// No call is ever waited for, except within waitForFirstPicture(), and none has a timeout: a
/// daemon that hangs answers when it goes on, and the bus answers for one that has died. Daemons
/// come, go and are replaced; signals and answers count only if they are the present one's. What a
/// daemon can make us do and keep is bounded, whatever it announces. It has more members than most
/// classes because the stages of the conversation are kept apart: waiting, asked, known.
class UPowerPicture final : public QObject
{
    Q_OBJECT

public:
    /// Begins the conversation. A connection that does not stand gives a picture that stays empty.
    UPowerPicture(const QDBusConnection &bus, SteadyNow now, QObject *parent = nullptr);

    /// Waits until nothing is left to be answered, at most for the budget, and runs no event loop.
    void waitForFirstPicture(std::chrono::milliseconds budget);

    /// Whether there is a daemon that has told of its devices, of at least one power source or of
    /// all that there are.
    [[nodiscard]] bool isKnown() const;

    /// What may be a power source of the machine, in the order of the object paths.
    [[nodiscard]] QList<UPowerDevice> devices() const;

    /// The daemon's own word on the whole machine; absent while it is not known.
    [[nodiscard]] std::optional<bool> onBattery() const noexcept { return m_onBattery; }

    /// Notes it in the log, once a daemon, when answers are overdue. Called when someone looks.
    void noteSilence();

Q_SIGNALS:
    /// Something that isKnown(), devices() or onBattery() answer is no longer as it was.
    void changed();
    /// The machine's or a source's power state changed, or a source came or went.
    void powerStateChanged();

private Q_SLOTS:
    void onOwnerChanged(const QString &name, const QString &before, const QString &after);
    void onDeviceAdded(const QDBusMessage &signal);
    void onDeviceRemoved(const QDBusMessage &signal);
    void onPropertiesChanged(const QDBusMessage &signal);

private:
    void askForOwner(bool mayStart);
    void startDaemon();
    void takeOwner(const QString &owner);
    void forgetOwner();
    void listen(bool on);
    void listenTo(const QString &path, bool on);
    void askForDevices();
    void askForOnBattery();
    void takeDevices(const QDBusMessage &answer);
    void enqueue(const QString &path);
    void askNextBatchSoon();
    void askNextBatch();
    void askAbout(const QString &path);
    void takeDevice(const QString &path, const QDBusMessage &answer);
    void update(UPowerDevice *device, const QVariantMap &properties);
    void tellOfChange(const UPowerDevice &before, const UPowerDevice &after);
    void takeOnBattery(const QVariant &value);
    void dropDevice(const QString &path);
    [[nodiscard]] bool isFromOwner(const QDBusMessage &message) const;

    QDBusConnection m_bus;
    BusQuestions m_questions;
    /// The daemon's unique name on the bus; empty while there is none.
    QString m_owner;
    std::optional<bool> m_onBattery;
    bool m_hasEnumerated = false;
    /// Announced, and not asked about yet.
    std::set<QString> m_waiting;
    /// Asked about, and not answered yet.
    std::set<QString> m_asked;
    /// By object path; only devices that may power the system.
    std::map<QString, UPowerDevice> m_devices;
    /// Of zero length: the next turn of the event loop.
    QTimer m_nextBatch;
    /// Of the present daemon.
    TroubleLog m_troubles;
};

} // namespace ferrin
