// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/x11/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace ferrin {

/// The owner of the X11 screen's system tray: the program that embeds the icons of others. Follows
/// the owner as it comes, goes and is replaced, and its properties. There is none where the program
/// does not run on X11. https://specifications.freedesktop.org/systemtray-spec/
class TrayOwner final : public QObject, QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit TrayOwner(QObject *parent = nullptr);
    ~TrayOwner() override;

    /// The owner's window, which takes requests; 0 for none.
    [[nodiscard]] quint32 window() const noexcept { return m_window; }

    /// Its panel stands at a side of the screen, by what it announces.
    [[nodiscard]] bool isStanding() const noexcept { return m_isStanding; }

    /// Asks for the present owner.
    void refresh();

Q_SIGNALS:
    void changed();
    void standingChanged();
    /// The same owner has changed one of its properties.
    void propertyChanged(quint32 atom);

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    [[nodiscard]] quint32 ownerToFollow() const;
    void readOrientation();

    X11Connection m_x11;
    quint32 m_selection = 0;
    quint32 m_manager = 0;
    quint32 m_orientation = 0;
    quint32 m_window = 0;
    bool m_isStanding = false;
};

} // namespace ferrin
