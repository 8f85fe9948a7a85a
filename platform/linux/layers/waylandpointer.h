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

/// Finds the pointer on a panel of a Wayland desktop, where few panels tell where they were
/// clicked, and nobody else knows: for a moment it lays strips that nobody sees over the edges of
/// the screens, and the one that the pointer is on hears of it. Works where there are layers.
class WaylandPointer final : public QObject
{
    Q_OBJECT

public:
    /// In the desktop's logical pixels; absent when the pointer is at no edge of a screen.
    using Answer = std::function<void(std::optional<QPoint>)>;

    explicit WaylandPointer(QObject *parent = nullptr);
    ~WaylandPointer() override;

    [[nodiscard]] bool isPossible() const noexcept { return bool(m_shell); }

    /// Answers later. Who asks again meanwhile has the first question answered with nothing.
    void find(Answer answer);

private:
    class Strip;

    void answer(std::optional<QPoint> place);

    LayerShell m_shell;
    std::vector<std::unique_ptr<Strip>> m_strips;
    Answer m_answer;
    QTimer m_patience;
};

} // namespace ferrin
