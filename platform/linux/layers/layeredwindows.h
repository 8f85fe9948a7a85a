// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/layers/layershell.h"

#include <QObject>

#include <map>
#include <memory>

namespace ferrin {

/// Windows that stand in the layers of a Wayland desktop at the places that they are given, as
/// windows on X11 do by themselves. Outlives them.
class LayeredWindows final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The session has layers.
    [[nodiscard]] bool isPossible() const noexcept { return bool(*m_shell); }
    /// The window is in a layer.
    [[nodiscard]] bool contains(const QWindow *window) const { return m_shown.contains(window); }

    /// Call before each showing of the window. Does nothing where there are no layers.
    void prepare(QWindow &window, LayerShell::Kind kind);

private:
    struct Shown
    {
        std::unique_ptr<LayerSurface> surface;
        /// Ends the connections to the window.
        std::unique_ptr<QObject> context;
    };

    std::shared_ptr<LayerShell> m_shell = LayerShell::shared();
    std::map<const QWindow *, Shown> m_shown;
};

} // namespace ferrin
