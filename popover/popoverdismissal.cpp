// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "popover/popoverdismissal.h"

#include "popover/presswatcher.h"

#include <utility>

using namespace std::chrono_literals;

namespace ferrin {

PopoverDismissal::PopoverDismissal(PressWatcher *presses,
                                   std::function<bool(const QWindow &)> isOfPopover)
    : m_presses(presses)
    , m_isOfPopover(std::move(isOfPopover))
{
    m_clickTimer.setSingleShot(true);
    connect(&m_clickTimer, &QTimer::timeout, this, &PopoverDismissal::settle);
    if (m_presses)
        connect(m_presses, &PressWatcher::pressed, this, &PopoverDismissal::handlePress);
}

PopoverDismissal::~PopoverDismissal() = default;

void PopoverDismissal::popoverShown()
{
    m_clickTimer.stop();
    m_state = State::Shown;
    m_watchesPresses = m_presses && m_presses->start();
}

void PopoverDismissal::popoverHidden()
{
    if (m_state == State::Shown)
        settle();
}

void PopoverDismissal::handlePress(const QWindow *pressed)
{
    switch (m_state) {
    case State::Hidden:
        break;
    case State::Shown:
        if (!pressed || !m_isOfPopover(*pressed))
            dismiss(m_presses->takesPresses() ? 0ms : m_timeouts.afterPress);
        break;
    case State::Dismissed:
        // The click that comes now belongs to this press.
        settle();
        break;
    }
}

void PopoverDismissal::focusLost()
{
    // It may be a press that has taken the focus away.
    if (m_watchesPresses)
        m_presses->catchUp();
    if (m_state == State::Shown)
        dismiss(m_watchesPresses ? 0ms : m_timeouts.afterFocus);
}

bool PopoverDismissal::isNewClick()
{
    if (m_watchesPresses)
        m_presses->catchUp();
    if (m_state != State::Dismissed)
        return true;
    settle();
    return false;
}

void PopoverDismissal::dismiss(std::chrono::milliseconds timeout)
{
    m_state = State::Dismissed;
    if (timeout > 0ms)
        m_clickTimer.start(timeout);
    else
        settle();
    Q_EMIT dismissed();
}

void PopoverDismissal::settle()
{
    m_state = State::Hidden;
    m_clickTimer.stop();
    if (m_watchesPresses)
        m_presses->stop();
    m_watchesPresses = false;
}

} // namespace ferrin
