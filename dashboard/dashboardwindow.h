// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "popover/itemplace.h"
#include "quick/framedwindow.h"

#include <QDeadlineTimer>
#include <QPointer>

class QScreen;

namespace ferrin {

/// The popover at the status item. Created when it opens and destroyed when it closes. It signals
/// when it should close and leaves that to its owner.
class DashboardWindow final : public FramedWindow
{
    Q_OBJECT

public:
    /// The engine outlives it.
    explicit DashboardWindow(QuickEngine &engine);

    /// Shows the popover beside the item, wholly inside the item's screen.
    void openAt(const ItemPlace &place);

Q_SIGNALS:
    /// The user, or the desktop, has closed it.
    void dismissed();
    void focusLost();

protected:
    bool event(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void followScreen();
    void placeAtItem();

    ItemPlace m_item;
    QPointer<QScreen> m_screen;
    QDeadlineTimer m_settling;
};

} // namespace ferrin
