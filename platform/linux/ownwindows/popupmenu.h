// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Ferrin developers

#pragma once

#include "menubar/statusitem.h"
#include "platform/linux/layers/layeredwindows.h"
#include "platform/linux/layers/waylandpresswatcher.h"
#include "platform/linux/ownwindows/accessiblewindow.h"
#include "platform/linux/ownwindows/ownwindowlook.h"
#include "popover/itemplace.h"

#include <QRasterWindow>

#include <vector>

namespace ferrin {

/// A small menu of our own, for the hosts that leave the menu to the item and for the own bar.
/// Closes by itself when an entry is chosen, at Escape, and at a click elsewhere.
class PopupMenu final : public QRasterWindow
{
    Q_OBJECT

public:
    PopupMenu();

    /// Opens at the item, off its panel and wholly on its screen.
    void popUp(const std::vector<MenuEntry> &entries, const ItemPlace &place,
               const OwnWindowLook &look);

    [[nodiscard]] QAccessibleInterface *accessibleRoot() const override
    {
        return m_accessible.root();
    }

Q_SIGNALS:
    void triggered(const QString &id);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;

private:
    [[nodiscard]] QSize idealSize() const;
    [[nodiscard]] QRect entryBounds(int entry) const;
    [[nodiscard]] int entryAt(QPoint position) const;
    [[nodiscard]] std::vector<AccessiblePart> parts();
    void setCurrent(int entry);
    void choose(int entry);
    void grabInput(int attemptsLeft);

    std::vector<MenuEntry> m_entries;
    OwnWindowLook m_look;
    /// The highlighted entry, -1 for none.
    int m_current = -1;
    bool m_hasGrab = false;
    LayeredWindows m_layers;
    WaylandPressWatcher m_presses;
    AccessibleWindow m_accessible;
};

} // namespace ferrin
