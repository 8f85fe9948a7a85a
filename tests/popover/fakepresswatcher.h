// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/presswatcher.h"

#include <QList>

#include <utility>

namespace ferrin::test {

/// Hears what a test presses.
class FakePressWatcher final : public PressWatcher
{
public:
    bool start() override { return listens = !isDeaf; }
    void stop() override { listens = false; }
    [[nodiscard]] bool takesPresses() const override { return isGreedy; }
    void catchUp() override
    {
        for (QWindow *const ours : std::exchange(unread, {}))
            press(ours);
    }

    void press(QWindow *ours)
    {
        if (listens)
            Q_EMIT pressed(ours);
    }

    bool isDeaf = false;
    /// What it hears reaches nobody else.
    bool isGreedy = false;
    bool listens = false;
    /// Presses that have been made and are not told before somebody catches up.
    QList<QWindow *> unread;
};

} // namespace ferrin::test
