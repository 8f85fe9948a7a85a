// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/x11/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QString>

namespace ferrin {

/// Where sway or i3 answers questions: sway says so in the environment of what it starts, i3 in a
/// property of the X11 root window, which it writes anew whenever it reads its configuration or
/// starts again. Never opens the socket.
class WindowManagerSocket final : public QObject, QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit WindowManagerSocket(QObject *parent = nullptr);
    ~WindowManagerSocket() override;

    /// Empty where there is neither.
    [[nodiscard]] QString path() const;

Q_SIGNALS:
    /// What answers there has started, or started again, or gone.
    void renewed();

private:
    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

    X11Connection m_x11;
    quint32 m_property = 0;
};

} // namespace ferrin
