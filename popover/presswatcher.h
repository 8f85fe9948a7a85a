// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QWindow>

namespace ferrin {

/// Hears the presses of the pointer anywhere on the desktop, without a grab and, where that can be,
/// without taking them from whom they are meant for, so that a click that sends a popover away does
/// what it would do anyway. The wheel is no press. Implemented by the platform, where there is a
/// way; silent until started.
class PressWatcher : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// From now on presses are heard; those before are not. Does nothing while it listens. False
    /// where there is no way to hear them.
    virtual bool start() = 0;
    virtual void stop() = 0;

    /// Whether a press that it hears reaches nobody else.
    [[nodiscard]] virtual bool takesPresses() const { return false; }

    /// Tells of all that has been pressed until now before it returns.
    virtual void catchUp() = 0;

Q_SIGNALS:
    /// `ours` is the application's own window under the pointer, null for anything else.
    void pressed(QWindow *ours);
};

} // namespace ferrin
