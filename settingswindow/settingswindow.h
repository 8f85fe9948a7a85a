// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QQuickView>

namespace ferrin {

/// The window "Ferrin Settings". A single instance, as large as its content, first placed at the
/// centre of the screen.
class SettingsWindow final : public QQuickView
{
    Q_OBJECT

public:
    /// The engine outlives it.
    explicit SettingsWindow(QQmlEngine &engine);

    /// The name by which the window is asked for.
    [[nodiscard]] static QString identifier();

    /// Shows the window, or brings the open one to the front.
    void open();
};

} // namespace ferrin
