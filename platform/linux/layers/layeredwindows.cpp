// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#include "platform/linux/layers/layeredwindows.h"

#include <QScreen>
#include <QWindow>

namespace ferrin {

namespace {

LayerPlace placeOf(const QWindow &window)
{
    const QRect frame = window.geometry();
    return layerPlaceFor(frame, window.screen() ? window.screen()->geometry() : frame);
}

} // namespace

void LayeredWindows::prepare(QWindow &window, LayerShell::Kind kind)
{
    m_shown.erase(&window);
    std::unique_ptr<LayerSurface> surface = m_shell->createSurface(window, placeOf(window), kind);
    if (!surface)
        return;
    auto context = std::make_unique<QObject>();
    LayerSurface *const followed = surface.get();
    const auto follow = [followed, &window] { followed->move(placeOf(window)); };
    connect(&window, &QWindow::xChanged, context.get(), follow);
    connect(&window, &QWindow::yChanged, context.get(), follow);
    connect(&window, &QWindow::widthChanged, context.get(), follow);
    connect(&window, &QWindow::heightChanged, context.get(), follow);
    // Emitted before Qt destroys the surface that the layer surface is made of.
    connect(&window, &QWindow::visibleChanged, context.get(), [this, &window](bool isVisible) {
        if (!isVisible)
            m_shown.erase(&window);
    });
    m_shown[&window] = { .surface = std::move(surface), .context = std::move(context) };
}

} // namespace ferrin
