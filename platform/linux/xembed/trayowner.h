// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/x11/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace ferrin {

/// Who owns the tray of the X11 screen: the program whose windows take in the icons of others by
/// the System Tray protocol. Follows the owner as it comes, goes and is replaced, and tells when it
/// announces something new of itself. Silent where the program does not run on X11.
class TrayOwner final : public QObject, QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit TrayOwner(QObject *parent = nullptr);
    ~TrayOwner() override;

    /// The owner's window, which takes requests; 0 for none.
    [[nodiscard]] quint32 window() const noexcept { return m_window; }

    /// Looks who owns the tray now.
    void refresh();

Q_SIGNALS:
    void changed();
    /// The same owner has changed one of its properties.
    void propertyChanged(quint32 atom);

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    [[nodiscard]] quint32 ownerToFollow() const;

    X11Connection m_x11;
    quint32 m_selection = 0;
    quint32 m_manager = 0;
    quint32 m_window = 0;
};

} // namespace ferrin
