// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "base/bindable.h"
#include "updates/updateconditions.h"
#include "updates/updatenotice.h"
#include "updates/updaterecords.h"
#include "updates/updatesession.h"

#include <QDateTime>
#include <QObject>
#include <QProperty>
#include <QTimer>

#include <functional>

namespace ferrin {

class DefaultsStore;

/// Keeps the program current: looks by itself once a day where the user lets it, and whenever the
/// user asks. It shows nothing; `session()` is what a window shows, and `presentationRequested`
/// there is when. A copy that no package installed has no timer and reads and writes nothing. Owned
/// by its controller, for the life of the process.
class Updater : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates)
    Q_PROPERTY(bool automaticallyChecksForUpdates READ automaticallyChecksForUpdates WRITE
                   setAutomaticallyChecksForUpdates)
    Q_PROPERTY(bool automaticallyDownloadsUpdates READ automaticallyDownloadsUpdates WRITE
                   setAutomaticallyDownloadsUpdates)

public:
    struct Parts
    {
        DefaultsStore &store;
        UpdateEngine &engine;
        UpdateNotice &notice;
        NetworkCost &network;
        std::function<BatteryReserve()> battery;
        std::function<QDateTime()> now = &QDateTime::currentDateTimeUtc;
    };

    /// All of the parts outlive the updater. Nothing happens before `start`.
    explicit Updater(const Parts &parts);

    /// From now on it looks by itself.
    void start();

    /// Where it is not full, the user can neither check nor set anything.
    [[nodiscard]] UpdateSupport support() const { return m_support; }
    [[nodiscard]] Bindable<UpdateSupport> bindableSupport() const { return &m_support; }
    /// Looks anew, since the user may have changed the system.
    void refreshSupport() { m_parts.engine.refreshSupport(); }

    /// False while a check is running, and without full support.
    [[nodiscard]] bool canCheckForUpdates() const { return m_canCheck; }
    [[nodiscard]] Bindable<bool> bindableCanCheckForUpdates() const { return &m_canCheck; }
    /// The user wants to know: a check begins now, on any network and battery, and the session asks
    /// to be shown.
    Q_INVOKABLE void checkForUpdates();

    /// Both are kept across launches.
    [[nodiscard]] bool automaticallyChecksForUpdates() const { return m_automaticallyChecks; }
    void setAutomaticallyChecksForUpdates(bool checks);
    [[nodiscard]] bool automaticallyDownloadsUpdates() const { return m_automaticallyDownloads; }
    void setAutomaticallyDownloadsUpdates(bool downloads);

    [[nodiscard]] UpdateSession &session() noexcept { return m_session; }

    /// Begins a quiet check if one is due and the machine can well afford it. The timer calls it.
    void look();
    [[nodiscard]] const QTimer &timer() const noexcept { return m_timer; }

private:
    [[nodiscard]] bool isPackaged() const
    {
        return support() == UpdateSupport::full || support() == UpdateSupport::noService;
    }
    [[nodiscard]] bool mayLook() const;
    void beginQuietCheck();
    void waitForNextLook();
    void tellOfOffer();
    void withdrawSeenNotice();

    Parts m_parts;
    UpdateRecords m_records;
    UpdateSession m_session;
    QTimer m_timer;
    QString m_told;
    QPropertyNotifier m_follower;
    Q_OBJECT_BINDABLE_PROPERTY(Updater, UpdateSupport, m_support)
    Q_OBJECT_BINDABLE_PROPERTY(Updater, bool, m_canCheck)
    Q_OBJECT_BINDABLE_PROPERTY(Updater, bool, m_automaticallyChecks)
    Q_OBJECT_BINDABLE_PROPERTY(Updater, bool, m_automaticallyDownloads)
};

} // namespace ferrin
