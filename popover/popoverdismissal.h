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

/// Says when the popover goes away because of what happens elsewhere, and which click on the item
/// belongs to that: a press on the item sends the popover away before the host tells of the click,
/// and that click must not bring it back. Owned by the application; closes nothing itself.
class PopoverDismissal final : public QObject
{
    Q_OBJECT

public:
    struct Patience
    {
        /// How long after a press the host may still tell of its click.
        std::chrono::milliseconds afterPress { 2000 };
        /// The same where presses are not heard: from the loss of the focus on.
        std::chrono::milliseconds afterFocus { 500 };
    };

    /// `presses` may be null. `isOfPopover` knows the popover's own windows.
    PopoverDismissal(PressWatcher *presses, std::function<bool(const QWindow &)> isOfPopover);
    ~PopoverDismissal() override;

    void setPatience(Patience patience) { m_patience = patience; }

    void popoverShown();
    void popoverHidden();
    void focusLost();

    /// Asked once for each click on the item: whether it is to be heeded.
    [[nodiscard]] bool isNewClick();

Q_SIGNALS:
    void dismissed();

private:
    enum class State {
        Hidden,
        Shown,
        /// A click may follow that belongs to what sent the popover away.
        Dismissed,
    };

    void heed(const QWindow *pressed);
    void dismiss(std::chrono::milliseconds patience);
    void settle();

    PressWatcher *m_presses;
    std::function<bool(const QWindow &)> m_isOfPopover;
    Patience m_patience;
    QTimer m_patienceTimer;
    State m_state = State::Hidden;
    bool m_hearsPresses = false;
};

} // namespace ferrin
