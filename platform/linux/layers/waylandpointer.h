// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/layers/layershell.h"

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ferrin {

/// Finds the pointer on a panel of a Wayland desktop, where few panels report where they were
/// clicked and programs cannot ask: it covers the edges of the screens with transparent strips for
/// a moment, and the strip under the pointer gets an enter event. Needs layers.
class WaylandPointer final : public QObject
{
    Q_OBJECT

public:
    /// In the desktop's logical pixels; absent when the pointer is at no edge of a screen.
    using Answer = std::function<void(std::optional<QPoint>)>;

    explicit WaylandPointer(QObject *parent = nullptr);
    ~WaylandPointer() override;

    [[nodiscard]] bool isPossible() const noexcept { return bool(*m_shell); }

    /// Answers later. A search that is still going on is answered with nothing.
    void find(Answer answer);

private:
    class Strip;

    void answer(std::optional<QPoint> place);

    std::shared_ptr<LayerShell> m_shell = LayerShell::shared();
    std::vector<std::unique_ptr<Strip>> m_strips;
    Answer m_answer;
    QTimer m_timeout;
};

} // namespace ferrin
