// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "quick/titlebar.h"

#include <QQuickView>

class QScreen;

namespace ferrin {

class DefaultsStore;
class QuickEngine;

/// The window "Ferrin Settings": a single instance of the size of its content. Where the desktop
/// lets windows be placed, the window is remembered where the user has left it on a screen, also by
/// the next start.
class SettingsWindow final : public QQuickView
{
    Q_OBJECT

public:
    /// The engine and the store outlive it.
    SettingsWindow(QuickEngine &engine, DefaultsStore &store);

    /// The identifier that opens the window.
    [[nodiscard]] static QString identifier();

    /// Shows the window on this screen, where it last stood there, else in the middle, or brings
    /// the open one to the front. Without a screen the desktop places it.
    void open(QScreen *screen);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void place(QScreen &screen);
    void rememberPlace();
    /// Takes the size of the content, which follows the desktop's size of texts.
    void fit();

    DefaultsStore &m_store;
    bool m_canBePlaced;
    TitleBar m_titleBar;
};

} // namespace ferrin
