// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QSize>

class QQuickItem;
class QScreen;
class QWindow;

namespace ferrin {

/// The size of a window with a title bar: its root item's implicit one, as far as the screen has
/// room. In logical pixels.
[[nodiscard]] QSize windowSizeFor(const QQuickItem &root, const QScreen &screen);

/// Gives a window this size and no other, and moves one that is shown as little as it needs to
/// stay on its screen.
void fitWindow(QWindow &window, const QQuickItem &root);

} // namespace ferrin
