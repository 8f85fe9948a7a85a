// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include <QObject>
#include <QProperty>

class QWindow;

namespace ferrin {

class PopoverDesktop;

/// Keeps the title bar of a window as dark or light as its content, also while the window is open.
class TitleBar final : public QObject
{
public:
    /// Both outlive it.
    TitleBar(QWindow &window, PopoverDesktop &desktop);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void dress();

    QWindow &m_window;
    PopoverDesktop &m_desktop;
    QProperty<bool> m_isDark { false };
    QPropertyNotifier m_follower;
};

} // namespace ferrin
