// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QQuickView>

namespace ferrin {

/// The window "Ferrin Settings": a single instance of the size of its content, placed at the centre
/// of the primary screen at first.
class SettingsWindow final : public QQuickView
{
    Q_OBJECT

public:
    /// The engine outlives it.
    explicit SettingsWindow(QQmlEngine &engine);

    /// The identifier that opens the window.
    [[nodiscard]] static QString identifier();

    /// Shows the window, or brings the open one to the front.
    void open();
};

} // namespace ferrin
