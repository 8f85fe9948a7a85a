// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QWindow>

namespace ferrin {

/// Reports presses of the pointer anywhere on the desktop, without a grab and, where possible,
/// without taking them from the window that they are meant for, so that a click that closes a
/// popover does what it does anyway. The wheel is no press. Implemented by the platform; silent
/// until started.
class PressWatcher : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Reports presses from now on. Does nothing while it is started. False where presses cannot be
    /// watched.
    virtual bool start() = 0;
    virtual void stop() = 0;

    /// Whether a press that is reported reaches no other window.
    [[nodiscard]] virtual bool takesPresses() const { return false; }

    /// Reports all presses until now before it returns.
    virtual void catchUp() = 0;

Q_SIGNALS:
    /// `ours` is the application's own window under the pointer, null for anything else.
    void pressed(QWindow *ours);
};

} // namespace ferrin
