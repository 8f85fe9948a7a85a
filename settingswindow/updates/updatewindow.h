// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/titlebar.h"

#include <QQuickView>

class QScreen;

namespace ferrin {

class QuickEngine;
class SoftwareUpdates;

/// The window "Software Update", which shows the updater's session and closes when that ends. A
/// single instance, as large as what the stage has to say. To close it ends the session, unless a
/// package is being installed.
class UpdateWindow final : public QQuickView
{
    Q_OBJECT

public:
    /// Both outlive it.
    UpdateWindow(QuickEngine &engine, SoftwareUpdates &updates);

    /// The name by which the window is asked for.
    [[nodiscard]] static QString identifier();

    /// Shows the window, or brings the open one to the front. Without a session nothing opens. A
    /// new one is centred over `beside`, or on the screen without that, or placed by the desktop
    /// without either.
    void open(QScreen *screen, const QWindow *beside = nullptr);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void fit();
    void place(QScreen *screen, const QWindow *beside);

    SoftwareUpdates &m_updates;
    TitleBar m_titleBar;
};

} // namespace ferrin
