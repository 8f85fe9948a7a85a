// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "platform/linux/layers/layershell.h"

#include <QRasterWindow>

#include <memory>

namespace ferrin {

/// A wholly transparent window in a layer of a Wayland desktop, there for the pointer's events.
class UnseenWindow : public QRasterWindow
{
public:
    UnseenWindow(QScreen &screen, const QRect &bounds);
    ~UnseenWindow() override;

    /// Takes it off the screen; may be called from one of its own events.
    static void end(std::unique_ptr<UnseenWindow> window);

protected:
    void showIn(LayerShell &shell, const LayerPlace &place, LayerShell::Kind kind);
    void paintEvent(QPaintEvent *event) override;

private:
    void leave();

    std::unique_ptr<LayerSurface> m_surface;
};

} // namespace ferrin
