// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/layers/layershell.h"
#include "popover/presswatcher.h"

#include <memory>
#include <vector>

namespace ferrin {

/// Hears presses on Wayland, where no program hears what is meant for others: while it listens, a
/// window that nobody sees lies over what the panels leave of each screen. Such a press reaches
/// nobody else; one on a panel goes there and is not heard.
class WaylandPressWatcher final : public PressWatcher
{
    Q_OBJECT

public:
    explicit WaylandPressWatcher(QObject *parent = nullptr);
    ~WaylandPressWatcher() override;

    bool start() override;
    void stop() override;
    [[nodiscard]] bool takesPresses() const override { return true; }
    void catchUp() override { }

private:
    class Pane;

    LayerShell m_shell;
    std::vector<std::unique_ptr<Pane>> m_panes;
};

} // namespace ferrin
