// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QTimer>
#include <QWindow>

#include <chrono>
#include <functional>

namespace ferrin {

class PressWatcher;

/// Decides when the popover closes because of what happens elsewhere, and which click on the item
/// belongs to that: a press on the item closes the popover before the host reports the click, and
/// that click must not open it again. Owned by the application; closes nothing itself.
class PopoverDismissal final : public QObject
{
    Q_OBJECT

public:
    struct Timeouts
    {
        /// How long after a press the host may still report its click.
        std::chrono::milliseconds afterPress { 2000 };
        /// The same where presses are not watched: after the loss of the focus.
        std::chrono::milliseconds afterFocus { 500 };
    };

    /// `presses` may be null. `isOfPopover` knows the popover's own windows.
    PopoverDismissal(PressWatcher *presses, std::function<bool(const QWindow &)> isOfPopover);
    ~PopoverDismissal() override;

    void setTimeouts(Timeouts timeouts) { m_timeouts = timeouts; }

    void popoverShown();
    void popoverHidden();
    void focusLost();

    /// Call once for each click on the item: whether it opens or closes the popover.
    [[nodiscard]] bool isNewClick();

Q_SIGNALS:
    void dismissed();

private:
    enum class State {
        Hidden,
        Shown,
        /// A click may follow that belongs to what closed the popover.
        Dismissed,
    };

    void handlePress(const QWindow *pressed);
    void dismiss(std::chrono::milliseconds timeout);
    void settle();

    PressWatcher *m_presses;
    std::function<bool(const QWindow &)> m_isOfPopover;
    Timeouts m_timeouts;
    QTimer m_clickTimer;
    State m_state = State::Hidden;
    bool m_watchesPresses = false;
};

} // namespace ferrin
