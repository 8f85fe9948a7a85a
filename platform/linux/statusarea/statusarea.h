// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/statusarea/panelcolours.h"

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

namespace ferrin {

class OwnBar;
class StatusBar;
class StatusItem;
class StatusNotifierBar;
class TrayColours;

/// Decides where the application's item stands: in the desktop's status area when there is one, in
/// a small bar of our own when there is none. The item is offered to the desktop from the first
/// moment and for ever; the own bar appears when no host has been seen for the patience, and is
/// given up as soon as one comes. Owned by the application; never touches what the item shows.
class StatusAreaChooser : public QObject
{
    Q_OBJECT

public:
    /// `session` may be unconnected: then the own bar is all there is.
    explicit StatusAreaChooser(const QDBusConnection &session, QObject *parent = nullptr);
    ~StatusAreaChooser() override;

    /// How long a status area may take to come, or to come back after a crash, before the own bar
    /// stands in for it.
    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }

    /// How the desktop looks and what the user forced. Call before `start` and at every change.
    void setAppearance(const StatusAreaAppearance &appearance);

    /// Offers the item to the desktop and tells of it at once by `itemAvailable`.
    void start();

    /// The bar in use, from `start` on.
    [[nodiscard]] StatusBar *bar() const;
    /// The item in use, from `start` on.
    [[nodiscard]] StatusItem *item() const;

Q_SIGNALS:
    /// The item to use from now on: fill it and listen to it. The one told before lost its content
    /// and says nothing any more; it may be deleted on return to the event loop.
    void itemAvailable(ferrin::StatusItem *item);

private:
    void readTrayColours();
    void hostPresentChanged(bool present);
    void useOwnBar();
    void useStatusNotifier();

    PanelColours m_colours;
    std::unique_ptr<TrayColours> m_trayColours;
    /// Null without a session bus.
    std::unique_ptr<StatusNotifierBar> m_notifierBar;
    /// Null while the desktop's status area is in use.
    std::unique_ptr<OwnBar> m_ownBar;
    QTimer m_patienceTimer;
    std::chrono::milliseconds m_patience { 3000 };
};

} // namespace ferrin
