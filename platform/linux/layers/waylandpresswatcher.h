// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/layers/layershell.h"
#include "popover/presswatcher.h"

#include <memory>
#include <vector>

namespace ferrin {

/// Watches presses on Wayland, where no program gets the events of others: while it listens, a
/// transparent window covers what the panels leave of each screen. A press on it reaches nothing
/// else; one on a panel goes there and is not noticed.
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

    std::shared_ptr<LayerShell> m_shell = LayerShell::shared();
    std::vector<std::unique_ptr<Pane>> m_panes;
};

} // namespace ferrin
