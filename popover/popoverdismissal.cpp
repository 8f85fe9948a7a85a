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
    m_patienceTimer.setSingleShot(true);
    connect(&m_patienceTimer, &QTimer::timeout, this, &PopoverDismissal::settle);
    if (m_presses)
        connect(m_presses, &PressWatcher::pressed, this, &PopoverDismissal::heed);
}

PopoverDismissal::~PopoverDismissal() = default;

void PopoverDismissal::popoverShown()
{
    m_patienceTimer.stop();
    m_state = State::Shown;
    m_hearsPresses = m_presses && m_presses->start();
}

void PopoverDismissal::popoverHidden()
{
    if (m_state == State::Shown)
        settle();
}

void PopoverDismissal::heed(const QWindow *pressed)
{
    switch (m_state) {
    case State::Hidden:
        break;
    case State::Shown:
        if (!pressed || !m_isOfPopover(*pressed))
            dismiss(m_presses->takesPresses() ? 0ms : m_patience.afterPress);
        break;
    case State::Dismissed:
        // Whatever click comes now is this press's.
        settle();
        break;
    }
}

void PopoverDismissal::focusLost()
{
    // The focus may have gone to where a press was made.
    if (m_hearsPresses)
        m_presses->catchUp();
    if (m_state == State::Shown)
        dismiss(m_hearsPresses ? 0ms : m_patience.afterFocus);
}

bool PopoverDismissal::isNewClick()
{
    if (m_hearsPresses)
        m_presses->catchUp();
    if (m_state != State::Dismissed)
        return true;
    settle();
    return false;
}

void PopoverDismissal::dismiss(std::chrono::milliseconds patience)
{
    m_state = State::Dismissed;
    if (patience > 0ms)
        m_patienceTimer.start(patience);
    else
        settle();
    Q_EMIT dismissed();
}

void PopoverDismissal::settle()
{
    m_state = State::Hidden;
    m_patienceTimer.stop();
    if (m_hearsPresses)
        m_presses->stop();
    m_hearsPresses = false;
}

} // namespace ferrin
